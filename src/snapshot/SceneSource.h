#pragma once

#include "contract/Progress.h"
#include "platform/Result.h"

#include <QString>

#include <osg/Node>

namespace vlt::snapshot {

/// A loaded scene; null for none.
using Scene = osg::ref_ptr<osg::Node>;

/// Whether the surface of the terrain is shown under a scene that knows one.
enum class TerrainSurface { Hidden, Shown };

/// Loads a scene through the scene library's readers: a regular file of this computer, or a
/// parametric object "inline://parametric/query?...". Nothing is fetched over a network, neither
/// the scene nor what it refers to.
///
/// @param project  file of the project that the scene belongs to, handed to the readers; may be
///                 empty
/// @par Errors     MESS_SNAP_NOT_LOCAL for a name of another kind, MESS_SNAP_NO_FILE; the reader's
///                 reason as detail.
Result<Scene> readScene(const QString &name, const QString &project = {},
                        TerrainSurface terrain = TerrainSurface::Hidden);

/// The same with the progress of readers that take long.
Stoppable<Scene> readScene(const QString &name, const QString &project, TerrainSurface terrain,
                           const Progress &progress);

/// Whether the name is that of a parametric object.
bool isParametricName(const QString &name);

/// The scene library with its version: "OpenSceneGraph 3.6.5".
QString libraryVersion();

/// Puts the installation's plug-ins first among the scene library's readers.
void addInstalledReaders(const QString &installDir);

} // namespace vlt::snapshot
