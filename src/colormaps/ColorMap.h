#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace vlt::colormaps {

struct Rgba
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;

    friend bool operator==(const Rgba &, const Rgba &) = default;
};

/// A value of a coverage, in whatever unit that has, and its colour.
struct ColorAssociation
{
    double value = 0;
    Rgba color;
};

/// The colours that a file gives, before they are stretched.
struct ColorTable
{
    std::vector<ColorAssociation> associations; ///< ascending; of equal values the file's order
    std::optional<Rgba> noDataColor;            ///< of the "nv" line
};

/// Puts the associations in ascending order; those of equal values keep theirs.
void sortByValue(ColorTable &table);

/// One colour map file, laid over a range of values.
class ColorMap
{
public:
    /// An end of the range that is left to the file.
    static constexpr double Unset = std::numeric_limits<double>::max();

    /// Largest file that is read, in bytes.
    static constexpr std::size_t MaxFileSize = 16 << 20;

    /// Reads a colour map file of the local disk in place of what was there before.
    ///
    /// With both ends given, the file's own values, absolute ones too, are stretched onto
    /// minimum .. maximum: its first value becomes the minimum, its last one the maximum. Where the
    /// file has only one value, all become the minimum. A minimum above the maximum turns the map
    /// round. With an end left out (or not finite), both become the file's own.
    ///
    /// ".txt" and ".cmap" are texts (ColorMapText.h), ".tc" is a palette (PaletteFile.h), whatever
    /// the case. Other files, and those whose name ends in "index.txt", are no colour maps.
    ///
    /// @param path  in bytes of the file system
    /// @return      whether there are colours. What is wrong with a text is told once, as a failure
    ///              of the geodata library with the application's own number; nothing is said of
    ///              other files.
    bool load(const std::string &path, double minimum = Unset, double maximum = Unset);

    /// Whether both ends are set; always so after a load that succeeded.
    bool hasRange() const;

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }

    /// Colour of what has no value.
    const std::optional<Rgba> &noDataColor() const { return m_colors.noDataColor; }

    /// Ascending; of equal values the file's order.
    const std::vector<ColorAssociation> &associations() const { return m_colors.associations; }

private:
    void stretch();

    double m_minimum = Unset;
    double m_maximum = Unset;
    ColorTable m_colors;
};

} // namespace vlt::colormaps
