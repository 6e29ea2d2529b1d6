#pragma once

#include <QString>

namespace vlt::wizard {

/// Path of this process's layer file of a name ("sites", "links" ...) in the system's temporary
/// directory: "<directory>/tempLayer_<name>_<process id>.lay" with native separators. The separator
/// is double, because the directory ends in one. No file is created.
QString temporaryLayerFileName(const QString &name);

} // namespace vlt::wizard
