#include "sites/SiteColumnDescription.h"

#include "language/VltLanguageManager.h"

namespace vlt::sites {

namespace {

QStringList listOf(const QString &column)
{
    return column.isEmpty() ? QStringList() : QStringList(column);
}

} // namespace

QList<tables::ColumnDescription> describeColumns(const SiteColumnSet &columns)
{
    return {{dico_label("MESS_CLI_COLUMN_NAME", "Name column"), listOf(columns.name)},
            {dico_label("MESS_CLI_COLUMN_X", "X column"), listOf(columns.x)},
            {dico_label("MESS_CLI_COLUMN_Y", "Y column"), listOf(columns.y)},
            {dico_label("MESS_CLI_COLUMN_TERRAIN", "Terrain height column"),
             listOf(columns.terrainHeight)},
            {dico_label("MESS_CLI_COLUMN_SECTORS", "Sector columns"), columns.sectorIds},
            {dico_label("MESS_CLI_COLUMN_HEIGHTS", "Height columns"), columns.heights},
            {dico_label("MESS_CLI_COLUMN_AZIMUTHS", "Azimuth columns"), columns.azimuths},
            {dico_label("MESS_CLI_COLUMN_TILTS", "Tilt columns"), columns.tilts}};
}

} // namespace vlt::sites
