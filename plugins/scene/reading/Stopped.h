#pragma once

namespace vlt::scene {

/// Thrown if the caller stopped the work, which is not an error.
struct Stopped
{
};

} // namespace vlt::scene
