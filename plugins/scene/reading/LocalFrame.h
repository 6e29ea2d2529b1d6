#pragma once

#include <ogr_spatialref.h>

#include <osg/Vec2d>

#include <memory>
#include <vector>

namespace vlt::scene {

/// Metres around the middle of some places, x east, y north.
///
/// Places of a projected system are shifted and taken from its unit to metres. Those of a
/// geographic one are projected by azimuthal equidistant projection about the middle on the
/// system's own ellipsoid: true distances and directions from the middle, lengths across within
/// 1e-4 up to 150 km from it. Without a system the numbers are taken as metres.
class LocalFrame
{
public:
    /// @param srs  of the places, x before y; may be null
    /// @throws BadLayer  a system that is neither projected nor geographic
    LocalFrame(const OGRSpatialReference *srs, const std::vector<osg::Vec2d> &places);

    /// The middle, in `srs`: of the rectangle around all places.
    const osg::Vec2d &centre() const { return m_centre; }

    /// A place of `srs` in the frame; NaN where it cannot be projected.
    osg::Vec2d toFrame(const osg::Vec2d &place) const;

    /// The way back.
    osg::Vec2d fromFrame(const osg::Vec2d &place) const;

private:
    void projectAround(const OGRSpatialReference &srs, const std::vector<osg::Vec2d> &places);

    osg::Vec2d m_centre;
    double m_unitM = 1; ///< of a plane; negative where it counts to the west and south
    std::unique_ptr<OGRCoordinateTransformation> m_toPlane; ///< of a geographic system
    std::unique_ptr<OGRCoordinateTransformation> m_fromPlane;
};

} // namespace vlt::scene
