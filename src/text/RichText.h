#pragma once

#include <QString>

namespace vlt::text {

/// A plain text as rich text, for widgets that expect rich text, such as tool tips. It is shown
/// literally, including anything like a tag. Long lines are wrapped, line feeds are kept.
QString asRichText(const QString &plain);

} // namespace vlt::text
