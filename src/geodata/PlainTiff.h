#pragma once

#include <QString>

namespace vlt::geodata {

/// Whether a file is a TIFF of one image without metadata of the geodata library. Such a file need
/// not be opened to know that it states nothing. False for a BigTIFF and for whatever looks
/// damaged: the library knows better.
bool isPlainTiff(const QString &path);

} // namespace vlt::geodata
