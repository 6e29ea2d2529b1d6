#include "tables/ExcerptModel.h"

#include "language/VltLanguageManager.h"
#include "text/RichText.h"

#include <algorithm>

namespace vlt::tables {

void ExcerptModel::setTable(const UnderstoodTable &table)
{
    beginResetModel();
    m_excerpt = table.excerpt;
    qsizetype width = 0;
    for (const geodata::TableColumn &column : m_excerpt.columns)
        width = qMax<qsizetype>(width, column.position + 1);
    for (const geodata::ExcerptRow &row : m_excerpt.rows)
        width = qMax(width, row.cells.size());
    m_names = QStringList(width);
    m_roles = m_names;
    const QHash<QString, QStringList> roles = rolesByColumn(table);
    for (const geodata::TableColumn &column : m_excerpt.columns) {
        m_names[column.position] = column.name;
        m_roles[column.position] = roles.value(column.name).join(QStringLiteral(", "));
    }
    endResetModel();
}

ExcerptModel::RowKind ExcerptModel::kindOf(int row) const
{
    const qint64 number = m_excerpt.rows[row].number;
    if (m_excerpt.headerRows.contains(number))
        return Header;
    if (m_excerpt.furtherRows.contains(number))
        return BelowHeader;
    const bool isAbove = !m_excerpt.headerRows.isEmpty() && number < m_excerpt.headerRows.first();
    return isAbove ? Title : Data;
}

int ExcerptModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_excerpt.rows.size());
}

int ExcerptModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_names.size());
}

QVariant ExcerptModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const QString text = m_excerpt.rows[index.row()].cells.value(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return text;
    case Qt::ToolTipRole:
        return text::asRichText(text);
    case RowKindRole:
        return kindOf(index.row());
    default:
        return {};
    }
}

QVariant ExcerptModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return QString::number(rowNumber(section));
    const QString roles = m_roles[section].isEmpty() ? QStringLiteral("\u2013") : m_roles[section];
    return roles + QLatin1Char('\n') + m_names[section];
}

} // namespace vlt::tables
