#pragma once

#include "geodata/LinkCheck.h"

namespace vlt::geodata {

/// What a drawing of a link's path shows.
struct LinkProfile
{
    LinkReport link;
    linkpath::PathProfile path;
    linkpath::ClearanceRule rule;
    /// The point of minimum clearance; without a terrain that over level ground. Nothing if a
    /// height or the frequency is missing.
    std::optional<linkpath::WorstPoint> worst;

    /// Height of an antenna above sea level; end 0 is A, 1 is B.
    std::optional<double> antennaM(int end) const;
};

/// Takes the profile of a link of a check that was done with the same input. Without a terrain, or
/// with one that cannot be used, the ground is level.
///
/// @return nothing if the link has no length: an end has no position, or both have the same
std::optional<LinkProfile> profileOf(const LinkReport &link, const QString &endSystem,
                                     const LinkCheckInput &input);

} // namespace vlt::geodata
