#pragma once

#include "batch/CommandLine.h"

namespace vlt::batch {

/// "vltlayers snapshot LAYER -o PICTURE.png": a picture of a layer, or of any scene.
ExitStatus runSnapshot(const QStringList &arguments);

} // namespace vlt::batch
