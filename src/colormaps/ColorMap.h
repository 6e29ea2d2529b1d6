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

/// A value of a coverage, in the coverage's unit, and its colour.
struct ColorAssociation
{
    double value = 0;
    Rgba color;
};

/// The colours of a file before stretching.
struct ColorTable
{
    std::vector<ColorAssociation> associations; ///< ascending; equal values in the file's order
    std::optional<Rgba> noDataColor;            ///< from the "nv" line
};

/// Sorts the associations in ascending order of their values; equal values keep their order.
void sortByValue(ColorTable &table);

/// A colour map file, applied to a range of values.
class ColorMap
{
public:
    /// For an end of the range that the file determines.
    static constexpr double Unset = std::numeric_limits<double>::max();

    /// Largest file that is read, in bytes.
    static constexpr std::size_t MaxFileSize = 16 << 20;

    /// Reads a colour map file of the local disk, which replaces the former content.
    ///
    /// With both ends given, the file's own values, including absolute ones, are stretched to
    /// minimum .. maximum: its first value becomes the minimum, its last one the maximum. If the
    /// file has only one value, all become the minimum. A minimum above the maximum reverses the
    /// map. With one end unset (or not finite), both are those of the file.
    ///
    /// ".txt" and ".cmap" are texts (ColorMapText.h), ".tc" is a palette (PaletteFile.h), in any
    /// case of letters. Other files, and those whose names end in "index.txt", are not colour maps.
    ///
    /// @param path  in bytes of the file system
    /// @return      whether there are colours. A fault of a text is reported once, as an error of
    ///              the geodata library with CPLE_AppDefined; faults of other files are not
    ///              reported.
    bool load(const std::string &path, double minimum = Unset, double maximum = Unset);

    /// Whether both ends are set; always true after a successful load().
    bool hasRange() const;

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }

    /// Colour for "no data".
    const std::optional<Rgba> &noDataColor() const { return m_colors.noDataColor; }

    /// The values and colours, ascending; equal values in the file's order.
    const std::vector<ColorAssociation> &associations() const { return m_colors.associations; }

private:
    void stretch();

    double m_minimum = Unset;
    double m_maximum = Unset;
    ColorTable m_colors;
};

} // namespace vlt::colormaps
