#pragma once

#include <QString>

class QWidget;

namespace vlt::buildings {

/// Why a raster is of no use.
enum class RasterProblem { CannotOpen, NoBands, NotOneBand };

/// What a box tells of it.
QString textOf(RasterProblem problem);

/// A box with the title "Warning".
void warnOfRaster(QWidget *parent, RasterProblem problem);

} // namespace vlt::buildings
