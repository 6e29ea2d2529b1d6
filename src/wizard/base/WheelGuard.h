#pragma once

class QWidget;

namespace vlt::wizard {

/// Makes the spin boxes, combos and sliders below `panel` take the wheel only while they have the
/// focus: scrolling a page must not change a value that the pointer passes over.
void guardAgainstStrayWheel(QWidget *panel);

} // namespace vlt::wizard
