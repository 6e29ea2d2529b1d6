#pragma once

#include "plugins/scene/mesh/Mesh.h"

#include <osg/Vec2d>
#include <osg/Vec3d>

#include <vector>

namespace vlt::scene {

/// A closed outline in a horizontal plane, counter-clockwise seen from above; x, y in metres.
using Outline = std::vector<osg::Vec2d>;

/// Half a section of a solid of revolution: points (radius, z) in metres, with the solid to the
/// left of the direction of the points (upwards along an outer wall).
using Profile = std::vector<osg::Vec2d>;

enum class Ends { Open, Closed };
enum class Faces { Round, Flat };

/// A cylinder or truncated cone from one point to another.
///
/// @param sides  number of corners of its section, at least 3
void addTube(Mesh &mesh, const osg::Vec3d &from, const osg::Vec3d &to, double fromRadius,
             double toRadius, int sides, const Color &color, Ends ends = Ends::Open);

/// A box with a centre and three half edges, which are perpendicular and right-handed.
void addBox(Mesh &mesh, const osg::Vec3d &centre, const osg::Vec3d &halfX, const osg::Vec3d &halfY,
            const osg::Vec3d &halfZ, const Color &color);

/// A box along the axes with the minimum and maximum of its coordinates.
void addBox(Mesh &mesh, const osg::Vec3d &least, const osg::Vec3d &most, const Color &color);

/// A vertical prism with a convex outline. Corners of the outline with small angles are smoothed.
void addPrism(Mesh &mesh, const Outline &outline, double bottom, double top, const Color &color,
              Ends ends = Ends::Closed);

/// A solid of revolution about the z axis. Corners of the profile with small angles are smoothed.
///
/// @param segments  number of corners of its horizontal section; one of them is at azimuth 0
/// @param faces     Round: shaded like a circle; Flat: shaded like a prism with edges
void addRevolved(Mesh &mesh, const Profile &profile, int segments, const Color &color,
                 Faces faces = Faces::Round);

/// An ellipsoid of revolution. Its vertices lie on it, closer to each other near its tips.
///
/// @param along          vector from the centre to a tip
/// @param halfWidth      distance from the centre to the equator
/// @param around, steps  number of vertices of each circle; number of pieces from tip to tip
void addSpheroid(Mesh &mesh, const osg::Vec3d &centre, const osg::Vec3d &along, double halfWidth,
                 int around, int steps, const Color &color);

/// A unit vector perpendicular to another.
osg::Vec3d acrossOf(const osg::Vec3d &axis);

/// Unit vector in the direction of an azimuth in degrees: 0 is north (+y), clockwise.
osg::Vec3d towards(double azimuthDeg);

/// Rotation of an object that faces north to the direction of an azimuth.
osg::Matrixd turnedTo(double azimuthDeg);

/// Unit vector to the right of the direction of an azimuth.
osg::Vec3d rightOf(double azimuthDeg);

} // namespace vlt::scene
