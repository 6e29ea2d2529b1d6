#pragma once

#include "plugins/scene/mesh/Mesh.h"

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

} // namespace vlt::scene::palette
