#pragma once

#include "batch/CommandLine.h"

namespace vlt::batch {

/// "vltlayers info [--link] TABLE": what a table holds and what of it cannot be used.
ExitStatus runInfo(const QStringList &arguments);

} // namespace vlt::batch
