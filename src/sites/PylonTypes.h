#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

namespace vlt::sites {

/// The catalogue's file in contract::PylonFolder.
inline constexpr QLatin1String PylonCatalogue("list.xml");

/// One kind of mast of the pylon catalogue.
struct PylonType
{
    QString type;           ///< its name in queries
    QString description;    ///< in the requested language; empty if the catalogue has none
    QImage icon;            ///< reserved, empty
    QStringList names = {}; ///< descriptions in every language
};

/// The pylon catalogue of the installation in document order; empty if it cannot be read.
///
/// @param language  language code ("fr", "en")
QList<PylonType> loadPylonTypes(const QString &installDir, const QString &language);

} // namespace vlt::sites
