#include "srs/ui/SrsListModel.h"

namespace vlt::srs {

SrsListModel::SrsListModel(Titles titles, QObject *parent) : SrsTableModel(parent), m_titles(titles)
{}

void SrsListModel::setSearch(SharedSrsSearch search)
{
    m_search = std::move(search);
    if (!m_entries.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void SrsListModel::setEntries(const SrsEntryList &list)
{
    beginResetModel();
    m_entries = QList<SrsEntry>(list.begin(), list.end());
    endResetModel();
}

SrsEntry SrsListModel::entryAt(int row) const
{
    return m_entries.at(row);
}

const geodata::SrsRecord *SrsListModel::systemAt(int row) const
{
    return m_search ? m_search->systemOf(m_entries.at(row).code) : nullptr;
}

int SrsListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant SrsListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (m_titles == Titles::AliasAndDefinition && orientation == Qt::Horizontal &&
        role == Qt::DisplayRole) {
        if (section == Name)
            return tr("Alias", "MESS_SRS_COLUMN_ALIAS");
        if (section == Code)
            return tr("Definition", "MESS_SRS_COLUMN_DEFINITION");
    }
    return SrsTableModel::headerData(section, orientation, role);
}

} // namespace vlt::srs
