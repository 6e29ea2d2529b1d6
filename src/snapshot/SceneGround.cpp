#include "snapshot/SceneGround.h"

#include "contract/NoDataText.h"
#include "contract/ScenePlace.h"
#include "contract/SceneTexts.h"
#include "landscape/scene/GroundNode.h"
#include "snapshot/DrawnExtents.h"
#include "snapshot/SceneEarth.h"

#include <QFile>

#include <osg/ValueObject>

#include <algorithm>

namespace vlt::snapshot {

namespace {

namespace place = contract::place;

std::string textOf(const osg::Node &scene, const char *key)
{
    std::string text;
    scene.getUserValue(key, text);
    return text;
}

/// Height of the plane under a scene that does not state one.
double bottomOf(osg::Node &scene)
{
    DrawnExtents all(DrawnExtents::Deferred::ByBound);
    scene.accept(all);
    return all.extents().valid() ? std::min(all.extents().zMin(), 0.0) : 0;
}

} // namespace

SceneGround::SceneGround(const osg::Node &scene, const QString &terrain, bool isChosen)
{
    double heightM = 0;
    m_heightM = scene.getUserValue(place::HeightM, heightM)
                    ? heightM
                    : bottomOf(const_cast<osg::Node &>(scene)); // the visitor changes nothing
    const std::string own = textOf(scene, place::Terrain);
    const bool isOwn = !own.empty() && !isChosen;
    const std::string path = isOwn ? own : QFile::encodeName(terrain).toStdString();
    const std::optional<landscape::FrameOnEarth> frame = frameOf(scene);
    if (path.empty() || !frame)
        return;
    const std::optional<double> noData =
        isOwn ? contract::noDataNumber(textOf(scene, place::NoData)) : std::nullopt;
    auto [opened, reason] = landscape::Terrain::open(path, noData, *frame);
    m_terrain = std::move(opened);
    if (!m_terrain)
        m_problem =
            QString::fromStdString(contract::formatted("MESS_SCENE_BAD_TERRAIN", {path, reason}));
}

osg::ref_ptr<osg::Node> SceneGround::around(const osg::Vec3d &eye, const osg::Vec3d &target)
{
    constexpr double ShareOfDistance = 0.5;
    constexpr double MinHalfM = 20;
    const landscape::Square finest{{target.x(), target.y()},
                                   std::max(ShareOfDistance * (eye - target).length(), MinHalfM)};
    if (m_terrain) {
        const std::vector<landscape::GroundLevel> levels =
            landscape::makeGround(*m_terrain, finest);
        if (!levels.empty())
            return landscape::makeGroundNode(levels);
        m_problem = QString::fromStdString(contract::formatted("MESS_SCENE_NO_SURFACE"));
    }
    return landscape::makePlaneNode(finest, m_heightM);
}

std::function<osg::ref_ptr<osg::Node>(const osg::Vec3d &eye, const osg::Vec3d &target)>
groundUnder(const Scene &scene, const QString &terrain)
{
    if (!scene)
        return {};
    const auto ground = std::make_shared<SceneGround>(*scene, terrain, false);
    return [ground](const osg::Vec3d &eye, const osg::Vec3d &target) {
        return ground->around(eye, target);
    };
}

} // namespace vlt::snapshot
