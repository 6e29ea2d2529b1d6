#pragma once

#include "city/PositionTransform.h"

#include <gdal_priv.h>

#include <osg/Image>
#include <osg/Vec2>
#include <osg/Vec2d>

#include <array>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace vlt::scene {

/// Maximum number of pixels along each side of a part; larger parts are read at a lower resolution.
inline constexpr int MaxCropPixels = 1024;

/// A part of an image as a texture: red, green, blue and opacity, with a border of transparent
/// pixels. Its first row is the upper one of the image.
struct ImageCrop
{
    osg::ref_ptr<osg::Image> image;
    osg::Vec2d corner; ///< first corner of the part, in pixels of the whole image
    osg::Vec2d scale;  ///< pixels of the part per pixel of the whole image

    /// Texture coordinates of a position in pixels of the whole image; for NaN a position on the
    /// border.
    osg::Vec2 coordinates(const osg::Vec2d &pixel) const;
};

/// A georeferenced image of the local disk. Several threads may use it.
class TextureImage
{
public:
    /// @param name        absolute, or the library's name of a part of a local file
    /// @param srs         system of the positions, as WKT; may be empty
    /// @param isKeptOpen  false: the file is opened again for each part
    /// @throws BadLayer   it cannot be opened, is not georeferenced, or there is no transformation
    ///                    to its system
    static std::unique_ptr<TextureImage> open(const std::string &name, const std::string &srs,
                                              bool isKeptOpen);

    /// Converts positions to pixels from the image's first corner; NaN if that is not possible.
    void toPixels(std::vector<osg::Vec2d> &positions);

    /// The part of the image that covers positions.
    ///
    /// Transparent pixels and those without data are empty. A single band without a palette is
    /// grey. Values that are not bytes are scaled from their minimum and maximum to 0..255.
    ///
    /// @param pixels      the positions, from toPixels()
    /// @param dilatation  number of pixels by which colours are extended into empty pixels
    /// @param maxSide     2 .. MaxCropPixels
    /// @return            transparent where the image does not cover it or cannot be read
    ImageCrop crop(const std::vector<osg::Vec2d> &pixels, double dilatation, int maxSide);

private:
    struct Window;
    using Values = std::vector<float>;

    TextureImage(std::string name, const std::string &srs, GDALDatasetUniquePtr dataset);
    void prepare();
    void chooseBands();
    void findLevels();
    std::optional<Window> windowOf(const std::vector<osg::Vec2d> &pixels, double margin,
                                   int maxSide) const;
    void read(GDALDataset &dataset, const Window &window, osg::Image &image) const;
    Values opacity(GDALDataset &dataset, const Window &window) const;

    std::string m_name;
    GDALDatasetUniquePtr m_dataset; ///< null: not kept open
    city::PositionTransform m_transform;
    std::array<double, 6> m_toPixel{};
    int m_columns = 0;
    int m_rows = 0;
    std::array<int, 3> m_bands{}; ///< numbers of the bands of red, green and blue
    int m_opacityBand = 0;        ///< 0: none
    std::vector<GDALColorEntry> m_palette;
    double m_black = 0;
    double m_white = 255;
    std::mutex m_mutex;
};

} // namespace vlt::scene
