#include "plugins/tables/sites/CoordinateColumns.h"

#include "plugins/tables/cells/GroupedNumber.h"
#include "plugins/tables/table/HeaderWords.h"
#include "plugins/tables/values/Angle.h"
#include "plugins/tables/values/CoordinatePair.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

constexpr double MaxDegrees = 360;

bool isOneOf(const std::string &word, std::initializer_list<const char *> words)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool isXWord(const std::string &word)
{
    return isOneOf(word, {"x", "lon", "long", "lng", "longitude", "longitud", "longitudine",
                          "easting", "abscisse", "laenge", "länge", "rechtswert", "dł"});
}

bool isYWord(const std::string &word)
{
    return isOneOf(word, {"y", "lat", "latitude", "latitud", "latitudine", "northing", "ordonnée",
                          "breite", "hochwert", "sz"});
}

/// The meaning of a column name for coordinates.
struct Role
{
    enum class Part { None, Whole, Degrees, Minutes, Seconds, Hemisphere };

    Part part = Part::None;
    Axis axis = Axis::X;
    int strength = 0; ///< higher for a name with fewer other words
    std::string rest; ///< the other words, which are the same for both coordinates of a position
};

Role::Part partOf(const std::string &word)
{
    if (isOneOf(word, {"degrees", "degree", "deg", "dg", "d"}))
        return Role::Part::Degrees;
    if (isOneOf(word, {"minutes", "minute", "min", "mn"}))
        return Role::Part::Minutes;
    if (isOneOf(word, {"seconds", "second", "sec", "sc"}))
        return Role::Part::Seconds;
    if (isOneOf(word, {"direction", "dir", "hemisphere", "hemi", "ns", "ew", "cd"}))
        return Role::Part::Hemisphere;
    return Role::Part::None;
}

Role roleOf(const Words &words)
{
    Role role;
    // These words belong to an antenna or to an offset, not to the position of the site.
    for (const std::string &word : words) {
        if (isOneOf(word, {"transmitter", "offset", "dx", "dy"}))
            return {};
    }
    Role::Part part = Role::Part::Whole;
    bool axisFound = false;
    for (const std::string &word : words) {
        const bool x = isXWord(word);
        if (!axisFound && (x || isYWord(word))) {
            axisFound = true;
            role.axis = x ? Axis::X : Axis::Y;
        } else if (const Role::Part found = partOf(word); found != Role::Part::None)
            part = part == Role::Part::Whole ? found : part;
        else
            role.rest += word + ' ';
    }
    if (words == Words{"ns"} || words == Words{"n", "s"} || words == Words{"ew"} ||
        words == Words{"e", "w"}) {
        axisFound = true;
        role.axis = words[0][0] == 'n' ? Axis::Y : Axis::X;
        part = Role::Part::Hemisphere;
    }
    if (!axisFound)
        return {};
    role.part = part;
    role.strength = words.size() == 1 ? 3 : role.rest == "site " ? 2 : 1;
    return role;
}

std::vector<Role> rolesOf(const FieldWords &words)
{
    std::vector<Role> roles;
    roles.reserve(words.size());
    for (const auto &ofField : words)
        roles.push_back(ofField ? roleOf(*ofField) : Role());
    return roles;
}

/// First field with the strongest role for an axis. Fields whose other words are `rest` are
/// preferred.
int strongest(const std::vector<Role> &roles, Axis axis, const std::string *rest)
{
    int best = -1;
    int bestScore = 0;
    for (std::size_t i = 0; i < roles.size(); ++i) {
        const bool usable =
            roles[i].part == Role::Part::Whole || roles[i].part == Role::Part::Degrees;
        const int score = 2 * roles[i].strength + (rest && roles[i].rest == *rest ? 5 : 0);
        if (usable && roles[i].axis == axis && score > bestScore) {
            best = static_cast<int>(i);
            bestScore = score;
        }
    }
    return best;
}

/// Whether all samples are hemispheres of an axis: letters, or words that start with them.
bool holdsHemispheres(const Field &field, Axis axis)
{
    const std::string_view letters = axis == Axis::X ? "EWew" : "NSns";
    return !field.samples.empty() &&
           std::all_of(field.samples.begin(), field.samples.end(), [&](const std::string &text) {
               return !text.empty() && letters.find(text[0]) != std::string_view::npos;
           });
}

