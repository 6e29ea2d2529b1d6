#pragma once

#include "plugins/tables/sites/CoordinateColumns.h"
#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/table/Table.h"
#include "plugins/tables/values/Angle.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// A position in the file's coordinate system.
struct Position
{
    bool found = false;
    double x = 0;
    double y = 0;
    /// The position is not found, because x and y, which are numbers, do not lie on the globe.
    bool isOutside = false;
};

/// The antennas of a site stand within this distance, on the roofs of several buildings for
/// instance.
constexpr double MaxSiteExtentM = 300;

/// Approximate distance of two positions; only a projected system has metres.
double distanceM(const Position &a, const Position &b, CoordinateUnit unit);

/// Reads the position of each row. If a coordinate cannot be read, the row has no position and gets
/// a problem; it is never positioned at 0. Corrections that are stated are made.
class PositionReader
{
public:
    /// @param halfTurn  180 degrees in the unit of the file's coordinate system if that is
    ///                  geographic; else 0
    PositionReader(const TableProfile &table, const PointFields &fields, CoordinateUnit unit,
                   double halfTurn = 0)
        : m_table(&table)
        , m_fields(fields)
        , m_unit(unit)
        , m_halfTurn(halfTurn)
    {}

    /// @param cells     the cell of each field, null if it is empty
    /// @param problems  gets the reason if there is no position
    Position read(int64_t row, const std::vector<const Cell *> &cells,
                  std::vector<RowProblem> &problems) const;

    /// Whether all cells of the position are empty.
    bool isEmpty(const std::vector<const Cell *> &cells) const;

private:
    std::optional<contract::TableTextId> outsideGlobe(double value, Axis axis) const;
    bool readAxis(int64_t row, const CoordinateFields &fields, Axis axis,
                  const std::vector<const Cell *> &cells, double &value,
                  std::vector<RowProblem> &problems) const;
    bool useZone(int64_t row, const std::vector<const Cell *> &cells, Position &position,
                 std::vector<RowProblem> &problems) const;
    RowProblem problem(int64_t row, int field, const std::string &value,
                       contract::TableTextId why) const;

    const TableProfile *m_table;
    PointFields m_fields;
    CoordinateUnit m_unit;
    double m_halfTurn;
};

/// Trimmed text of the cell of a field; empty for an empty cell and for field -1.
std::string fieldText(const std::vector<const Cell *> &cells, int field);

} // namespace vlt::driver
