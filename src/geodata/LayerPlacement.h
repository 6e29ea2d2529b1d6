#pragma once

#include "contract/Progress.h"

#include <QtGlobal>

namespace vlt::geodata {

/// How many features of a layer have a place.
struct LayerPlacement
{
    qint64 features = 0;
    qint64 placed = 0; ///< features with a geometry that is not empty
};

} // namespace vlt::geodata
