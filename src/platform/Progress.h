#pragma once

#include <functional>

namespace vlt::platform {

/// What long work calls now and then with the share that is done (0..1), on any of its threads;
/// false stops it.
using Progress = std::function<bool(double)>;

} // namespace vlt::platform
