#pragma once

#include <QList>
#include <QString>

namespace vlt::colormaps {

/// A colour map as a list offers it.
struct ColorMapEntry
{
    QString name; ///< the file's name without its last suffix
    QString path; ///< absolute; empty for the entry "None"
};

/// The entry of a file, also of one that the user added.
ColorMapEntry colorMapEntry(const QString &path);

/// The colour maps of an installation: the files "*.cmap" and "*.txt" in the sub-folders of its
/// folder of colour maps, folder after folder in the order of their names.
///
/// @param withNone  puts an entry "None" first
QList<ColorMapEntry> listColorMaps(const QString &installDir, bool withNone);

} // namespace vlt::colormaps
