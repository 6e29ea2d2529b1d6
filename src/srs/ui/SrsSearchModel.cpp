#include "srs/ui/SrsSearchModel.h"

#include <algorithm>

namespace vlt::srs {

void SrsSearchModel::setSearch(SharedSrsSearch search)
{
    beginResetModel();
    m_found.clear();
    m_search = std::move(search);
    endResetModel();
}

void SrsSearchModel::find(const SrsQuery &query, const SrsPreferences &preferences)
{
    if (!m_search)
        return;
    beginResetModel();
    m_nearText.clear();
    m_found = m_search->find(query, preferences);
    if (m_found.empty()) {
        SrsQuery near = query;
        near.text = m_search->nearText(query.text);
        if (!near.text.isEmpty())
            m_found = m_search->find(near, preferences);
        if (!m_found.empty())
            m_nearText = near.text;
    }
    endResetModel();
}

void SrsSearchModel::clear()
{
    beginResetModel();
    m_nearText.clear();
    m_found.clear();
    endResetModel();
}

int SrsSearchModel::rowOfCode(const QString &code) const
{
    const auto row = std::find_if(m_found.begin(), m_found.end(), [&](int index) {
        return m_search->systems().at(index).key() == code;
    });
    return row == m_found.end() ? -1 : static_cast<int>(row - m_found.begin());
}

SrsEntry SrsSearchModel::entryAt(int row) const
{
    return entryOf(*systemAt(row));
}

const geodata::SrsRecord *SrsSearchModel::systemAt(int row) const
{
    return &m_search->systems().at(m_found.at(static_cast<size_t>(row)));
}

int SrsSearchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_found.size());
}

} // namespace vlt::srs
