#pragma once

#include "contract/BuildingDocument.h"
#include "plugins/scene/buildings/RoofTriangles.h"
#include "plugins/scene/buildings/TextureImage.h"
#include "plugins/scene/reading/ObjectRanges.h"

#include <osg/Geometry>
#include <osg/StateSet>

#include <cstdint>
#include <vector>

namespace vlt::scene {

/// A wall along the line between two positions.
struct Wall
{
    osg::Vec2d from; ///< metres from the origin of the vertices
    osg::Vec2d to;
    osg::Vec2d normal;     ///< outwards, of length 1
    osg::Vec2d lookedFrom; ///< position in the image for `from`, in the footprints' system
    osg::Vec2d lookedTo;   ///< the same for `to`
};

/// Faces of buildings with the same image, which will become one drawable.
class ImageFaces
{
public:
    /// Adds a horizontal face.
    ///
    /// @param looked  positions in the image, in the footprints' system; parallel to roof.points()
    /// @param color   colour where the image has none
    void addFloor(const RoofTriangles &roof, const std::vector<osg::Vec2d> &looked, double z,
                  const osg::Vec4ub &color);

    void addWall(const Wall &wall, double bottom, double top, const osg::Vec4ub &color);

    /// Starts the faces of a building, if the city is pickable.
    void begin(std::uint32_t building) { m_ranges.begin(building, m_indices.size()); }

    bool isEmpty() const { return m_indices.empty(); }

    /// The drawable, with the part of the image that it needs.
    ///
    /// @param state    the state set that all faces with images share
    /// @param maxSide  maximum side of the part of the image in pixels: TextureImage::crop()
    osg::ref_ptr<osg::Geometry> geometry(TextureImage &image,
                                         const contract::BuildingTextures &textures,
                                         const osg::StateSet &state, int maxSide) const;

private:
    std::uint32_t vertex(const osg::Vec2d &position, double z, const osg::Vec3 &normal,
                         const osg::Vec2d &looked, const osg::Vec4ub &color);

    std::vector<osg::Vec3> m_vertices;
    std::vector<osg::Vec3> m_normals;
    std::vector<osg::Vec4ub> m_colors;
    std::vector<osg::Vec2d> m_looked;
    std::vector<std::uint32_t> m_indices;
    ObjectRanges m_ranges;
};

} // namespace vlt::scene
