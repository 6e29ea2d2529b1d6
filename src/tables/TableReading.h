#pragma once

#include "contract/TableKind.h"
#include "geodata/SrsBounds.h"

#include <QString>

#include <optional>

namespace vlt::tables {

/// Options that the user sets for the read of a table; for an empty one the reader decides by
/// itself.
struct TableReading
{
    QString sheet;          ///< of a workbook
    QString encoding;       ///< of a text file, such as "CP1250"; without a comma
    QString delimiter;      ///< of a text file: "comma", "semicolon", "tab" or "bar"
    bool swapsAxes = false; ///< the columns of x and y are exchanged
    /// File with the transmitters of a table of sites; like `endSites` relative to the folder of
    /// the table, or absolute.
    QString sectors = {};
    QString endSites = {}; ///< file with the sites at the ends of a table of links
    /// Mapping file, relative to the folder of the table or absolute; "none" if that beside the
    /// table is not used.
    QString columns = {};

    /// The options as text for connections and queries: "sheet=Sites,encoding=CP1250", without a
    /// comma at the end; empty if no option is set.
    QString parameters() const;

    /// The connection that reads a table with these options.
    ///
    /// @param systems  options of the coordinate systems, which come first, with a comma at the end
    QString connection(contract::TableKind kind, const QString &path,
                       const QString &systems = {}) const;
};

/// A connection with the area of the project's terrain, so that the reader reports positions
/// outside it. Unchanged if the area is not known.
QString withTerrain(const QString &connection, const std::optional<geodata::SrsBounds> &area);

} // namespace vlt::tables
