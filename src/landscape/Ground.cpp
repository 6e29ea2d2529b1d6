#include "landscape/Ground.h"

#include "landscape/Relief.h"

#include <algorithm>
#include <cmath>

namespace vlt::landscape {

namespace {

constexpr int Ratio = MeshCells / HoleCells; ///< width of a level / that of the one before

bool isKnown(const Lattice &lattice)
{
    return std::any_of(lattice.heightM.begin(), lattice.heightM.end(),
                       [](float height) { return !std::isnan(height); });
}

Lattice unknownHeights(const Square &square, int cells)
{
    Lattice lattice{square, cells, 0, {}};
    lattice.heightM.assign(static_cast<std::size_t>(lattice.points()) *
                               static_cast<std::size_t>(lattice.points()),
                           NAN);
    return lattice;
}

bool isVisible(const std::vector<unsigned char> &rgba)
{
    for (std::size_t i = 3; i < rgba.size(); i += 4) {
        if (rgba[i] > 0)
            return true;
    }
    return false;
}

/// The heights at fewer points, averaged over the cells around each.
Lattice reduced(const Lattice &fine, int cells)
{
    Lattice coarse{fine.square, cells, fine.resolutionM, {}};
    const double step = static_cast<double>(fine.cells) / cells;
    const auto first = [&](int at) {
        return std::max(static_cast<int>(std::ceil((at - 0.5) * step)), 0);
    };
    const auto last = [&](int at) {
        return std::min(static_cast<int>(std::floor((at + 0.5) * step)), fine.cells);
    };
    for (int row = 0; row <= cells; ++row) {
        for (int column = 0; column <= cells; ++column) {
            double sum = 0;
            int known = 0;
            for (int r = first(row); r <= last(row); ++r) {
                for (int c = first(column); c <= last(column); ++c) {
                    const float height = fine.heightM[fine.index(c, r)];
                    if (std::isnan(height))
                        continue;
                    sum += double{height};
                    ++known;
                }
            }
            coarse.heightM.push_back(known ? static_cast<float>(sum / known) : NAN);
        }
    }
    return coarse;
}

/// Puts the edge of a level on the cells of the next one.
void joinEdges(Lattice &inner, Lattice &outer)
{
    constexpr int first = (MeshCells - HoleCells) / 2; // of the free place in the outer level
    const auto join = [&](int along, bool isColumn, int edge) {
        const auto innerAt = [&](int i) {
            return isColumn ? inner.index(edge, i) : inner.index(i, edge);
        };
        const int outerEdge = first + edge / Ratio;
        const auto outerAt = [&](int i) {
            return isColumn ? outer.index(outerEdge, first + i) : outer.index(first + i, outerEdge);
        };
        const int before = std::min(along / Ratio, HoleCells - 1);
        const float share = static_cast<float>(along - before * Ratio) / Ratio;
        inner.heightM[innerAt(along)] = outer.heightM[outerAt(before)] * (1 - share) +
                                        outer.heightM[outerAt(before + 1)] * share;
    };
    for (int along = 0; along <= MeshCells; ++along) {
        for (const int edge : {0, MeshCells}) {
            join(along, true, edge);
            join(along, false, edge);
        }
    }
}

} // namespace

double outerHalfM(const Square &finest)
{
    return finest.halfM * std::pow(Ratio, Levels - 1);
}

std::vector<GroundLevel> makeGround(const GroundSource &source, const Square &finest, Detail detail)
{
    const bool isRough = detail == Detail::Rough;
    const int picturePx = isRough ? RoughPicturePx : PicturePx;
    std::vector<Lattice> fine;
    std::vector<Lattice> meshes;
    std::vector<std::vector<unsigned char>> images(Levels);
    for (std::size_t level = 0; level < Levels; ++level) {
        const Square square{finest.centre, finest.halfM * std::pow(Ratio, level)};
        fine.push_back(source.terrain ? source.terrain->heights(square, picturePx, isRough)
                                      : unknownHeights(square, picturePx));
        meshes.push_back(reduced(fine.back(), MeshCells));
        if (source.imagery)
            images[level] = source.imagery->colors(square, picturePx);
    }
    if (!isKnown(meshes.back()) && std::none_of(images.begin(), images.end(), isVisible))
        return {};
    const HeightRange range =
        isKnown(meshes.back()) ? rangeOf(meshes) : HeightRange{source.levelM, source.levelM};
    const Rgb &outside = source.terrain ? UnknownGround : PlainGround;
    const double fogM = outerHalfM(finest);
    std::vector<GroundLevel> levels;
    for (std::size_t i = 0; i < Levels; ++i)
        levels.push_back({meshes[i], isKnown(meshes[i]), isVisible(images[i]), picturePx,
                          reliefPicture(fine[i], meshes[i], {range, fogM, outside, images[i]})});
    for (std::size_t level = levels.size(); level-- > 0;) {
        Lattice &mesh = levels[level].mesh;
        if (!isKnown(mesh)) // the level around it has heights
            std::fill(mesh.heightM.begin(), mesh.heightM.end(), static_cast<float>(range.least));
        fillUnknown(mesh);
        if (level + 1 < levels.size())
            joinEdges(mesh, levels[level + 1].mesh);
    }
    return levels;
}

} // namespace vlt::landscape
