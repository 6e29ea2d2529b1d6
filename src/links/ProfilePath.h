#pragma once

#include "geodata/LinkProfile.h"

#include <QString>

#include <utility>

namespace vlt::links {

/// The antennas of a profile and what lies between them, by the distance from end A in metres. It
/// refers to the profile.
class ProfilePath
{
public:
    static constexpr int CurvePoints = 128; ///< of lines that are drawn from formulas

    explicit ProfilePath(const geodata::LinkProfile &profile);

    bool hasLine() const { return m_a && m_b; }
    bool hasZone() const;
    double lengthM() const { return m_profile.path.lengthM; }

    /// Height of the ground above sea level; nothing where the terrain is not known.
    std::optional<double> groundM(double distanceM) const;
    /// Rise of the ground by the curvature of the earth.
    double bulgeM(double distanceM) const;
    /// Height of the line of sight above sea level; needs hasLine().
    double lineM(double distanceM) const;
    /// Radius of the first Fresnel zone; needs hasZone().
    double radiusM(double distanceM) const;

    /// Distance of a point of a curve; they are closer to each other at the ends, where a zone is
    /// round.
    double distanceM(int point) const;

    /// Minimum and maximum of all heights that are drawn.
    std::pair<double, double> rangeM() const;

    /// The figures of a place in lines of text: distance, ground, line of sight and clearance.
    QString textAt(double distanceM) const;

private:
    const geodata::LinkProfile &m_profile;
    std::optional<double> m_a;
    std::optional<double> m_b;
};

} // namespace vlt::links
