#include "plugins/tables/sites/OfferedFields.h"

#include "contract/SiteColumns.h"
#include "plugins/tables/roles/NameWords.h"

#include <algorithm>

namespace vlt::driver {

namespace {

/// Maximum number of transmitters of a site that get fields.
constexpr std::size_t MaxTransmitters = 200;

contract::SiteColumns ownColumns(const TableProfile &table)
{
    std::vector<std::string> names;
    for (const Field &field : table.fields)
        names.push_back(field.name);
    return contract::recogniseColumns(names);
}

bool hasTransmitters(const contract::SiteColumns &columns)
{
    return !columns.azimuths.empty() || !columns.heights.empty();
}

class Offer
{
public:
    Offer(const TableProfile &table, const SiteRoles &roles,
          const std::vector<TransmitterFields> &transmitters)
        : m_table(table)
        , m_roles(roles)
        , m_transmitters(transmitters)
        , m_own(ownColumns(table))
    {}

    std::vector<OfferedField> fields(const PointFields &point, CoordinateUnit unit,
                                     std::size_t transmitterCount)
    {
        // a table in the layout of a planning tool has what its readers need
        const bool isKnown = hasTransmitters(m_own);
        if (!isKnown)
            addSite(point, unit);
        for (std::size_t i = 0; i < std::min(transmitterCount, MaxTransmitters); ++i)
            addTransmitter(i, isKnown);
        return std::move(m_fields);
    }

private:
    void add(std::string name, OfferedValue value, std::size_t transmitter = 0)
    {
        const std::string wanted = folded(name);
        const bool exists =
            std::any_of(m_table.fields.begin(), m_table.fields.end(),
                        [&wanted](const Field &field) { return folded(field.name) == wanted; });
        if (!exists)
            m_fields.push_back({std::move(name), value, transmitter});
    }

    void addSite(const PointFields &point, CoordinateUnit unit)
    {
        if (m_roles.siteId >= 0 || m_roles.siteName >= 0)
            add("Site ID", OfferedValue::SiteId);
        const bool inMetres = unit == CoordinateUnit::Meters;
        if (point.found() && m_own.x < 0)
            add(inMetres ? "X" : "Longitude", OfferedValue::X);
        if (point.found() && m_own.y < 0)
            add(inMetres ? "Y" : "Latitude", OfferedValue::Y);
        if (m_roles.groundHeight.found() && m_own.terrainHeight < 0 &&
            m_roles.shape != SiteShape::Own)
            add("Transmitter-1 Terrain Height (m)", OfferedValue::GroundHeight);
    }

    template<typename IsFound>
    bool any(IsFound isFound) const
    {
        return std::any_of(m_transmitters.begin(), m_transmitters.end(), isFound);
    }

    void addTransmitter(std::size_t index, bool isKnown)
    {
        using Fields = TransmitterFields;
        const std::string prefix = "Transmitter-" + std::to_string(index + 1) + ' ';
        const auto quantity = [&](QuantityField Fields::*member, const char *name,
                                  OfferedValue value, bool isOwn) {
            if (!isOwn && any([member](const Fields &of) { return (of.*member).found(); }))
                add(prefix + name, value, index);
        };
        const auto text = [&](int Fields::*member, const char *name, OfferedValue value,
                              bool isOwn) {
            if (!isOwn && any([member](const Fields &of) { return of.*member >= 0; }))
                add(prefix + name, value, index);
        };
        text(&Fields::sectorId, "Sector ID", OfferedValue::SectorId, isKnown);
        quantity(&Fields::height, "Height (m)", OfferedValue::Height, !m_own.heights.empty());
        quantity(&Fields::azimuth, "Azimuth (\u00B0)", OfferedValue::Azimuth,
                 !m_own.azimuths.empty());
        quantity(&Fields::mechanicalTilt, "Mechanical tilt", OfferedValue::MechanicalTilt, isKnown);
        quantity(&Fields::electricalTilt, "Electrical tilt (\u00B0)", OfferedValue::ElectricalTilt,
                 isKnown);
        quantity(&Fields::beamWidth, "Beam width (\u00B0)", OfferedValue::BeamWidth, isKnown);
        if (!isKnown &&
            any([](const Fields &of) { return of.frequency.found() || of.bandMHz.has_value(); }))
            add(prefix + "Frequency (MHz)", OfferedValue::Frequency, index);
        text(&Fields::technology, "Technology", OfferedValue::Technology, isKnown);
    }

    const TableProfile &m_table;
    const SiteRoles &m_roles;
    const std::vector<TransmitterFields> &m_transmitters;
    contract::SiteColumns m_own;
    std::vector<OfferedField> m_fields;
};

} // namespace

bool hasKnownTransmitters(const TableProfile &table)
{
    return hasTransmitters(ownColumns(table));
}

std::vector<OfferedField> offeredFields(const TableProfile &table, const SiteRoles &roles,
                                        const PointFields &point, CoordinateUnit unit,
                                        const std::vector<TransmitterFields> &transmitters,
                                        std::size_t transmitterCount)
{
    return Offer(table, roles, transmitters).fields(point, unit, transmitterCount);
}

} // namespace vlt::driver
