#pragma once

#include <QStringView>

namespace vlt::srs {

/// Whether two words are the same but for one letter that is missing, added, another one, or
/// swapped with its neighbour. Equal words are not.
bool differsByOneLetter(QStringView a, QStringView b);

} // namespace vlt::srs
