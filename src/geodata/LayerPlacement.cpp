#include "geodata/LayerPlacement.h"

#include "geodata/TableDataset.h"

#include <vector>

namespace vlt::geodata {

namespace {

constexpr qint64 FeaturesPerReport = 4096;

/// Only geometries are asked for; a driver that can leave out the attributes may do so.
void ignoreAttributes(OGRLayer &layer)
{
    if (!layer.TestCapability(OLCIgnoreFields))
        return;
    const OGRFeatureDefn *definition = layer.GetLayerDefn();
    std::vector<const char *> names;
    names.reserve(static_cast<std::size_t>(definition->GetFieldCount()) + 1);
    for (int i = 0; i < definition->GetFieldCount(); ++i)
        names.push_back(definition->GetFieldDefn(i)->GetNameRef());
    names.push_back(nullptr);
    layer.SetIgnoredFields(names.data());
}

} // namespace

Result<LayerPlacement> readLayerPlacement(const QString &connection, int layerIndex,
                                          const Progress &progress)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();

    LayerPlacement placement;
    OGRLayer *layer = dataset.value()->GetLayer(layerIndex);
    if (!layer)
        return placement;

    const double expected = static_cast<double>(layer->GetFeatureCount(TRUE));
    ignoreAttributes(*layer);
    for (const OGRFeatureUniquePtr &feature : *layer) {
        const OGRGeometry *geometry = feature->GetGeometryRef();
        placement.placed += geometry && !geometry->IsEmpty() ? 1 : 0;
        if (++placement.features % FeaturesPerReport == 0 && progress &&
            !progress(static_cast<double>(placement.features) / expected))
            return Error{QString(), QStringLiteral("cancelled"), {}};
    }
    return placement;
}

} // namespace vlt::geodata
