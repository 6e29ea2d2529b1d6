#include "plugins/scene/mesh/Solids.h"

#include <array>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double SmoothCosine = 0.79; ///< of 38 degrees: corners with smaller angles are smoothed

osg::Vec3d pointAt(const osg::Vec2d &at, double azimuthDeg)
{
    return towards(azimuthDeg) * at.x() + osg::Vec3d(0, 0, at.y());
}

/// Normal of an edge of an outline or a profile, to its right.
osg::Vec2d outward(const osg::Vec2d &from, const osg::Vec2d &to)
{
    osg::Vec2d normal(to.y() - from.y(), from.x() - to.x());
    normal.normalize();
    return normal;
}

osg::Vec2d softened(const osg::Vec2d &own, const osg::Vec2d &neighbour)
{
    if (own * neighbour < SmoothCosine)
        return own;
    osg::Vec2d mean = own + neighbour;
    mean.normalize();
    return mean;
}

void addFace(Mesh &mesh, const osg::Vec3d &centre, const osg::Vec3d &halfU, const osg::Vec3d &halfV,
             const Color &color)
{
    osg::Vec3d normal = halfU ^ halfV;
    normal.normalize();
    const unsigned a = mesh.vertex(centre - halfU - halfV, normal, color);
    const unsigned b = mesh.vertex(centre + halfU - halfV, normal, color);
    const unsigned c = mesh.vertex(centre + halfU + halfV, normal, color);
    const unsigned d = mesh.vertex(centre - halfU + halfV, normal, color);
    mesh.quad(a, b, c, d);
}

/// A convex flat face; the points run counter-clockwise about the normal.
void addPolygon(Mesh &mesh, const std::vector<osg::Vec3d> &points, const osg::Vec3d &normal,
                const Color &color)
{
    const auto base = static_cast<unsigned>(mesh.vertexCount());
    for (const osg::Vec3d &point : points)
        mesh.vertex(point, normal, color);
    for (unsigned i = 2; i < points.size(); ++i)
        mesh.triangle(base, base + i - 1, base + i);
}

} // namespace

osg::Vec3d towards(double azimuthDeg)
{
    const double angle = osg::DegreesToRadians(azimuthDeg);
    return {std::sin(angle), std::cos(angle), 0};
}

osg::Matrixd turnedTo(double azimuthDeg)
{
    return osg::Matrixd::rotate(-osg::DegreesToRadians(azimuthDeg), osg::Vec3d(0, 0, 1));
}

osg::Vec3d rightOf(double azimuthDeg)
{
    const double angle = osg::DegreesToRadians(azimuthDeg);
    return {std::cos(angle), -std::sin(angle), 0};
}

osg::Vec3d acrossOf(const osg::Vec3d &axis)
{
    const osg::Vec3d helper = std::abs(axis.z()) > 0.9 ? osg::Vec3d(0, 1, 0) : osg::Vec3d(0, 0, 1);
    osg::Vec3d across = helper ^ axis;
    across.normalize();
    return across;
}

void addTube(Mesh &mesh, const osg::Vec3d &from, const osg::Vec3d &to, double fromRadius,
             double toRadius, int sides, const Color &color, Ends ends)
{
    osg::Vec3d axis = to - from;
    const double length = axis.normalize();
    if (length <= 0)
        return;
    const osg::Vec3d u = acrossOf(axis);
    const osg::Vec3d v = axis ^ u;
    const double slope = (fromRadius - toRadius) / length;

    std::vector<osg::Vec3d> lower;
    std::vector<osg::Vec3d> upper;
    const auto base = static_cast<unsigned>(mesh.vertexCount());
    for (int i = 0; i < sides; ++i) {
        const double angle = 2 * osg::PI * i / sides;
        const osg::Vec3d out = u * std::cos(angle) + v * std::sin(angle);
        osg::Vec3d normal = out + axis * slope;
        normal.normalize();
        lower.push_back(from + out * fromRadius);
        upper.push_back(to + out * toRadius);
        mesh.vertex(lower.back(), normal, color);
        mesh.vertex(upper.back(), normal, color);
    }
    const auto count = static_cast<unsigned>(sides);
    for (unsigned i = 0; i < count; ++i) {
        const unsigned next = (i + 1) % count;
        mesh.quad(base + 2 * i, base + 2 * next, base + 2 * next + 1, base + 2 * i + 1);
    }
    if (ends == Ends::Closed) {
        addPolygon(mesh, upper, axis, color);
        addPolygon(mesh, {lower.rbegin(), lower.rend()}, -axis, color);
    }
}

void addBox(Mesh &mesh, const osg::Vec3d &centre, const osg::Vec3d &halfX, const osg::Vec3d &halfY,
            const osg::Vec3d &halfZ, const Color &color)
{
    addFace(mesh, centre + halfX, halfY, halfZ, color);
    addFace(mesh, centre - halfX, halfZ, halfY, color);
    addFace(mesh, centre + halfY, halfZ, halfX, color);
    addFace(mesh, centre - halfY, halfX, halfZ, color);
    addFace(mesh, centre + halfZ, halfX, halfY, color);
    addFace(mesh, centre - halfZ, halfY, halfX, color);
}

