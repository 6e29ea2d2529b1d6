#pragma once

#include "plugins/scene/mesh/Mesh.h"

#include <osg/Vec2d>
#include <osg/Vec3d>

#include <vector>

namespace vlt::scene {

/// Closed outline in a horizontal plane, counter-clockwise seen from above; x, y in metres.
using Outline = std::vector<osg::Vec2d>;

/// Half a section of a body of revolution: (radius, z) in metres, with the body on the left hand
/// side of the way (upwards along an outer wall).
using Profile = std::vector<osg::Vec2d>;

enum class Ends { Open, Closed };
enum class Faces { Round, Flat };

/// A rod from one point to another, round or a cone's piece.
///
/// @param sides  corners of its section, at least 3
void addTube(Mesh &mesh, const osg::Vec3d &from, const osg::Vec3d &to, double fromRadius,
             double toRadius, int sides, const Color &color, Ends ends = Ends::Open);

/// A box by its centre and three half edges at right angles, right-handed.
void addBox(Mesh &mesh, const osg::Vec3d &centre, const osg::Vec3d &halfX, const osg::Vec3d &halfY,
            const osg::Vec3d &halfZ, const Color &color);

/// A box along the axes by its two extreme corners.
void addBox(Mesh &mesh, const osg::Vec3d &least, const osg::Vec3d &most, const Color &color);

/// An upright prism over a convex outline. Shallow corners of the outline are shaded smoothly.
void addPrism(Mesh &mesh, const Outline &outline, double bottom, double top, const Color &color,
              Ends ends = Ends::Closed);

/// A body of revolution about the z axis. Shallow corners of the profile are shaded smoothly.
///
/// @param segments  corners of its horizontal section; a corner lies at azimuth 0
/// @param faces     round for shading as a circle, flat for a prism with edges
void addRevolved(Mesh &mesh, const Profile &profile, int segments, const Color &color,
                 Faces faces = Faces::Round);

/// An ellipsoid of revolution. Its vertices lie on it, closer to each other towards the tips.
///
/// @param along  from the centre to a tip
/// @param halfWidth  from the centre to the equator
/// @param around, steps  vertices of each of its circles; pieces from tip to tip
void addSpheroid(Mesh &mesh, const osg::Vec3d &centre, const osg::Vec3d &along, double halfWidth,
                 int around, int steps, const Color &color);

/// A unit vector at a right angle to another.
osg::Vec3d acrossOf(const osg::Vec3d &axis);

/// Unit vector towards an azimuth: 0 is north (+y), clockwise; degrees.
osg::Vec3d towards(double azimuthDeg);

/// Turns what faces north towards an azimuth.
osg::Matrixd turnedTo(double azimuthDeg);

/// Unit vector to the right of somebody who looks towards an azimuth.
osg::Vec3d rightOf(double azimuthDeg);

} // namespace vlt::scene
