// Layout units: 1/1440 inch, so that a logical pixel of 1/96 inch is 15 units.
#pragma once

#include <cmath>

namespace Unita {

inline constexpr int perPixel = 15;

// Layout units to logical pixels, rounded to the nearest.
inline int pixel(double unita)
{
    return static_cast<int>(std::lround(unita / perPixel));
}
// Logical pixels to layout units.
inline double unita(double pixel)
{
    return pixel * perPixel;
}

} // namespace Unita
