#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace vlt::batch {

/// The colour of an option's text: RRGGBB with or without "#" in front, or an SVG name ("red"), in
/// upper or lower case; none for any other text.
///
/// @param withAlpha  whether RRGGBBAA is accepted too
std::optional<QColor> colorFrom(const QString &text, bool withAlpha = false);

} // namespace vlt::batch
