#pragma once

#include "snapshot/SceneSource.h"

#include <QList>

namespace vlt::snapshot {

/// Several layers as one scene, in the frame of the first one: the others are moved and turned to
/// their places on the earth. The scene has the facts of the first layer, a terrain if one of them
/// has one, and the legends of all.
///
/// @param scenes  at least one; a single one is returned as it is
/// @return        null if one of several scenes does not state where it lies
Scene joined(const QList<Scene> &scenes);

} // namespace vlt::snapshot
