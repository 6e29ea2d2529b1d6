#pragma once

#include <stdexcept>

namespace vlt::scene {

/// Thrown where a query cannot be drawn; the text names the item and its value for the user.
class BadQuery : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace vlt::scene
