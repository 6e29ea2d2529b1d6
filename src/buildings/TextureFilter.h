#pragma once

#include "buildings/FileEntry.h"

namespace vlt::buildings {

/// Indexes of the images whose file name, folder, description or height matches a filter; all
/// indexes if the filter is empty.
///
/// @param pattern  a part of the text, with the same case; for the height a regular expression in
///                 which a comma or point means the decimal point
QList<int> matchingTextures(const QList<FileEntry> &images, const QString &pattern);

} // namespace vlt::buildings
