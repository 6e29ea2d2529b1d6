#pragma once

#include "landscape/Imagery.h"
#include "landscape/Terrain.h"

#include <vector>

namespace vlt::landscape {

/// A level of the ground around a point: the first one is the finest, each of the others is three
/// times as wide as the one before and leaves its place free.
struct GroundLevel
{
    Lattice mesh;            ///< without unknown heights
    bool hasHeights = false; ///< out of a terrain
    bool hasImage = false;
    int picturePx = 0;
    std::vector<unsigned char> picture; ///< [picturePx][picturePx][3], rows from the south
};

inline constexpr int MeshCells = 120;  ///< in a row of a level
inline constexpr int HoleCells = 40;   ///< in a row of the place of the level before
inline constexpr int Levels = 3;       ///< 120^2 + 2 (120^2 - 40^2) cells: 80,000 triangles
inline constexpr int PicturePx = 1024; ///< 3 MB a level
inline constexpr int RoughPicturePx = 256;

/// How the ground is made.
enum class Detail {
    Rough, ///< at once, for a first impression
    Full
};

/// Half the width of the whole ground.
double outerHalfM(const Square &finest);

/// What the ground is made of.
struct GroundSource
{
    Terrain *terrain = nullptr;       ///< null: the ground is level
    const Imagery *imagery = nullptr; ///< null: the ground has colors by height
    double levelM = 0;                ///< height of the ground without a terrain
};

/// The ground around a square. Neighbouring levels meet without gaps. Empty if neither a height nor
/// a color is known.
std::vector<GroundLevel> makeGround(const GroundSource &source, const Square &finest,
                                    Detail detail = Detail::Full);

} // namespace vlt::landscape
