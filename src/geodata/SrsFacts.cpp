#include "geodata/SrsFacts.h"

#include "geodata/ErrorCollector.h"
#include "geodata/SrsDefinition.h"

#include <ogr_spatialref.h>

namespace vlt::geodata {

namespace {

SrsUse useOf(const OGRSpatialReference &system)
{
    if (system.IsGeographic())
        return SrsUse::Geographic;
    if (system.IsProjected())
        return SrsUse::Projected;
    if (system.IsGeocentric())
        return SrsUse::Geocentric;
    // IsVertical() is true for compound systems too.
    return system.IsVertical() && !system.IsCompound() ? SrsUse::Heights : SrsUse::Unknown;
}

} // namespace

SrsFacts srsFacts(const OGRSpatialReference &system)
{
    SrsFacts facts;
    facts.use = useOf(system);
    if (const char *name = system.GetName())
        facts.name = QString::fromUtf8(name);
    SrsBounds area;
    // The library gives -1000 as the bounds of a system without an area.
    if (system.GetAreaOfUse(&area.west, &area.south, &area.east, &area.north, nullptr) &&
        area.west >= -180)
        facts.area = area;
    return facts;
}

SrsFacts srsFacts(const QString &systemText)
{
    const ErrorCollector quiet;
    OGRSpatialReference system;
    const QByteArray text = listedCode(systemText).toUtf8();
    if (text.isEmpty() ||
        system.SetFromUserInput(text.constData(),
                                OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get()) !=
            OGRERR_NONE)
        return {};
    return srsFacts(system);
}

std::optional<Error> srsRefusal(const SrsFacts &facts)
{
    if (facts.use == SrsUse::Heights)
        return Error{
            QStringLiteral("MESS_SRS_HEIGHTS_ONLY"),
            QStringLiteral("This system has heights only: it cannot define a position on a map"),
            {}};
    if (facts.use == SrsUse::Geocentric)
        return Error{
            QStringLiteral("MESS_SRS_GEOCENTRIC"),
            QStringLiteral("This system is geocentric: it cannot define a position on a map"),
            {}};
    return std::nullopt;
}

} // namespace vlt::geodata
