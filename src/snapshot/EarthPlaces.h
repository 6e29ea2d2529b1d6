#pragma once

#include "readingaids/GroundPlace.h"
#include "snapshot/SceneEarth.h"

#include <QString>

#include <osg/Node>

#include <memory>
#include <optional>

namespace vlt::snapshot {

/// Places under a scene: their coordinates, and their height on the terrain of the scene, else on
/// another one. The terrain is opened when it is needed.
class EarthPlaces
{
public:
    /// @param terrain  path; may be empty
    EarthPlaces(const osg::Node &scene, const QString &terrain);
    ~EarthPlaces();

    /// A place by its position in the scene's frame; nothing if that is not known on the earth.
    std::optional<readingaids::GroundPlace> at(double x, double y);

private:
    class Parts;
    std::unique_ptr<Parts> m_parts; ///< null: the scene has no place on the earth
};

} // namespace vlt::snapshot
