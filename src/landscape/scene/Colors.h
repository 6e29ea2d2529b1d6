#pragma once

#include "landscape/Relief.h"

#include <osg/Vec4>

namespace vlt::landscape {

inline osg::Vec4 colorOf(const Rgb &rgb, double alpha = 1)
{
    constexpr double Full = 255;
    return {static_cast<float>(rgb[0] / Full), static_cast<float>(rgb[1] / Full),
            static_cast<float>(rgb[2] / Full), static_cast<float>(alpha)};
}

} // namespace vlt::landscape
