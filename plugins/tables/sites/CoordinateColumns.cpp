#include "plugins/tables/sites/CoordinateColumns.h"

#include "plugins/tables/cells/GroupedNumber.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/CoordinateNames.h"
#include "plugins/tables/sites/CoordinateScale.h"
#include "plugins/tables/values/Angle.h"
#include "plugins/tables/values/CoordinatePair.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

constexpr double MaxDegrees = 360;

using Family = CoordinateName::Family;

/// A column with the hemisphere of a coordinate needs no word for the coordinate: "N/S", "EW".
std::optional<Axis> axisOfHemispheres(const Words &words)
{
    std::string joined;
    for (const std::string &word : words)
        joined += word;
    return joined == "ns"   ? std::optional(Axis::Y)
           : joined == "ew" ? std::optional(Axis::X)
                            : std::nullopt;
}

/// What the samples of a column are as coordinates of an axis.
struct SampledUnit
{
    std::size_t readable = 0;
    std::size_t inParts = 0;
    std::size_t large = 0;   ///< too large for an angle
    std::size_t outside = 0; ///< outside the range of the axis
    bool isConstant = true;

    CoordinateUnit unit() const
    {
        if (inParts * 2 > readable)
            return CoordinateUnit::Dms;
        return large * 2 > readable ? CoordinateUnit::Meters : CoordinateUnit::Degrees;
    }
};

SampledUnit unitOfSamples(const Field &field, Axis axis)
{
    SampledUnit sampled;
    const double limit = axis == Axis::X ? MaxDegrees / 2 : MaxDegrees / 4;
    for (const std::string &text : field.samples) {
        const std::string_view value = trimmed(text);
        sampled.isConstant = sampled.isConstant && text == field.samples.front();
        std::optional<double> number = parseEitherNumber(value);
        if (!number) // always beyond the degrees: "652 000,5" would also be degrees and minutes
            number = parseGroupedNumber(value);
        if (number) {
            ++sampled.readable;
            sampled.large += std::abs(*number) > MaxDegrees ? 1 : 0;
            sampled.outside += std::abs(*number) > limit ? 1 : 0;
        } else if (const Angle angle = readAngle(value, axis, LetterO::West); !angle.fault) {
            ++sampled.readable;
            sampled.inParts += angle.parts > 1 ? 1 : 0;
        }
    }
    return sampled;
}

/// Whether all samples are hemispheres of an axis: letters, or words that start with them.
bool holdsHemispheres(const Field &field, Axis axis)
{
    return !field.samples.empty() &&
           std::all_of(field.samples.begin(), field.samples.end(), [&](const std::string &text) {
               return !readHemisphere(text, axis, LetterO::West).fault;
           });
}

/// Whether a name is a letter other than X and Y; a number may make it unique.
bool isBareLetter(const Words &words)
{
    const std::string letter = words.empty() ? std::string() : words.front();
    const bool isNumbered =
        words.size() == 2 && words[1].find_first_not_of("0123456789") == std::string::npos;
    return letter.size() == 1 && letter != "x" && letter != "y" &&
           (words.size() == 1 || isNumbered);
}

std::vector<CoordinateName> readNames(const FieldWords &words, const std::vector<Field> &fields,
                                      const Vocabulary &vocabulary)
{
    std::vector<CoordinateName> names(words.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!words[i])
            continue;
        if (const std::optional<Axis> axis = axisOfHemispheres(*words[i]))
            names[i] = {Family::Bare, *axis, CoordinatePart::Hemisphere, 1, {}};
        else
            names[i] = readCoordinateName(*words[i], vocabulary);
        // a bare letter but X and Y, such as E, is a coordinate only if its values are in metres
        if (isBareLetter(*words[i]) &&
            unitOfSamples(fields[i], names[i].axis).unit() != CoordinateUnit::Meters)
            names[i].family = Family::None;
        // "ns1:longitude" is no column of hemispheres
        if (names[i].part == CoordinatePart::Hemisphere &&
            !holdsHemispheres(fields[i], names[i].axis))
            names[i].part = CoordinatePart::Whole;
    }
    readNeighbouringParts(names, words, fields, vocabulary);
    return names;
}

/// A column that may hold a coordinate.
struct CoordinateColumn
{
    std::size_t field = 0;
    const CoordinateName *name = nullptr;
    SampledUnit sampled;
    bool isReadable = true;
    std::size_t samples = 0;
};

