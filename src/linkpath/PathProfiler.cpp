#include "linkpath/PathProfiler.h"

#include <cpl_error.h>
#include <geodesic.h>

#include <algorithm>
#include <cmath>

namespace vlt::linkpath {

namespace {

constexpr double DegreesPerRadian = 180 / M_PI;
constexpr double SamplesPerPixel = 4; ///< heights along a line within a pixel form a curve
constexpr double FewestSamples = 64;
constexpr double MaxSamples = 50000;

using Transformation = std::unique_ptr<OGRCoordinateTransformation>;

struct Arc
{
    double lengthM = 0;
    double azimuthDeg = 0;
};

/// The geographic system on which `srs` is based.
OGRSpatialReference geographicBase(const OGRSpatialReference &srs)
{
    OGRSpatialReference base;
    base.CopyGeogCSFrom(&srs);
    base.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return base;
}

} // namespace

/// The terrain and the transformations. Ends are converted to longitude and latitude; without a
/// known system they lie on a plane.
class PathProfiler::Parts
{
public:
    Parts(std::shared_ptr<TerrainRaster> terrain, const OGRSpatialReference *given)
        : m_terrain(std::move(terrain))
    {
        const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
        if (!given && m_terrain)
            given = &m_terrain->srs();
        if (!given || !(given->IsGeographic() || given->IsProjected())) {
            m_unitM = given ? given->GetLinearUnits() : 1;
            m_terrain.reset();
            return;
        }
        OGRSpatialReference srs(*given);
        srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        const OGRSpatialReference base = geographicBase(srs);
        m_toBase.reset(OGRCreateCoordinateTransformation(&srs, &base));
        m_unitDeg = base.GetAngularUnits() * DegreesPerRadian;
        geod_init(&m_earth, base.GetSemiMajor(),
                  base.GetInvFlattening() > 0 ? 1 / base.GetInvFlattening() : 0);
        m_isOnEarth = m_toBase != nullptr;
        if (m_terrain)
            m_toTerrain.reset(OGRCreateCoordinateTransformation(&base, &m_terrain->srs()));
        if (m_terrain)
            m_placeToTerrain.reset(OGRCreateCoordinateTransformation(&srs, &m_terrain->srs()));
        if (!m_isOnEarth || !m_toTerrain || !m_placeToTerrain)
            m_terrain.reset();
    }

    bool hasTerrain() const { return m_terrain != nullptr; }

    std::optional<Arc> arc(const LinkEnd &a, const LinkEnd &b) const
    {
        if (!m_isOnEarth) {
            const double east = (b.x - a.x) * m_unitM;
            const double north = (b.y - a.y) * m_unitM;
            return finite({std::hypot(east, north), std::atan2(east, north) * DegreesPerRadian});
        }
        const auto from = base(a);
        const auto to = base(b);
        if (!from || !to)
            return std::nullopt;
        Arc arc;
        geod_inverse(&m_earth, from->y, from->x, to->y, to->x, &arc.lengthM, &arc.azimuthDeg,
                     nullptr);
        return finite(arc);
    }

    std::optional<double> groundM(double x, double y) const
    {
        const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
        if (!m_terrain || !m_placeToTerrain->Transform(1, &x, &y))
            return std::nullopt;
        return m_terrain->heightM(x, y);
    }

    /// Terrain heights at equal steps from a to b. Unknown heights are left out; `whole` is false
    /// then.
    std::vector<ProfilePoint> profile(const LinkEnd &a, const Arc &arc, bool &whole) const
    {
        const auto from = base(a);
        const int steps = static_cast<int>(
            std::clamp(std::ceil(SamplesPerPixel * arc.lengthM / m_terrain->pixelSizeM()),
                       FewestSamples, MaxSamples));
        std::vector<double> x(static_cast<std::size_t>(steps) + 1);
        std::vector<double> y(x.size());
        std::vector<int> done(x.size());
        geod_geodesicline line;
        geod_lineinit(&line, &m_earth, from->y, from->x, arc.azimuthDeg, GEOD_ALL);
        for (std::size_t i = 0; i < x.size(); ++i) {
            geod_position(&line, arc.lengthM * static_cast<double>(i) / steps, &y[i], &x[i],
                          nullptr);
            x[i] /= m_unitDeg;
            y[i] /= m_unitDeg;
        }
        const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
        m_toTerrain->Transform(static_cast<int>(x.size()), x.data(), y.data(), nullptr,
                               done.data());
        std::vector<ProfilePoint> points;
        points.reserve(x.size());
        whole = true;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const auto height = done[i] ? m_terrain->heightM(x[i], y[i]) : std::nullopt;
            whole = whole && height;
            if (height)
                points.push_back({arc.lengthM * static_cast<double>(i) / steps, *height});
        }
        return points;
    }

private:
    struct Degrees
    {
        double x, y;
    };

