#pragma once

#include <QImage>

namespace vlt::snapshot {

/// A picture with an alpha channel, from the same scene over black and over white: what is the same
/// over both is opaque. Equal sizes, RGB888.
QImage withoutBackground(const QImage &overBlack, const QImage &overWhite);

} // namespace vlt::snapshot
