#pragma once

#include <QString>

#include <optional>

namespace vlt::buildings {

/// A height in the name of an image.
struct NamedHeight
{
    double height = 0; ///< metres, or without `inMetres` in a unit not stated; 0 if there is none
    bool inMetres = false;
};

/// The height in a file name: a number at the end, a number with "m" at the end or in brackets, or
/// "m" alone, which means 1.5. Decimal comma or point.
///
/// @param baseName  the name without its last suffix
NamedHeight heightFromName(const QString &baseName);

} // namespace vlt::buildings
