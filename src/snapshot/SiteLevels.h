#pragma once

#include <osg/BoundingBox>
#include <osg/Node>
#include <osg/Vec3d>

#include <optional>

namespace vlt::snapshot {

/// One representation of a site.
struct Level
{
    osg::BoundingBoxd extents; ///< of all that is drawn; invalid for an empty representation
    double fromM = 0;          ///< minimum distance from the site's centre at which it is drawn
    double toM = 0;            ///< maximum distance
};

/// The two representations of a site.
struct SiteLevels
{
    osg::Vec3d centre; ///< the point from which distances are measured
    Level precise;
    Level symbolic;
};

/// The site that is nearest to the mean of all sites. A site is a node with at least two levels of
/// detail that contains no other such node. Everything is in the scene's frame, in metres; nothing
/// for a scene without such nodes.
std::optional<SiteLevels> findMiddleSite(osg::Node &scene);

} // namespace vlt::snapshot
