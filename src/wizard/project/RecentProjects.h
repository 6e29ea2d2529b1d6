#pragma once

#include <QString>
#include <QStringList>

namespace vlt::project {

/// Paths of the recent projects that exist, without repetition: the builder's current one, then the
/// ten in the builder's settings, latest first.
///
/// @param currentProject  the project that is open in the builder; may be empty
QStringList recentProjects(const QString &currentProject);

/// The text for a project in a list: base name, day ("dd/MM/yyyy") and time ("hh:mm") of the last
/// change, on three lines.
QString projectCaption(const QString &path);

} // namespace vlt::project
