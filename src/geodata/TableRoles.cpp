#include "geodata/TableRoles.h"

#include "contract/TableMetadata.h"
#include "platform/TextDecoding.h"

namespace vlt::geodata {

namespace metadata = contract::metadata;

namespace {

/// @param prefix  of the items of these columns
QList<ColumnRole> columnsIn(GDALMajorObject &object, const char *prefix)
{
    const QLatin1Char bar(metadata::RoleSeparator);
    QList<ColumnRole> roles;
    char **list = object.GetMetadata(metadata::RolesDomain);
    for (int i = 0; list && list[i]; ++i) {
        const QString item = platform::decodeText(list[i]);
        const QString value = item.section(QLatin1Char('='), 1);
        if (item.startsWith(QLatin1String(prefix)))
            roles.append({value.section(bar, 0, 0), value.section(bar, 1, 1),
                          value.section(bar, 2, 2), value.section(bar, 3)});
    }
    return roles;
}

QString itemIn(GDALMajorObject &object, const char *name)
{
    const char *value = object.GetMetadataItem(name, metadata::RolesDomain);
    return value ? platform::decodeText(value) : QString();
}

} // namespace

QList<ColumnRole> rolesIn(GDALMajorObject &object)
{
    return columnsIn(object, metadata::RolePrefix);
}

SecondColumns secondIn(GDALMajorObject &object)
{
    return {itemIn(object, metadata::SecondNameItem),
            columnsIn(object, metadata::SecondRolePrefix)};
}

QString shapeIn(GDALMajorObject &object)
{
    return itemIn(object, metadata::ShapeItem);
}

} // namespace vlt::geodata
