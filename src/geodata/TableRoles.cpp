#include "geodata/TableRoles.h"

#include "contract/TableMetadata.h"
#include "platform/TextDecoding.h"

namespace vlt::geodata {

namespace metadata = contract::metadata;

QList<ColumnRole> rolesIn(GDALMajorObject &object)
{
    const QLatin1Char bar(metadata::RoleSeparator);
    QList<ColumnRole> roles;
    char **list = object.GetMetadata(metadata::RolesDomain);
    for (int i = 0; list && list[i]; ++i) {
        const QString item = platform::decodeText(list[i]);
        const QString value = item.section(QLatin1Char('='), 1);
        if (item.startsWith(QLatin1String(metadata::RolePrefix)))
            roles.append({value.section(bar, 0, 0), value.section(bar, 1, 1),
                          value.section(bar, 2, 2), value.section(bar, 3)});
    }
    return roles;
}

QString shapeIn(GDALMajorObject &object)
{
    const char *shape = object.GetMetadataItem(metadata::ShapeItem, metadata::RolesDomain);
    return shape ? platform::decodeText(shape) : QString();
}

} // namespace vlt::geodata
