#pragma once

#include <QAbstractTableModel>

namespace vlt::buildings {

/// Stands in the table of textures while there is none: one red cell that says what to do.
class EmptyFileListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
};

} // namespace vlt::buildings
