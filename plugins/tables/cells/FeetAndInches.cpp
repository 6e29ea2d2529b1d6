#include "plugins/tables/cells/FeetAndInches.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"

#include <algorithm>
#include <array>

namespace vlt::driver {

namespace {

constexpr double InchesPerFoot = 12;

/// The number at the start of a text, which is moved behind it and the unit that follows. Nothing
/// if there is no number, or another unit.
template<std::size_t Count>
std::optional<double> takeNumber(std::string_view &text,
                                 const std::array<std::string_view, Count> &units)
{
    const std::size_t size = std::min(text.find_first_not_of("0123456789."), text.size());
    const std::optional<double> number = parseNumber(text.substr(0, size));
    const std::string_view rest = trimmed(text.substr(size));
    const auto unit = std::find_if(units.begin(), units.end(),
                                   [rest](std::string_view of) { return rest.starts_with(of); });
    if (!number || unit == units.end())
        return std::nullopt;
    text = trimmed(rest.substr(unit->size()));
    return number;
}

} // namespace

std::optional<double> parseFeetAndInches(std::string_view text)
{
    static constexpr std::array<std::string_view, 5> Feet = {"feet", "ft", "\xE2\x80\xB2",
                                                             "\xE2\x80\x99", "'"};
    static constexpr std::array<std::string_view, 7> Inches = {
        "inches", "in", "\xE2\x80\xB3", "\xE2\x80\x9D", "\"", "''", "\xE2\x80\xB2\xE2\x80\xB2"};
    text = trimmed(text);
    const std::optional<double> feet = takeNumber(text, Feet);
    if (!feet)
        return std::nullopt;
    if (text.starts_with('-') || text.starts_with('.'))
        text = trimmed(text.substr(1));
    const std::optional<double> inches = takeNumber(text, Inches);
    if (!inches || *inches >= InchesPerFoot || !text.empty())
        return std::nullopt;
    return *feet + *inches / InchesPerFoot;
}

} // namespace vlt::driver
