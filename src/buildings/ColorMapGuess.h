#pragma once

#include <QString>
#include <QStringList>

namespace vlt::buildings {

/// Name of the shipped colour map for the values of a raster, by the unit of its first band, else
/// by the name of its file; empty if neither is known. These maps have absolute values.
///
/// @param fileName   name or path of the raster
/// @param bandTexts  "description, unit" of each band
QString guessedColorMap(const QString &fileName, const QStringList &bandTexts);

} // namespace vlt::buildings
