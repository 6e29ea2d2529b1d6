#pragma once

#include "contract/BuildingDocument.h"
#include "plugins/scene/buildings/TextureImage.h"
#include "plugins/scene/buildings/Town.h"

#include <osg/StateSet>

#include <memory>
#include <string>
#include <vector>

namespace vlt::scene {

/// The images of a document, opened, and how they are drawn. May be used by several threads.
class TextureImages
{
public:
    struct Level
    {
        double heightM = 0; ///< above the ground
        std::unique_ptr<TextureImage> image;
    };

    /// Opens the images that can be used; a notice names each of the first others with the reason,
    /// one more counts the rest. Images that are not georeferenced, and those to whose system there
    /// is no transformation from that of the footprints, cannot be used; of several at one height
    /// only the first one can.
    ///
    /// @param directories  where files of relative names are looked for, in this order
    /// @throws Stopped     by `progress`
    static std::shared_ptr<TextureImages> open(const Town &town,
                                               const contract::BuildingTextures &textures,
                                               const std::vector<std::string> &directories,
                                               Notices &notices, const Progress &progress);

    bool isEmpty() const { return m_levels.empty(); }

    /// From the lowest one upwards.
    const std::vector<Level> &levels() const { return m_levels; }

    /// The index of the level next in height; of two as near the lower one.
    std::size_t nearest(double heightM) const;

    /// A way in the town's frame, in metres, as one in the footprints' system.
    osg::Vec2d inSystem(const osg::Vec2d &way) const;

    /// For faces with an image on unit 0: the image where it has something, else the colour of the
    /// vertices.
    const osg::ref_ptr<osg::StateSet> &faceState() const { return m_faceState; }
    /// For faces in the colours of their vertices.
    const osg::ref_ptr<osg::StateSet> &plainState() const { return m_plainState; }
    const osg::ref_ptr<osg::StateSet> &edgeState() const { return m_edgeState; }

private:
    explicit TextureImages(const Town &town);

    std::vector<Level> m_levels;
    osg::Vec2d m_right; ///< a metre to the east in the footprints' system
    osg::Vec2d m_up;
    osg::ref_ptr<osg::StateSet> m_faceState;
    osg::ref_ptr<osg::StateSet> m_plainState;
    osg::ref_ptr<osg::StateSet> m_edgeState;
};

} // namespace vlt::scene
