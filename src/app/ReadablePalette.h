#pragma once

#include <QPalette>

namespace vlt::app {

/// A palette that has a readable color of hints in empty fields, one between the text and the
/// background of fields, and readable ones of links, with a contrast of 4.5 to 1. Desktops may
/// state none, or ones that are hardly visible. All other colors are unset.
///
/// @param desktop  the palette in use
QPalette readableHints(const QPalette &desktop);

} // namespace vlt::app
