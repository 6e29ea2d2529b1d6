#pragma once

#include "contract/Progress.h"

#include <QtGlobal>

namespace vlt::geodata {

/// Number of features of a layer that have a position.
struct LayerPlacement
{
    qint64 features = 0;
    qint64 placed = 0; ///< features with a geometry that is not empty
};

} // namespace vlt::geodata
