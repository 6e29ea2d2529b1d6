// Draws one SVG picture as PNG at one, two and three pixels per unit: NAME.png, NAME@2x.png and
// NAME@3x.png, the names under which Qt looks for them. Runs while building, without a display.

#include <QImage>
#include <QPainter>
#include <QSize>
#include <QString>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

bool draw(QSvgRenderer &picture, QSize size, const QString &fileName)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32).save(fileName, "PNG", 0);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: %s PICTURE.svg NAME.png [WIDTH]\n", argv[0]);
        return 2;
    }
    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    QSize size = picture.defaultSize();
    if (argc == 4)
        size.scale(std::atoi(argv[3]), size.height() * 1000, Qt::KeepAspectRatio);
    QString base = QString::fromLocal8Bit(argv[2]);
    if (!picture.isValid() || size.isEmpty() || !base.endsWith(QLatin1String(".png"))) {
        std::fprintf(stderr, "%s: no picture, no size, or no name that ends in .png\n", argv[1]);
        return 1;
    }
    base.chop(4);
    for (const int density : {1, 2, 3}) {
        const QString suffix = density == 1 ? QString() : QStringLiteral("@%1x").arg(density);
        const QString fileName = base + suffix + QLatin1String(".png");
        if (!draw(picture, size * density, fileName)) {
            std::fprintf(stderr, "%s cannot be written\n", qPrintable(fileName));
            return 1;
        }
    }
    return 0;
}
