#include "plugins/tables/values/CoordinatePair.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/table/HeaderWords.h"
#include "plugins/tables/values/Angle.h"

#include <cmath>

namespace vlt::driver {

namespace {

using contract::TableTextId;

constexpr double MaxLongitude = 180;
constexpr double MaxLatitude = 90;

CoordinatePair checked(const Angle &x, const Angle &y)
{
    if (x.fault || y.fault)
        return {0, 0, false, x.fault ? x.fault : y.fault};
    if (std::abs(x.degrees) > MaxLongitude || std::abs(y.degrees) > MaxLatitude)
        return {0, 0, false, TableTextId("MESS_TAB_OUTSIDE_GLOBE")};
    return {x.degrees, y.degrees, x.parts > 1 || y.parts > 1, std::nullopt};
}

} // namespace

CoordinatePair readCoordinatePair(std::string_view text)
{
    text = trimmed(text);
    bool longitudeFirst = false;
    char separator = text.find(';') != std::string_view::npos ? ';' : ',';
    const bool isPoint = text.size() > 6 && lowerCase(text.substr(0, 5)) == "point";
    if (isPoint) {
        const std::size_t open = text.find('(');
        const std::size_t close = text.rfind(')');
        if (open == std::string_view::npos || close == std::string_view::npos || close < open)
            return {0, 0, false, TableTextId("MESS_TAB_NOT_A_POSITION")};
        text = trimmed(text.substr(open + 1, close - open - 1));
        separator = ' ';
        longitudeFirst = true;
    }
    const std::size_t cut = text.find(separator);
    if (cut == std::string_view::npos || cut == 0)
        return {0, 0, false, TableTextId("MESS_TAB_NOT_A_POSITION")};
    const std::string_view first = text.substr(0, cut);
    const std::string_view second = text.substr(cut + 1);
    // "48,85" alone is a number with a decimal comma. A position has a point, a degree sign or a
    // letter as well.
    if (separator == ',' && (second.find(',') != std::string_view::npos ||
                             text.find_first_of(".NSEWnsew\xC2") == std::string_view::npos))
        return {0, 0, false, TableTextId("MESS_TAB_NOT_A_POSITION")};
    if (longitudeFirst)
        return checked(readAngle(first, Axis::X), readAngle(second, Axis::Y));
    const Angle latitude = readAngle(first, Axis::Y);
    if (latitude.fault && !readAngle(first, Axis::X).fault)
        return checked(readAngle(first, Axis::X), readAngle(second, Axis::Y));
    return checked(readAngle(second, Axis::X), latitude);
}

} // namespace vlt::driver
