#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "buildings VECTOR -o OUT.lay": makes a layer of colored or textured buildings. Legends are
/// drawn, so a QGuiApplication must be there.
Command buildingsCommand();

} // namespace vlt::batch
