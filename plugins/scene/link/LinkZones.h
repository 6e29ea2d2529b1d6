#pragma once

#include "plugins/scene/parametric/LinkObject.h"

#include <osg/Node>
#include <osg/StateSet>

#include <cstddef>
#include <vector>

namespace vlt::scene {

/// Up to this number of zones, all are drawn as ellipsoids at every distance.
inline constexpr std::size_t FewZones = 16;

/// The shape of a Fresnel ellipsoid, in the coordinates of a tile.
struct Ellipsoid
{
    osg::Vec3d centre;
    osg::Vec3d along; ///< vector from the centre to a tip
    double halfWidth;
};

/// Draws the Fresnel ellipsoids of a scene, all of one colour, tile by tile.
///
/// Ellipsoids near the eye, in relation to their widths, are solid; all others are flat strips that
/// face the viewer and look alike from there, with a tenth of the vertices. Strips less than a
/// pixel wide are left out. With more links the solid ones are coarser: those of up to 990 links
/// have 32 x 64 faces each, those of up to 10000 links have at most 2 million vertices together.
class LinkZones
{
public:
    /// @param links  number of links in the scene
    LinkZones(std::size_t links, const LinkAppearance &appearance);

    /// The ellipsoids of a tile, at least one.
    osg::ref_ptr<osg::Node> build(const std::vector<Ellipsoid> &ellipsoids) const;

private:
    /// Number of vertices around an ellipsoid, and of pieces along it.
    struct Fineness
    {
        int around;
        int along;
    };

    static Fineness finenessFor(std::size_t links);
    osg::ref_ptr<osg::Node> solids(const std::vector<Ellipsoid> &ellipsoids) const;
    osg::ref_ptr<osg::Node> strips(const std::vector<Ellipsoid> &ellipsoids) const;

    bool m_areFew;
    bool m_haveLines; ///< lines of sight can be seen where zones are left out
    Fineness m_fineness;
    Color m_color;
    Color m_wallColor; ///< so that two walls together have the opacity of m_color
    osg::ref_ptr<osg::StateSet> m_solidState;
    osg::ref_ptr<osg::StateSet> m_stripState;
};

} // namespace vlt::scene
