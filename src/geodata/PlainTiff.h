#pragma once

#include <QString>

namespace vlt::geodata {

/// Whether a file is a TIFF of one image without metadata of the geodata library. Such a file
/// declares neither height nor parts, so it need not be opened. False for a BigTIFF and for a file
/// that seems damaged: the library then decides.
bool isPlainTiff(const QString &path);

} // namespace vlt::geodata
