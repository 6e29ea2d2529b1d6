#include "plugins/scene/mesh/MovedNode.h"

namespace vlt::scene {

osg::ref_ptr<osg::MatrixTransform> moved(const osg::ref_ptr<osg::Node> &node,
                                         const osg::Vec3d &origin)
{
    osg::ref_ptr<osg::MatrixTransform> place =
        new osg::MatrixTransform(osg::Matrixd::translate(origin));
    place->setDataVariance(osg::Object::DYNAMIC);
    place->addChild(node);
    return place;
}

} // namespace vlt::scene
