#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

namespace vlt::buildings {

/// The rows of a FileListModel, sorted by a column: heights as numbers, names and folders in
/// natural order of the numbers in them, images in use together. An edited row keeps its position.
/// Texts that may be cut are tool tips too.
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
