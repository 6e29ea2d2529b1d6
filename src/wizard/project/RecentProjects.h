#pragma once

#include <QString>
#include <QStringList>

namespace vlt::project {

/// Paths of the projects that can be offered, existing files only: the builder's current one, then
/// the ten that the builder's settings remember, latest first, each once.
///
/// @param currentProject  the project open in the builder, may be empty
QStringList recentProjects(const QString &currentProject);

/// What a list shows of a project: the file's base name, and day ("dd/MM/yyyy") and time ("hh:mm")
/// of its last change, on a line each.
QString projectCaption(const QString &path);

} // namespace vlt::project
