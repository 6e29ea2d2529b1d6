#pragma once

#include <QString>

namespace vlt::tables {

/// A table connection with absolute paths.
///
/// @param projectDirectory  base of relative paths in it; empty: unchanged
QString resolvedConnection(const QString &connection, const QString &projectDirectory);

} // namespace vlt::tables
