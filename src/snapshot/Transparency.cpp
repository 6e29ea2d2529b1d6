#include "snapshot/Transparency.h"

#include <algorithm>
#include <array>

namespace vlt::snapshot {

namespace {

constexpr int Full = 255;
constexpr int Channels = 3;

/// Over black a channel has color * alpha, over white also what shines through.
QRgb pixelOf(const uchar *black, const uchar *white)
{
    int through = 0;
    for (int i = 0; i < Channels; ++i)
        through += white[i] - black[i];
    const int alpha = std::clamp(Full - (through + 1) / Channels, 0, Full);
    if (alpha == 0)
        return qRgba(0, 0, 0, 0);
    std::array<int, Channels> color{};
    for (std::size_t i = 0; i < color.size(); ++i)
        color[i] = std::min((black[i] * Full + alpha / 2) / alpha, Full);
    return qRgba(color[0], color[1], color[2], alpha);
}

} // namespace

QImage withoutBackground(const QImage &overBlack, const QImage &overWhite)
{
    QImage picture(overBlack.size(), QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *black = overBlack.constScanLine(y);
        const uchar *white = overWhite.constScanLine(y);
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            line[x] = pixelOf(black + Channels * x, white + Channels * x);
    }
    return picture;
}

} // namespace vlt::snapshot
