#include "contract/ConnectionString.h"

#include "contract/QueryOptions.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace vlt::contract {

namespace {

constexpr std::size_t MaxPathSize = 4096; ///< bytes; longer names of files do not exist

using Keys = std::set<std::string_view>;

bool exists(const std::string &path, const std::string &baseDirectory)
{
    if (path.empty())
        return false;
    std::error_code error;
    return std::filesystem::exists(std::filesystem::path(baseDirectory) / path, error);
}

/// Whether the value of an option is a path, which may contain commas.
bool isPath(std::string_view key)
{
    return key == query::TerrainFile || key == query::Sectors || key == query::EndSites ||
           key == query::Columns;
}

/// The key of the option at the start of `text`; empty where `text` starts with no option.
std::string_view keyAt(std::string_view text)
{
    for (const QueryOption &option : QueryOptions)
        if (text.size() > option.key.size() && text.starts_with(option.key) &&
            text[option.key.size()] == '=')
            return option.key;
    return {};
}

/// End of the value of `key`, which starts `text`, where another option follows; npos where no
/// option follows.
///
/// @param seen  keys that have occurred; none of them counts as an option again
std::size_t endBeforeNextOption(std::string_view text, std::string_view key, const Keys &seen)
{
    if (key == query::TerrainFile) // always the last option
        return std::string_view::npos;
    for (std::size_t comma = text.find(','); comma != std::string_view::npos;
         comma = text.find(',', comma + 1)) {
        const std::string_view next = keyAt(text.substr(comma + 1));
        const bool follows = !next.empty() && seen.count(next) == 0;
        if (key == query::Lods) // only the terrain can follow: other commas belong to the path
            return follows && next == query::TerrainFile ? comma : std::string_view::npos;
        if (follows)
            return comma;
    }
    return std::string_view::npos;
}

/// Positions where the value that starts `text` may end: the commas outside brackets and quotation
/// marks, because a WKT text has commas within these.
std::vector<std::size_t> valueEnds(std::string_view text)
{
    std::vector<std::size_t> ends;
    int depth = 0;
    bool quoted = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '"')
            quoted = !quoted;
        else if (!quoted && (c == '[' || c == '('))
            ++depth;
        else if (!quoted && (c == ']' || c == ')'))
            --depth;
        else if (c == ',' && !quoted && depth <= 0)
            ends.push_back(at);
    }
    if (ends.empty()) // for instance because a bracket is never closed
        for (std::size_t at = text.find(','); at != std::string_view::npos;
             at = text.find(',', at + 1))
            ends.push_back(at);
    return ends;
}

/// End of the value of the last option, which starts `text`; the path of the table follows.
std::size_t endBeforePath(std::string_view text, std::string_view key,
                          const std::string &baseDirectory)
{
    const std::vector<std::size_t> ends = valueEnds(text);
    if (ends.empty())
        return text.size();
    if (isPath(key))
        for (const std::size_t end : ends)
            if (text.size() - end <= MaxPathSize &&
                exists(std::string(text.substr(end + 1)), baseDirectory))
                return end;
    return ends.front();
}

} // namespace

std::string ConnectionString::option(std::string_view key) const
{
    for (const auto &[name, value] : options)
        if (name == key)
            return value;
    return {};
}

std::optional<ConnectionString> parseConnection(std::string_view text,
                                                const std::string &baseDirectory)
{
    const std::optional<TableKind> kind = connectionKind(text);
    if (!kind)
        return std::nullopt;
    ConnectionString connection;
    connection.kind = *kind;
    std::string_view rest = text.substr(connectionPrefix(*kind).size());
    Keys seen;
    // A file may be called "lods=1.csv": the name of an existing file is the path.
    while (!exists(std::string(rest), baseDirectory)) {
        const std::string_view key = keyAt(rest);
        if (key.empty() || !seen.insert(key).second)
            break;
        rest.remove_prefix(key.size() + 1);
        std::size_t end = endBeforeNextOption(rest, key, seen);
        if (end == std::string_view::npos)
            end = endBeforePath(rest, key, baseDirectory);
        connection.options.emplace_back(key, rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    connection.path = rest;
    return connection;
}

std::string composeConnection(const ConnectionString &connection)
{
    std::string text(connectionPrefix(connection.kind));
    for (const auto &[key, value] : connection.options)
        text.append(key).append("=").append(value).append(",");
    return text + connection.path;
}

std::string resolvedConnection(std::string_view text, const std::string &baseDirectory)
{
    std::optional<ConnectionString> connection = parseConnection(text, baseDirectory);
    if (!connection || baseDirectory.empty())
        return std::string(text);
    const auto resolve = [&baseDirectory](std::string &path) {
        if (!path.empty() && path.front() != '/')
            path = (std::filesystem::path(baseDirectory) / path).lexically_normal().string();
    };
    resolve(connection->path);
    for (auto &[key, value] : connection->options)
        if (key == query::TerrainFile)
            resolve(value);
    return composeConnection(*connection);
}

} // namespace vlt::contract
