#pragma once

class QObject;

namespace vlt::wizard {

/// Keeps text cursors steady, but visible, while nobody uses keyboard or mouse: each blink has the
/// toolkit put a window with a 3D view together anew. They blink again with the next key or click.
///
/// @param owner  lives as long as the application and owns the filter
void restTextCursors(QObject *owner);

} // namespace vlt::wizard
