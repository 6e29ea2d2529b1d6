#pragma once

#include "plugins/scene/mesh/Mesh.h"

#include <cmath>

namespace vlt::scene::palette {

inline const Color Galvanised{176, 181, 184, 255};
inline const Color DarkSteel{112, 118, 122, 255};
inline const Color Grating{132, 138, 142, 255};
inline const Color Cable{38, 40, 42, 255};
inline const Color Radome{228, 230, 228, 255};
inline const Color RadomeEnd{120, 124, 126, 255};
inline const Color DishCover{206, 209, 210, 255};
inline const Color Concrete{168, 163, 154, 255};
inline const Color Plaster{206, 200, 188, 255};
inline const Color RoofFelt{112, 112, 114, 255};
inline const Color Glass{74, 92, 108, 255};
inline const Color Wood{122, 92, 66, 255};
inline const Color AviationRed{190, 44, 34, 255};
inline const Color AviationWhite{232, 232, 228, 255};

/// A color of this share of the brightness, opaque or not.
inline Color darkened(const Color &color, double share)
{
    const auto part = [share](unsigned char value) {
        return static_cast<unsigned char>(std::lround(value * share));
    };
    return {part(color.r()), part(color.g()), part(color.b()), color.a()};
}

/// Brightness of the edge of a sector, of a line or of a zone / that of its color: dark enough to
/// stand out from pale ground if the color does not.
inline constexpr double EdgeShare = 0.25;

/// The opaque edge of what has this color.
inline Color edgeOf(const Color &color)
{
    Color edge = darkened(color, EdgeShare);
    edge.a() = 255;
    return edge;
}

} // namespace vlt::scene::palette
