#pragma once

#include "contract/Text.h"

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::contract {

/// A pattern, in whatever language, with the values in the places "%1", "%2" ... A "%1" within a
/// value stays; places without a value are left out.
std::string filled(std::string_view pattern, std::span<const std::string_view> values);

/// The English text with the values in its places.
inline std::string formatted(const Text &text, std::initializer_list<std::string_view> values = {})
{
    return filled(text.pattern, {values.begin(), values.size()});
}

/// A text of the tables and what stood in its places.
struct Recognised
{
    const Text *text = nullptr;
    std::vector<std::string_view> values; ///< parts of the text that was recognised
};

/// Finds out which text of the tables, formatted with which values, `english` is; nothing where it
/// is none of them. The text with the most words of its own holds: "...: Permission denied" is not
/// "...: %1".
std::optional<Recognised> recognised(std::string_view english);

} // namespace vlt::contract