    static std::optional<Arc> finite(const Arc &arc)
    {
        return std::isfinite(arc.lengthM) ? std::optional(arc) : std::nullopt;
    }

    std::optional<Degrees> base(const LinkEnd &end) const
    {
        const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
        double x = end.x;
        double y = end.y;
        if (!m_toBase->Transform(1, &x, &y))
            return std::nullopt;
        return Degrees{x * m_unitDeg, y * m_unitDeg};
    }

    std::shared_ptr<TerrainRaster> m_terrain;
    bool m_isOnEarth = false;
    double m_unitM = 1;   ///< unit of coordinates on a plane
    double m_unitDeg = 1; ///< unit of longitudes and latitudes
    geod_geodesic m_earth{};
    Transformation m_toBase;
    Transformation m_toTerrain;
    Transformation m_placeToTerrain;
};

PathProfiler::PathProfiler(std::shared_ptr<TerrainRaster> terrain, const OGRSpatialReference *srs)
    : m_parts(std::make_unique<Parts>(std::move(terrain), srs))
{}

PathProfiler::~PathProfiler() = default;

bool PathProfiler::hasTerrain() const
{
    return m_parts->hasTerrain();
}

std::optional<double> PathProfiler::lengthM(const LinkEnd &a, const LinkEnd &b) const
{
    const std::optional<Arc> arc = m_parts->arc(a, b);
    return arc ? std::optional(arc->lengthM) : std::nullopt;
}

std::optional<double> PathProfiler::azimuthDeg(const LinkEnd &a, const LinkEnd &b) const
{
    const std::optional<Arc> arc = m_parts->arc(a, b);
    if (!arc)
        return std::nullopt;
    return arc->azimuthDeg < 0 ? arc->azimuthDeg + 360 : arc->azimuthDeg;
}

std::optional<double> PathProfiler::groundM(double x, double y) const
{
    return m_parts->groundM(x, y);
}

std::optional<PathProfile> PathProfiler::profile(const LinkEnd &a, const LinkEnd &b) const
{
    const std::optional<Arc> arc = m_parts->arc(a, b);
    if (!arc)
        return std::nullopt;
    PathProfile path;
    path.lengthM = arc->lengthM;
    path.hasTerrain = hasTerrain();
    if (path.hasTerrain) {
        path.groundAM = groundM(a.x, a.y);
        path.groundBM = groundM(b.x, b.y);
        path.points = m_parts->profile(a, *arc, path.isWhole);
        return path;
    }
    path.groundAM = path.groundBM = 0;
    for (int i = 0; i <= FewestSamples; ++i)
        path.points.push_back({path.lengthM * i / FewestSamples, 0});
    return path;
}

Clearance PathProfiler::check(const LinkEnd &a, const LinkEnd &b, double frequencyMHz,
                              const ClearanceRule &rule) const
{
    const auto unchecked = [](Lack lack) { return Clearance{ClearanceStatus::Unknown, lack, {}}; };
    if (!hasTerrain())
        return unchecked(Lack::Terrain);
    if (!a.heightM || !b.heightM)
        return unchecked(a.heightM ? Lack::HeightB : Lack::HeightA);
    if (!(frequencyMHz > 0))
        return unchecked(Lack::Frequency);
    const std::optional<PathProfile> path = profile(a, b);
    if (!path)
        return unchecked(Lack::Position);
    if (!path->groundAM || !path->groundBM)
        return unchecked(Lack::TerrainOfPath);
    Clearance clearance = checkProfile(path->points, *path->groundAM + *a.heightM,
                                       *path->groundBM + *b.heightM, frequencyMHz, rule);
    if (!path->isWhole && clearance.status != ClearanceStatus::Obstructed) {
        clearance.status = ClearanceStatus::Unknown;
        clearance.lack = Lack::TerrainOfPath;
    }
    return clearance;
}

} // namespace vlt::linkpath
