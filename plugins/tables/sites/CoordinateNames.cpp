#include "plugins/tables/sites/CoordinateNames.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/roles/NameMatch.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;
using Family = CoordinateName::Family;

Family familyOf(Role role)
{
    switch (role) {
    case Role::Longitude:
    case Role::Latitude:
        return Family::Geographic;
    case Role::Easting:
    case Role::Northing:
        return Family::Projected;
    case Role::X:
    case Role::Y:
        return Family::Bare;
    default:
        return Family::None;
    }
}

Axis axisOf(Role role)
{
    return role == Role::Longitude || role == Role::Easting || role == Role::X ? Axis::X : Axis::Y;
}

/// Whether one of the words names a sector: its coordinates are not those of the site.
bool namesSector(const Words &words, const Vocabulary &vocabulary)
{
    return std::any_of(words.begin(), words.end(), [&](const std::string &word) {
        return word.size() > 1 && vocabulary.isSectorWord(word);
    });
}

/// The columns of one coordinate whose names differ by their last letter or sign alone: Lat D,
/// Lat M, Lat S. -1 for none.
struct SignedParts
{
    int degrees = -1;
    int minutes = -1;
    int seconds = -1;
};

/// The name of a column without a letter or sign at its end that may stand for a part.
struct SignedName
{
    Words stem;
    std::optional<CoordinatePart> part;
};

SignedName withoutSign(const Words &words, const Field &field, const Vocabulary &vocabulary)
{
    if (words.size() > 1) {
        if (const auto part = vocabulary.partOfSign(words.back()))
            return {Words(words.begin(), words.end() - 1), part};
    }
    constexpr std::string_view Brackets = " ()[]";
    std::string name = field.name;
    name.erase(name.find_last_not_of(Brackets) + 1);
    constexpr std::size_t MaxSignSize = 6; // bytes of two primes
    for (std::size_t size = std::min(MaxSignSize, name.size()); size > 0; --size) {
        const std::string sign = name.substr(name.size() - size);
        const bool isWord = sign.size() == 1 && std::isalnum(static_cast<unsigned char>(sign[0]));
        if (const auto part = vocabulary.partOfSign(sign); part && !isWord)
            return {words, part};
    }
    return {words, std::nullopt};
}

/// Whether all samples are numbers below a limit; degrees and minutes beside another part are
/// whole.
bool areNumbersBelow(double limit, const Field &field, bool areWhole)
{
    return !field.samples.empty() &&
           std::all_of(field.samples.begin(), field.samples.end(), [&](const std::string &text) {
               const auto number = parseEitherNumber(trimmed(text));
               return number && std::abs(*number) < limit &&
                      (!areWhole || std::floor(*number) == *number);
           });
}

bool areParts(const SignedParts &of, const std::vector<Field> &fields)
{
    constexpr double MinutesPerDegree = 60;
    if (of.degrees < 0 || of.minutes < 0)
        return false;
    const auto field = [&fields](int at) -> const Field & {
        return fields[static_cast<std::size_t>(at)];
    };
    constexpr double MaxDegrees = 181;
    return areNumbersBelow(MaxDegrees, field(of.degrees), true) &&
           areNumbersBelow(MinutesPerDegree, field(of.minutes), of.seconds >= 0) &&
           (of.seconds < 0 || areNumbersBelow(MinutesPerDegree, field(of.seconds), false));
}

/// Takes columns such as Lat D, Lat M and Lat S for the parts of one coordinate, if their values
/// can be.
void readSignedParts(std::vector<CoordinateName> &names, const FieldWords &words,
                     const std::vector<Field> &fields, const Vocabulary &vocabulary)
{
    std::map<Words, SignedParts> byStem;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!words[i])
            continue;
        const SignedName name = withoutSign(*words[i], fields[i], vocabulary);
        if (!name.part)
            continue;
        SignedParts &parts = byStem[name.stem];
        int &slot = *name.part == CoordinatePart::Degrees   ? parts.degrees
                    : *name.part == CoordinatePart::Minutes ? parts.minutes
                                                            : parts.seconds;
        slot = slot < 0 ? static_cast<int>(i) : slot;
    }
    for (const auto &[stem, parts] : byStem) {
        const CoordinateName name = readCoordinateName(stem, vocabulary);
        if (name.family == Family::None || name.family == Family::Projected ||
            !areParts(parts, fields))
            continue;
        for (const auto &[field, part] : {std::pair(parts.degrees, CoordinatePart::Degrees),
                                          std::pair(parts.minutes, CoordinatePart::Minutes),
                                          std::pair(parts.seconds, CoordinatePart::Seconds)}) {
            if (field < 0)
                continue;
            names[static_cast<std::size_t>(field)] = name;
            names[static_cast<std::size_t>(field)].part = part;
        }
    }
}

/// The part of a coordinate that the name of a column says, and nothing else: "Min".
CoordinatePart bareColumnPart(const std::optional<Words> &words, const Vocabulary &vocabulary)
{
    if (!words || words->empty())
        return CoordinatePart::Whole;
    // a number may make the name unique
    const bool isNumbered =
        words->size() == 2 && words->back().find_first_not_of("0123456789") == std::string::npos;
    const WordMeaning *meaning = vocabulary.find(words->front());
    return meaning && meaning->part && (words->size() == 1 || isNumbered) ? *meaning->part
                                                                          : CoordinatePart::Whole;
}

/// Gives degrees the columns on their right that are named as parts only: Lat Deg, Min, Sec.
void readPartsOnTheRight(std::vector<CoordinateName> &names, const FieldWords &words,
                         const Vocabulary &vocabulary)
{
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].family == Family::None || names[i].part != CoordinatePart::Degrees)
            continue;
        CoordinatePart next = CoordinatePart::Minutes;
        for (std::size_t at = i + 1; at < names.size() && names[at].family == Family::None; ++at) {
            if (bareColumnPart(words[at], vocabulary) != next)
                break;
            names[at] = names[i];
            names[at].part = next;
            if (next == CoordinatePart::Seconds)
                break;
            next = CoordinatePart::Seconds;
        }
    }
}

} // namespace

CoordinateName readCoordinateName(const std::vector<std::string> &words,
                                  const Vocabulary &vocabulary)
{
    CoordinateName best;
    for (const NameMatch &match : matchName(words, vocabulary)) {
        const Family family = familyOf(match.role);
        if (family == Family::None || match.strength <= best.strength ||
            (match.sector >= 0 && namesSector(words, vocabulary)))
            continue;
        best = {family, axisOf(match.role), match.part, match.strength, match.rest};
    }
    return best;
}

void readNeighbouringParts(std::vector<CoordinateName> &names, const FieldWords &words,
                           const std::vector<Field> &fields, const Vocabulary &vocabulary)
{
    readSignedParts(names, words, fields, vocabulary);
    readPartsOnTheRight(names, words, vocabulary);
}

bool areWholeNumbersBelow(double limit, const Field &field)
{
    return areNumbersBelow(limit, field, true);
}

} // namespace vlt::driver
