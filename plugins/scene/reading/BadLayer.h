#pragma once

#include "contract/SceneTexts.h"

#include <stdexcept>
#include <string>

namespace vlt::scene {

/// A reason that a library gave.
struct LibraryWords
{
    std::string text;
};

/// Thrown where a layer cannot be shown, or a file that it names cannot be used; the text names for
/// the user what is missing or wrong.
class BadLayer : public std::runtime_error
{
public:
    BadLayer(contract::SceneTextId text, std::initializer_list<std::string_view> values = {})
        : std::runtime_error(contract::formatted(text, values))
    {}

    explicit BadLayer(const LibraryWords &words) : std::runtime_error(words.text) {}
};

} // namespace vlt::scene
