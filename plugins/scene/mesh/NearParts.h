#pragma once

#include <osg/Group>
#include <osg/Vec3d>

#include <vector>

namespace vlt::scene {

/// A group whose parts are drawn only while the eye is near them. A part has a line segment, and is
/// near if the eye is closer than a distance to any of its points: unlike a sphere, a segment
/// describes where a long part is.
class NearParts : public osg::Group
{
public:
    struct Reach
    {
        osg::Vec3d centre; ///< of the segment
        osg::Vec3d along;  ///< from the centre to an end
        double distanceM;
    };

    void addPart(osg::Node *part, const Reach &reach);

    void traverse(osg::NodeVisitor &visitor) override;

protected:
    ~NearParts() override = default;

private:
    std::vector<Reach> m_reaches; ///< by child
};

} // namespace vlt::scene
