#pragma once

#include <optional>
#include <string_view>

namespace vlt::contract {

/// What the rows of a table are.
enum class TableKind { Sites, Links };

/// Prefix of the connection strings of a kind.
constexpr std::string_view connectionPrefix(TableKind kind)
{
    return kind == TableKind::Links ? "link:" : "site:";
}

/// The kind whose prefix a connection string has, in any case of letters; nothing if it has no such
/// prefix.
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
