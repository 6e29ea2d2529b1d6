#pragma once

#include <QtGlobal>

#include <functional>

namespace vlt::geodata {

/// Told the share done (0..1) now and then; false stops the work.
using Progress = std::function<bool(double)>;

/// How many features of a layer have a place.
struct LayerPlacement
{
    qint64 features = 0;
    qint64 placed = 0; ///< features with a geometry that is not empty
};

} // namespace vlt::geodata
