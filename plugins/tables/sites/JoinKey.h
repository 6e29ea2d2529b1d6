#pragma once

#include <string>
#include <string_view>

namespace vlt::driver {

/// An id in the form in which the ids of two tables are compared: without a difference between
/// capital and small letters, and the same for a number and for its digits as a text, which may
/// have zeros before it: "0012", "12" and "12.0" are the same.
std::string joinKey(std::string_view id);

} // namespace vlt::driver
