#include "geodata/LinkProfile.h"

#include <QFile>

#include <ogr_spatialref.h>

namespace vlt::geodata {

std::optional<double> LinkProfile::antennaM(int end) const
{
    const std::optional<double> &groundM = end == 0 ? path.groundAM : path.groundBM;
    const std::optional<double> &heightM = link.ends[static_cast<std::size_t>(end)].heightM;
    return groundM && heightM ? std::optional(*groundM + *heightM) : std::nullopt;
}

std::optional<LinkProfile> profileOf(const LinkReport &link, const QString &endSystem,
                                     const LinkCheckInput &input)
{
    if (!link.isPlaced)
        return std::nullopt;
    std::shared_ptr<linkpath::TerrainRaster> terrain;
    if (!input.terrainFile.isEmpty())
        terrain =
            linkpath::TerrainRaster::open(QFile::encodeName(input.terrainFile).toStdString()).file;
    OGRSpatialReference srs;
    const bool isKnown =
        !endSystem.isEmpty() && srs.importFromWkt(endSystem.toUtf8().constData()) == OGRERR_NONE;
    const linkpath::PathProfiler profiler(std::move(terrain), isKnown ? &srs : nullptr);
    auto path = profiler.profile(link.ends[0], link.ends[1]);
    if (!path || !(path->lengthM > 0))
        return std::nullopt;

    LinkProfile profile;
    profile.link = link;
    profile.path = std::move(*path);
    profile.rule = input.rule;
    const auto a = profile.antennaM(0);
    const auto b = profile.antennaM(1);
    const double frequencyMHz = link.frequencyMHz.value_or(0);
    if (a && b && frequencyMHz > 0)
        profile.worst =
            linkpath::checkProfile(profile.path.points, *a, *b, frequencyMHz, input.rule).worst;
    return profile;
}

} // namespace vlt::geodata
