#include "plugins/tables/sites/PositionCorrections.h"

#include "plugins/tables/sites/PositionReader.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vlt::driver {

namespace {

using contract::CorrectedRow;
using contract::PositionChange;
using contract::PositionCorrection;

std::string textOf(const CoordinateFields &fields, const std::vector<const Cell *> &cells)
{
    std::string text;
    for (const int field : {fields.value, fields.minutes, fields.seconds, fields.hemisphere}) {
        const std::string part = fieldText(cells, field);
        text += (text.empty() || part.empty() ? "" : " ") + part;
    }
    return text;
}

double scaled(double coordinate, double factor)
{
    // Division by 10 is exact where multiplication by 0.1 is not.
    return factor < 1 && factor > 0 ? coordinate / (1 / factor) : coordinate * factor;
}

} // namespace

PositionTexts textsOf(const PointFields &point, const std::vector<const Cell *> &cells)
{
    if (point.pair < 0)
        return {textOf(point.x, cells), textOf(point.y, cells)};
    return {fieldText(cells, point.pair), {}};
}

void change(double &x, double &y, const PositionCorrection &correction)
{
    switch (correction.change) {
    case PositionChange::Swap:
        std::swap(x, y);
        break;
    case PositionChange::NegateX:
        x = -x;
        break;
    case PositionChange::NegateY:
        y = -y;
        break;
    case PositionChange::Negate:
        x = -x;
        y = -y;
        break;
    case PositionChange::ScaleX:
        x = scaled(x, correction.factor);
        break;
    case PositionChange::ScaleY:
        y = scaled(y, correction.factor);
        break;
    case PositionChange::Scale:
        x = scaled(x, correction.factor);
        y = scaled(y, correction.factor);
        break;
    }
}

PositionCorrections::PositionCorrections(std::vector<PositionCorrection> stated)
    : m_stated(std::move(stated))
{
    for (PositionCorrection &correction : m_stated)
        std::stable_sort(correction.rows.begin(), correction.rows.end(),
                         [](const auto &a, const auto &b) { return a.row < b.row; });
}

bool PositionCorrections::apply(int64_t row, const PointFields &point,
                                const std::vector<const Cell *> &cells, double &x, double &y) const
{
    std::optional<PositionTexts> texts; // most rows do not need them
    const auto isSame = [&](const CorrectedRow &stated) {
        if (!texts)
            texts = textsOf(point, cells);
        return stated.x == texts->x && stated.y == texts->y;
    };
    bool isCorrected = false;
    for (const PositionCorrection &correction : m_stated) {
        const auto &rows = correction.rows;
        auto at = std::lower_bound(rows.begin(), rows.end(), row,
                                   [](const CorrectedRow &a, int64_t b) { return a.row < b; });
        while (at != rows.end() && at->row == row && !isSame(*at))
            ++at;
        if (!rows.empty() && (at == rows.end() || at->row != row))
            continue;
        change(x, y, correction);
        isCorrected = true;
    }
    return isCorrected;
}

} // namespace vlt::driver
