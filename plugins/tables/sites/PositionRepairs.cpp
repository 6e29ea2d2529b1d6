#include "plugins/tables/sites/PositionRepairs.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/GroupedNumber.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/sites/PositionCorrections.h"

namespace vlt::driver {

namespace {

using contract::TableTextId;

/// What stands for a coordinate that was guessed; empty for any other.
std::string guessed(const std::string &text, const std::string &hemisphere, CoordinateUnit unit,
                    Axis axis, LetterO letterO)
{
    if (unit == CoordinateUnit::Meters) {
        const auto number = parseEitherNumber(text) ? std::nullopt : parseGroupedNumber(text);
        return number ? numberText(*number) : std::string();
    }
    if (letterO == LetterO::Unknown || axis == Axis::Y)
        return {};
    const char *meaning = letterO == LetterO::West ? "W" : "E";
    const bool isGuessed =
        hemisphere.empty() ? !readAngle(text, axis, letterO).fault && readAngle(text, axis).fault
                           : readHemisphere(hemisphere, axis, LetterO::Unknown).fault.has_value();
    return isGuessed ? meaning : std::string();
}

/// Adds that a position was corrected.
void addCorrection(const TableProfile &table, const PointFields &point, CoordinateUnit unit,
                   int64_t row, const std::vector<const Cell *> &cells,
                   std::vector<RowProblem> &notes)
{
    double unused = 0;
    if (!point.corrections || !point.corrections->apply(row, point, cells, unused, unused))
        return;
    std::vector<RowProblem> known;
    const Position position = PositionReader(table, point, unit).read(row, cells, known);
    if (!position.found && !position.isOutside)
        return;
    const PositionTexts texts = textsOf(point, cells);
    const std::string before = texts.y.empty() ? texts.x : texts.x + " " + texts.y;
    notes.push_back({row, table.fields[static_cast<std::size_t>(point.xField())].name, false,
                     contract::formatted("MESS_TAB_CORRECTED",
                                         {quotation(before),
                                          numberText(position.x) + " " + numberText(position.y)})});
}

} // namespace

void addRepairs(const TableProfile &table, const PointFields &point, CoordinateUnit unit,
                int64_t row, const std::vector<const Cell *> &cells, std::vector<RowProblem> &notes)
{
    addCorrection(table, point, unit, row, cells, notes);
    if (point.pair >= 0)
        return;
    for (const auto &[fields, axis] : {std::pair(point.x, Axis::X), std::pair(point.y, Axis::Y)}) {
        const std::string text = fieldText(cells, fields.value);
        const std::string hemisphere = fieldText(cells, fields.hemisphere);
        if (text.empty())
            continue;
        const std::string meaning = guessed(text, hemisphere, unit, axis, point.letterO);
        const bool isLetter = !meaning.empty() && unit != CoordinateUnit::Meters;
        if (!meaning.empty())
            notes.push_back({row, table.fields[static_cast<std::size_t>(fields.value)].name, false,
                             contract::formatted(isLetter ? TableTextId("MESS_TAB_READ_O")
                                                          : TableTextId("MESS_TAB_READ_AS"),
                                                 {quotation(text), meaning})});
    }
}

} // namespace vlt::driver
