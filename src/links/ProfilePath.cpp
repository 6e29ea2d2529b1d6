#include "links/ProfilePath.h"

#include "language/Numbers.h"
#include "language/VltLanguageManager.h"
#include "linkpath/Fresnel.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vlt::links {

using language::shortNumber;
using linkpath::ProfilePoint;

ProfilePath::ProfilePath(const geodata::LinkProfile &profile)
    : m_profile(profile)
    , m_a(profile.antennaM(0))
    , m_b(profile.antennaM(1))
{}

bool ProfilePath::hasZone() const
{
    return hasLine() && m_profile.link.frequencyMHz.value_or(0) > 0;
}

std::optional<double> ProfilePath::groundM(double distanceM) const
{
    const std::vector<ProfilePoint> &points = m_profile.path.points;
    const auto after =
        std::lower_bound(points.begin(), points.end(), distanceM,
                         [](const ProfilePoint &point, double d) { return point.distanceM < d; });
    if (after == points.end())
        return std::nullopt;
    if (after == points.begin())
        return after->distanceM > distanceM ? std::nullopt : std::optional(after->terrainM);
    const ProfilePoint &before = *std::prev(after);
    const double gapM = after->distanceM - before.distanceM;
    if (gapM > 2 * lengthM() / static_cast<double>(points.size())) // unknown points lie between
        return std::nullopt;
    return std::lerp(before.terrainM, after->terrainM, (distanceM - before.distanceM) / gapM);
}

double ProfilePath::bulgeM(double distanceM) const
{
    return linkpath::earthBulgeM(distanceM, lengthM() - distanceM, m_profile.rule.kFactor);
}

double ProfilePath::lineM(double distanceM) const
{
    return *m_a + (*m_b - *m_a) * distanceM / lengthM();
}

double ProfilePath::radiusM(double distanceM) const
{
    return linkpath::fresnelRadiusM(1, *m_profile.link.frequencyMHz, distanceM,
                                    lengthM() - distanceM);
}

double ProfilePath::distanceM(int point) const
{
    return lengthM() * (1 - std::cos(std::numbers::pi * point / CurvePoints)) / 2;
}

std::pair<double, double> ProfilePath::rangeM() const
{
    double low = 0;
    double high = 0;
    bool isFirst = true;
    const auto add = [&](double heightM) {
        low = isFirst ? heightM : std::min(low, heightM);
        high = isFirst ? heightM : std::max(high, heightM);
        isFirst = false;
    };
    for (const ProfilePoint &point : m_profile.path.points) {
        add(point.terrainM);
        add(point.terrainM + bulgeM(point.distanceM));
    }
    for (int i = 0; hasLine() && i <= CurvePoints; ++i) {
        const double d = distanceM(i);
        add(lineM(d) + (hasZone() ? radiusM(d) : 0));
        add(lineM(d));
    }
    return {low, high};
}

QString ProfilePath::textAt(double distanceM) const
{
    QStringList lines = {dico_label("MESS_PROFILE_FROM_A", "%1 km from A")
                             .arg(language::fixedNumber(distanceM / 1000, 2))};
    const std::optional<double> ground = groundM(distanceM);
    if (!ground)
        lines << dico_label("MESS_LACK_TERRAIN", "no terrain");
    else if (m_profile.path.hasTerrain)
        lines
            << dico_label("MESS_PROFILE_GROUND_AT", "ground at %1 m").arg(shortNumber(*ground, 1));
    if (!hasLine())
        return lines.join(QLatin1Char('\n'));
    lines << dico_label("MESS_PROFILE_RAY_AT", "line of sight at %1 m")
                 .arg(shortNumber(lineM(distanceM), 1));
    if (!ground)
        return lines.join(QLatin1Char('\n'));
    const double clearanceM = lineM(distanceM) - *ground - bulgeM(distanceM);
    const double radius = hasZone() ? radiusM(distanceM) : 0;
    if (clearanceM < 0)
        lines << dico_label("MESS_PROFILE_CUT", "terrain %1 m above the line")
                     .arg(shortNumber(-clearanceM, 1));
    else if (radius > 0)
        lines << dico_label("MESS_PROFILE_FREE_SHARE", "%1 m free (%2 % of the Fresnel zone)")
                     .arg(shortNumber(clearanceM, 1), shortNumber(100 * clearanceM / radius, 0));
    else
        lines << dico_label("MESS_PROFILE_FREE", "%1 m free").arg(shortNumber(clearanceM, 1));
    return lines.join(QLatin1Char('\n'));
}

} // namespace vlt::links
