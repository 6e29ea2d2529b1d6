#pragma once

class QObject;

namespace vlt::wizard {

/// Stops the blinking of text cursors while keyboard and mouse are not used: at each blink the
/// toolkit composes a window with a 3D view again. They stay visible and blink again after the next
/// key or click.
///
/// @param owner  owns the filter; must live as long as the application
void restTextCursors(QObject *owner);

} // namespace vlt::wizard
