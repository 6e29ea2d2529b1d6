#include "landscape/Relief.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <utility>

namespace vlt::landscape {

namespace {

constexpr double Shadow = 0.42; ///< brightness of a slope without sun, that of level ground is 1
constexpr double Brightest = 1.16;
constexpr double MinReliefM = 140; ///< colours of flatter ground differ less
constexpr int FadeCells = 5;       ///< to ground without heights
constexpr std::array<int, 2> Steps = {-1, 1};

Rgb mixed(const Rgb &from, const Rgb &to, double share)
{
    Rgb rgb{};
    for (std::size_t i = 0; i < rgb.size(); ++i)
        rgb[i] = from[i] * (1 - share) + to[i] * share;
    return rgb;
}

double smooth(double share)
{
    const double at = std::clamp(share, 0.0, 1.0);
    return at * at * (3 - 2 * at);
}

Rgb earthAt(double heightM, const HeightRange &range)
{
    const double share = (heightM - range.least) / std::max(range.most - range.least, MinReliefM);
    const double at = std::clamp(share, 0.0, 1.0) * (Earth.size() - 1);
    const std::size_t low = std::min(static_cast<std::size_t>(at), Earth.size() - 2);
    return mixed(Earth[low], Earth[low + 1], at - static_cast<double>(low));
}

/// Color of an image on a slope: somewhat pale, and less shaded than plain ground, because a
/// photograph has shadows of its own.
Rgb imageColor(const unsigned char *rgb, double light)
{
    constexpr double Pale = 0.15;
    constexpr double ShareOfShading = 0.45;
    return mixed(Rgb{}, mixed({double(rgb[0]), double(rgb[1]), double(rgb[2])}, PlainGround, Pale),
                 1 + ShareOfShading * (light - 1));
}

/// Calls a function for the neighbours of a point of a lattice in its row and its column.
template<typename Visit>
void forNeighbours(const Lattice &lattice, std::size_t point, const Visit &visit)
{
    const auto points = static_cast<std::size_t>(lattice.points());
    const auto column = static_cast<int>(point % points);
    const auto row = static_cast<int>(point / points);
    for (const int step : Steps) {
        if (column + step >= 0 && column + step < lattice.points())
            visit(lattice.index(column + step, row));
        if (row + step >= 0 && row + step < lattice.points())
            visit(lattice.index(column, row + step));
    }
}

/// Heights and slopes of the cells of a lattice.
class Slopes
{
public:
    explicit Slopes(const Lattice &lattice)
        : m_lattice(lattice)
        // between the pixels of a coarse terrain, heights are interpolated: slopes over the width
        // of a pixel have no creases there
        , m_reach(std::max(static_cast<int>(lattice.resolutionM / lattice.stepM()), 1))
        , m_relief(std::clamp(1.5 + lattice.stepM() / 30, 1.5, 4.0))
    {}

    /// Mean height of the corners of a cell; NaN if one is unknown.
    double heightM(int column, int row) const
    {
        return (at(column, row) + at(column + 1, row) + at(column, row + 1) +
                at(column + 1, row + 1)) /
               4;
    }

    bool isWater(int column, int row) const
    {
        const double height = at(column, row);
        return height <= 0 && at(column + 1, row) == height && at(column, row + 1) == height &&
               at(column + 1, row + 1) == height;
    }

    /// Brightness, by the sun on the slope. Slopes of wide areas are steepened, because they are
    /// lost with the resolution.
    double light(int column, int row) const
    {
        const double x = -m_relief * slope(column, row, 1, 0);
        const double y = -m_relief * slope(column, row, 0, 1);
        const double sun = std::sqrt(Sun[0] * Sun[0] + Sun[1] * Sun[1] + Sun[2] * Sun[2]);
        const double onSlope =
            (x * Sun[0] + y * Sun[1] + Sun[2]) / (sun * std::sqrt(x * x + y * y + 1));
        const double onLevel = Sun[2] / sun;
        return std::min(Shadow + (1 - Shadow) * std::max(onSlope, 0.0) / onLevel, Brightest);
    }

private:
    double at(int column, int row) const { return m_lattice.heightM[m_lattice.index(column, row)]; }

    /// Slope in metres per metre, to the east or to the north.
    double slope(int column, int row, int east, int north) const
    {
        const auto inside = [this](int i) { return std::clamp(i, 0, m_lattice.cells); };
        double rise = NAN;
        int reach = m_reach;
        int steps = 0;
        for (; std::isnan(rise) && reach > 0; reach /= 2) {
            const int fromColumn = inside(column - reach * east);
            const int toColumn = inside(column + (reach + 1) * east);
            const int fromRow = inside(row - reach * north);
            const int toRow = inside(row + (reach + 1) * north);
            rise = at(toColumn, toRow) - at(fromColumn, fromRow);
            steps = toColumn - fromColumn + toRow - fromRow;
        }
        return std::isnan(rise) ? 0 : rise / (steps * m_lattice.stepM());
    }

