#pragma once

#include <QString>

namespace vlt::text {

/// A plain text for places that take rich text, such as tool tips: it is shown as it stands, tags
/// and all, wrapped where it is long, with its line feeds kept.
QString asRichText(const QString &plain);

} // namespace vlt::text
