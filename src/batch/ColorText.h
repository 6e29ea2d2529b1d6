#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace vlt::batch {

/// A color as options take it: RRGGBB with or without "#" in front, or one of the SVG names
/// ("red"), all in any case; nothing where it is none of them.
///
/// @param withAlpha  whether RRGGBBAA is taken, too
std::optional<QColor> colorFrom(const QString &text, bool withAlpha = false);

} // namespace vlt::batch
