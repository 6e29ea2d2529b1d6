#pragma once

#include "contract/TableKind.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vlt::contract {

/// The parts of a query of sites or links: "site:key=value,key=value,path". The query is also the
/// connection string of the table driver. QueryOptions.h has the keys.
///
/// Nothing in it is escaped. A value reaches up to the next known key, so that the commas in the
/// WKT of a coordinate system belong to the value. The path is all that follows the last known
/// option, with its commas, "=" and "%".
struct ConnectionString
{
    TableKind kind = TableKind::Sites;
    std::vector<std::pair<std::string, std::string>> options;
    std::string path; ///< as bytes of the file system; may be relative to the project's directory

    /// Value of an option; empty where the option is missing.
    std::string option(std::string_view key) const;
};

/// Splits a connection string into its parts. From left to right:
/// - if the whole rest names an existing file, it is the path, even if it starts like an option;
/// - the value of an option ends before the next known key that has not occurred yet;
/// - if no such key follows, the value ends at the first comma outside brackets and quotation
///   marks, and the path follows. The value of "dem_file", "sectors", "sites" or "columns",
///   itself a path, ends at the first comma after which an existing file is named;
/// - after "lods" only "dem_file" can follow, so that a path may contain texts like options;
/// - an unknown key, or one that occurs again, starts the path.
///
/// @param baseDirectory  directory to which paths are relative; empty: the working directory
/// @return  nothing where the text starts with neither "site:" nor "link:", in any case of letters
std::optional<ConnectionString> parseConnection(std::string_view text,
                                                const std::string &baseDirectory = {});

/// The text of a connection string with these parts.
std::string composeConnection(const ConnectionString &connection);

/// The same connection string with the paths of the table and of "dem_file" made absolute: relative
/// ones start at `baseDirectory`. Unchanged where `text` is not a connection string or
/// `baseDirectory` is empty.
std::string resolvedConnection(std::string_view text, const std::string &baseDirectory);

} // namespace vlt::contract
