#include "linkpath/Clearance.h"

#include "linkpath/Fresnel.h"

namespace vlt::linkpath {

std::array<std::uint8_t, 3> clearanceColor(ClearanceStatus status)
{
    switch (status) {
    case ClearanceStatus::Clear:
        return {0, 158, 115};
    case ClearanceStatus::Marginal:
        return {240, 180, 0};
    case ClearanceStatus::Obstructed:
        return {204, 30, 60};
    case ClearanceStatus::Unknown:
        break;
    }
    return {128, 128, 128};
}

Clearance checkProfile(const std::vector<ProfilePoint> &profile, double antennaAM, double antennaBM,
                       double frequencyMHz, const ClearanceRule &rule)
{
    Clearance clearance;
    const double lengthM = profile.empty() ? 0 : profile.back().distanceM;
    for (const ProfilePoint &ground : profile) {
        const double d1 = ground.distanceM;
        const double d2 = lengthM - d1;
        if (!(d1 > 0 && d2 > 0))
            continue;
        WorstPoint point;
        point.distanceM = d1;
        point.terrainM = ground.terrainM;
        point.lineM = antennaAM + (antennaBM - antennaAM) * d1 / lengthM;
        point.bulgeM = earthBulgeM(d1, d2, rule.kFactor);
        point.radiusM = fresnelRadiusM(1, frequencyMHz, d1, d2);
        point.clearanceM = point.lineM - point.terrainM - point.bulgeM;
        if (!clearance.worst || point.freeShare() < clearance.worst->freeShare())
            clearance.worst = point;
    }
    clearance.lack = clearance.worst ? Lack::Nothing : Lack::Length;
    if (!clearance.worst)
        return clearance;
    const double free = clearance.worst->freeShare();
    clearance.status = free < 0            ? ClearanceStatus::Obstructed
                       : free < rule.share ? ClearanceStatus::Marginal
                                           : ClearanceStatus::Clear;
    return clearance;
}

} // namespace vlt::linkpath
