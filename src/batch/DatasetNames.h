#pragma once

#include <QString>

namespace vlt::batch {

/// A dataset's name with an absolute path: of a file, or of the file in a name such as
/// "FORMAT:2:town.tif" or "FORMAT:\"town.nc\":level", then as the file lists it.
QString absoluteDatasetName(const QString &name);

/// The file of such a name; empty where there is none of this computer.
QString fileOfDataset(const QString &name);

} // namespace vlt::batch
