#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "vltlayers link TABLE -o OUT.lay": makes a link layer of a table, judges its links, or both.
Command linkCommand();

} // namespace vlt::batch
