#include "sites/SiteColumnSet.h"

#include "contract/ConnectionString.h"
#include "contract/LinkEnds.h"
#include "contract/SiteColumns.h"
#include "geodata/LayerInfo.h"
#include "tables/ResolvedConnection.h"

namespace vlt::sites {

SiteColumnSet recogniseSiteColumns(const QStringList &fieldNames)
{
    std::vector<std::string> names;
    for (const QString &field : fieldNames)
        names.push_back(field.toStdString());
    const contract::SiteColumns columns = contract::recogniseColumns(names);
    const auto named = [&fieldNames](int index) { return fieldNames.value(index); };
    const auto allNamed = [&fieldNames](const std::vector<int> &indices) {
        QStringList list;
        for (const int index : indices)
            list << fieldNames.at(index);
        return list;
    };
    return {named(columns.name),
            named(columns.x),
            named(columns.y),
            named(columns.terrainHeight),
            allNamed(columns.sectorIds),
            allNamed(columns.heights),
            allNamed(columns.azimuths),
            allNamed(columns.tilts)};
}

SiteColumnSet recogniseSiteColumns(const QString &connection, const QString &projectDirectory)
{
    const auto kind = contract::connectionKind(connection.toStdString());
    const int layer = kind == contract::TableKind::Links ? contract::LinkEndLayerIndex : 0;
    const Result<QStringList> fields =
        geodata::readFieldNames(tables::resolvedConnection(connection, projectDirectory), layer);
    return fields ? recogniseSiteColumns(fields.value()) : SiteColumnSet();
}

} // namespace vlt::sites
