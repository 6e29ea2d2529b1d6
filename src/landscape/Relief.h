#pragma once

#include "landscape/Lattice.h"

#include <array>
#include <vector>

namespace vlt::landscape {

using Rgb = std::array<double, 3>; ///< 0 .. 255

/// Colour of the air far away: that of the sky at the horizon and of the ground near it.
inline constexpr Rgb Haze = {224, 231, 237};
/// Level ground, for a scene without a terrain.
inline constexpr Rgb PlainGround = {214, 216, 208};
/// Ground outside a terrain, which the air hides.
inline constexpr Rgb UnknownGround = {221, 227, 231};
/// Colours of terrain from the lowest to the highest ground: pale, so that sites and links stand
/// out, and without a pure green, which is a colour of clearances.
inline constexpr std::array<Rgb, 5> Earth = {
    {{206, 209, 184}, {217, 212, 184}, {208, 192, 156}, {186, 165, 137}, {226, 222, 215}}};
inline constexpr Rgb Water = {172, 193, 209};

/// A colour of the sky by the height above the horizon.
struct SkyBand
{
    double elevationDeg;
    Rgb rgb;
};

inline constexpr std::array<SkyBand, 6> SkyBands = {{{-90, Haze},
                                                     {0, Haze},
                                                     {2, {212, 224, 236}},
                                                     {9, {180, 205, 230}},
                                                     {28, {130, 171, 215}},
                                                     {90, {96, 143, 199}}}};
/// Direction to the sun, not normalised: in the south-west, behind the eye of most pictures.
inline constexpr std::array<double, 3> Sun = {-0.85, -0.35, 0.6};

/// Minimum and maximum height of the colours, metres.
struct HeightRange
{
    double least = 0;
    double most = 0;
};

/// Heights of lattices without the lowest and highest hundredth; 0 to 0 without any height.
HeightRange rangeOf(const std::vector<Lattice> &lattices);

/// Distance of the points of a lattice from the nearest unknown height, in cells, at most `most`; 0
/// for a point with an unknown height.
std::vector<int> cellsFromUnknown(const Lattice &lattice, int most);

/// Gives points without a height that of the nearest point with one; none if no height is known.
void fillUnknown(Lattice &lattice);

/// What a picture of the ground shows besides the slopes.
struct ReliefColors
{
    HeightRange range;
    double fogM = 0; ///< from this distance from the centre of the square on, the air hides the
                     ///< ground; half of it away, it is not hidden
    Rgb outside = UnknownGround;           ///< of ground without a height
    std::vector<unsigned char> image = {}; ///< [cells][cells][4] bytes, see Imagery; or empty
};

/// A picture of the ground: an image or colors by height, shaded by the slopes.
///
/// @param fine    one cell for each pixel
/// @param coarse  the same square with fewer cells; near its unknown heights the ground is plain
/// @return        [cells][cells][3] bytes, rows from the south
std::vector<unsigned char> reliefPicture(const Lattice &fine, const Lattice &coarse,
                                         const ReliefColors &colors);

} // namespace vlt::landscape
