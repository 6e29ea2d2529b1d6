#pragma once

#include "contract/PositionCorrection.h"
#include "contract/TableKind.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The mapping of a table: what its user states about it, in a JSON file beside the table. The
/// wizard and the command line write it, they and the table driver read it.
namespace vlt::contract {

inline constexpr std::size_t MaxMappingBytes = 4 << 20;
inline constexpr std::int64_t MaxHeaderRow = 200;
inline constexpr std::size_t MaxHeaderRows = 5;

/// Columns by their names, in the order of the transmitters or of the parts of a coordinate
/// (degrees, minutes, seconds, hemisphere); an empty name for one that is missing. A single one is
/// that of the site, or of all transmitters. Empty if no column has the role.
using StatedColumns = std::vector<std::string>;

/// What is stated about a table. Everything that is absent is recognised.
struct ColumnMapping
{
    std::optional<TableKind> kind = {};
    std::string sheet = {};
    /// Numbers of the rows with the names of the columns, at most MaxHeaderRows from 1 to
    /// MaxHeaderRow, ascending; an empty list if the table has none. Its columns are then called
    /// "Column 1", "Column 2" ..., or as their values show.
    std::optional<std::vector<std::int64_t>> headerRows = {};
    bool swapsAxes = false;     ///< the columns of x hold y and the reverse
    std::string sourceSrs = {}; ///< of the coordinates: "EPSG:2154"
    /// Paths of the tables that complete this one, relative to its folder: the transmitters of
    /// sites, the sites at the ends of links.
    std::string sectors = {};
    std::string sites = {};
    std::map<std::string, StatedColumns> roles = {};  ///< by name: siteId, azimuth, xA
    std::vector<PositionCorrection> corrections = {}; ///< made one after the other

    bool operator==(const ColumnMapping &) const = default;
};

/// A mapping, or the reason why a text is none.
struct ReadMapping
{
    std::optional<ColumnMapping> mapping = {};
    std::string reason = {}; ///< a text of TableTexts.h that names the place; empty with a mapping
};

/// Reads the text of a mapping file. Names of roles are not checked.
ReadMapping readMapping(std::string_view text);

/// The text of a mapping file, with a line feed at its end.
std::string writeMapping(const ColumnMapping &mapping);

/// The mapping file beside a table: "sites.csv.columns.json" for "sites.csv".
std::string mappingFileOf(std::string_view tablePath);

} // namespace vlt::contract
