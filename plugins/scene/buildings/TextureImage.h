#pragma once

#include "plugins/scene/buildings/PlaceTransform.h"

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

/// Most pixels of a part along either side; larger ones are read coarser.
inline constexpr int MaxCropPixels = 1024;

/// A part of an image as a texture: red, green, blue and opacity, between a rim of pixels that are
/// see-through. Its first row is the image's upper one.
struct ImageCrop
{
    osg::ref_ptr<osg::Image> image;
    osg::Vec2d corner; ///< in pixels of the whole image: where the part begins
    osg::Vec2d scale;  ///< pixels of the part per pixel of the whole

    /// Texture coordinates of a place in pixels of the whole image; on the rim for what is none.
    osg::Vec2 coordinates(const osg::Vec2d &pixel) const;
};

/// A georeferenced image of the local disk. May be used by several threads.
class TextureImage
{
public:
    /// @param name        absolute, or the library's name of a part of a local file
    /// @param srs         WKT of the places that are looked up; may be empty
    /// @param isKeptOpen  else it is opened anew for each part
    /// @throws BadLayer   it cannot be opened, is not georeferenced, or there is no transformation
    ///                    to its system
    static std::unique_ptr<TextureImage> open(const std::string &name, const std::string &srs,
                                              bool isKeptOpen);

    /// Turns places into pixels from the image's first corner; NaN where there is no way.
    void toPixels(std::vector<osg::Vec2d> &places);

    /// The part of the image that covers places.
    ///
    /// Empty are pixels without data and those that are see-through. Single bands without a palette
    /// are grey, and values beyond bytes are laid over 0..255 from the least to the greatest.
    ///
    /// @param pixels      the places, from toPixels()
    /// @param dilatation  pixels that colours grow into empty ones
    /// @param maxSide     2 .. MaxCropPixels
    /// @return            see-through where the image does not reach them or cannot be read
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
    PlaceTransform m_transform;
    std::array<double, 6> m_toPixel{};
    int m_columns = 0;
    int m_rows = 0;
    std::array<int, 3> m_bands{}; ///< of red, green and blue
    int m_opacityBand = 0;        ///< 0: none
    std::vector<GDALColorEntry> m_palette;
    double m_black = 0;
    double m_white = 255;
    std::mutex m_mutex;
};

} // namespace vlt::scene
