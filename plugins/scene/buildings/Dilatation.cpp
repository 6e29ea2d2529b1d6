#include "plugins/scene/buildings/Dilatation.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace vlt::scene {

namespace {

/// Steps to the neighbours of a pixel, those with the smaller distance first.
constexpr std::array<std::pair<int, int>, 8> Neighbours = {
    {{0, -1}, {-1, 0}, {1, 0}, {0, 1}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}}};

class Growing
{
public:
    explicit Growing(osg::Image &image)
        : m_pixels(image.data())
        , m_columns(image.s())
        , m_rows(image.t())
        , m_isTaken(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows))
    {
        for (int row = 0; row < m_rows; ++row) {
            for (int column = 0; column < m_columns; ++column) {
                const Pixel pixel{column, row};
                m_isTaken[indexOf(pixel)] = color(pixel)[3] > 0;
                if (isEdge(pixel))
                    m_latest.push_back(pixel);
            }
        }
    }

    /// Colours the pixels beside those that were coloured last.
    ///
    /// @param rim  width in pixels of the border of the image that gets no colours
    void grow(int rim)
    {
        std::vector<std::pair<Pixel, Pixel>> grown; // with the pixel that gives its colour
        for (const Pixel &source : m_latest) {
            for (const auto &[right, down] : Neighbours) {
                const Pixel pixel{source.column + right, source.row + down};
                if (!isWithin(pixel, rim) || m_isTaken[indexOf(pixel)])
                    continue;
                m_isTaken[indexOf(pixel)] = true;
                grown.emplace_back(pixel, nearestColored(pixel, source));
            }
        }
        m_latest.clear();
        for (const auto &[pixel, source] : grown) {
            std::copy_n(color(source), 4, color(pixel));
            m_latest.push_back(pixel);
        }
    }

    void makeLatestSeeThrough()
    {
        for (const Pixel &pixel : m_latest)
            color(pixel)[3] = 0;
    }

private:
    struct Pixel
    {
        int column;
        int row;
    };

    std::size_t indexOf(const Pixel &pixel) const
    {
        return static_cast<std::size_t>(pixel.row) * static_cast<std::size_t>(m_columns) +
               static_cast<std::size_t>(pixel.column);
    }

    std::uint8_t *color(const Pixel &pixel) const { return m_pixels + 4 * indexOf(pixel); }

    bool isWithin(const Pixel &pixel, int rim) const
    {
        return pixel.column >= rim && pixel.row >= rim && pixel.column < m_columns - rim &&
               pixel.row < m_rows - rim;
    }

    /// Whether a pixel has a colour and one of its neighbours has none.
    bool isEdge(const Pixel &pixel) const
    {
        return color(pixel)[3] > 0 &&
               std::any_of(Neighbours.begin(), Neighbours.end(), [&](const auto &step) {
                   const Pixel beside{pixel.column + step.first, pixel.row + step.second};
                   return isWithin(beside, 0) && color(beside)[3] == 0;
               });
    }

    Pixel nearestColored(const Pixel &pixel, const Pixel &otherwise) const
    {
        for (const auto &[right, down] : Neighbours) {
            const Pixel beside{pixel.column + right, pixel.row + down};
            if (isWithin(beside, 0) && color(beside)[3] > 0)
                return beside;
        }
        return otherwise;
    }

    std::uint8_t *m_pixels;
    int m_columns;
    int m_rows;
    std::vector<bool> m_isTaken;
    std::vector<Pixel> m_latest; ///< coloured pixels that may have uncoloured neighbours
};

} // namespace

void dilate(osg::Image &image, int pixels)
{
    Growing growing(image);
    for (int i = 0; i < pixels; ++i)
        growing.grow(1);
    growing.grow(0);
    growing.makeLatestSeeThrough();
}

} // namespace vlt::scene
