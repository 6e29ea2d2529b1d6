#include "snapshot/EarthPlaces.h"

#include "contract/NoDataText.h"
#include "contract/ScenePlace.h"
#include "linkpath/PathProfiler.h"

#include <QFile>

#include <osg/ValueObject>

#include <cmath>

namespace vlt::snapshot {

class EarthPlaces::Parts
{
public:
    Parts(landscape::FrameOnEarth frame, const osg::Node &scene, const QString &terrain)
        : m_frame(std::move(frame))
        , m_terrain(QFile::encodeName(terrain).toStdString())
    {
        std::string own;
        scene.getUserValue(contract::place::Terrain, own);
        if (!own.empty()) {
            m_terrain = own;
            std::string noData;
            scene.getUserValue(contract::place::NoData, noData);
            m_noData = contract::noDataNumber(noData);
        }
        OGRSpatialReference degrees;
        if (m_frame.srs.IsGeographic() || degrees.SetWellKnownGeogCS("WGS84") != OGRERR_NONE)
            return;
        degrees.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        m_toDegrees.reset(OGRCreateCoordinateTransformation(&m_frame.srs, &degrees));
    }

    std::optional<readingaids::GroundPlace> at(double x, double y)
    {
        const contract::Place place = m_frame.frame->fromFrame({x, y});
        if (!std::isfinite(place.x) || !std::isfinite(place.y))
            return std::nullopt;
        readingaids::GroundPlace found;
        const char *name = m_frame.srs.GetName();
        found.system = QString::fromUtf8(name ? name : "");
        found.x = place.x;
        found.y = place.y;
        found.isGeographic = m_frame.srs.IsGeographic();
        double lon = place.x;
        double lat = place.y;
        if (found.isGeographic || (m_toDegrees && m_toDegrees->Transform(1, &lon, &lat)))
            found.lonLat = {lon, lat};
        found.heightM = profiler().groundM(place.x, place.y);
        return found;
    }

private:
    linkpath::PathProfiler &profiler()
    {
        if (!m_profiler) {
            std::shared_ptr<linkpath::TerrainRaster> raster;
            if (!m_terrain.empty())
                raster = linkpath::TerrainRaster::open(m_terrain, {m_noData, &m_frame.srs}).file;
            m_profiler = std::make_unique<linkpath::PathProfiler>(raster, &m_frame.srs);
        }
        return *m_profiler;
    }

    landscape::FrameOnEarth m_frame;
    std::string m_terrain;
    std::optional<double> m_noData;
    std::unique_ptr<OGRCoordinateTransformation> m_toDegrees; ///< null: the system is geographic
    std::unique_ptr<linkpath::PathProfiler> m_profiler;
};

EarthPlaces::EarthPlaces(const osg::Node &scene, const QString &terrain)
{
    if (auto frame = frameOf(scene))
        m_parts = std::make_unique<Parts>(*std::move(frame), scene, terrain);
}

EarthPlaces::~EarthPlaces() = default;

std::optional<readingaids::GroundPlace> EarthPlaces::at(double x, double y)
{
    return m_parts ? m_parts->at(x, y) : std::nullopt;
}

} // namespace vlt::snapshot
