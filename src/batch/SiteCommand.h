#pragma once

#include "batch/CommandLine.h"

namespace vlt::batch {

/// "vltlayers site TABLE -o OUT.lay": makes the layer that the wizard makes of the table.
ExitStatus runSite(const QStringList &arguments);

} // namespace vlt::batch
