#pragma once

#include "contract/TableKind.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vlt::contract {

/// A query of sites or links taken apart: "site:key=value,key=value,path". It is at the same time
/// the connection string from which the table driver reads. QueryOptions.h has the keys.
///
/// Nothing in it is escaped. A value reaches up to the next known key, so that commas inside a
/// coordinate system's WKT stay; the path is what follows the last known option, with all its
/// commas, "=" and "%".
struct ConnectionString
{
    TableKind kind = TableKind::Sites;
    std::vector<std::pair<std::string, std::string>> options;
    std::string path; ///< bytes of the file name, perhaps relative to the project's directory

    /// Value of an option; empty when it is not there.
    std::string option(std::string_view key) const;
};

/// Takes a connection string apart. Reading from the left,
/// - what names an existing file as it stands is the path, even if it looks like an option;
/// - the value of an option ends before the next known key that has not occurred yet;
/// - without one it ends at the first comma outside brackets and quotation marks, and the path
///   follows. "dem_file", a path itself, ends at a comma behind which an existing file is named;
/// - behind "lods" only "dem_file" can follow, so that a path may hold texts like options;
/// - a key that nobody knows, or that occurs again, starts the path.
///
/// @param baseDirectory  where relative paths start; the working directory where it is empty
/// @return  nothing where the text starts with neither "site:" nor "link:", in any case of letters
std::optional<ConnectionString> parseConnection(std::string_view text,
                                                const std::string &baseDirectory = {});

/// Puts the parts together again.
std::string composeConnection(const ConnectionString &connection);

/// The same connection with relative paths, of the table and of "dem_file", made absolute against
/// `baseDirectory`; unchanged when it is none.
std::string resolvedConnection(std::string_view text, const std::string &baseDirectory);

} // namespace vlt::contract
