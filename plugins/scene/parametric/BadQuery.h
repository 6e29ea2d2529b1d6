#pragma once

#include "contract/SceneTexts.h"

#include <stdexcept>

namespace vlt::scene {

/// Thrown where a query cannot be drawn; the text names the item and its value for the user.
class BadQuery : public std::runtime_error
{
public:
    BadQuery(contract::SceneTextId text, std::initializer_list<std::string_view> values = {})
        : std::runtime_error(contract::formatted(text, values))
    {}
};

} // namespace vlt::scene