CoordinateFields coordinateFields(const std::vector<Role> &roles, const std::vector<Field> &table,
                                  int value)
{
    CoordinateFields fields;
    fields.value = value;
    if (value < 0)
        return fields;
    const Role &degrees = roles[static_cast<std::size_t>(value)];
    const bool inParts = degrees.part == Role::Part::Degrees;
    for (std::size_t i = 0; i < roles.size(); ++i) {
        if (roles[i].axis != degrees.axis)
            continue;
        if (!inParts &&
            (roles[i].part != Role::Part::Hemisphere || !holdsHemispheres(table[i], degrees.axis)))
            continue;
        int *slot = roles[i].part == Role::Part::Minutes      ? &fields.minutes
                    : roles[i].part == Role::Part::Seconds    ? &fields.seconds
                    : roles[i].part == Role::Part::Hemisphere ? &fields.hemisphere
                                                              : nullptr;
        if (slot && *slot < 0)
            *slot = static_cast<int>(i);
    }
    return fields;
}

/// A field with both coordinates, for tables without separate columns.
int findPair(const FieldWords &words, const std::vector<Field> &fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!words[i])
            continue;
        std::size_t good = 0;
        for (const std::string &text : fields[i].samples)
            good += readCoordinatePair(text).fault ? 0 : 1;
        if (good > 0 && good * 10 >= fields[i].samples.size() * 8)
            return static_cast<int>(i);
    }
    return -1;
}

bool saysMeters(const std::string &name)
{
    const Words words = wordsOf(name);
    return std::any_of(words.begin(), words.end(), [](const std::string &word) {
        return isOneOf(word, {"easting", "northing", "m", "meters", "metres"});
    });
}

CoordinateUnit unitOfSamples(const Field &field, Axis axis)
{
    std::size_t inParts = 0;
    std::size_t large = 0;
    std::size_t readable = 0;
    for (const std::string &text : field.samples) {
        const std::string_view value = trimmed(text);
        std::optional<double> number = parseEitherNumber(value);
        if (!number) // always beyond the degrees: "652 000,5" would also be degrees and minutes
            number = parseGroupedNumber(value);
        if (number) {
            ++readable;
            large += std::abs(*number) > MaxDegrees ? 1 : 0;
        } else if (const Angle angle = readAngle(value, axis); !angle.fault) {
            ++readable;
            inParts += angle.parts > 1 ? 1 : 0;
        }
    }
    if (inParts * 2 > readable)
        return CoordinateUnit::Dms;
    return large * 2 > readable ? CoordinateUnit::Meters : CoordinateUnit::Degrees;
}

} // namespace

PointFields findPoint(const FieldWords &words, const std::vector<Field> &fields)
{
    PointFields point;
    const std::vector<Role> roles = rolesOf(words);
    const int x = strongest(roles, Axis::X, nullptr);
    const int y =
        strongest(roles, Axis::Y, x >= 0 ? &roles[static_cast<std::size_t>(x)].rest : nullptr);
    if (x >= 0 && y >= 0) {
        point.x = coordinateFields(roles, fields, x);
        point.y = coordinateFields(roles, fields, y);
    } else
        point.pair = findPair(words, fields);
    return point;
}

CoordinateUnit findUnit(const PointFields &point, const std::vector<Field> &fields)
{
    if (point.pair >= 0) {
        const std::vector<std::string> &samples =
            fields[static_cast<std::size_t>(point.pair)].samples;
        const bool dms = std::any_of(samples.begin(), samples.end(), [](const std::string &text) {
            return readCoordinatePair(text).inParts;
        });
        return dms ? CoordinateUnit::Dms : CoordinateUnit::Degrees;
    }
    if (!point.found())
        return CoordinateUnit::Degrees;
    if (point.x.inParts() || point.y.inParts())
        return CoordinateUnit::Dms;
    const Field &x = fields[static_cast<std::size_t>(point.x.value)];
    const Field &y = fields[static_cast<std::size_t>(point.y.value)];
    const CoordinateUnit ofX = unitOfSamples(x, Axis::X);
    const CoordinateUnit ofY = unitOfSamples(y, Axis::Y);
    if (ofX == CoordinateUnit::Dms || ofY == CoordinateUnit::Dms)
        return CoordinateUnit::Dms;
    // A small easting, near the false origin, can also be read as degrees, but not the northing.
    if (ofX == CoordinateUnit::Meters || ofY == CoordinateUnit::Meters ||
        (saysMeters(x.name) && saysMeters(y.name)))
        return CoordinateUnit::Meters;
    return CoordinateUnit::Degrees;
}

} // namespace vlt::driver
