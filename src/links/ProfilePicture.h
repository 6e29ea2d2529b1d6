#pragma once

#include "geodata/LinkProfile.h"

#include <QByteArray>
#include <QImage>

namespace vlt::links {

/// Whether a profile can be written to the file: *.svg or *.png.
bool isProfileName(const QString &file);

/// Draws a profile on white paper as SVG or PNG, by the suffix of `file`. It needs a
/// QGuiApplication.
QByteArray profilePicture(const geodata::LinkProfile &profile, const QString &file);

/// The same as pixels.
QImage profileImage(const geodata::LinkProfile &profile);

} // namespace vlt::links
