#pragma once

#include <QString>

class QWidget;

namespace vlt::buildings {

/// Why a raster cannot be used or probably should not be.
enum class RasterProblem { CannotOpen, NoBands, NotOneBand, HoldsColors };

/// The text of the message box for a problem.
QString textOf(RasterProblem problem);

/// Opens a message box with the title "Warning" that names the file.
///
/// @param reason  the library's reason; may be empty
void warnOfRaster(QWidget *parent, RasterProblem problem, const QString &path,
                  const QString &reason = {});

} // namespace vlt::buildings
