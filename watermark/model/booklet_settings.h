#pragma once

#include "setting_map.h"
#include "ticket.h"

#include <cstdint>

// The job as a booklet, as finishing and the Booklet/Watermark panel both set it:
//
//   BookletLayout         boolean
//   BookletDrawOutlines   integer  with booklet layout
//   BookletForceNewSize   boolean  with booklet layout and a job-level stock, whose "Size" is the
//                                  new one, or is not there
//   Gutter, Creep         integer  with booklet layout
namespace kelvo {

inline constexpr std::int32_t kBookletOn = 1, kBookletOff = 2;             // EnabledDisabledMap
inline constexpr std::int32_t kPageBordersNone = 1, kPageBordersDrawn = 2; // PageBordersMap

inline constexpr std::int32_t kMostGutter = 216; // points
inline constexpr std::int32_t kMostCreep = 10;   // tenths of a point

// Choices of "KVFold" that make a booklet of folded sheets, and what FinishingOptions says then.
inline constexpr std::int32_t kFoldNone = 1;
inline constexpr std::int32_t kFoldBi = 43; // without staple
inline constexpr std::int32_t kFoldBiAndStaple = 53;
inline constexpr std::int32_t kFinishingNone = 0;
inline constexpr std::int32_t kFinishingBooklet = 24;

// FinishingOptions of a job that is folded so: a booklet's fold decides it, and no other job
// has a booklet's options.
constexpr std::int32_t optionsWithFold(std::int32_t options, std::int32_t fold)
{
    if (fold == kFoldBi || fold == kFoldBiAndStaple)
        return kFinishingBooklet;
    return options == kFinishingBooklet ? kFinishingNone : options;
}

struct BookletSettings
{
    std::int32_t layout = kBookletOff;
    std::int32_t pageBorders = kPageBordersNone;
    std::int32_t gutter = 24;      // points, 0 to kMostGutter
    std::int32_t creep = 0;        // tenths of a point, 0 to kMostCreep
    std::int32_t newSize = kUnset; // "PageSize"; kUnset: the job's own

    bool isOn() const { return layout == kBookletOn; }
    friend bool operator==(const BookletSettings &, const BookletSettings &) = default;
};

// What the ticket says; numbers may be beyond their limits. Without booklet layout the others
// stay as they are, and with it what is missing is as at first.
void readBooklet(BookletSettings &booklet, const Ticket &printSettings);
// The job-level stock must be there already.
void writeBooklet(const BookletSettings &booklet, Ticket &printSettings);

} // namespace kelvo
