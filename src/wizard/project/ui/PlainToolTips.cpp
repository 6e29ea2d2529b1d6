#include "wizard/project/ui/PlainToolTips.h"

#include "text/RichText.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

bool PlainToolTips::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                              const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(),
                       vlt::text::asRichText(index.data(Qt::ToolTipRole).toString()), view);
    return true;
}
