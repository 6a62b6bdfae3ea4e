#pragma once

#include "device.h"
#include "setting_map.h"
#include "ticket.h"

#include <cstdint>

// The job as a booklet: what finishing and the Booklet/Watermark panel both set.
namespace kelvo {

inline constexpr std::int32_t kBookletOn = 1, kBookletOff = 2;             // EnabledDisabledMap
inline constexpr std::int32_t kPageBordersNone = 1, kPageBordersDrawn = 2; // PageBordersMap

inline constexpr std::int32_t kMostGutter = 216; // points
inline constexpr std::int32_t kMostCreep = 10;   // tenths of a point

struct BookletLayout
{
    std::int32_t pageBorders = kPageBordersNone;
    std::int32_t gutter = 24;      // points, 0 to kMostGutter
    std::int32_t creep = 0;        // tenths of a point, 0 to kMostCreep
    std::int32_t newSize = kUnset; // PageSizeMap; kUnset: the document's own

    friend bool operator==(const BookletLayout &, const BookletLayout &) = default;
};

} // namespace kelvo
