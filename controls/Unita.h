// Layout units: 1/1440 inch, 15 to a logical pixel.
#pragma once

#include <cmath>

namespace Unita {

inline constexpr int perPixel = 15;

inline int pixel(double unita)
{
    return static_cast<int>(std::lround(unita / perPixel));
}
inline double unita(double pixel)
{
    return pixel * perPixel;
}

} // namespace Unita
