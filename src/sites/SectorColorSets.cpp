#include "sites/SectorColorSets.h"

#include "contract/Installation.h"
#include "platform/Paths.h"
#include "sites/CatalogueNames.h"

#include <QDomDocument>
#include <QFile>
#include <QPainter>

namespace vlt::sites {

namespace {

constexpr int Pitch = 29;
constexpr int Margin = 5;

int component(const QDomElement &element, const QString &name, int whenMissing)
{
    if (!element.hasAttribute(name))
        return whenMissing;
    return qBound(0, element.attribute(name).trimmed().toInt(), 255);
}

QColor readColor(const QDomElement &element)
{
    return QColor(
        component(element, QStringLiteral("r"), 0), component(element, QStringLiteral("g"), 0),
        component(element, QStringLiteral("b"), 0), component(element, QStringLiteral("a"), 255));
}

QList<QColor> readColors(const QDomElement &colorset)
{
    QList<QColor> colors;
    const QDomElement list = colorset.firstChildElement();
    for (QDomElement color = list.firstChildElement(); !color.isNull();
         color = color.nextSiblingElement())
        colors << readColor(color);
    return colors;
}

QString hex(int value)
{
    return QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0'));
}

} // namespace

QList<SectorColorSet> loadSectorColorSets(const QString &installDir, const QString &language)
{
    QFile file(platform::installedFile(installDir, contract::PylonFolder, ColorCatalogue));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return {};

    QList<SectorColorSet> sets;
    const QDomNodeList elements = document.elementsByTagName(QStringLiteral("colorset"));
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement element = elements.at(i).toElement();
        const QList<QColor> colors = readColors(element);
        sets << SectorColorSet{colors, element.attribute(QStringLiteral("description_") + language),
                               swatchImage(colors), catalogueNames(element)};
    }
    return sets;
}

QString colorText(const QColor &color, int transparency)
{
    const int alpha = color.alpha() * (100 - transparency) / 100;
    return hex(color.red()) + hex(color.green()) + hex(color.blue()) + hex(alpha);
}

QString colorText(const SectorColorSet &set, int index, int transparency)
{
    return set.colors.isEmpty() ? QString()
                                : colorText(set.colors.at(index % set.colors.size()), transparency);
}

QString colorSetText(const SectorColorSet &set, int transparency)
{
    QStringList texts;
    for (int i = 0; i < set.colors.size(); ++i)
        texts << colorText(set, i, transparency);
    return texts.join(QLatin1Char(' '));
}

QImage swatchImage(const QList<QColor> &colors)
{
    QImage image(static_cast<int>(colors.size()) * Pitch + Margin, 34,
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(255, 255, 255));
    QPainter painter(&image);
    for (int i = 0; i < colors.size(); ++i) {
        const int x = Pitch * i;
        painter.fillRect(x + 5, 5, 24, 24, QColor(128, 128, 128));
        painter.fillRect(x + 7, 7, 20, 20, colors.at(i));
    }
    return image;
}

} // namespace vlt::sites
