#pragma once

#include "geodata/LinkProfile.h"

namespace vlt::batch {

/// Whether the profile of a link can be written to the file: *.svg or *.png.
bool isProfileName(const QString &output);

/// The link with a name, or with a row: "#12". A link without a name is named after its ends:
/// "Alpha - Beta".
///
/// @par Errors   MESS_CLI_NO_SUCH_LINK with a similar name, MESS_CLI_SAME_LINKS with the rows
Result<geodata::LinkReport> linkNamed(const QString &name, const QList<geodata::LinkReport> &links);

/// Draws a profile as SVG or PNG, by the suffix of `output`. It needs a QGuiApplication.
QByteArray profilePicture(const geodata::LinkProfile &profile, const QString &output);

} // namespace vlt::batch
