#pragma once

#include "contract/TextTable.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::contract {

/// The English text with the values in its places. A "%1" within a value stays.
std::string formatted(const Text &text, std::initializer_list<std::string_view> values = {});

inline std::string formatted(TextId id, std::initializer_list<std::string_view> values = {})
{
    return formatted(id.text(), values);
}

/// A text of the table and what stood in its places.
struct Recognised
{
    const Text *text = nullptr;
    std::vector<std::string_view> values; ///< parts of the text that was recognised
};

/// Finds out which text of the table, formatted with which values, `english` is; nothing where it
/// is none of them. The text with the most words of its own holds: "...: Permission denied" is not
/// "...: %1".
std::optional<Recognised> recognised(std::string_view english);

} // namespace vlt::contract
