#include "plugins/tables/roles/BracketUnit.h"

#include "plugins/tables/roles/NameWords.h"

#include <numeric>
#include <optional>
#include <string>

namespace vlt::driver {

namespace {

/// The kind of unit that values of a role have; null for a role without.
std::optional<double> WordMeaning::*unitOf(Role role)
{
    switch (role) {
    case Role::Azimuth:
    case Role::MechanicalTilt:
    case Role::ElectricalTilt:
    case Role::Tilt:
    case Role::BeamWidth:
        return &WordMeaning::degrees;
    case Role::GroundHeight:
    case Role::AntennaHeight:
    case Role::SeaLevelHeight:
        return &WordMeaning::metres;
    case Role::Frequency:
    case Role::Band:
        return &WordMeaning::megahertz;
    default:
        return nullptr;
    }
}

bool isOtherUnit(std::string_view text, std::optional<double> WordMeaning::*unit,
                 const Vocabulary &vocabulary)
{
    if (text == "M" || text == "T") // magnetic, true
        return false;
    const std::vector<std::string> words = nameWords(text);
    const WordMeaning *meaning =
        vocabulary.find(std::accumulate(words.begin(), words.end(), std::string()));
    return meaning && (meaning->isUnit() || meaning->isOtherUnit) && !(meaning->*unit);
}

} // namespace

bool suitsUnitInBrackets(Role role, std::string_view name, const Vocabulary &vocabulary)
{
    std::optional<double> WordMeaning::*const unit = unitOf(role);
    std::size_t at = unit ? name.find_first_of("([") : std::string_view::npos;
    while (at != std::string_view::npos) {
        const std::size_t end = name.find_first_of(")]", at);
        if (end == std::string_view::npos)
            return true;
        if (isOtherUnit(name.substr(at + 1, end - at - 1), unit, vocabulary))
            return false;
        at = name.find_first_of("([", end);
    }
    return true;
}

} // namespace vlt::driver
