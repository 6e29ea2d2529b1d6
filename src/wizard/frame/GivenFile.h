#pragma once

#include <QString>

namespace vlt::wizard {

/// What a file is to the wizard.
enum class FileKind {
    Missing,        ///< there is no such file or folder
    Project,        ///< ".gvw" in any case of letters
    Layer,          ///< ".lay" or ".texb": what the wizard makes
    SiteTable,      ///< a table, but not one of links
    LinkTable,      ///< a table that can be read as one of links
    BuildingSource, ///< footprints of buildings, or a raster
    Unknown
};

/// Tells what a file or folder is, by its suffix where that is enough, else by what can be read.
/// May take as long as opening the file does.
FileKind kindOfFile(const QString &path);

} // namespace vlt::wizard
