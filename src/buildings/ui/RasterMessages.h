#pragma once

#include <QString>

class QWidget;

namespace vlt::buildings {

/// Why a raster is of no use, or of doubtful use.
enum class RasterProblem { CannotOpen, NoBands, NotOneBand, HoldsColors };

/// What a box tells of it.
QString textOf(RasterProblem problem);

/// A box with the title "Warning" that names the file.
///
/// @param reason  the library's; may be empty
void warnOfRaster(QWidget *parent, RasterProblem problem, const QString &path,
                  const QString &reason = {});

} // namespace vlt::buildings
