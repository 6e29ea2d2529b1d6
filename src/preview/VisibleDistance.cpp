#include "preview/VisibleDistance.h"

#include <osg/LOD>
#include <osg/NodeVisitor>

#include <algorithm>
#include <limits>

namespace {

class NearestLimit : public osg::NodeVisitor
{
public:
    NearestLimit() : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN) {}

    void apply(osg::LOD &levels) override
    {
        if (levels.getRangeMode() == osg::LOD::DISTANCE_FROM_EYE_POINT) {
            for (const auto &[nearM, farM] : levels.getRangeList()) {
                if (farM > nearM) // a level without extent is never drawn
                    m_distanceM = std::min<double>(m_distanceM, farM);
            }
        }
        traverse(levels);
    }

    double distanceM() const { return m_distanceM; }

private:
    double m_distanceM = std::numeric_limits<double>::infinity();
};

} // namespace

double visibleDistanceM(osg::Node &scene)
{
    NearestLimit nearest;
    scene.accept(nearest);
    return nearest.distanceM();
}