void addBox(Mesh &mesh, const osg::Vec3d &least, const osg::Vec3d &most, const Color &color)
{
    const osg::Vec3d half = (most - least) / 2;
    addBox(mesh, least + half, {half.x(), 0, 0}, {0, half.y(), 0}, {0, 0, half.z()}, color);
}

void addPrism(Mesh &mesh, const Outline &outline, double bottom, double top, const Color &color,
              Ends ends)
{
    const std::size_t count = outline.size();
    std::vector<osg::Vec2d> normals(count); // of the edge from i to i + 1
    for (std::size_t i = 0; i < count; ++i)
        normals[i] = outward(outline[i], outline[(i + 1) % count]);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t next = (i + 1) % count;
        const osg::Vec2d first = softened(normals[i], normals[(i + count - 1) % count]);
        const osg::Vec2d second = softened(normals[i], normals[next]);
        const osg::Vec3d from(outline[i], 0);
        const osg::Vec3d to(outline[next], 0);
        const osg::Vec3d low(0, 0, bottom);
        const osg::Vec3d high(0, 0, top);
        const unsigned a = mesh.vertex(from + low, osg::Vec3d(first, 0), color);
        const unsigned b = mesh.vertex(to + low, osg::Vec3d(second, 0), color);
        const unsigned c = mesh.vertex(to + high, osg::Vec3d(second, 0), color);
        const unsigned d = mesh.vertex(from + high, osg::Vec3d(first, 0), color);
        mesh.quad(a, b, c, d);
    }
    if (ends == Ends::Open)
        return;
    std::vector<osg::Vec3d> lid;
    for (const osg::Vec2d &point : outline)
        lid.emplace_back(point, top);
    addPolygon(mesh, lid, {0, 0, 1}, color);
    std::vector<osg::Vec3d> floor(lid.rbegin(), lid.rend());
    for (osg::Vec3d &point : floor)
        point.z() = bottom;
    addPolygon(mesh, floor, {0, 0, -1}, color);
}

void addRevolved(Mesh &mesh, const Profile &profile, int segments, const Color &color, Faces faces)
{
    const double step = 360.0 / segments;
    std::vector<osg::Vec2d> normals; // of the edge from i to i + 1
    for (std::size_t i = 0; i + 1 < profile.size(); ++i)
        normals.push_back(outward(profile[i], profile[i + 1]));
    for (std::size_t i = 0; i < normals.size(); ++i) {
        const osg::Vec2d low = i > 0 ? softened(normals[i], normals[i - 1]) : normals[i];
        const osg::Vec2d high =
            i + 1 < normals.size() ? softened(normals[i], normals[i + 1]) : normals[i];
        const auto addEdge = [&](double azimuth, double facing) {
            const unsigned lower =
                mesh.vertex(pointAt(profile[i], azimuth), pointAt(low, facing), color);
            mesh.vertex(pointAt(profile[i + 1], azimuth), pointAt(high, facing), color);
            return lower;
        };
        const unsigned first = faces == Faces::Round ? addEdge(0, 0) : 0;
        unsigned right = first;
        for (int k = 0; k < segments; ++k) {
            // Azimuths are clockwise: seen from outside, the larger one is on the left.
            const double next = (k + 1) * step;
            unsigned left = first;
            if (faces == Faces::Flat) {
                right = addEdge(k * step, next - step / 2);
                left = addEdge(next, next - step / 2);
            } else if (k + 1 < segments)
                left = addEdge(next, next);
            if (profile[i].x() > 0)
                mesh.triangle(left, right, right + 1);
            if (profile[i + 1].x() > 0)
                mesh.triangle(left, right + 1, left + 1);
            right = left;
        }
    }
}

void addSpheroid(Mesh &mesh, const osg::Vec3d &centre, const osg::Vec3d &along, double halfWidth,
                 int around, int steps, const Color &color)
{
    osg::Vec3d axis = along;
    const double half = axis.normalize();
    const osg::Vec3d u = acrossOf(axis);
    const osg::Vec3d v = axis ^ u;
    const auto sides = static_cast<unsigned>(around);
    const unsigned tip = mesh.vertex(centre + along, axis, color);
    const unsigned first = tip + 1;
    for (int i = 1; i < steps; ++i) {
        // Equal steps of this angle are short pieces near the tips.
        const double angle = osg::PI * i / steps;
        for (int k = 0; k < around; ++k) {
            const double turn = 2 * osg::PI * k / around;
            const osg::Vec3d out = u * std::cos(turn) + v * std::sin(turn);
            osg::Vec3d normal =
                axis * (std::cos(angle) * halfWidth) + out * (std::sin(angle) * half);
            normal.normalize();
            mesh.vertex(centre + along * std::cos(angle) + out * (std::sin(angle) * halfWidth),
                        normal, color);
        }
    }
    const unsigned end = mesh.vertex(centre - along, -axis, color);
    const unsigned last = end - sides;
    for (unsigned k = 0; k < sides; ++k) {
        const unsigned next = (k + 1) % sides;
        mesh.triangle(tip, first + k, first + next);
        for (unsigned ring = first; ring < last; ring += sides)
            mesh.quad(ring + k, ring + sides + k, ring + sides + next, ring + next);
        mesh.triangle(end, last + next, last + k);
    }
}

} // namespace vlt::scene
