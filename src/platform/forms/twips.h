#pragma once

#include <cmath>

// Forms are laid out in twips; the console's screens have 15 twips to a pixel.
namespace Twips {

constexpr int PerPixel = 15;

inline int toPixels(int twips)
{
    return int(std::lround(double(twips) / PerPixel));
}

inline int fromPixels(int pixels)
{
    return pixels * PerPixel;
}

} // namespace Twips
