#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "vltlayers site TABLE -o OUT.lay": makes the same layer from the table as the wizard.
Command siteCommand();

} // namespace vlt::batch
