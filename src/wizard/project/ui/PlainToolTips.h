#pragma once

#include <QStyledItemDelegate>

/// Shows the tool tips of a list's items as they stand: they are paths, and a path may look like a
/// text with tags.
class PlainToolTips : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};
