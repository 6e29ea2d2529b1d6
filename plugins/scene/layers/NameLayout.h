#pragma once

#include <cstddef>
#include <vector>

namespace vlt::scene {

/// A rectangle of a picture in pixels, from its lower left corner.
struct PictureRect
{
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;

    bool overlaps(const PictureRect &other) const
    {
        return left < other.right && other.left < right && bottom < other.top && other.bottom < top;
    }
};

/// Something with a name in a picture.
struct NamedRoom
{
    double x = 0;      ///< of the middle of what is named
    PictureRect taken; ///< by what is named; its name never covers that
    double width = 0;  ///< of the name
    double height = 0;
    bool mayHaveLeader = true;
};

struct PlacedName
{
    std::size_t index = 0; ///< of what is named
    PictureRect rect;
    bool hasLeader = false; ///< a line connects it with the middle of the top of what is named
};

/// What names may cover.
enum class NameRule {
    OnFreeGround, ///< nothing that is named
    OverOthers    ///< what is named otherwise, where no free ground is near
};

/// Places names one after the other: above what is named, beside it, below it, else higher above it
/// with a line. No name covers another one or its line, or leaves the picture; those without
/// room are left out.
///
/// @param named   the most important first
/// @param budget  maximum number of names
std::vector<PlacedName> placeNames(const std::vector<NamedRoom> &named, const PictureRect &picture,
                                   NameRule rule, std::size_t budget);

} // namespace vlt::scene
