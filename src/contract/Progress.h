#pragma once

#include <functional>

namespace vlt {

/// Callback of a long operation, called repeatedly with the share that is done (0..1), on any of
/// the operation's threads. It returns false to stop the operation. It may be empty.
using Progress = std::function<bool(double)>;

} // namespace vlt
