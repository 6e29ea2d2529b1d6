#include "plugins/tables/sites/PositionReader.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/GroupedNumber.h"
#include "plugins/tables/sites/PositionCorrections.h"
#include "plugins/tables/values/Angle.h"
#include "plugins/tables/values/CoordinatePair.h"

#include <cmath>
#include <tuple>
#include <utility>

namespace vlt::driver {

namespace {

using contract::TableTextId;

constexpr double HalfTurnDegrees = 180;

/// Appends the hemisphere of a separate column to a coordinate that has no letter. A minus sign
/// together with S or W means the same twice, so nothing is appended; with N or E it is a
/// contradiction, which readAngle() reports.
std::string withHemisphere(std::string text, const std::string &hemisphere, Axis axis,
                           LetterO letterO)
{
    const bool hasLetter = text.find_first_of("NSEWOnsewo") != std::string::npos;
    const Hemisphere of = readHemisphere(hemisphere, axis, letterO);
    if (!hasLetter && !text.empty() && !(text[0] == '-' && of.sign < 0))
        text += " " + hemisphere.substr(0, of.size);
    return text;
}

} // namespace

std::string fieldText(const std::vector<const Cell *> &cells, int field)
{
    const Cell *cell = field >= 0 ? cells[static_cast<std::size_t>(field)] : nullptr;
    return cell ? std::string(trimmed(cellText(*cell))) : std::string();
}

double distanceM(const Position &a, const Position &b, CoordinateUnit unit)
{
    constexpr double MetresPerDegree = 111320;
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    if (unit == CoordinateUnit::Meters)
        return std::hypot(dx, dy);
    return MetresPerDegree * std::hypot(dx * std::cos(a.y * M_PI / HalfTurnDegrees), dy);
}

RowProblem PositionReader::problem(int64_t row, int field, const std::string &value,
                                   TableTextId why) const
{
    const Field &of = m_table->fields[static_cast<std::size_t>(field)];
    return {row, of.name, true,
            value.empty() ? contract::formatted("MESS_TAB_NO_COORDINATE")
                          : contract::formatted(why, {quotation(value)})};
}

bool PositionReader::readAxis(int64_t row, const CoordinateFields &fields, Axis axis,
                              const std::vector<const Cell *> &cells, double &value,
                              std::vector<RowProblem> &problems) const
{
    const Cell *cell = cells[static_cast<std::size_t>(fields.value)];
    const bool isAngle = m_unit != CoordinateUnit::Meters && !m_fields.utm;
    std::string hemisphere =
        fields.hemisphere >= 0 && isAngle ? fieldText(cells, fields.hemisphere) : std::string();
    // Nearly all coordinates are plain numbers; this avoids making a text of them.
    if (cell && !fields.inParts() && fields.style == AngleStyle::Plain && hemisphere.empty() &&
        (cell->kind == Cell::Kind::Number || cell->kind == Cell::Kind::Text)) {
        std::optional<double> number = cell->number;
        if (!cell->text.empty())
            number = parseNumber(trimmed(cell->text),
                                 m_table->fields[static_cast<std::size_t>(fields.value)].mark);
        if (number) {
            value = fields.isNegative && isAngle ? -std::abs(*number) : *number;
            return true;
        }
    }
    if (fields.isNegative && hemisphere.empty())
        hemisphere = axis == Axis::X ? "W" : "S";
    if (!fields.inParts() && cell && !isAngle) {
        // A cell may have another decimal mark than its column.
        const std::string text = fieldText(cells, fields.value);
        std::optional<double> number = parseEitherNumber(text);
        if (!number)
            number = parseGroupedNumber(text);
        if (number)
            value = *number;
        else
            problems.push_back(problem(row, fields.value, text, "MESS_TAB_NOT_A_NUMBER"));
        return number.has_value();
    }
    const std::string text = fieldText(cells, fields.value);
    Angle angle;
    if (fields.inParts())
        angle = joinAngle(text, fieldText(cells, fields.minutes), fieldText(cells, fields.seconds),
                          hemisphere, axis, m_fields.letterO);
    else
        angle = readAngle(
            hemisphere.empty() ? text : withHemisphere(text, hemisphere, axis, m_fields.letterO),
            axis, m_fields.letterO, fields.style);
    if (angle.fault)
        problems.push_back(problem(row, fields.value, text, *angle.fault));
    value = angle.degrees;
    return !angle.fault;
}

std::optional<TableTextId> PositionReader::outsideGlobe(double value, Axis axis) const
{
    constexpr double Precision = 1e-9; // relative; the factors between angular units are rounded
    double halfTurn = m_halfTurn;
    if (halfTurn == 0 && m_unit != CoordinateUnit::Meters)
        halfTurn = HalfTurnDegrees;
    const double maximum = (axis == Axis::X ? halfTurn : halfTurn / 2) * (1 + Precision);
    if (halfTurn == 0 || std::abs(value) <= maximum)
        return std::nullopt;
    // The texts for longitudes and latitudes name limits in degrees; other units have a general
    // text.
    if (std::abs(halfTurn / HalfTurnDegrees - 1) > Precision)
        return TableTextId("MESS_TAB_OUTSIDE_GLOBE");
    return axis == Axis::X ? TableTextId("MESS_TAB_LONGITUDE") : TableTextId("MESS_TAB_LATITUDE");
}

bool PositionReader::isEmpty(const std::vector<const Cell *> &cells) const
{
    for (std::size_t field = 0; field < cells.size(); ++field) {
        if (m_fields.holdsCoordinate(static_cast<int>(field)) &&
            !fieldText(cells, static_cast<int>(field)).empty())
            return false;
    }
    return true;
}

/// Places a position by the zone of its row, if not all rows have the same one.
bool PositionReader::useZone(int64_t row, const std::vector<const Cell *> &cells,
                             Position &position, std::vector<RowProblem> &problems) const
{
    const UtmColumns &utm = *m_fields.utm;
    const int field = m_fields.pair >= 0 ? m_fields.pair : utm.zone;
    const std::string text = fieldText(cells, field);
    const std::optional<UtmGrid> grid = gridOfRow(m_fields, cells);
    if (utm.only && (text.empty() || grid == utm.only))
        return true;
    if (!grid || utm.only) {
        problems.push_back(problem(row, field, text, "MESS_TAB_NO_ZONE"));
        return false;
    }
    const auto degrees = isInUtmRange(position.x, position.y)
                             ? degreesOfUtm(*grid, position.x, position.y)
                             : std::nullopt;
    if (!degrees) {
        problems.push_back(problem(row, m_fields.xField(), fieldText(cells, m_fields.xField()),
                                   "MESS_TAB_NOT_UTM"));
        return false;
    }
    std::tie(position.x, position.y) = *degrees;
    return true;
}

Position PositionReader::read(int64_t row, const std::vector<const Cell *> &cells,
                              std::vector<RowProblem> &problems) const
{
    Position position;
    if (!m_fields.found())
        return position;
    if (m_fields.utm && m_fields.pair >= 0) {
        const std::string text = fieldText(cells, m_fields.pair);
        if (const auto found = readUtmPosition(text))
            position = {true, found->eastingM, found->northingM};
        else
            problems.push_back(problem(row, m_fields.pair, text, "MESS_TAB_NOT_UTM"));
    } else if (m_fields.pair >= 0) {
        const std::string text = fieldText(cells, m_fields.pair);
        const CoordinatePair pair = readCoordinatePair(text, m_fields.pairOrder, m_fields.letterO);
        if (pair.fault)
            problems.push_back(problem(row, m_fields.pair, text, *pair.fault));
        else
            position = {true, pair.x, pair.y};
        if (m_fields.isPairSwapped)
            std::swap(position.x, position.y);
    } else {
        const bool x = readAxis(row, m_fields.x, Axis::X, cells, position.x, problems);
        const bool y = x && readAxis(row, m_fields.y, Axis::Y, cells, position.y, problems);
        position.found = x && y;
    }
    if (position.found && m_fields.utm)
        position.found = useZone(row, cells, position, problems);
    if (!position.found)
        return position;
    position.x *= m_fields.scale.factor;
    position.y *= m_fields.scale.factor;
    if (m_fields.corrections)
        m_fields.corrections->apply(row, m_fields, cells, position.x, position.y);
    std::optional<TableTextId> why;
    bool isOutside = false;
    int field = m_fields.xField();
    if (!std::isfinite(position.x) || !std::isfinite(position.y))
        why = TableTextId("MESS_TAB_NOT_FINITE");
    else if (position.x == 0 && position.y == 0) // exports write it for an unknown position
        why = TableTextId("MESS_TAB_ZERO_ZERO");
    else {
        why = outsideGlobe(position.x, Axis::X);
        if (!why) {
            why = outsideGlobe(position.y, Axis::Y);
            field = m_fields.yField();
        }
        isOutside = why.has_value();
    }
    if (why) {
        problems.push_back(problem(row, field, fieldText(cells, field), *why));
        position = isOutside ? Position{false, position.x, position.y, true} : Position();
    }
    return position;
}

} // namespace vlt::driver
