#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

namespace vlt::sites {

/// The catalogue's file in contract::PylonFolder.
inline constexpr QLatin1String ColorCatalogue("colors/sectors.xml");

/// Colours that the sectors of a site have in turn.
struct SectorColorSet
{
    QList<QColor> colors;
    QString description;    ///< in the requested language; empty if the catalogue has none
    QImage swatch;          ///< picture of the colours, see swatchImage()
    QStringList names = {}; ///< descriptions in every language
};

/// The colour catalogue of the installation in document order; empty if it cannot be read. A
/// component that is missing or not a number is read as 0 (a missing alpha value as 255); others
/// are clamped to 0..255.
///
/// @param language  language code ("fr", "en")
QList<SectorColorSet> loadSectorColorSets(const QString &installDir, const QString &language);

/// A colour as "rrggbbaa", lower-case hexadecimal.
///
/// @param transparency  0 (alpha value of the colour) .. 100 (invisible)
QString colorText(const QColor &color, int transparency);

/// A colour of the set as "rrggbbaa", lower-case hexadecimal.
///
/// @param index         from 0; wraps around past the end of the set
/// @param transparency  0 (as in the catalogue) .. 100 (invisible)
/// @return              empty for an empty set
QString colorText(const SectorColorSet &set, int index, int transparency);

/// All colours of the set as colorText(), joined by single spaces.
QString colorSetText(const SectorColorSet &set, int transparency);

/// The colours as squares on white, each with a grey frame: the width is 29 pixels per colour plus
/// 5, the height 34 pixels.
QImage swatchImage(const QList<QColor> &colors);

} // namespace vlt::sites
