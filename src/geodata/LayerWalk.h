#pragma once

#include "geodata/ErrorCollector.h"
#include "geodata/LayerPlacement.h"
#include "platform/Result.h"

#include <ogrsf_frmts.h>

namespace vlt::geodata {

/// Calls `visit` with every feature of a layer, from the first to the last.
///
/// @param progress  may be empty; called before the first feature and then about fifty times per
///                  second
/// @param errors    the driver's errors since the layer was opened
/// @return          number of features
/// @par Errors      the driver's reason for an early end of the features, as detail.
Stoppable<qint64> walkFeatures(OGRLayer &layer, const Progress &progress,
                               const ErrorCollector &errors,
                               const std::function<void(const OGRFeature &)> &visit);

} // namespace vlt::geodata
