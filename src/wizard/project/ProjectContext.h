#pragma once

#include <QString>

namespace vlt::project {

/// The target project as the layers need it.
struct ProjectContext
{
    QString projectPath; ///< empty: no project
    QString terrainFile; ///< absolute path of the project's first terrain file; may be empty

    /// Absolute directory of the project file, with forward slashes; empty without a project.
    QString directory() const;

    /// `file` as it is written into a layer: relative to the project's directory, or absolute
    /// without a project.
    QString relativePath(const QString &file) const;
};

/// The project and its first terrain file. A project that cannot be read has no terrain file: who
/// has to tell the user of it does so when the project is chosen.
ProjectContext readProjectContext(const QString &projectPath);

} // namespace vlt::project
