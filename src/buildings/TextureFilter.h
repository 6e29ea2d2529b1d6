#pragma once

#include "buildings/FileEntry.h"

namespace vlt::buildings {

/// Places in the list of the images whose file name, folder, description or height matches a
/// filter; of all of them where it is empty.
///
/// @param pattern  a part of the text, with the case of its letters; for the height a regular
///                 expression, in which a comma or point stands for the decimal point
QList<int> matchingTextures(const QList<FileEntry> &images, const QString &pattern);

} // namespace vlt::buildings
