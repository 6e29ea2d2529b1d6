#include "plugins/tables/sites/SiteDirectory.h"

#include "plugins/tables/sites/JoinKey.h"

namespace vlt::driver {

void SiteDirectory::add(std::string_view id, std::string_view name, const Position &position)
{
    addTo(m_byId, id, position);
    addTo(m_byName, name, position);
}

void SiteDirectory::addTo(Entries &entries, std::string_view key, const Position &position) const
{
    std::string joined = joinKey(key);
    if (joined.empty())
        return;
    const auto [found, isNew] = entries.emplace(std::move(joined), Entry{position});
    Entry &entry = found->second;
    if (isNew || !position.found)
        return;
    if (!entry.position.found)
        entry.position = position;
    else if (distanceM(entry.position, position, m_unit) > MaxSiteExtentM)
        entry.isAmbiguous = true;
}

const SiteDirectory::Entry *SiteDirectory::find(std::string_view idOrName) const
{
    const std::string key = joinKey(idOrName);
    for (const Entries *entries : {&m_byId, &m_byName}) {
        if (const auto found = entries->find(key); found != entries->end())
            return &found->second;
    }
    return nullptr;
}

} // namespace vlt::driver
