#pragma once

namespace vlt::scene {

/// Thrown where the caller stopped the work, which is no fault.
struct Stopped
{
};

} // namespace vlt::scene
