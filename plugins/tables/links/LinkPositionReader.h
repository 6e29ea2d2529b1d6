#pragma once

#include "plugins/tables/links/LinkLayout.h"
#include "plugins/tables/sites/PositionReader.h"

#include <geodesic.h>

#include <array>

namespace vlt::driver {

/// Conversion of offsets in metres to coordinates.
struct OffsetScale
{
    bool isOnEarth = false; ///< coordinates are longitudes and latitudes
    double unit = 1;        ///< metres or degrees per unit of the coordinates
    double semiMajorM = 0;  ///< semi-major axis of the ellipsoid
    double flattening = 0;
};

/// Reads the positions of both ends of a link and adds their offsets.
class LinkPositionReader
{
public:
    /// @param sites  at the ends of links that only name them; else null
    LinkPositionReader(const TableProfile &table, const LinkLayout &layout,
                       const OffsetScale &scale, const SiteDirectory *sites = nullptr);

    /// Positions of A and B in the file's system; `cells` and `problems` as in PositionReader.
    std::array<Position, 2> read(int64_t row, const std::vector<const Cell *> &cells,
                                 std::vector<RowProblem> &problems) const;

private:
    Position namedPosition(int64_t row, int field, const std::vector<const Cell *> &cells,
                           std::vector<RowProblem> &problems) const;
    double offsetM(int64_t row, const QuantityField &offset, const std::vector<const Cell *> &cells,
                   std::vector<RowProblem> &problems) const;
    void move(Position &position, double eastM, double northM) const;

    const TableProfile *m_table;
    const LinkLayout *m_layout;
    std::array<PositionReader, 2> m_readers;
    OffsetScale m_scale;
    const SiteDirectory *m_sites;
    geod_geodesic m_earth = {};
};

} // namespace vlt::driver
