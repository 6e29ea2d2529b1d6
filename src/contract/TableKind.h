#pragma once

#include <optional>
#include <string_view>

namespace vlt::contract {

/// What the rows of a table are.
enum class TableKind { Sites, Links };

/// How connection strings of a kind start, as a literal.
constexpr std::string_view connectionPrefix(TableKind kind)
{
    return kind == TableKind::Links ? "link:" : "site:";
}

/// The kind by whose prefix a connection string starts, in any case of letters; nothing where it
/// starts with neither.
constexpr std::optional<TableKind> connectionKind(std::string_view connection)
{
    for (const TableKind kind : {TableKind::Sites, TableKind::Links}) {
        std::string_view rest = connection;
        bool isKind = true;
        for (const char c : connectionPrefix(kind)) {
            const char capital = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
            isKind = isKind && !rest.empty() && (rest.front() == c || rest.front() == capital);
            rest.remove_prefix(rest.empty() ? 0 : 1);
        }
        if (isKind)
            return kind;
    }
    return std::nullopt;
}

} // namespace vlt::contract
