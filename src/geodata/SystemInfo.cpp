#include "geodata/SystemInfo.h"

#include "geodata/EpsgIdentification.h"

namespace vlt::geodata {

SystemInfo systemInfo(const OGRSpatialReference *system)
{
    if (system == nullptr)
        return {};
    SystemInfo info;
    const QString code = identifiedEpsgCode(*system);
    const char *name = system->GetName();
    info.name = code.isEmpty() ? QString::fromUtf8(name) : QStringLiteral("EPSG:") + code;
    info.isGeographic = system->IsGeographic();
    if (system->IsProjected())
        info.unitM = system->GetLinearUnits();
    return info;
}

} // namespace vlt::geodata
