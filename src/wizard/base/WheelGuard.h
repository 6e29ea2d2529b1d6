#pragma once

class QWidget;

namespace vlt::wizard {

/// Makes the spin boxes, combos and sliders of `panel` react to the wheel only while they have the
/// focus: scrolling a page must not change a value under the pointer.
void guardAgainstStrayWheel(QWidget *panel);

} // namespace vlt::wizard
