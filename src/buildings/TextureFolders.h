#pragma once

#include "buildings/FileEntry.h"
#include "geodata/LayerPlacement.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace vlt::buildings {

/// How the images of a set of textures lie in folders, seen from one of them. The values are those
/// of the page's list and of the settings.
enum class DataStructure {
    SameFolder,     ///< all in the folder of the template
    SiblingFolders, ///< in the folders beside the template's
    TwoLevels       ///< in the folders of the folders beside the parent of the template's
};

/// The images of a set of textures: those with the template's suffix (in any case of letters; all
/// files where it has none) in the folders that the structure names. Hidden folders are left out, a
/// folder that links lead to twice is read once. Safe to call on any thread; it reads with several
/// of its own.
///
/// @param templateDir  absolute path of the template image's folder
/// @param suffix       "png"; empty for all files
/// @param progress     may be empty; false stops the work
/// @return             by folder and name; nothing when `progress` stopped it
std::optional<QList<FileEntry>> findTextures(DataStructure structure, const QString &templateDir,
                                             const QString &suffix, const Progress &progress);

} // namespace vlt::buildings
