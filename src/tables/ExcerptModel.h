#pragma once

#include "tables/RoleTable.h"

#include <QAbstractTableModel>

namespace vlt::tables {

/// The first rows of a table as they stand in the file, below the roles and the names of its
/// columns.
class ExcerptModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// What a row of the file is.
    enum RowKind { Title, Header, BelowHeader, Data };
    enum DataRole { RowKindRole = Qt::UserRole };

    using QAbstractTableModel::QAbstractTableModel;

    void setTable(const UnderstoodTable &table);

    /// Number of a row in the file, from 1.
    int rowNumber(int row) const { return static_cast<int>(m_excerpt.rows[row].number); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    RowKind kindOf(int row) const;

    geodata::TableExcerpt m_excerpt;
    QStringList m_names; ///< of the fields, by column; empty for a column that is none
    QStringList m_roles; ///< by column
};

} // namespace vlt::tables
