#pragma once

#include <osg/Drawable>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vlt::scene {

/// Which triangles of a drawable belong to which object of the scene, see contract/SceneObjects.h.
class ObjectRanges
{
public:
    /// Starts an object at the next triangle.
    ///
    /// @param indices  number of the vertex indices so far
    void begin(std::uint32_t object, std::size_t indices);

    bool isEmpty() const { return m_pairs.empty(); }

    /// Adds the ranges to a drawable.
    void addTo(osg::Drawable &drawable) const;

private:
    std::vector<std::uint32_t> m_pairs; ///< first triangle, object
};

} // namespace vlt::scene
