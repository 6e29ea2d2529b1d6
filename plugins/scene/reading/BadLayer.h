#pragma once

#include "contract/BadLayer.h"

namespace vlt::scene {

using contract::BadLayer;
using contract::LibraryWords;

} // namespace vlt::scene
