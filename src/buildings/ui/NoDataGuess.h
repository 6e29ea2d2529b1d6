#pragma once

#include <QString>

class QProgressBar;
class QWidget;

namespace vlt::buildings {

/// Guesses the value that marks missing data in a raster and shows the bar during the guess. The
/// user interface stays responsive; `disabled` is disabled, so that no work starts twice.
///
/// @param path      local raster; empty does nothing
/// @param disabled  the page, which is disabled during the guess
/// @param part      name of one of its images, as the raster lists it; empty for the raster itself
/// @param band      from 1
/// @return          the value with six decimals; empty if there is none, after a warning
QString guessNoData(QWidget *disabled, const QString &path, QProgressBar *bar,
                    const QString &part = {}, int band = 1);

} // namespace vlt::buildings
