#pragma once

#include "batch/BuildingsOptions.h"

namespace vlt::batch {

/// The images that the command line names, all of them used.
///
/// @param quiet  without a line on the terminal about the search
/// @par Errors   in the language in use, with the file that cannot be used
Result<QList<buildings::FileEntry>> readTextures(const TextureChoice &choice, bool quiet);

/// A dataset's name with an absolute path: of a file, or of the file in a name such as
/// "FORMAT:2:town.tif" or "FORMAT:\"town.nc\":level", then as the file lists it.
QString absoluteDatasetName(const QString &name);

/// The file of such a name; empty where there is none of this computer.
QString fileOfDataset(const QString &name);

} // namespace vlt::batch
