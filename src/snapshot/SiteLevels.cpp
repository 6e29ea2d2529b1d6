#include "snapshot/SiteLevels.h"

#include "snapshot/DrawnExtents.h"

#include <osg/LOD>
#include <osg/Transform>

#include <algorithm>
#include <vector>

namespace vlt::snapshot {

namespace {

struct Place
{
    osg::LOD *levels;
    osg::Matrix toScene;

    osg::Vec3d centre() const { return levels->getCenter() * toScene; }
};

class SiteFinder : public osg::NodeVisitor
{
public:
    /// @param type     CULL_VISITOR: nodes make the content that they make only when drawn
    /// @param toScene  transformation from the frame of the visited node to the scene's frame
    explicit SiteFinder(VisitorType type, const osg::Matrix &toScene = {})
        : osg::NodeVisitor(type, TRAVERSE_ALL_CHILDREN)
        , m_toScene{toScene}
    {}

    void apply(osg::Node &node) override { traverse(node); }

    void apply(osg::Transform &transform) override
    {
        osg::Matrix matrix = m_toScene.back();
        transform.computeLocalToWorldMatrix(matrix, this);
        m_toScene.push_back(matrix);
        traverse(transform);
        m_toScene.pop_back();
    }

    void apply(osg::LOD &levels) override
    {
        const std::size_t before = m_places.size();
        traverse(levels);
        const bool isInnermost = m_places.size() == before;
        if (isInnermost && levels.getNumChildren() >= 2 && levels.getNumRanges() >= 2 &&
            levels.getRangeMode() == osg::LOD::DISTANCE_FROM_EYE_POINT)
            m_places.push_back({&levels, m_toScene.back()});
    }

    const std::vector<Place> &places() const { return m_places; }

private:
    std::vector<osg::Matrix> m_toScene;
    std::vector<Place> m_places;
};

osg::Vec3d meanOf(const std::vector<Place> &places)
{
    osg::Vec3d mean;
    for (const Place &place : places)
        mean += place.centre() / static_cast<double>(places.size());
    return mean;
}

Place nearestTo(const osg::Vec3d &mean, const std::vector<Place> &places)
{
    return *std::min_element(
        places.begin(), places.end(), [&mean](const Place &one, const Place &other) {
            return (one.centre() - mean).length2() < (other.centre() - mean).length2();
        });
}

Level levelAt(const Place &place, unsigned index)
{
    DrawnExtents walk(DrawnExtents::Deferred::Made, std::nullopt, place.toScene);
    place.levels->getChild(index)->accept(walk);
    return {walk.extents(), place.levels->getMinRange(index), place.levels->getMaxRange(index)};
}

} // namespace

std::optional<SiteLevels> findMiddleSite(osg::Node &scene)
{
    SiteFinder finder(osg::NodeVisitor::NODE_VISITOR);
    scene.accept(finder);
    if (finder.places().empty())
        return std::nullopt;
    const osg::Vec3d mean = meanOf(finder.places());
    Place site = nearestTo(mean, finder.places());
    // Large scenes make their sites tile by tile; only those of the middle tile are needed.
    SiteFinder inTile(osg::NodeVisitor::CULL_VISITOR, site.toScene);
    for (unsigned child = 0; child < site.levels->getNumChildren(); ++child)
        site.levels->getChild(child)->accept(inTile);
    if (!inTile.places().empty())
        site = nearestTo(mean, inTile.places());
    unsigned nearest = 0;
    unsigned farthest = 0;
    for (unsigned level = 1; level < site.levels->getNumRanges(); ++level) {
        if (site.levels->getMinRange(level) < site.levels->getMinRange(nearest))
            nearest = level;
        if (site.levels->getMinRange(level) >= site.levels->getMinRange(farthest))
            farthest = level;
    }
    return SiteLevels{site.centre(), levelAt(site, nearest), levelAt(site, farthest)};
}

} // namespace vlt::snapshot