    const Lattice &m_lattice;
    int m_reach; ///< in cells
    double m_relief;
};

/// Values at the points of a lattice, interpolated.
class Between
{
public:
    Between(const Lattice &lattice, std::vector<int> values)
        : m_lattice(lattice)
        , m_values(std::move(values))
    {}

    double at(double column, double row) const
    {
        const int left = std::min(static_cast<int>(column), m_lattice.cells - 1);
        const int below = std::min(static_cast<int>(row), m_lattice.cells - 1);
        const double right = column - left;
        const double up = row - below;
        const auto value = [this](int c, int r) { return m_values[m_lattice.index(c, r)]; };
        return (value(left, below) * (1 - right) + value(left + 1, below) * right) * (1 - up) +
               (value(left, below + 1) * (1 - right) + value(left + 1, below + 1) * right) * up;
    }

private:
    const Lattice &m_lattice;
    std::vector<int> m_values;
};

} // namespace

HeightRange rangeOf(const std::vector<Lattice> &lattices)
{
    std::vector<float> heights;
    for (const Lattice &lattice : lattices)
        std::copy_if(lattice.heightM.begin(), lattice.heightM.end(), std::back_inserter(heights),
                     [](float height) { return !std::isnan(height); });
    if (heights.empty())
        return {};
    std::sort(heights.begin(), heights.end());
    const std::size_t tail = heights.size() / 100;
    return {heights[tail], heights[heights.size() - 1 - tail]};
}

std::vector<int> cellsFromUnknown(const Lattice &lattice, int most)
{
    std::vector<int> cells(lattice.heightM.size(), most);
    std::deque<std::size_t> next;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (std::isnan(lattice.heightM[i])) {
            cells[i] = 0;
            next.push_back(i);
        }
    }
    for (; !next.empty(); next.pop_front()) {
        const int away = cells[next.front()] + 1;
        forNeighbours(lattice, next.front(), [&](std::size_t other) {
            if (cells[other] <= away)
                return;
            cells[other] = away;
            next.push_back(other);
        });
    }
    return cells;
}

void fillUnknown(Lattice &lattice)
{
    std::deque<std::size_t> next;
    for (std::size_t i = 0; i < lattice.heightM.size(); ++i) {
        if (!std::isnan(lattice.heightM[i]))
            next.push_back(i);
    }
    for (; !next.empty(); next.pop_front()) {
        forNeighbours(lattice, next.front(), [&](std::size_t other) {
            if (!std::isnan(lattice.heightM[other]))
                return;
            lattice.heightM[other] = lattice.heightM[next.front()];
            next.push_back(other);
        });
    }
}

std::vector<unsigned char> reliefPicture(const Lattice &fine, const Lattice &coarse,
                                         const ReliefColors &colors)
{
    const Slopes slopes(fine);
    const Between away(coarse, cellsFromUnknown(coarse, FadeCells));
    const double scale = static_cast<double>(coarse.cells) / fine.cells;
    const unsigned char *rgba = colors.image.empty() ? nullptr : colors.image.data();
    std::vector<unsigned char> picture;
    picture.reserve(fine.heightM.size() * 3);
    for (int row = 0; row < fine.cells; ++row) {
        for (int column = 0; column < fine.cells; ++column) {
            const double heightM = slopes.heightM(column, row);
            const double light = std::isnan(heightM) ? 1 : slopes.light(column, row);
            Rgb color = colors.outside;
            if (!std::isnan(heightM)) {
                const Rgb known = slopes.isWater(column, row)
                                      ? Water
                                      : mixed(Rgb{}, earthAt(heightM, colors.range), light);
                const double cells = away.at((column + 0.5) * scale, (row + 0.5) * scale);
                color = mixed(colors.outside, known, smooth(cells / FadeCells));
            }
            if (rgba) {
                color = mixed(color, imageColor(rgba, light), rgba[3] / 255.0);
                rgba += 4;
            }
            const Place at = fine.at(column, row);
            const double distanceM =
                std::hypot(at.x - fine.square.centre.x, at.y - fine.square.centre.y);
            color = mixed(color, Haze, smooth(2 * distanceM / colors.fogM - 1));
            for (const double value : color)
                picture.push_back(
                    static_cast<unsigned char>(std::lround(std::clamp(value, 0.0, 255.0))));
        }
    }
    return picture;
}

} // namespace vlt::landscape
