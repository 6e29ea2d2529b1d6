#pragma once

#include <QIcon>

namespace vlt {

/// Makes the compiled-in files known to Qt: pictures under ":/images/" and ":/icons/", each at one,
/// two and three pixels per unit, and style sheets under ":/VltTelecomLayers/qss/". Call it before
/// the first of them is used; calling it again does no harm.
void registerResources();

/// The program's icon in the sizes that window lists, title bars and switchers ask for, 16 to 128.
/// Needs an application object and registered resources.
QIcon applicationIcon();

} // namespace vlt
