#include "tables/ColumnRoles.h"

#include "language/VltLanguageManager.h"

namespace vlt::tables {

namespace {

struct RoleText
{
    const char *role;
    const char *key;
    const char *english;
};

constexpr RoleText Texts[] = {
    {"siteId", "MESS_ROLE_SITE_ID", "Site ID"},
    {"siteName", "MESS_ROLE_SITE_NAME", "Site name"},
    {"x", "MESS_ROLE_X", "X coordinate"},
    {"y", "MESS_ROLE_Y", "Y coordinate"},
    {"pair", "MESS_ROLE_PAIR", "Coordinates in one cell"},
    {"groundHeight", "MESS_ROLE_GROUND_HEIGHT", "Ground height"},
    {"antennaHeight", "MESS_ROLE_ANTENNA_HEIGHT", "Antenna height"},
    {"seaLevelHeight", "MESS_ROLE_SEA_LEVEL_HEIGHT", "Antenna height above sea level"},
    {"sectorId", "MESS_ROLE_SECTOR_ID", "Sector"},
    {"azimuth", "MESS_ROLE_AZIMUTH", "Azimuth"},
    {"mechanicalTilt", "MESS_ROLE_MECHANICAL_TILT", "Mechanical tilt"},
    {"electricalTilt", "MESS_ROLE_ELECTRICAL_TILT", "Electrical tilt"},
    {"tilt", "MESS_ROLE_TILT", "Tilt"},
    {"beamWidth", "MESS_ROLE_BEAM_WIDTH", "Beam width"},
    {"band", "MESS_ROLE_BAND", "Frequency band"},
    {"frequency", "MESS_ROLE_FREQUENCY", "Frequency"},
    {"technology", "MESS_ROLE_TECHNOLOGY", "Technology"},
    {"operator", "MESS_ROLE_OPERATOR", "Operator"},
};

} // namespace

QString roleText(const geodata::ColumnRole &role)
{
    QString text = role.role;
    for (const RoleText &known : Texts) {
        if (role.role == QLatin1String(known.role))
            text = dico_label(known.key, known.english);
    }
    return role.sector.isEmpty() ? text : text + QLatin1Char(' ') + role.sector;
}

} // namespace vlt::tables
