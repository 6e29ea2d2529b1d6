#pragma once

#include "contract/SceneTexts.h"

#include <stdexcept>

namespace vlt::scene {

/// Thrown if a query cannot be drawn. The text is for the user and names the item and its value.
class BadQuery : public std::runtime_error
{
public:
    BadQuery(contract::SceneTextId text, std::initializer_list<std::string_view> values = {})
        : std::runtime_error(contract::formatted(text, values))
    {}
};

} // namespace vlt::scene
