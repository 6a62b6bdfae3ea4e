#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

// Positions on pages are 16.16 numbers, as the records that users have were written. Sums are
// kept in 64 bits: a line of large text is longer than the 32,767 points of 32.
namespace kelvo {

using Fixed = std::int64_t;
inline constexpr double fixedOne = 65'536;

// What is no number counts as 0.
inline Fixed fixedFrom(double points)
{
    constexpr double most = 8'388'608; // points: what cairo can place
    return std::isnan(points) ? 0 : static_cast<Fixed>(std::clamp(points, -most, most) * fixedOne);
}

inline double pointsFrom(Fixed number)
{
    return double(number) / fixedOne;
}

} // namespace kelvo
