#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace vlt::driver {

/// A zone of UTM as it is written: 31N, 32 T, UTM 33, zone 33 South.
struct UtmZone
{
    int number = 0; ///< 1 to 60
    /// Capital letter behind the number: N or S, or that of a band of latitudes from C to X; 0 for
    /// none.
    char letter = 0;
    bool isWord = false; ///< the letter is the start of a word for north or south
};

/// Nothing for a text that is no zone.
std::optional<UtmZone> readUtmZone(std::string_view text);

/// A position with its zone in one text.
struct UtmPosition
{
    UtmZone zone;
    double eastingM = 0;
    double northingM = 0;
};

/// The position in a text such as 18T 585628 4511322, UTM 32N 500000 4649776, or
/// 585628mE 4511322mN 18T. Nothing for any other text.
std::optional<UtmPosition> readUtmPosition(std::string_view text);

/// One half of a zone, in which coordinates are unique.
struct UtmGrid
{
    int number = 0; ///< 1 to 60
    bool isSouth = false;

    bool operator==(const UtmGrid &) const = default;
};

/// How the zones of a table are meant.
class UtmNotation
{
public:
    UtmNotation() = default;
    /// S is the southern hemisphere beside N; beside letters of other bands it is the one from 32
    /// to 40 degrees north; alone, it is that band if most northings lie in it. Without letters,
    /// the hemisphere is south if northings are beyond those of the inhabited north.
    UtmNotation(const std::vector<UtmZone> &zones, const std::vector<double> &northingsM);

    UtmGrid gridOf(const UtmZone &zone) const;
    /// Whether zones have no letter.
    bool isHemisphereAssumed() const { return m_isHemisphereAssumed; }
    /// The hemisphere of zones without a letter.
    bool isAssumedSouth() const { return m_isAssumedSouth; }

private:
    bool m_isSSouth = true;
    bool m_isHemisphereAssumed = false;
    bool m_isAssumedSouth = false;
};

/// Whether coordinates can be those of a position in a zone.
bool isInUtmRange(double eastingM, double northingM);

/// Longitude and latitude on WGS 84, in degrees, by the transformation of PROJ. Nothing if it is
/// not possible.
std::optional<std::pair<double, double>> degreesOfUtm(const UtmGrid &grid, double eastingM,
                                                      double northingM);

} // namespace vlt::driver
