#pragma once

#include <functional>

namespace vlt {

/// What long work calls now and then with the share that is done (0..1), on any of its threads;
/// false stops it. Empty where nobody listens.
using Progress = std::function<bool(double)>;

} // namespace vlt
