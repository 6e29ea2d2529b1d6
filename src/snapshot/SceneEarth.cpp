#include "snapshot/SceneEarth.h"

#include "contract/SceneFactKeys.h"
#include "contract/SceneLegend.h"
#include "contract/ScenePlace.h"
#include "localframe/TrueNorth.h"
#include "snapshot/EarthPlaces.h"

#include <QStringList>

#include <osg/ValueObject>

#include <cmath>
#include <memory>

namespace vlt::snapshot {

std::optional<landscape::FrameOnEarth> frameOf(const osg::Node &scene)
{
    const QStringList centre =
        sceneFact(scene, contract::facts::Centre).value_or(QString()).split(QLatin1Char(' '));
    std::string system;
    scene.getUserValue(contract::place::System, system);
    landscape::FrameOnEarth found;
    if (centre.size() != 2 || found.srs.importFromWkt(system.c_str()) != OGRERR_NONE)
        return std::nullopt;
    found.srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    found.frame = std::make_shared<localframe::LocalFrame>(
        &found.srs, std::vector<contract::Place>{{centre[0].toDouble(), centre[1].toDouble()}});
    return found;
}

double NorthAtPlace::operator()(const contract::Place &place)
{
    constexpr double NearM = 1000; // the direction differs by less than 0.02 degrees
    if (!m_frame)
        return 0;
    if (!m_place || std::hypot(place.x - m_place->x, place.y - m_place->y) > NearM) {
        m_place = place;
        m_northDeg =
            localframe::northDirectionsDeg(*m_frame->frame, &m_frame->srs, {place}).front();
    }
    return m_northDeg;
}

std::string legendTextOf(const osg::Node &scene)
{
    std::string legend;
    scene.getUserValue(contract::legend::Key, legend);
    return legend;
}

readingaids::SceneReading readingOf(const Scene &scene, const QString &terrain)
{
    if (!scene)
        return {};
    readingaids::SceneReading reading;
    const auto north = std::make_shared<NorthAtPlace>(frameOf(*scene));
    reading.northDeg = [north](double x, double y) { return (*north)({x, y}); };
    reading.legend = readingaids::legendOf(legendTextOf(*scene));
    const auto places = std::make_shared<EarthPlaces>(*scene, terrain);
    reading.placeAt = [places](double x, double y) { return places->at(x, y); };
    return reading;
}

} // namespace vlt::snapshot
