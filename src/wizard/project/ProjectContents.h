#pragma once

#include <QStringList>

namespace vlt::project {

/// What a project holds for layers, as lines of text in the chosen language: coordinate system,
/// terrain and buildings, each of them named, missing or not stated. Empty for a project that
/// cannot be read or that names none of them.
///
/// @param systemName  name of the project's reference projection; may be empty
QStringList projectContents(const QString &projectPath, const QString &systemName);

} // namespace vlt::project
