#pragma once

#include "contract/Progress.h"
#include "platform/Result.h"

#include <QString>

#include <osg/BoundingBox>
#include <osg/Node>

#include <optional>

namespace vlt::snapshot {

/// A loaded scene; null: no scene.
using Scene = osg::ref_ptr<osg::Node>;

/// Loads a scene with the scene library's readers: a regular file of this computer, or a parametric
/// object "inline://parametric/query?...". Neither the scene nor the files to which it refers are
/// fetched over a network.
///
/// @param project  file of the project to which the scene belongs, for the readers; may be empty
/// @param terrain  of the project, for sites whose table has no ground height; may be empty
/// @par Errors     MESS_SNAP_NOT_LOCAL for any other kind of name, MESS_SNAP_NO_FILE, or the
///                 reader's reason as detail.
Result<Scene> readScene(const QString &name, const QString &project = {},
                        const QString &terrain = {});

/// The same, with the progress of readers that take a long time.
Stoppable<Scene> readScene(const QString &name, const QString &project, const QString &terrain,
                           const Progress &progress);

/// A fact that the readers state about a scene, by its key in contract/SceneFactKeys.h; nothing if
/// they do not state it.
std::optional<QString> sceneFact(const osg::Node &scene, const char *key);

/// The extent of all but far outliers of a scene, in its frame, without heights; nothing if the
/// reader does not state it.
std::optional<osg::BoundingBox> coreOf(const osg::Node &scene);

/// Sets which names a layer shows.
///
/// @param which  a value of contract/SceneNames.h
void showNames(osg::Node &scene, const QString &which);

/// Whether the name is that of a parametric object.
bool isParametricName(const QString &name);

/// Name and version of the scene library: "OpenSceneGraph 3.6.5".
QString libraryVersion();

/// Makes the scene library search the installation's plug-ins before all others.
void addInstalledReaders(const QString &installDir);

} // namespace vlt::snapshot
