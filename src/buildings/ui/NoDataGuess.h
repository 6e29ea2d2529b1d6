#pragma once

#include <QString>

class QProgressBar;
class QWidget;

namespace vlt::buildings {

/// Guesses what stands for missing values in a raster, with the bar shown meanwhile. The interface
/// stays alive; `disabled` cannot be used while it runs, so that nothing begins twice.
///
/// @param path      local raster; empty does nothing
/// @param disabled  what is disabled meanwhile: the page
/// @param part      name of one of its images, as the raster lists it; empty for the raster itself
/// @return          the value with six decimals; empty where nothing was guessed, after a warning
QString guessNoData(QWidget *disabled, const QString &path, QProgressBar *bar,
                    const QString &part = {});

} // namespace vlt::buildings
