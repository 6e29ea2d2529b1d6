#pragma once

#include <QStringView>

namespace vlt::srs {

/// Whether two words differ in exactly one letter: missing, added, replaced, or swapped with its
/// neighbour.
bool differsByOneLetter(QStringView a, QStringView b);

} // namespace vlt::srs
