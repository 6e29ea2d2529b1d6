#pragma once

#include "plugins/tables/links/LinkValues.h"
#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/TransmitterReader.h"

#include <array>
#include <optional>
#include <variant>

namespace vlt::driver {

/// A link as read from a row.
struct LinkRow
{
    LinkValues values;
    std::array<Position, 2> inFile; ///< ends in the file's system, offsets applied
    std::array<Position, 2> placed; ///< ends in the target system
    std::optional<double> lengthM;  ///< between the ends, on the earth's surface

    bool isPlaced() const { return placed[0].found && placed[1].found; }
};

/// A site as read from a row.
struct SiteRow
{
    Position inFile; ///< in the file's system
    Position placed; ///< in the target system
    std::vector<std::optional<TransmitterValues>>
        transmitters;               ///< of this row, if the layer needs them
    bool losesTransmitters = false; ///< all of this row have values that cannot be used
};

/// The meaning of a row.
using RowMeaning = std::variant<SiteRow, LinkRow>;

/// A row of a table. Valid until the walk that read it goes on.
struct TableRow
{
    int64_t number = 0; ///< in the file, from 1
    FieldCells cells;
    RowMeaning meaning;

    explicit TableRow(const TableProfile &table) : cells(table) {}

    const SiteRow &site() const { return std::get<SiteRow>(meaning); }
    const LinkRow &link() const { return std::get<LinkRow>(meaning); }
};

} // namespace vlt::driver
