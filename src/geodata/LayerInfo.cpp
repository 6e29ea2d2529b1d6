#include "geodata/LayerInfo.h"

#include "contract/TableMetadata.h"
#include "geodata/TableDataset.h"
#include "geodata/TableRoles.h"
#include "platform/TextDecoding.h"

#include <cpl_conv.h>
#include <cpl_string.h>

namespace vlt::geodata {

namespace {

QStringList fieldNames(OGRLayer &layer)
{
    QStringList names;
    const OGRFeatureDefn *definition = layer.GetLayerDefn();
    for (int i = 0; i < definition->GetFieldCount(); ++i)
        names << platform::decodeText(definition->GetFieldDefn(i)->GetNameRef());
    return names;
}

QMap<QString, QString> defaultMetadata(OGRLayer &layer)
{
    QMap<QString, QString> items;
    char **list = layer.GetMetadata("");
    for (int i = 0; list && list[i]; ++i) {
        const QString item = platform::decodeText(list[i]);
        const qsizetype equals = item.indexOf(QLatin1Char('='));
        if (equals > 0)
            items.insert(item.left(equals).toLower(), item.mid(equals + 1));
    }
    return items;
}

} // namespace

Result<LayerInfo> readLayerInfo(const QString &connection, int layerIndex)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();

    LayerInfo info;
    if (OGRLayer *layer = dataset.value()->GetLayer(layerIndex)) {
        info.present = true;
        info.layerName = platform::decodeText(layer->GetName());
        info.featureCount = layer->GetFeatureCount(TRUE);
        info.fields = fieldNames(*layer);
        info.metadata = defaultMetadata(*layer);
        info.shape = shapeIn(*layer);
        info.roles = rolesIn(*layer);
        info.second = secondIn(*layer);
    }
    return info;
}

Result<QStringList> readFieldNames(const QString &connection, int layerIndex)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();

    OGRLayer *layer = dataset.value()->GetLayer(layerIndex);
    return layer ? fieldNames(*layer) : QStringList();
}

} // namespace vlt::geodata
