#include "buildings/BuildingsSource.h"

#include <utility>

namespace vlt::buildings {

namespace {

constexpr std::pair<const char *, QString BuildingsSource::*> Texts[] = {
    {"Buildings", &BuildingsSource::file},
    {"Layer", &BuildingsSource::layer},
    {"Height", &BuildingsSource::heightField},
    {"Dtm", &BuildingsSource::terrainFile},
    {"Nodata", &BuildingsSource::terrainNoData}};

constexpr std::pair<const char *, double BuildingsSource::*> Coordinates[] = {
    {"CenterX", &BuildingsSource::xCenter}, {"CenterY", &BuildingsSource::yCenter}};

} // namespace

BuildingsSource readBuildingsSource(const QVariantMap &parameters)
{
    BuildingsSource source;
    for (const auto &[key, member] : Texts)
        source.*member = parameters.value(QLatin1String(key)).toString();
    for (const auto &[key, member] : Coordinates)
        source.*member = parameters.value(QLatin1String(key)).toDouble();
    source.project = parameters.value(QStringLiteral("ProjectName")).toString();
    return source;
}

void publishBuildingsSource(const BuildingsSource &source, QVariantMap &parameters)
{
    for (const auto &[key, member] : Texts)
        parameters.insert(QLatin1String(key), source.*member);
    for (const auto &[key, member] : Coordinates)
        parameters.insert(QLatin1String(key), source.*member);
}

} // namespace vlt::buildings
