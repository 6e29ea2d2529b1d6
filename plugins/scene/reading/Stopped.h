#pragma once

#include "contract/Stopped.h"

namespace vlt::scene {

using contract::Stopped;

} // namespace vlt::scene
