#include "buildings/ui/ColorMapSwatch.h"

#include "colormaps/LegendRows.h"

#include <QImage>
#include <QPixmap>

namespace vlt::buildings {

namespace {

constexpr int Density = 2; // drawn for screens of high density, shown at half its size

} // namespace

QIcon colorMapSwatch(const colormaps::ColorMap &map)
{
    if (map.associations().empty())
        return {};
    const colormaps::LegendScale scale(map, colormaps::Interpretation::Interpolation);
    const QSize size = ColorMapSwatchSize * Density;
    QImage image(size, QImage::Format_ARGB32);
    for (int x = 0; x < size.width(); ++x) {
        const colormaps::Rgba color = scale.colorAt((x + 0.5) / size.width());
        for (int y = 0; y < size.height(); ++y)
            image.setPixel(x, y, qRgba(color.red, color.green, color.blue, color.alpha));
    }
    image.setDevicePixelRatio(Density);
    return QPixmap::fromImage(image);
}

} // namespace vlt::buildings
