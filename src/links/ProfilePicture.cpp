#include "links/ProfilePicture.h"

#include "links/ProfileChart.h"

#include <QBuffer>
#include <QSvgGenerator>

namespace vlt::links {

namespace {

constexpr QSize SizePx(1280, 640);
constexpr int FontPx = 17;

bool isSvg(const QString &file)
{
    return file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

void draw(QPaintDevice &device, const geodata::LinkProfile &profile)
{
    ProfileStyle style;
    style.font.setPixelSize(FontPx);
    QPainter painter(&device);
    drawProfile(painter, QRectF(QPointF(), SizePx), profile, style);
}

} // namespace

bool isProfileName(const QString &file)
{
    return isSvg(file) || file.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
}

QImage profileImage(const geodata::LinkProfile &profile)
{
    QImage picture(SizePx, QImage::Format_RGB32);
    draw(picture, profile);
    return picture;
}

QByteArray profilePicture(const geodata::LinkProfile &profile, const QString &file)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (isSvg(file)) {
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setSize(SizePx);
        generator.setViewBox(QRect(QPoint(), SizePx));
        generator.setTitle(linkTitle(profile.link));
        generator.setDescription(profileFigures(profile));
        draw(generator, profile);
    } else {
        profileImage(profile).save(&buffer, "PNG");
    }
    return bytes;
}

} // namespace vlt::links
