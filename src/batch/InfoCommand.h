#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "vltlayers info [--link] TABLE": what a table holds and what of it cannot be used.
Command infoCommand();

} // namespace vlt::batch
