#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

namespace vlt::buildings {

/// The rows of a FileListModel in the order that the headers of a table ask for: heights as
/// numbers, names and folders with the numbers in them in natural order, images in use apart. A row
/// stays where it is when it is edited. Texts that a column may cut are tool tips too.
class TextureSortModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit TextureSortModel(QObject *parent = nullptr);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QCollator m_collator;
};

} // namespace vlt::buildings
