#pragma once

#include <stdexcept>

namespace vlt::scene {

/// Thrown where a layer cannot be shown; the text names for the user what is missing or wrong.
class BadLayer : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace vlt::scene
