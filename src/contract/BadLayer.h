#pragma once

#include "contract/SceneTexts.h"

#include <stdexcept>
#include <string>

namespace vlt::contract {

/// A reason in the words of a library.
struct LibraryWords
{
    std::string text;
};

/// Thrown if a layer cannot be shown or a file that it names cannot be used. The text is for the
/// user and names what is missing or wrong.
class BadLayer : public std::runtime_error
{
public:
    BadLayer(SceneTextId text, std::initializer_list<std::string_view> values = {})
        : std::runtime_error(formatted(text, values))
    {}

    explicit BadLayer(const LibraryWords &words) : std::runtime_error(words.text) {}
};

} // namespace vlt::contract
