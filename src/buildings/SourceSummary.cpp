#include "buildings/SourceSummary.h"

#include "buildings/HeightGuess.h"
#include "geodata/SystemInfo.h"
#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

namespace vlt::buildings {

namespace {

using geodata::Extent;
using geodata::SystemInfo;

const QString Separator = QStringLiteral(" \u00b7 ");

QString systemText(const SystemInfo &system)
{
    return system.name.isEmpty() ? dico_label("MESS_NO_SYSTEM", "no coordinate system")
                                 : system.name;
}

QString lengthText(double length, const SystemInfo &system)
{
    constexpr double MetresPerKilometre = 1000;
    const double lengthM = length * system.unitM;
    if (system.isGeographic)
        return language::shortNumber(length, 4) + QChar(0xb0);
    if (system.unitM <= 0)
        return language::shortNumber(length, 0);
    return lengthM < MetresPerKilometre
               ? language::shortNumber(lengthM, 0) + QStringLiteral(" m")
               : language::shortNumber(lengthM / MetresPerKilometre, 1) + QStringLiteral(" km");
}

QString sizeText(const Extent &extent, const SystemInfo &system)
{
    if (!extent.isPlaced())
        return dico_label("MESS_NO_BUILDING_PLACED", "no building has a position");
    return QStringLiteral("%1 \u00d7 %2")
        .arg(lengthText(extent.maxX - extent.minX, system),
             lengthText(extent.maxY - extent.minY, system));
}

QString kindText(geodata::FieldKind kind)
{
    switch (kind) {
    case geodata::FieldKind::Integer:
    case geodata::FieldKind::Integer64:
        return dico_label("MESS_INTEGER", "Integer");
    case geodata::FieldKind::Real:
        return dico_label("MESS_REAL", "Real");
    case geodata::FieldKind::String:
        return dico_label("MESS_STRING", "String");
    case geodata::FieldKind::Other:
        break;
    }
    return {};
}

bool contains(const Extent &outer, const Extent &inner)
{
    return outer.minX <= inner.minX && outer.minY <= inner.minY && outer.maxX >= inner.maxX &&
           outer.maxY >= inner.maxY;
}

bool meets(const Extent &a, const Extent &b)
{
    return a.minX <= b.maxX && b.minX <= a.maxX && a.minY <= b.maxY && b.minY <= a.maxY;
}

/// Whether a raster covers the extent of a layer; empty if this is not known.
QString coverText(const geodata::RasterSummary &raster, const geodata::PolygonLayer &layer,
                  const std::optional<Extent> &extent)
{
    if (!raster.extent || !extent || !extent->isPlaced())
        return {};
    const bool isSameSystem =
        !raster.system.name.isEmpty() && raster.system.name == layer.system.name;
    const std::optional<Extent> buildings =
        isSameSystem ? extent : geodata::extentIn(raster.system, *extent, layer.system);
    if (!buildings)
        return {};
    if (contains(*raster.extent, *buildings))
        return dico_label("MESS_DTM_COVERS", "covers the buildings");
    return meets(*raster.extent, *buildings)
               ? dico_label("MESS_DTM_COVERS_PART", "covers only a part of the buildings")
               : dico_label("MESS_DTM_COVERS_NONE", "does not cover the buildings");
}

} // namespace

QString fieldCaption(const geodata::VectorField &field)
{
    return QStringLiteral("%1 (%2)").arg(field.name, kindText(field.kind));
}

QString heightCaption(const geodata::VectorField &field)
{
    return isOffered(field.kind) ? fieldCaption(field) : QString();
}

QString heightHint(const geodata::PolygonLayer &layer, const QString &chosen)
{
    const QString likelier = likelierHeightField(layer, chosen);
    if (!likelier.isEmpty())
        return dico_label("MESS_HEIGHT_LIKELY", "The field \"%1\" probably has the heights.")
            .arg(likelier);
    return chosen.isEmpty()
               ? dico_label("MESS_HEIGHT_MISSING", "Choose the field with the heights.")
               : QString();
}

QString layerSummary(const geodata::PolygonLayer &layer, const std::optional<Extent> &extent)
{
    QStringList parts;
    if (layer.featureCount >= 0)
        parts << dico_label("MESS_BUILDING_COUNT", "Buildings: %1")
                     .arg(language::wholeNumber(layer.featureCount));
    parts << systemText(layer.system);
    if (extent)
        parts << sizeText(*extent, layer.system);
    return parts.join(Separator);
}

QString terrainSummary(const geodata::RasterSummary &terrain, const geodata::PolygonLayer *layer,
                       const std::optional<Extent> &extent)
{
    QStringList parts{
        dico_label("MESS_PIXEL_COUNT", "%1 \u00d7 %2 pixels")
            .arg(language::wholeNumber(terrain.columns), language::wholeNumber(terrain.rows)),
        systemText(terrain.system)};
    if (layer != nullptr)
        parts << coverText(terrain, *layer, extent);
    parts.removeAll(QString());
    return parts.join(Separator);
}

QString imageSummary(const geodata::RasterSummary &image, const geodata::PolygonLayer *layer,
                     const std::optional<Extent> &extent)
{
    if (!image.extent)
        return dico_label("MESS_IMAGE_NOT_PLACED",
                          "no position on the ground: it cannot be shown on buildings");
    const bool isAlike = image.system.name.isEmpty() && layer != nullptr;
    QStringList parts{sizeText(*image.extent, isAlike ? layer->system : image.system),
                      systemText(image.system)};
    if (layer != nullptr) {
        // the scene, too, takes an image without a system as one in that of the buildings
        geodata::RasterSummary placed = image;
        if (isAlike)
            placed.system = layer->system;
        parts << coverText(placed, *layer, extent);
    }
    parts.removeAll(QString());
    return parts.join(Separator);
}

} // namespace vlt::buildings
