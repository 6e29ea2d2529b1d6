#pragma once

#include "batch/CommandLine.h"

namespace vlt::batch {

/// "buildings VECTOR -o OUT.lay": makes a layer of coloured or textured buildings. Legends are
/// drawn, so a QGuiApplication must be there.
ExitStatus runBuildings(const QStringList &arguments);

} // namespace vlt::batch
