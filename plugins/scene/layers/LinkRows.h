#pragma once

#include "contract/ConnectionString.h"
#include "linkpath/PathProfiler.h"
#include "plugins/scene/reading/LayerFile.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Vec2d>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace vlt::scene {

/// Most links that a layer shows; further rows are left out.
inline constexpr std::size_t MaxLinks = 200000;

/// One end of a link as the table has it.
struct LinkRowEnd
{
    std::string site; ///< its name, UTF-8
    linkpath::LinkEnd end;
    osg::Vec2d place; ///< metres in the local frame
};

struct LinkRow
{
    std::array<LinkRowEnd, 2> ends; ///< A, B
    double frequencyMHz = 0;        ///< of end A, else of end B; 0: unknown
};

/// The links of a table both of whose ends have places.
struct LinkRows
{
    std::vector<LinkRow> rows;
    SceneFrame frame;
    OGRSpatialReference srs;  ///< of the ends; empty: unknown
    std::size_t unplaced = 0; ///< rows of which an end has no place
    bool isCut = false;       ///< the table holds more than MaxLinks
};

/// Reads all links of a table from the layer of their ends.
///
/// @param table  with the absolute path of a file
/// @throws BadLayer  the table cannot be opened, has no such layer, or none of its rows has places
LinkRows readLinkRows(const contract::ConnectionString &table, const LayerFile &layer);

} // namespace vlt::scene
