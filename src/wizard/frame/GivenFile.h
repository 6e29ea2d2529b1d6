#pragma once

#include <QString>

namespace vlt::wizard {

/// Kind of a file for the wizard.
enum class FileKind {
    Missing,        ///< the file or folder does not exist
    Project,        ///< suffix ".gvw", in upper or lower case
    Layer,          ///< suffix ".lay" or ".texb": a result of the wizard
    SiteTable,      ///< a table, but not of links
    LinkTable,      ///< a table of links
    BuildingSource, ///< footprints of buildings, or a raster
    Unknown
};

/// Finds the kind of a file or folder by its suffix or, if that is not sufficient, by opening it.
/// This may take as long as opening a table.
FileKind kindOfFile(const QString &path);

} // namespace vlt::wizard
