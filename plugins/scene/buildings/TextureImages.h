#pragma once

#include "contract/BuildingDocument.h"
#include "plugins/scene/buildings/CityModel.h"
#include "plugins/scene/buildings/TextureImage.h"

#include <osg/StateSet>

#include <memory>
#include <string>
#include <vector>

namespace vlt::scene {

/// The opened images of a document, and the state sets for drawing them. Several threads may use
/// it.
class TextureImages
{
public:
    struct Level
    {
        double heightM = 0; ///< above the ground
        std::unique_ptr<TextureImage> image;
    };

    /// Opens the usable images. For each of the first others a notice gives the reason; one more
    /// notice gives the number of the rest. An image is not usable if it is not georeferenced, if
    /// there is no transformation from the system of the footprints to its system, or if a previous
    /// one has the same height.
    ///
    /// @param directories  searched for relative paths, in this order
    /// @throws Stopped     `progress` stopped the function
    static std::shared_ptr<TextureImages> open(const CityModel &city,
                                               const contract::BuildingTextures &textures,
                                               const std::vector<std::string> &directories,
                                               Notices &notices, const Progress &progress);

    bool isEmpty() const { return m_levels.empty(); }

    /// The images in ascending order of their heights.
    const std::vector<Level> &levels() const { return m_levels; }

    /// Index of the level with the nearest height; of two equally near ones the lower.
    std::size_t nearest(double heightM) const;

    /// Converts a vector from the city's frame, in metres, to the footprints' system.
    osg::Vec2d inSystem(const osg::Vec2d &way) const;

    /// For faces with an image on texture unit 0: the image, and the colour of the vertices where
    /// it is transparent.
    const osg::ref_ptr<osg::StateSet> &faceState() const { return m_faceState; }
    /// For faces in the colours of their vertices.
    const osg::ref_ptr<osg::StateSet> &plainState() const { return m_plainState; }
    const osg::ref_ptr<osg::StateSet> &translucentState() const { return m_translucentState; }
    const osg::ref_ptr<osg::StateSet> &edgeState() const { return m_edgeState; }

private:
    explicit TextureImages(const CityModel &city);

    std::vector<Level> m_levels;
    osg::Vec2d m_right; ///< a metre to the east, in the footprints' system
    osg::Vec2d m_up;    ///< a metre to the north
    osg::ref_ptr<osg::StateSet> m_faceState;
    osg::ref_ptr<osg::StateSet> m_plainState;
    osg::ref_ptr<osg::StateSet> m_translucentState;
    osg::ref_ptr<osg::StateSet> m_edgeState;
};

} // namespace vlt::scene
