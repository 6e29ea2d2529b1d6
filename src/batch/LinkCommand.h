#pragma once

#include "batch/CommandLine.h"

namespace vlt::batch {

/// "vltlayers link TABLE -o OUT.lay": makes a link layer of a table, judges its links, or both.
ExitStatus runLink(const QStringList &arguments);

} // namespace vlt::batch
