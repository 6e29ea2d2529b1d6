#pragma once

#include <QString>

namespace vlt::wizard {

/// Path of this process's layer file of the given name ("sites", "links" ...) in the system's
/// temporary directory: "<directory>/tempLayer_<name>_<process id>.lay" in native separators. The
/// directory's own separator stays, so the path holds a doubled one. Nothing is created.
QString temporaryLayerFileName(const QString &name);

} // namespace vlt::wizard
