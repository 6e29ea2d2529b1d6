#pragma once

namespace vlt::contract {

/// Thrown if the caller stopped the work, which is not an error.
struct Stopped
{
};

} // namespace vlt::contract