/// The columns that may hold the coordinates of an axis, those with the strongest names.
std::vector<CoordinateColumn> columnsOf(Axis axis, const std::vector<CoordinateName> &names,
                                        const std::vector<Field> &fields)
{
    constexpr std::size_t MaxColumns = 24; // bounds the pairs that are compared
    std::vector<CoordinateColumn> columns;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const CoordinateName &name = names[i];
        if (name.family != Family::None && name.axis == axis &&
            (name.part == CoordinatePart::Whole || name.part == CoordinatePart::Degrees))
            columns.push_back({i, &name, {}, true, fields[i].samples.size()});
    }
    if (columns.size() > MaxColumns) {
        std::stable_sort(columns.begin(), columns.end(), [](const auto &a, const auto &b) {
            return a.name->strength > b.name->strength;
        });
        columns.resize(MaxColumns);
    }
    for (CoordinateColumn &column : columns) {
        column.sampled = unitOfSamples(fields[column.field], axis);
        column.isReadable = column.sampled.readable * 2 >= column.samples;
    }
    return columns;
}

/// How well two columns are a position: the more, the better.
int pointsOf(const CoordinateColumn &x, const CoordinateColumn &y)
{
    constexpr int PointsOfSameRest = 80; ///< "Site X" goes with "Site Y"
    constexpr int PointsOfSameFamily = 60;
    constexpr int PointsOfDoubt = -150;
    constexpr std::size_t MinConstant = 4; ///< the same value in so many rows is no position
    int points = x.name->strength + y.name->strength;
    points += x.name->rest == y.name->rest ? PointsOfSameRest : 0;
    points += x.name->family == y.name->family ? PointsOfSameFamily : 0;
    if (!x.isReadable || !y.isReadable)
        points += PointsOfDoubt;
    const auto isMostlyOutside = [](const SampledUnit &of) {
        return of.unit() == CoordinateUnit::Degrees && of.outside * 2 > of.readable;
    };
    if (isMostlyOutside(x.sampled) || isMostlyOutside(y.sampled))
        points += PointsOfDoubt;
    if (x.sampled.isConstant && y.sampled.isConstant && x.samples >= MinConstant)
        points += PointsOfDoubt;
    return points;
}

/// The two fields that are a position best, the first ones among equals; -1 and -1 if there are
/// none.
std::pair<int, int> bestPosition(const std::vector<CoordinateName> &names,
                                 const std::vector<Field> &fields)
{
    const std::vector<CoordinateColumn> columnsX = columnsOf(Axis::X, names, fields);
    const std::vector<CoordinateColumn> columnsY = columnsOf(Axis::Y, names, fields);
    std::pair<int, int> best{-1, -1};
    int most = 0;
    for (const CoordinateColumn &x : columnsX) {
        for (const CoordinateColumn &y : columnsY) {
            const int points = pointsOf(x, y);
            if (best.first >= 0 && points <= most)
                continue;
            best = {static_cast<int>(x.field), static_cast<int>(y.field)};
            most = points;
        }
    }
    return best;
}

/// Lets the first of the stated fields, and no other one, be the coordinate of an axis.
///
/// @param stated  null if nothing is stated
void stateAxis(std::vector<CoordinateName> &names, Axis axis, const std::vector<int> *stated)
{
    if (!stated)
        return;
    for (CoordinateName &name : names) {
        if (name.axis == axis)
            name.family = Family::None;
    }
    if (!stated->empty() && stated->front() >= 0)
        names[static_cast<std::size_t>(stated->front())] = {
            Family::Bare, axis, CoordinatePart::Whole, 1, {}};
}

CoordinateFields coordinateFields(const std::vector<CoordinateName> &names,
                                  const std::vector<Field> &table, int value,
                                  const std::vector<int> *stated)
{
    CoordinateFields fields;
    fields.value = value;
    if (stated) {
        const auto part = [stated](std::size_t at) {
            return at < stated->size() ? (*stated)[at] : -1;
        };
        return {value, part(1), part(2), part(3)};
    }
    const CoordinateName &degrees = names[static_cast<std::size_t>(value)];
    const bool inParts = degrees.part == CoordinatePart::Degrees;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].family == Family::None || names[i].axis != degrees.axis)
            continue;
        if (!inParts && (names[i].part != CoordinatePart::Hemisphere ||
                         !holdsHemispheres(table[i], degrees.axis)))
            continue;
        int *slot = names[i].part == CoordinatePart::Minutes      ? &fields.minutes
                    : names[i].part == CoordinatePart::Seconds    ? &fields.seconds
                    : names[i].part == CoordinatePart::Hemisphere ? &fields.hemisphere
                                                                  : nullptr;
        if (slot && *slot < 0)
            *slot = static_cast<int>(i);
    }
    return fields;
}

/// Whether the name of a coordinate says west or south. A word in the names of both coordinates
/// says something else: "West tower longitude" beside "West tower latitude".
bool saysNegative(const Words &name, const Words &nameOfOther, Axis axis,
                  const Vocabulary &vocabulary)
{
    const Direction negative = axis == Axis::X ? Direction::West : Direction::South;
    return std::any_of(name.begin(), name.end(), [&](const std::string &word) {
        return vocabulary.hemispheres().isInNames(negative, word) &&
               std::find(nameOfOther.begin(), nameOfOther.end(), word) == nameOfOther.end();
    });
}

