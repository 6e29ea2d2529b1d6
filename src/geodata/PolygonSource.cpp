#include "geodata/PolygonSource.h"

#include "geodata/ErrorCollector.h"
#include "geodata/LocalDataset.h"
#include "geodata/SystemInfo.h"
#include "localfiles/NoNetwork.h"
#include "platform/TextDecoding.h"

#include <ogrsf_frmts.h>

#include <cmath>
#include <limits>

namespace vlt::geodata {

namespace {

bool mayHoldFootprints(OGRwkbGeometryType type)
{
    switch (type) {
    case wkbUnknown:
    case wkbPolygon:
    case wkbMultiPolygon:
    case wkbPolygon25D:
    case wkbMultiPolygon25D:
        return true;
    default:
        return false;
    }
}

FieldKind kindOf(OGRFieldType type)
{
    switch (type) {
    case OFTInteger:
        return FieldKind::Integer;
    case OFTInteger64:
        return FieldKind::Integer64;
    case OFTReal:
        return FieldKind::Real;
    case OFTString:
        return FieldKind::String;
    default:
        return FieldKind::Other;
    }
}

QList<VectorField> fieldsOf(OGRLayer &layer)
{
    QList<VectorField> fields;
    const OGRFeatureDefn *definition = layer.GetLayerDefn();
    for (int i = 0; i < definition->GetFieldCount(); ++i) {
        const OGRFieldDefn *field = definition->GetFieldDefn(i);
        fields.append(
            {platform::decodeText(QByteArray(field->GetNameRef())), kindOf(field->GetType())});
    }
    return fields;
}

/// Keeps the identified systems: identification is slow, and the layers of a dataset often share a
/// system.
class SystemInfos
{
public:
    SystemInfo of(const OGRSpatialReference *system)
    {
        if (system != nullptr && m_last != nullptr && system->IsSame(m_last) != 0)
            return m_info;
        m_last = system;
        m_info = systemInfo(system);
        return m_info;
    }

private:
    const OGRSpatialReference *m_last = nullptr;
    SystemInfo m_info;
};

} // namespace

bool Extent::isPlaced() const
{
    return std::isfinite(minX) && std::isfinite(minY) && std::isfinite(maxX) && std::isfinite(maxY);
}

PolygonSource::~PolygonSource()
{
    const ErrorCollector quiet;
    m_dataset.reset();
}

Result<std::shared_ptr<PolygonSource>> PolygonSource::open(const QString &path)
{
    const ErrorCollector errors;
    const localfiles::NoNetwork offline;
    std::shared_ptr<PolygonSource> source(new PolygonSource);
    source->m_dataset.reset(openLocalDataset(path, GDAL_OF_VECTOR).release());
    if (!source->m_dataset)
        return Error{QStringLiteral("MESS_ERR_OPEN_VECTORDS"),
                     QStringLiteral("This file can't be open as a vector file"), path,
                     errors.failure({})};

    SystemInfos systems;
    for (int i = 0; i < source->m_dataset->GetLayerCount(); ++i) {
        OGRLayer *layer = source->m_dataset->GetLayer(i);
        if (layer == nullptr || !mayHoldFootprints(layer->GetGeomType()))
            continue;
        source->m_handles.append(layer);
        source->m_layers.append({platform::decodeText(QByteArray(layer->GetName())),
                                 fieldsOf(*layer), systems.of(layer->GetSpatialRef()),
                                 layer->GetFeatureCount(false)});
    }
    return source;
}

Extent PolygonSource::extent(int layer)
{
    const std::lock_guard<std::mutex> alone(m_reading);
    const ErrorCollector quiet;
    const localfiles::NoNetwork offline;
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    OGREnvelope envelope;
    envelope.MinX = envelope.MinY = Infinity;
    envelope.MaxX = envelope.MaxY = -Infinity;
    const OGREnvelope nowhere = envelope;
    if (m_handles.at(layer)->GetExtent(&envelope, true) != OGRERR_NONE)
        envelope = nowhere;
    return {envelope.MinX, envelope.MinY, envelope.MaxX, envelope.MaxY};
}

std::optional<Error> PolygonSource::conditionRefused(int layer, const QString &condition)
{
    if (condition.isEmpty())
        return std::nullopt;
    const std::lock_guard<std::mutex> alone(m_reading);
    const ErrorCollector errors;
    const localfiles::NoNetwork offline;
    OGRLayer *handle = m_handles.at(layer);
    const bool isValid = handle->SetAttributeFilter(condition.toUtf8()) == OGRERR_NONE;
    handle->ResetReading();
    const bool hasOne = isValid && OGRFeatureUniquePtr(handle->GetNextFeature()) != nullptr;
    const QString reason = errors.failure({});
    handle->SetAttributeFilter(nullptr);
    if (!isValid || !reason.isEmpty())
        return Error{QStringLiteral("MESS_ERR_WHERE"),
                     QStringLiteral("this condition cannot be used"), condition, reason};
    if (hasOne)
        return std::nullopt;
    return Error{QStringLiteral("MESS_ERR_WHERE_EMPTY"),
                 QStringLiteral("no feature meets this condition"), condition};
}

} // namespace vlt::geodata
