#pragma once

#include <QList>
#include <QString>

namespace vlt::colormaps {

/// A colour map in a list to choose from.
struct ColorMapEntry
{
    QString name; ///< the file's name without its last suffix
    QString path; ///< absolute; empty for the entry "None"
};

/// The entry for a file.
ColorMapEntry colorMapEntry(const QString &path);

/// The colour maps of an installation: the files "*.cmap" and "*.txt" in the sub-folders of its
/// folder of colour maps. Folders, and the files in each, are in the order of their names.
///
/// @param withNone  adds an entry "None" at the start
QList<ColorMapEntry> listColorMaps(const QString &installDir, bool withNone);

} // namespace vlt::colormaps
