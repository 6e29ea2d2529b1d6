#pragma once

#include <QString>

namespace vlt::batch {

/// A dataset's name with an absolute path. The name is a file, or has a file in it, such as
/// "FORMAT:2:town.tif" or "FORMAT:\"town.nc\":level"; such a name is written as the file lists it.
QString absoluteDatasetName(const QString &name);

/// The file of such a name; empty if the name has no local file.
QString fileOfDataset(const QString &name);

} // namespace vlt::batch
