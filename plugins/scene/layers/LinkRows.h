#pragma once

#include "contract/ConnectionString.h"
#include "linkpath/PathProfiler.h"
#include "plugins/scene/reading/LayerFile.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Vec2d>

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vlt::scene {

/// Maximum number of links that a layer shows; further rows are left out.
inline constexpr std::size_t MaxLinks = 200000;

/// An end of a link, with the values of the table.
struct LinkRowEnd
{
    std::string site; ///< name of the site, UTF-8
    linkpath::LinkEnd end;
    osg::Vec2d place; ///< metres in the local frame
};

struct LinkRow
{
    std::uint32_t row = 0;          ///< of the file, from 1
    std::string name;               ///< UTF-8; may be empty
    std::array<LinkRowEnd, 2> ends; ///< A, B
    double frequencyMHz = 0;        ///< of end A, else of end B; 0: unknown
};

/// The links of a table whose ends both have a position.
struct LinkRows
{
    std::vector<LinkRow> rows;
    SceneFrame frame;
    OGRSpatialReference srs;  ///< system of the ends; empty: unknown
    std::size_t unplaced = 0; ///< rows in which an end has no position
    bool isCut = false;       ///< the table has more links than MaxLinks
};

/// Reads all links of a table from the layer of their ends.
///
/// @param table      with the absolute path of a file
/// @throws BadLayer  the table cannot be opened, has no such layer or no row with positions
LinkRows readLinkRows(const contract::ConnectionString &table, const LayerFile &layer);

} // namespace vlt::scene