/// Whether the name of a column says that its numbers are degrees, minutes and seconds, and its
/// numbers can be.
bool holdsPackedAngles(const Words &name, const Field &field, Axis axis,
                       const Vocabulary &vocabulary)
{
    const bool isNamed = std::any_of(name.begin(), name.end(), [&](const std::string &word) {
        const WordMeaning *meaning = vocabulary.find(word);
        return meaning && meaning->isSexagesimal;
    });
    if (!isNamed || field.samples.empty())
        return false;
    const double limit = axis == Axis::X ? MaxDegrees / 2 : MaxDegrees / 4;
    std::size_t good = 0;
    std::size_t large = 0;
    for (const std::string &text : field.samples) {
        const Angle angle = readAngle(text, axis, LetterO::West, AngleStyle::Packed);
        good += !angle.fault && std::abs(angle.degrees) <= limit ? 1 : 0;
        large += std::abs(parseEitherNumber(trimmed(text)).value_or(0)) > MaxDegrees ? 1 : 0;
    }
    return large * 2 > field.samples.size() && good * 10 >= field.samples.size() * 8;
}

/// A field with both coordinates, for tables without separate columns.
int findPair(const FieldWords &words, const std::vector<Field> &fields, LetterO otherwise)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!words[i])
            continue;
        const std::vector<std::string> &samples = fields[i].samples;
        const PairOrder order = findPairOrder(samples, fields[i].name);
        const LetterO letterO = meaningOfO(samples, otherwise);
        std::size_t good = 0;
        for (const std::string &text : samples)
            good += readCoordinatePair(text, order, letterO).fault ? 0 : 1;
        if ((good > 0 && good * 10 >= samples.size() * 8) || holdUtmPositions(samples))
            return static_cast<int>(i);
    }
    return -1;
}

/// The meaning of O in the language of column names.
LetterO letterOOf(const FieldWords &words, const Vocabulary &vocabulary)
{
    std::vector<Words> names;
    for (const auto &ofField : words) {
        if (ofField)
            names.push_back(*ofField);
    }
    const int sign = vocabulary.signOfO(names);
    return sign < 0 ? LetterO::West : sign > 0 ? LetterO::East : LetterO::Unknown;
}

bool holdsWord(const Field &field, const Vocabulary &vocabulary,
               const std::function<bool(const WordMeaning &)> &isWanted)
{
    const Words words = separatedWords(nameWithUnit(field), vocabulary);
    return std::any_of(words.begin(), words.end(), [&](const std::string &word) {
        const WordMeaning *meaning = vocabulary.find(word);
        return meaning && isWanted(*meaning);
    });
}

bool statesMeters(const Field &field, const Vocabulary &vocabulary)
{
    return holdsWord(field, vocabulary, [](const WordMeaning &of) { return of.metres == 1; });
}

bool saysMeters(const Field &field, const Vocabulary &vocabulary)
{
    return holdsWord(field, vocabulary, [](const WordMeaning &of) {
        return of.metres == 1 || of.roles[std::size_t(Role::Easting)] ||
               of.roles[std::size_t(Role::Northing)];
    });
}

} // namespace

std::vector<std::pair<int, Role>> PointFields::roles() const
{
    std::vector<std::pair<int, Role>> roles;
    for (const auto &[of, role] : {std::pair(x, Role::X), std::pair(y, Role::Y)}) {
        for (const int field : {of.value, of.minutes, of.seconds, of.hemisphere})
            roles.emplace_back(field, role);
    }
    roles.emplace_back(pair, Role::Pair);
    roles.emplace_back(utm ? utm->zone : -1, Role::UtmZone);
    std::erase_if(roles, [](const auto &of) { return of.first < 0; });
    return roles;
}

