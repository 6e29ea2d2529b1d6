#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vlt::contract {

/// A pylon query taken apart: "site:key=value,key=value,path". It is at the same time the
/// connection string from which the table driver reads, and the only such text that this system
/// knows.
///
/// Nothing in it is escaped. A value reaches up to the next known key, so that commas inside a
/// coordinate system's WKT stay; the path is what follows the last known option, with all its
/// commas, "=" and "%".
struct ConnectionString
{
    std::string kind; ///< "site" or "link"
    std::vector<std::pair<std::string, std::string>> options;
    std::string path; ///< bytes of the file name, perhaps relative to the project's directory

    /// Value of an option; empty when it is not there.
    std::string option(std::string_view key) const;
};

/// Takes a connection string apart; nothing when it starts with neither "site:" nor "link:" (in any
/// case of letters). `baseDirectory` is where relative paths start; where commas leave a doubt, the
/// split whose path exists there is taken.
std::optional<ConnectionString> parseConnection(std::string_view text,
                                                const std::string &baseDirectory = {});

/// Puts the parts together again.
std::string composeConnection(const ConnectionString &connection);

/// The same connection with relative paths, of the table and of "dem_file", made absolute against
/// `baseDirectory`; unchanged when it is none.
std::string resolvedConnection(std::string_view text, const std::string &baseDirectory);

} // namespace vlt::contract
