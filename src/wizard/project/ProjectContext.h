#pragma once

#include <QString>

namespace vlt::project {

/// The data of the target project that layers need.
struct ProjectContext
{
    QString projectPath; ///< empty without a project
    QString terrainFile; ///< absolute path of the project's first terrain file; may be empty

    /// Absolute directory of the project file, with forward slashes; empty without a project.
    QString directory() const;

    /// The path of `file` in a layer: relative to the project's directory, or absolute without a
    /// project.
    QString relativePath(const QString &file) const;
};

/// The project and its first terrain file. A project that cannot be read has no terrain file and
/// causes no error here, because the page or command that chooses the project reports it.
ProjectContext readProjectContext(const QString &projectPath);

} // namespace vlt::project
