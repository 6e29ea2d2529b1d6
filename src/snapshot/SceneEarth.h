#pragma once

#include "landscape/Terrain.h"
#include "readingaids/SceneReading.h"
#include "snapshot/SceneSource.h"

#include <osg/Node>

#include <optional>
#include <string>

namespace vlt::snapshot {

/// The scene's frame; nothing if the scene does not state where it lies.
std::optional<landscape::FrameOnEarth> frameOf(const osg::Node &scene);

/// The direction of true north at a place of a frame, in degrees clockwise from the y axis. It is
/// computed again where the place is far from the one before.
class NorthAtPlace
{
public:
    explicit NorthAtPlace(std::optional<landscape::FrameOnEarth> frame) : m_frame(std::move(frame))
    {}

    double operator()(const contract::Place &place);

private:
    std::optional<landscape::FrameOnEarth> m_frame;
    std::optional<contract::Place> m_place;
    double m_northDeg = 0;
};

/// The legend of a scene as its reader states it, for contract/SceneLegend.h; may be empty.
std::string legendTextOf(const osg::Node &scene);

/// What the reading aids of a view state about a scene. Without a place on the earth, north is the
/// y axis.
///
/// @param terrain  for heights where the scene has no terrain of its own; may be empty
readingaids::SceneReading readingOf(const Scene &scene, const QString &terrain = {});

} // namespace vlt::snapshot
