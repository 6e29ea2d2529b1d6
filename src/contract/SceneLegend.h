#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The legend of a scene, a named value of its root node: the scene readers set it, the wizard and
/// the command line draw it.
namespace vlt::contract::legend {

inline constexpr char Key[] = "vlt.legend"; ///< text of rows

// Kinds of rows, with their texts.
inline constexpr char Sector[] = "sector";         ///< numbers of transmitters, each a text
inline constexpr char Link[] = "link";             ///< all lines of sight
inline constexpr char Clear[] = "clear";           ///< number of links
inline constexpr char Marginal[] = "marginal";     ///< the same
inline constexpr char Obstructed[] = "obstructed"; ///< the same
inline constexpr char Unknown[] = "unknown";       ///< the same
inline constexpr char Fresnel[] = "fresnel";       ///< number of the zone, share in per cent
/// Start of a colour map, without a colour: Walls, Roofs or empty for both; the values' name and
/// unit; Gradient or Ranges.
inline constexpr char Map[] = "map";
inline constexpr char Stop[] = "stop";       ///< of the map before, ascending: value
inline constexpr char Field[] = "field";     ///< start of kinds, without a colour: name
inline constexpr char Value[] = "value";     ///< a kind of the field before: text
inline constexpr char Others[] = "others";   ///< all other kinds of the field before
inline constexpr char NoValue[] = "novalue"; ///< of the map or field before
inline constexpr char Image[] = "image";     ///< without a colour: height in metres, name

inline constexpr char Walls[] = "walls";
inline constexpr char Roofs[] = "roofs";
inline constexpr char Gradient[] = "gradient";
inline constexpr char Ranges[] = "ranges";

using Rgba = std::array<std::uint8_t, 4>;

struct Row
{
    std::string kind;
    Rgba color{};
    std::vector<std::string> texts; ///< UTF-8

    bool operator==(const Row &) const = default;
};

/// The text of rows: a line each, with tabs between its parts. Line feeds and tabs in texts become
/// blanks.
std::string textOf(const std::vector<Row> &rows);

/// The rows of a text; lines without a kind and a colour are left out.
std::vector<Row> rowsOf(std::string_view text);

} // namespace vlt::contract::legend
