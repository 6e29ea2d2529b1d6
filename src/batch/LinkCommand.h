#pragma once

#include "batch/Command.h"

namespace vlt::batch {

/// "vltlayers link TABLE -o OUT.lay": makes a link layer from a table, reports the clearance of its
/// links, or both.
Command linkCommand();

} // namespace vlt::batch
