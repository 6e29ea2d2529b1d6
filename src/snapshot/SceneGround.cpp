#include "snapshot/SceneGround.h"

#include "contract/NoDataText.h"
#include "contract/ScenePlace.h"
#include "contract/SceneTexts.h"
#include "landscape/scene/GroundNode.h"
#include "snapshot/DrawnExtents.h"
#include "snapshot/SceneEarth.h"

#include <QFile>
#include <QFileInfo>

#include <osg/Group>
#include <osg/ValueObject>

#include <algorithm>
#include <utility>

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

bool hasHeights(const std::vector<landscape::GroundLevel> &levels)
{
    return std::any_of(levels.begin(), levels.end(),
                       [](const auto &level) { return level.hasHeights; });
}

bool hasImage(const std::vector<landscape::GroundLevel> &levels)
{
    return std::any_of(levels.begin(), levels.end(),
                       [](const auto &level) { return level.hasImage; });
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
    m_frame = frameOf(scene);
    if (path.empty() || !m_frame)
        return;
    const std::optional<double> noData =
        isOwn ? contract::noDataNumber(textOf(scene, place::NoData)) : std::nullopt;
    auto [opened, reason] = landscape::Terrain::open(path, noData, *m_frame);
    m_terrain = std::move(opened);
    if (!m_terrain)
        report(contract::formatted("MESS_SCENE_BAD_TERRAIN", {path, reason}));
}

void SceneGround::drape(const QString &image)
{
    const std::string path = QFile::encodeName(QFileInfo(image).absoluteFilePath()).toStdString();
    std::string why = contract::formatted("MESS_SCENE_NOWHERE");
    if (m_frame) {
        auto [opened, reason] = landscape::Imagery::open(path, *m_frame);
        m_imagery = std::move(opened);
        why = reason;
    }
    if (!m_imagery)
        report(contract::formatted("MESS_SCENE_BAD_IMAGERY", {path, why}));
}

/// Each problem once, however often the ground is made.
void SceneGround::report(std::string text)
{
    const QString problem = QString::fromStdString(std::move(text));
    if (!m_problems.contains(problem))
        m_problems.append(problem);
}

osg::ref_ptr<osg::Node> SceneGround::around(const osg::Vec3d &eye, const osg::Vec3d &target,
                                            landscape::Detail detail)
{
    constexpr double ShareOfDistance = 0.5;
    constexpr double MinHalfM = 20;
    const landscape::Square finest{{target.x(), target.y()},
                                   std::max(ShareOfDistance * (eye - target).length(), MinHalfM)};
    if (m_terrain || m_imagery) {
        const std::vector<landscape::GroundLevel> levels =
            landscape::makeGround({m_terrain.get(), m_imagery.get(), m_heightM}, finest, detail);
        if (m_imagery && !hasImage(levels))
            report(contract::formatted("MESS_SCENE_NO_IMAGERY"));
        if (m_terrain && !hasHeights(levels))
            report(contract::formatted("MESS_SCENE_NO_SURFACE"));
        if (!levels.empty())
            return landscape::makeGroundNode(levels);
    }
    if (m_hasPlane)
        return landscape::makePlaneNode(finest, m_heightM);
    return new osg::Group;
}

std::function<osg::ref_ptr<osg::Node>(const osg::Vec3d &eye, const osg::Vec3d &target,
                                      landscape::Detail detail)>
groundUnder(const Scene &scene, const QString &terrain)
{
    if (!scene)
        return {};
    const auto ground = std::make_shared<SceneGround>(*scene, terrain, false);
    return [ground](const osg::Vec3d &eye, const osg::Vec3d &target, landscape::Detail detail) {
        return ground->around(eye, target, detail);
    };
}

} // namespace vlt::snapshot
