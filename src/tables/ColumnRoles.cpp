#include "tables/ColumnRoles.h"

#include "language/VltLanguageManager.h"

#include <algorithm>
#include <array>

namespace vlt::tables {

namespace {

/// The tables in which a role occurs.
enum class Use {
    Sites,
    Transmitters, ///< of sites
    Links,
    Ends,         ///< of links
    SitesAndEnds, ///< of links
};

struct KnownRole
{
    const char *role;
    Use use;
    const char *key;
    const char *english;
};

constexpr auto KnownRoles = std::to_array<KnownRole>({
    {"linkName", Use::Links, "MESS_ROLE_LINK_NAME", "Name of the link"},
    {"siteId", Use::SitesAndEnds, "MESS_ROLE_SITE_ID", "Site ID"},
    {"siteName", Use::SitesAndEnds, "MESS_ROLE_SITE_NAME", "Site name"},
    {"x", Use::SitesAndEnds, "MESS_ROLE_X", "X coordinate"},
    {"y", Use::SitesAndEnds, "MESS_ROLE_Y", "Y coordinate"},
    {"pair", Use::SitesAndEnds, "MESS_ROLE_PAIR", "Coordinates in one cell"},
    {"utmZone", Use::SitesAndEnds, "MESS_ROLE_UTM_ZONE", "UTM zone"},
    {"groundHeight", Use::SitesAndEnds, "MESS_ROLE_GROUND_HEIGHT", "Ground height"},
    {"sectorId", Use::Transmitters, "MESS_ROLE_SECTOR_ID", "Sector"},
    {"antennaHeight", Use::Transmitters, "MESS_ROLE_ANTENNA_HEIGHT", "Antenna height"},
    {"antennaHeight", Use::Ends, "MESS_ROLE_ANTENNA_HEIGHT", "Antenna height"},
    {"seaLevelHeight", Use::SitesAndEnds, "MESS_ROLE_SEA_LEVEL_HEIGHT",
     "Antenna height above sea level"},
    {"azimuth", Use::Transmitters, "MESS_ROLE_AZIMUTH", "Azimuth"},
    {"azimuth", Use::Ends, "MESS_ROLE_AZIMUTH", "Azimuth"},
    {"mechanicalTilt", Use::Transmitters, "MESS_ROLE_MECHANICAL_TILT", "Mechanical tilt"},
    {"electricalTilt", Use::Transmitters, "MESS_ROLE_ELECTRICAL_TILT", "Electrical tilt"},
    {"tilt", Use::Transmitters, "MESS_ROLE_TILT", "Tilt"},
    {"tilt", Use::Ends, "MESS_ROLE_TILT", "Tilt"},
    {"beamWidth", Use::Transmitters, "MESS_ROLE_BEAM_WIDTH", "Beam width"},
    {"diameter", Use::Ends, "MESS_ROLE_DIAMETER", "Dish diameter"},
    {"diameter", Use::Links, "MESS_ROLE_DIAMETER", "Dish diameter"},
    {"offsetX", Use::Ends, "MESS_ROLE_OFFSET_X", "Offset to the east"},
    {"offsetY", Use::Ends, "MESS_ROLE_OFFSET_Y", "Offset to the north"},
    {"band", Use::Transmitters, "MESS_ROLE_BAND", "Frequency band"},
    {"band", Use::Links, "MESS_ROLE_BAND", "Frequency band"},
    {"frequency", Use::Transmitters, "MESS_ROLE_FREQUENCY", "Frequency"},
    {"frequency", Use::Links, "MESS_ROLE_FREQUENCY", "Frequency"},
    {"frequency", Use::Ends, "MESS_ROLE_FREQUENCY", "Frequency"},
    {"technology", Use::Transmitters, "MESS_ROLE_TECHNOLOGY", "Technology"},
    {"operator", Use::Sites, "MESS_ROLE_OPERATOR", "Operator"},
    {"lengthLink", Use::Links, "MESS_ROLE_LENGTH", "Path length"},
    {"repeater", Use::Links, "MESS_ROLE_REPEATER", "Passive repeater"},
});

bool isOfSites(Use use)
{
    return use == Use::Sites || use == Use::Transmitters || use == Use::SitesAndEnds;
}

bool isOfEnds(Use use)
{
    return use == Use::Ends || use == Use::SitesAndEnds;
}

template<typename Condition>
const KnownRole *findRole(QStringView role, Condition hasUse)
{
    const auto found =
        std::find_if(KnownRoles.begin(), KnownRoles.end(), [&](const KnownRole &known) {
            return role == QLatin1String(known.role) && hasUse(known.use);
        });
    return found == KnownRoles.end() ? nullptr : &*found;
}

bool isEndLetter(QChar letter)
{
    return letter == QLatin1Char('A') || letter == QLatin1Char('B');
}

QString textOf(const KnownRole &known)
{
    return dico_label(known.key, known.english);
}

} // namespace

QStringList rolesOf(contract::TableKind kind)
{
    QStringList roles;
    const auto add = [&roles](auto hasUse, const char *end) {
        for (const KnownRole &known : KnownRoles) {
            if (hasUse(known.use))
                roles << QLatin1String(known.role) + QLatin1String(end);
        }
    };
    if (kind == contract::TableKind::Sites) {
        add(isOfSites, "");
        return roles;
    }
    add([](Use use) { return use == Use::Links; }, "");
    add(isOfEnds, "A");
    add(isOfEnds, "B");
    return roles;
}

QString roleName(const QString &role)
{
    if (const KnownRole *known = findRole(role, [](Use use) { return use != Use::Ends; }))
        return textOf(*known);
    if (role.isEmpty() || !isEndLetter(role.back()))
        return role;
    const KnownRole *known = findRole(QStringView(role).chopped(1), isOfEnds);
    return known ? dico_label("MESS_ROLE_OF_END", "%1, end %2").arg(textOf(*known), role.right(1))
                 : role;
}

QString roleText(const geodata::ColumnRole &role)
{
    const QString text = roleName(role.role);
    return role.sector.isEmpty() ? text : text + QLatin1Char(' ') + role.sector;
}

QString secondTitle(const geodata::SecondColumns &second)
{
    return dico_label("MESS_ROLE_SECOND", "Columns of the table \"%1\"").arg(second.table);
}

QString secondText(const geodata::SecondColumns &second)
{
    if (second.table.isEmpty())
        return {};
    QStringList columns;
    for (const geodata::ColumnRole &role : second.roles)
        columns << role.column + QStringLiteral(" (") + roleText(role) + QLatin1Char(')');
    return secondTitle(second) + QStringLiteral(" : ") + columns.join(QStringLiteral(", "));
}

bool isOfTransmitter(const QString &role)
{
    return findRole(role, [](Use use) { return use == Use::Transmitters; });
}

bool isCoordinate(const QString &role)
{
    const QStringView name = role.isEmpty() || !isEndLetter(role.back())
                                 ? QStringView(role)
                                 : QStringView(role).chopped(1);
    return name == QLatin1String("x") || name == QLatin1String("y");
}

} // namespace vlt::tables
