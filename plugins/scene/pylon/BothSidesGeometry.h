#pragma once

#include <osg/CullFace>
#include <osg/Geometry>

namespace vlt::scene {

/// A translucent convex solid that is visible from all sides: its far walls are drawn before its
/// near ones. Its state set has to cull back faces.
class BothSidesGeometry : public osg::Geometry
{
public:
    BothSidesGeometry()
    {
        // Optimisers do not merge drawables with user data. A merged one could not be sorted.
        setUserData(m_hideFar);
    }
    BothSidesGeometry(const BothSidesGeometry &other, const osg::CopyOp &how)
        : osg::Geometry(other, how)
    {}

    osg::Object *cloneType() const override { return new BothSidesGeometry; }
    osg::Object *clone(const osg::CopyOp &how) const override
    {
        return new BothSidesGeometry(*this, how);
    }

    void drawImplementation(osg::RenderInfo &renderInfo) const override
    {
        m_hideNear->apply(*renderInfo.getState());
        osg::Geometry::drawImplementation(renderInfo);
        m_hideFar->apply(*renderInfo.getState());
        osg::Geometry::drawImplementation(renderInfo);
    }

protected:
    ~BothSidesGeometry() override = default;

private:
    osg::ref_ptr<osg::CullFace> m_hideNear = new osg::CullFace(osg::CullFace::FRONT);
    osg::ref_ptr<osg::CullFace> m_hideFar = new osg::CullFace(osg::CullFace::BACK);
};

} // namespace vlt::scene
