#pragma once

#include "geodata/RasterSource.h"

#include <QByteArray>

namespace vlt::geodata {

/// A small picture of an image file, and what the file says about itself.
struct ImagePreview
{
    RasterSummary summary;
    int columns = 0;
    int rows = 0;
    QByteArray rgba; ///< [rows][columns][4]; empty for an image with too many pixels to read
};

/// Reads an image, or one of the images of a file that holds several. Overviews of the file are
/// used. May run on any thread; nothing is written beside the file.
///
/// @param name    absolute path, or the name of the part as the file lists it
/// @param sidePx  of the square that the small picture fits into
/// @par Errors    MESS_IMAGE_UNREADABLE, with the reason
Result<ImagePreview> readImagePreview(const QString &name, int sidePx);

} // namespace vlt::geodata
