#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "buildings VECTOR -o OUT.lay": makes a layer of colored or textured buildings. It draws legends
/// and needs a QGuiApplication.
Command buildingsCommand();

} // namespace vlt::batch
