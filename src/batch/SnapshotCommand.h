#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "vltlayers snapshot LAYER -o PICTURE.png": draws a picture of a layer or of any scene.
Command snapshotCommand();

} // namespace vlt::batch
