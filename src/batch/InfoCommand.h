#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "vltlayers info [--link] TABLE": prints the properties and the problems of a table.
Command infoCommand();

} // namespace vlt::batch
