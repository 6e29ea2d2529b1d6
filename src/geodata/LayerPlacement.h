#pragma once

#include "platform/Result.h"

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

/// Walks through the layer of index `layerIndex` and counts. `progress` may be empty.
///
/// @par Errors   no key; the text is the driver's reason, or "cancelled".
Result<LayerPlacement> readLayerPlacement(const QString &connection, int layerIndex,
                                          const Progress &progress);

} // namespace vlt::geodata
