#pragma once

#include "buildings/FileEntry.h"
#include "geodata/LayerPlacement.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace vlt::buildings {

/// Folders of a set of texture images, relative to the folder of the template image. The values are
/// those of the page's list and of the settings.
enum class DataStructure {
    SameFolder,     ///< all in the folder of the template
    SiblingFolders, ///< in the folders beside the template's
    TwoLevels       ///< in the folders of the folders beside the parent of the template's
};

/// The images of a set of textures: the files with the template's suffix, in upper or lower case,
/// in the folders of the structure. Hidden folders are left out, and a folder with several links is
/// read once. May be called on any thread; it starts threads of its own.
///
/// @param templateDir  absolute path of the template image's folder
/// @param suffix       "png"; empty for all files
/// @param progress     may be empty; false stops the work
/// @return             sorted by folder and name; none if `progress` stopped it
std::optional<QList<FileEntry>> findTextures(DataStructure structure, const QString &templateDir,
                                             const QString &suffix, const Progress &progress);

} // namespace vlt::buildings
