#pragma once

#include "contract/Text.h"

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::contract {

/// A pattern, in any language, with the values in place of "%1", "%2" ... A "%1" within a value is
/// not replaced; placeholders without a value are removed.
std::string filled(std::string_view pattern, std::span<const std::string_view> values);

/// The English text with the values in place of its placeholders.
inline std::string formatted(const Text &text, std::initializer_list<std::string_view> values = {})
{
    return filled(text.pattern, {values.begin(), values.size()});
}

/// A text of the tables of texts, and the values in a finished message.
struct Recognised
{
    const Text *text = nullptr;
    std::vector<std::string_view> values; ///< parts of the message
};

/// Finds the text of TableTexts or SceneTexts from which the message `english` was formatted, and
/// its values; nothing where no text matches. Of several matching texts the one with the longest
/// fixed words is taken: "...: Permission denied" rather than "...: %1".
std::optional<Recognised> recognised(std::string_view english);

} // namespace vlt::contract
