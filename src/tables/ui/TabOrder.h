#pragma once

#include <QWidget>

/// The parts of a widget that share its focus, such as the line edits of spin boxes and combos and
/// the viewports of tables. Shift+Tab reaches the widget through them, so they must follow it in
/// the focus order.
QWidgetList partsThatStandFor(const QWidget &stop);

/// Puts the widgets in this focus order.
void putInOrder(const QWidgetList &widgets);
