#include "snapshot/DrawnBuildings.h"

#include "contract/DrawnCount.h"

#include <osg/NodeVisitor>
#include <osg/ValueObject>

namespace vlt::snapshot {

namespace {

/// Visits the levels of detail that are drawn for an eye. Of levels by size on the screen, which
/// draw the same buildings with less detail, it visits the finest.
class BuildingCounter : public osg::NodeVisitor
{
public:
    explicit BuildingCounter(const osg::Vec3d &eye)
        : osg::NodeVisitor(TRAVERSE_ACTIVE_CHILDREN)
        , m_eye(eye)
    {}

    void apply(osg::Node &node) override
    {
        unsigned buildings = 0;
        if (node.getUserValue(contract::BuildingsOfNode, buildings))
            m_count += buildings;
        else
            traverse(node);
    }

    float getDistanceToViewPoint(const osg::Vec3 &place, bool /*withScale*/) const override
    {
        return static_cast<float>((osg::Vec3d(place) - m_eye).length());
    }

    qint64 count() const { return m_count; }

private:
    osg::Vec3d m_eye;
    qint64 m_count = 0;
};

} // namespace

qint64 drawnBuildings(osg::Node &scene, const osg::Vec3d &eye)
{
    BuildingCounter counter(eye);
    scene.accept(counter);
    return counter.count();
}

} // namespace vlt::snapshot
