#pragma once

#include "booklet_settings.h"
#include "device.h"
#include "ticket.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

// What the Booklet/Watermark panel sets: the booklet (booklet_settings.h), its fold, and
//
//   watermark.Watermark      string   the name; only where one is chosen
//   watermark.Option         integer  WatermarkOptionsMap, 1 to 3
//   watermark.FirstPageOnly  integer  1 or 0
namespace kelvo {

inline constexpr std::int32_t kWatermarkBackground = 1, kWatermarkBlend = 2,
                              kWatermarkForeground = 3; // WatermarkOptionsMap
inline constexpr std::int32_t kWatermarkOnAllPages = 4, kWatermarkOnPage1 = 5; // likewise

struct BookletWatermarkSettings
{
    BookletSettings booklet;
    // "KVFold"; none: not this panel's, for the device has no booklet fold.
    std::optional<std::int32_t> fold;
    QString watermark;       // as the list has it; empty: none
    QString absentWatermark; // what the ticket names and the list does not have
    std::int32_t option = kWatermarkBlend;
    std::int32_t pages = kWatermarkOnAllPages;

    friend bool operator==(const BookletWatermarkSettings &,
                           const BookletWatermarkSettings &) = default;
};

// Booklets are printed on both sides.
bool canLayOutBooklets(const Device &device);

// `names` are the user's watermarks; the first one that is called as the ticket says, capital
// letters or small, is the chosen one.
void readBookletWatermark(BookletWatermarkSettings &settings, const Ticket &printSettings,
                          const Device &device, const QStringList &names);
// Of a device that cannot lay out booklets, the watermark alone, unless the ticket has one.
void writeBookletWatermark(const BookletWatermarkSettings &settings, Ticket &printSettings,
                           const Device &device);

} // namespace kelvo
