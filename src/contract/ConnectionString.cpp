#include "contract/ConnectionString.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>

namespace vlt::contract {

namespace {

/// The one option whose value is a path.
constexpr std::string_view TerrainKey = "dem_file";

/// The keys in the order in which queries carry them.
constexpr std::array<std::string_view, 20> KnownKeys = {
    "s_srs", "t_srs", "data_folder", "pylon_type", "pylon_width", "sector_colors",
    "sector_properties",
    // of links
    "link_style", "link_width", "link_color", "fresnel_zone", "fresnel_share", "fresnel_color",
    "k_factor",
    // how the table is to be read
    "sheet", "encoding", "delimiter",
    // of both again
    "transmitter_scale", "lods", TerrainKey};

bool exists(const std::string &path, const std::string &baseDirectory)
{
    if (path.empty())
        return false;
    std::error_code error;
    return std::filesystem::exists(std::filesystem::path(baseDirectory) / path, error);
}

/// The known key that `text` starts with, "=" included in what must follow; empty when there is
/// none.
std::string_view keyAt(std::string_view text)
{
    for (const std::string_view key : KnownKeys)
        if (text.size() > key.size() && text.starts_with(key) && text[key.size()] == '=')
            return key;
    return {};
}

/// Where the value that starts `text` may end: at commas outside brackets and quotation marks, as
/// WKT has them.
std::vector<size_t> valueEnds(std::string_view text)
{
    std::vector<size_t> ends;
    int depth = 0;
    bool quoted = false;
    for (size_t at = 0; at < text.size(); ++at) {
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
    if (ends.empty()) // brackets that never close
        for (size_t at = text.find(','); at != std::string_view::npos; at = text.find(',', at + 1))
            ends.push_back(at);
    return ends;
}

/// Cuts the value of the last option from the path behind it.
constexpr size_t MaxPathSize = 4096; // no file has a longer name

size_t lastValueEnd(std::string_view text, std::string_view key, const std::string &baseDirectory)
{
    const std::vector<size_t> ends = valueEnds(text);
    if (ends.empty())
        return text.size();
    if (key == TerrainKey) // itself a path that may hold commas
        for (const size_t end : ends)
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
    constexpr size_t PrefixSize = 5;
    ConnectionString connection;
    for (const std::string_view kind : {"site", "link"})
        if (text.size() >= PrefixSize && text[PrefixSize - 1] == ':' &&
            std::equal(kind.begin(), kind.end(), text.begin(),
                       [](char a, char b) { return a == (b | 0x20); }))
            connection.kind = kind;
    if (connection.kind.empty())
        return std::nullopt;
    std::string_view rest = text.substr(PrefixSize);
    std::set<std::string_view> seen;
    // A file may be called "lods=1.csv": what names a file as it stands is a path.
    while (!exists(std::string(rest), baseDirectory)) {
        const std::string_view key = keyAt(rest);
        if (key.empty() || !seen.insert(key).second)
            break;
        rest.remove_prefix(key.size() + 1);
        // Behind "lods" only "dem_file" may follow: every comma there belongs to the path.
        size_t end = std::string_view::npos;
        for (size_t comma = rest.find(',');
             comma != std::string_view::npos && end == std::string_view::npos && key != TerrainKey;
             comma = rest.find(',', comma + 1)) {
            const std::string_view next = keyAt(rest.substr(comma + 1));
            if (next.empty() || seen.count(next) != 0)
                continue;
            const bool directlyBehind = rest.find(',') == comma;
            if (key != "lods" || (next == TerrainKey && directlyBehind))
                end = comma;
        }
        if (end == std::string_view::npos)
            end = lastValueEnd(rest, key, baseDirectory);
        connection.options.emplace_back(key, rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    connection.path = rest;
    return connection;
}

std::string composeConnection(const ConnectionString &connection)
{
    std::string text = connection.kind + ':';
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
        if (key == TerrainKey)
            resolve(value);
    return composeConnection(*connection);
}

} // namespace vlt::contract
