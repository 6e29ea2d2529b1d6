#include "sites/SitePlacer.h"

#include "sites/Angle.h"
#include "sites/CoordinatePair.h"
#include "tabletexts/TextPatterns.h"

#include <cmath>

namespace vlt::tables {

namespace {

using tabletexts::TextId;

constexpr double MostLongitude = 180;
constexpr double MostLatitude = 90;
constexpr size_t LongestQuotation = 60;

std::string textOf(const std::vector<const Cell *> &cells, int field)
{
    const Cell *cell = field >= 0 ? cells[static_cast<size_t>(field)] : nullptr;
    return cell ? std::string(trimmed(cellText(*cell))) : std::string();
}

/// A coordinate with the hemisphere from a column of its own; one with a sign has its own already,
/// which must not contradict.
std::string withHemisphere(std::string text, const std::string &hemisphere)
{
    const bool hasLetter = text.find_first_of("NSEWnsew") != std::string::npos;
    const bool southOrWest = std::string_view("SWsw").find(hemisphere[0]) != std::string_view::npos;
    if (!hasLetter && !text.empty() && !(text[0] == '-' && southOrWest))
        text += std::string(" ") + hemisphere[0];
    return text;
}

} // namespace

RowProblem SitePlacer::problem(int64_t row, int field, const std::string &value, TextId why) const
{
    const Field &of = m_table->fields[static_cast<size_t>(field)];
    std::string quoted = value;
    if (quoted.size() > LongestQuotation) {
        size_t cut = LongestQuotation;
        while (cut > 0 && (quoted[cut] & 0xC0) == 0x80) // not inside a character
            --cut;
        quoted = quoted.substr(0, cut) + "...";
    }
    return {row, of.name, true,
            value.empty() ? tabletexts::formatted("MESS_TAB_NO_COORDINATE")
                          : tabletexts::formatted(why, {quoted})};
}

bool SitePlacer::readAxis(int64_t row, const CoordinateFields &fields, Axis axis,
                          const std::vector<const Cell *> &cells, double &value,
                          std::vector<RowProblem> &problems) const
{
    const Cell *cell = cells[static_cast<size_t>(fields.value)];
    const std::string hemisphere =
        fields.hemisphere >= 0 && m_layout->unit != CoordinateUnit::Meters
            ? textOf(cells, fields.hemisphere)
            : std::string();
    if (cell && !fields.inParts() && hemisphere.empty() &&
        (cell->kind == Cell::Kind::Number || cell->kind == Cell::Kind::Text)) {
        std::optional<double> number = cell->number;
        if (!cell->text.empty())
            number = parseNumber(trimmed(cell->text),
                                 m_table->fields[static_cast<size_t>(fields.value)].mark);
        if (number) {
            value = *number;
            return true;
        }
    }
    if (!fields.inParts() && cell && m_layout->unit == CoordinateUnit::Meters) {
        const std::string text = textOf(cells, fields.value);
        const NumberShape shape = numberShape(text);
        const auto number = shape.isNumber ? parseNumber(text, shape.usesComma ? DecimalMark::Comma
                                                                               : DecimalMark::Point)
                                           : std::nullopt;
        if (number)
            value = *number;
        else
            problems.push_back(problem(row, fields.value, text, "MESS_TAB_NOT_A_NUMBER"));
        return number.has_value();
    }
    const std::string text = textOf(cells, fields.value);
    Angle angle;
    if (fields.inParts())
        angle = joinAngle(text, textOf(cells, fields.minutes), textOf(cells, fields.seconds),
                          hemisphere, axis);
    else
        angle = readAngle(hemisphere.empty() ? text : withHemisphere(text, hemisphere), axis);
    if (angle.fault)
        problems.push_back(problem(row, fields.value, text, *angle.fault));
    value = angle.degrees;
    return !angle.fault;
}

Position SitePlacer::place(int64_t row, const std::vector<const Cell *> &cells,
                           std::vector<RowProblem> &problems) const
{
    Position position;
    if (!m_layout->hasCoordinates())
        return position;
    if (m_layout->pair >= 0) {
        const std::string text = textOf(cells, m_layout->pair);
        const CoordinatePair pair = readCoordinatePair(text);
        if (pair.fault)
            problems.push_back(problem(row, m_layout->pair, text, *pair.fault));
        else
            position = {true, pair.x, pair.y};
    } else {
        const bool x = readAxis(row, m_layout->x, Axis::X, cells, position.x, problems);
        const bool y = x && readAxis(row, m_layout->y, Axis::Y, cells, position.y, problems);
        position.found = x && y;
    }
    if (!position.found)
        return position;
    const int xField = m_layout->pair >= 0 ? m_layout->pair : m_layout->x.value;
    const int yField = m_layout->pair >= 0 ? m_layout->pair : m_layout->y.value;
    std::optional<TextId> why;
    int field = xField;
    if (!std::isfinite(position.x) || !std::isfinite(position.y))
        why = TextId("MESS_TAB_NOT_FINITE");
    else if (position.x == 0 && position.y == 0)
        why = TextId("MESS_TAB_ZERO_ZERO");
    else if (m_layout->unit != CoordinateUnit::Meters && std::abs(position.x) > MostLongitude)
        why = TextId("MESS_TAB_LONGITUDE");
    else if (m_layout->unit != CoordinateUnit::Meters && std::abs(position.y) > MostLatitude) {
        why = TextId("MESS_TAB_LATITUDE");
        field = yField;
    }
    if (why) {
        problems.push_back(problem(row, field, textOf(cells, field), *why));
        position = {};
    }
    return position;
}

} // namespace vlt::tables
