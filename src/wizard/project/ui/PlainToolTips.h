#pragma once

#include <QStyledItemDelegate>

/// Shows the tool tips of list items as plain text, because a path may contain characters that look
/// like tags.
class PlainToolTips : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};
