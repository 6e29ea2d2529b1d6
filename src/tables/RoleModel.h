#pragma once

#include "tables/RoleTable.h"

#include <QAbstractItemModel>

namespace vlt::tables {

/// The roles of a table's columns, each with its column, the evidence for it and some values. Roles
/// that may have several columns have them as children: one for each transmitter, or for each part
/// of a coordinate.
///
/// The user chooses a column by setData() with Qt::EditRole and an index into choices(); the model
/// then emits mappingChosen() and stays as it is until it gets the table that results.
class RoleModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { Role, Name, Evidence, Samples, ColumnCount };
    enum DataRole {
        IsFoundRole = Qt::UserRole, ///< whether a column has the role
        IsStatedRole,               ///< whether the mapping states the column
    };

    using QAbstractItemModel::QAbstractItemModel;

    void setTable(const UnderstoodTable &table);

    /// The number of columns that have a role.
    int columnsFound() const;

    /// The texts of what the user may choose for an entry: what was recognised, no column, or a
    /// column of the table.
    QStringList choices(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void mappingChosen(const vlt::contract::ColumnMapping &mapping);

private:
    const RoleEntry &entryOf(const QModelIndex &index) const;
    /// Whether the first choice is what was recognised.
    bool offersRecognised(const QModelIndex &index) const;
    QVariant text(const QModelIndex &index) const;
    int choiceOf(const QModelIndex &index) const;

    UnderstoodTable m_table;
    QList<RoleEntry> m_entries;
};

} // namespace vlt::tables
