#pragma once

#include "geodata/ErrorCollector.h"
#include "geodata/LayerPlacement.h"
#include "platform/Result.h"

#include <ogrsf_frmts.h>

namespace vlt::geodata {

/// Hands every feature of a layer to `visit`, from the first to the last.
///
/// @param progress  may be empty; asked before the first feature and then some fifty times in a
///                  second
/// @param errors    what the driver said since the layer was opened
/// @return          how many features there were
/// @par Errors      the driver's reason why the features end too early, as detail.
Stoppable<qint64> walkFeatures(OGRLayer &layer, const Progress &progress,
                               const ErrorCollector &errors,
                               const std::function<void(const OGRFeature &)> &visit);

} // namespace vlt::geodata
