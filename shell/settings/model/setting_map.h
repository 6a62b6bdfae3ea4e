#pragma once

#include "bundle.h"
#include "four_char_code.h"
#include "menu.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <limits>

// What ties a menu's localized choices to the numbers that the ticket holds.
namespace kelvo {

struct Device;

// A numeric setting that is not set: "PrinterDefault" for the job,
// "UseJobSetting" elsewhere.
inline constexpr std::int32_t kUnset = std::numeric_limits<std::int32_t>::min();

// What a menu, a summary or a stock dialog is about.
enum JobContext : std::int32_t {
    kJobContextJob = 0,        // the job as a whole
    kJobContextCovers = 2,     // a front or back cover
    kJobContextInserts = 3,    // an insert
    kJobContextExceptions = 4, // an exception page range
};

// The key of what an unset number says there.
constexpr const char *notSetKey(JobContext jobContext)
{
    return jobContext == kJobContextJob ? "PrinterDefault" : "UseJobSetting";
}

enum DialogMode : std::int32_t {
    kDialogModeAdd = 0,  // create a new item
    kDialogModeEdit = 1, // edit the item passed in
};

// One row; a map is an array of them that ends with kEndOfMap. Values are what
// tickets in users' hands already say, so they never change.
struct SettingMap
{
    const char *localizedKey = nullptr; // looked up in "Localizable"; "-" is a divider
    std::int32_t ticketValue = 0;
    OSType commandID = kNoCommand;
    const char *requiredFeature = nullptr; // gates the row on an installed feature
    bool requiredState = true;             // the state that the feature must have
};
inline constexpr SettingMap kEndOfMap{};

// Proofs for the compiler, beside each map. A map is well formed when exactly its
// last row is kEndOfMap.
template <std::size_t N>
constexpr bool isWellFormed(const SettingMap (&map)[N])
{
    for (std::size_t i = 0; i + 1 < N; ++i) {
        if (!map[i].localizedKey)
            return false;
    }
    const SettingMap &end = map[N - 1];
    return !end.localizedKey && end.ticketValue == 0 && end.commandID == kNoCommand
        && !end.requiredFeature && end.requiredState;
}
// No two rows share a value, so that each can be found by its own.
template <std::size_t N>
constexpr bool valuesAreDistinct(const SettingMap (&map)[N])
{
    for (std::size_t i = 0; i + 1 < N; ++i) {
        for (std::size_t j = i + 1; j + 1 < N; ++j) {
            if (map[i].ticketValue == map[j].ticketValue)
                return false;
        }
    }
    return true;
}

// Rows before the terminator.
int CountMaps(const SettingMap *map);
// The value of the row at 1-based `index`, which must be in the map.
std::int32_t UIToTicket(const SettingMap *map, int index);
// The 1-based row of `value`, -1 when there is none. A row whose value is 0
// ends the search: it is the answer for whatever was not found before it.
int TicketToUI(const SettingMap *map, std::int32_t value);
// The row's key, not localized, found as above; null when there is none.
const char *LocalizedKeyForTicketValue(const SettingMap *map, std::int32_t value);
// Both find a gated row where the current device has its feature. The text of the row that
// `device` has is found in the same way; empty when there is none.
QString textOfValue(const Device &device, const SettingMap *map, std::int32_t value);
// The key of `value` on whatever device, for tickets of any; null when the map lacks it.
const char *keyOfValue(const SettingMap *map, std::int32_t value);

// Appends the rows that the device's features allow. `commandOverride`, when
// not 0, replaces every row's command. The map becomes the menu's own
// reference. Returns the rows walked, skipped ones included.
std::int16_t PopulateMenuFromMap(const Device &device, Menu &menu, const SettingMap *map,
                                 JobContext jobContext, OSType commandOverride);
// The same for the current device.
std::int16_t PopulateMenuFromMap(CFBundleRef bundle, Menu &menu, const SettingMap *map,
                                 JobContext jobContext, OSType commandOverride);

} // namespace kelvo
