#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "vltlayers site TABLE -o OUT.lay": makes the layer that the wizard makes of the table.
Command siteCommand();

} // namespace vlt::batch