PointFields findPoint(const FieldWords &words, const std::vector<Field> &fields,
                      const Vocabulary &vocabulary, const StatedRoles &stated)
{
    PointFields point;
    const LetterO otherwise = letterOOf(words, vocabulary);
    FieldWords open = words; // a field with a stated role has no other one
    for (const int field : stated.fields)
        open[static_cast<std::size_t>(field)].reset();
    std::vector<CoordinateName> names = readNames(open, fields, vocabulary);
    stateAxis(names, Axis::X, stated.find("x"));
    stateAxis(names, Axis::Y, stated.find("y"));
    const std::vector<int> *ofPair = stated.find("pair");
    const bool isPair = ofPair && !ofPair->empty();
    const auto [x, y] = isPair ? std::pair(-1, -1) : bestPosition(names, fields);
    if (x >= 0) {
        point.x = coordinateFields(names, fields, x, stated.find("x"));
        point.y = coordinateFields(names, fields, y, stated.find("y"));
        const Words nameOfX = words[static_cast<std::size_t>(x)].value_or(Words());
        const Words nameOfY = words[static_cast<std::size_t>(y)].value_or(Words());
        point.x.isNegative = saysNegative(nameOfX, nameOfY, Axis::X, vocabulary);
        point.y.isNegative = saysNegative(nameOfY, nameOfX, Axis::Y, vocabulary);
        if (holdsPackedAngles(nameOfX, fields[static_cast<std::size_t>(x)], Axis::X, vocabulary) &&
            holdsPackedAngles(nameOfY, fields[static_cast<std::size_t>(y)], Axis::Y, vocabulary))
            point.x.style = point.y.style = AngleStyle::Packed;
    } else
        point.pair = isPair ? ofPair->front() : ofPair ? -1 : findPair(open, fields, otherwise);
    if (point.pair >= 0) {
        const Field &pair = fields[static_cast<std::size_t>(point.pair)];
        point.pairOrder = findPairOrder(pair.samples, pair.name);
    }
    point.letterO = findLetterO(point, fields, otherwise);
    point.scale = findScale(point, fields, vocabulary);
    point.utm = findUtmColumns(point, open, fields, vocabulary, stated);
    return point;
}

LetterO findLetterO(const PointFields &point, const std::vector<Field> &fields, LetterO otherwise)
{
    std::vector<std::string> texts;
    for (const int field : {point.x.value, point.x.hemisphere, point.pair}) {
        if (field < 0)
            continue;
        const std::vector<std::string> &samples = fields[static_cast<std::size_t>(field)].samples;
        texts.insert(texts.end(), samples.begin(), samples.end());
    }
    return meaningOfO(texts, otherwise);
}

bool holdsPositions(const PointFields &point, const std::vector<Field> &fields)
{
    const auto holds = [&fields](const CoordinateFields &of, Axis axis) {
        const Field &field = fields[static_cast<std::size_t>(of.value)];
        const SampledUnit sampled = unitOfSamples(field, axis);
        return sampled.readable > 0 && sampled.readable * 2 >= field.samples.size();
    };
    return point.pair >= 0 || (point.found() && holds(point.x, Axis::X) && holds(point.y, Axis::Y));
}

bool areWholeDegrees(const PointFields &point, const std::vector<Field> &fields)
{
    constexpr std::size_t MinSamples = 4;
    const auto areWhole = [&fields](const CoordinateFields &of) {
        const Field &field = fields[static_cast<std::size_t>(of.value)];
        return field.samples.size() >= MinSamples && areWholeNumbersBelow(MaxDegrees / 2, field);
    };
    return point.pair < 0 && point.found() && !point.x.inParts() && !point.y.inParts() &&
           areWhole(point.x) && areWhole(point.y);
}

CoordinateUnit findUnit(const PointFields &point, const std::vector<Field> &fields,
                        const Vocabulary &vocabulary)
{
    if (point.utm)
        return point.utm->only ? CoordinateUnit::Meters : CoordinateUnit::Degrees;
    if (point.pair >= 0) {
        const std::vector<std::string> &samples =
            fields[static_cast<std::size_t>(point.pair)].samples;
        const bool dms = std::any_of(samples.begin(), samples.end(), [&](const std::string &text) {
            return readCoordinatePair(text, point.pairOrder, point.letterO).inParts;
        });
        return dms ? CoordinateUnit::Dms : CoordinateUnit::Degrees;
    }
    if (!point.found())
        return CoordinateUnit::Degrees;
    if (point.x.inParts() || point.y.inParts() || point.x.style == AngleStyle::Packed)
        return CoordinateUnit::Dms;
    if (point.scale.factor != 1)
        return point.scale.givesDegrees ? CoordinateUnit::Degrees : CoordinateUnit::Meters;
    const Field &x = fields[static_cast<std::size_t>(point.x.value)];
    const Field &y = fields[static_cast<std::size_t>(point.y.value)];
    const CoordinateUnit ofX = unitOfSamples(x, Axis::X).unit();
    const CoordinateUnit ofY = unitOfSamples(y, Axis::Y).unit();
    if (ofX == CoordinateUnit::Dms || ofY == CoordinateUnit::Dms)
        return CoordinateUnit::Dms;
    // A small easting, near the false origin, can also be read as degrees, but not the northing.
    if (ofX == CoordinateUnit::Meters || ofY == CoordinateUnit::Meters)
        return CoordinateUnit::Meters;
    const bool areMeters = saysMeters(x, vocabulary) && saysMeters(y, vocabulary);
    const bool isUnitStated = statesMeters(x, vocabulary) && statesMeters(y, vocabulary);
    return areMeters && (isUnitStated || !areDegrees(point, fields, vocabulary))
               ? CoordinateUnit::Meters
               : CoordinateUnit::Degrees;
}

} // namespace vlt::driver
