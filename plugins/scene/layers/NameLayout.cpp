#include "plugins/scene/layers/NameLayout.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vlt::scene {

namespace {

constexpr double GapShare = 0.15; ///< between a name and what is named / height of the name
/// Heights of names with a line above what is named, and their shifts to the side, in heights and
/// in widths of the name.
constexpr std::array<double, 4> Raises = {1.4, 2.8, 4.2, 5.6};
constexpr std::array<double, 3> Shifts = {0, 0.45, -0.45};

PictureRect rectAt(double left, double bottom, const NamedRoom &room)
{
    return {left, bottom, left + room.width, bottom + room.height};
}

bool contains(const PictureRect &outer, const PictureRect &inner)
{
    return inner.left >= outer.left && inner.right <= outer.right && inner.bottom >= outer.bottom &&
           inner.top <= outer.top;
}

/// Rectangles by the squares of the picture that they cover.
class RectGrid
{
public:
    explicit RectGrid(const PictureRect &picture)
        : m_picture(picture)
        , m_columns(squareOf(picture.right - picture.left) + 1)
        , m_rows(squareOf(picture.top - picture.bottom) + 1)
        , m_squares(m_columns * m_rows)
    {}

    void add(const PictureRect &rect)
    {
        forSquares(rect, [&rect](std::vector<PictureRect> &square) {
            square.push_back(rect);
            return false;
        });
    }

    bool isHitBy(const PictureRect &rect)
    {
        return forSquares(rect, [&rect](const std::vector<PictureRect> &square) {
            return std::any_of(square.begin(), square.end(),
                               [&rect](const PictureRect &other) { return rect.overlaps(other); });
        });
    }

private:
    static constexpr double SquarePx = 64;

    static std::size_t squareOf(double px)
    {
        return static_cast<std::size_t>(std::max(px, 0.0) / SquarePx);
    }

    /// Calls a function for the squares that a rectangle covers, until it returns true.
    template<typename Visit>
    bool forSquares(const PictureRect &rect, const Visit &visit)
    {
        const std::size_t right = std::min(squareOf(rect.right - m_picture.left), m_columns - 1);
        const std::size_t top = std::min(squareOf(rect.top - m_picture.bottom), m_rows - 1);
        for (std::size_t row = squareOf(rect.bottom - m_picture.bottom); row <= top; ++row) {
            for (std::size_t column = squareOf(rect.left - m_picture.left); column <= right;
                 ++column) {
                if (visit(m_squares[row * m_columns + column]))
                    return true;
            }
        }
        return false;
    }

    PictureRect m_picture;
    std::size_t m_columns;
    std::size_t m_rows;
    std::vector<std::vector<PictureRect>> m_squares;
};

class Placer
{
public:
    Placer(const std::vector<NamedRoom> &named, const PictureRect &picture)
        : m_named(named)
        , m_picture(picture)
        , m_taken(picture)
        , m_names(picture)
    {
        for (const NamedRoom &room : named)
            m_taken.add(room.taken);
    }

    std::optional<PlacedName> place(std::size_t index, NameRule rule)
    {
        const NamedRoom &room = m_named[index];
        const double gap = GapShare * room.height;
        const double left = room.x - room.width / 2;
        const double level = (room.taken.bottom + room.taken.top - room.height) / 2;
        for (const PictureRect &rect :
             {rectAt(left, room.taken.top + gap, room), rectAt(room.taken.right + gap, level, room),
              rectAt(room.taken.left - gap - room.width, level, room),
              rectAt(left, room.taken.bottom - gap - room.height, room)}) {
            if (isFree(rect, index, rule))
                return PlacedName{index, rect, false};
        }
        for (const double raise : Raises) {
            if (!room.mayHaveLeader)
                break;
            for (const double shift : Shifts) {
                const PictureRect rect =
                    rectAt(left + shift * room.width, room.taken.top + raise * room.height, room);
                if (isFree(rect, index, rule) && !isHitByLeader(rect, room))
                    return PlacedName{index, rect, true};
            }
        }
        return std::nullopt;
    }

    void keep(const PlacedName &name)
    {
        m_placed.push_back(name);
        m_names.add(name.rect);
        if (name.hasLeader) {
            for (const PictureRect &part : leaderOf(name.rect, m_named[name.index]))
                m_names.add(part);
        }
    }

    std::vector<PlacedName> placed() && { return std::move(m_placed); }
    std::size_t count() const { return m_placed.size(); }

private:
    bool isFree(const PictureRect &rect, std::size_t index, NameRule rule)
    {
        return contains(m_picture, rect) && !rect.overlaps(m_named[index].taken) &&
               !m_names.isHitBy(rect) && (rule == NameRule::OverOthers || !m_taken.isHitBy(rect));
    }

    /// The line between a name and what is named, as a chain of small rectangles.
    static std::array<PictureRect, 8> leaderOf(const PictureRect &name, const NamedRoom &room)
    {
        std::array<PictureRect, 8> parts;
        const double across = ((name.left + name.right) / 2 - room.x) / parts.size();
        const double up = (name.bottom - room.taken.top) / parts.size();
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const auto step = static_cast<double>(i);
            const double from = room.x + step * across;
            parts[i] = {std::min(from, from + across) - 1, room.taken.top + step * up,
                        std::max(from, from + across) + 1, room.taken.top + (step + 1) * up};
        }
        return parts;
    }

    bool isHitByLeader(const PictureRect &name, const NamedRoom &room)
    {
        const auto parts = leaderOf(name, room);
        return std::any_of(parts.begin(), parts.end(),
                           [this](const PictureRect &part) { return m_names.isHitBy(part); });
    }

    const std::vector<NamedRoom> &m_named;
    PictureRect m_picture;
    RectGrid m_taken;
    RectGrid m_names; ///< and their lines
    std::vector<PlacedName> m_placed;
};

} // namespace

std::vector<PlacedName> placeNames(const std::vector<NamedRoom> &named, const PictureRect &picture,
                                   NameRule rule, std::size_t budget)
{
    Placer placer(named, picture);
    std::vector<std::size_t> waiting;
    for (std::size_t i = 0; i < named.size() && placer.count() < budget; ++i) {
        if (const auto name = placer.place(i, NameRule::OnFreeGround))
            placer.keep(*name);
        else
            waiting.push_back(i);
    }
    for (std::size_t i = 0;
         rule == NameRule::OverOthers && i < waiting.size() && placer.count() < budget; ++i) {
        if (const auto name = placer.place(waiting[i], rule))
            placer.keep(*name);
    }
    return std::move(placer).placed();
}

} // namespace vlt::scene
