#pragma once

#include <osg/BoundingBox>
#include <osg/Node>
#include <osg/Vec3d>

#include <optional>

namespace vlt::snapshot {

/// One representation of a site.
struct Level
{
    osg::BoundingBoxd extents; ///< of what is drawn; invalid for an empty representation
    double fromM = 0;          ///< distances from the site's centre at which it is drawn
    double toM = 0;
};

/// The two representations of a site.
struct SiteLevels
{
    osg::Vec3d centre; ///< the point from which distances count
    Level precise;
    Level symbolic;
};

/// The site that is nearest to the mean of all sites: of nodes with at least two levels of detail
/// that hold no others. Everything in the scene's frame, metres; nothing in a scene without such
/// nodes.
std::optional<SiteLevels> findMiddleSite(osg::Node &scene);

} // namespace vlt::snapshot
