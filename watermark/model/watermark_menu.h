#pragma once

#include "booklet_watermark_settings.h"
#include "menu.h"
#include "setting_map.h"

#include <QStringList>

// The menu of watermarks: none, the user's, how the chosen one is printed, and what can be
// done with it.
namespace kelvo {

inline constexpr OSType kCommandNoWatermark = fourCharCode("KWmX");
inline constexpr OSType kCommandWatermark = fourCharCode("KWmW"); // reference: index in the list
inline constexpr OSType kCommandNewWatermark = fourCharCode("KWmN");
inline constexpr OSType kCommandEditWatermark = fourCharCode("KWmE");
inline constexpr OSType kCommandDeleteWatermark = fourCharCode("KWmD");

// The user's watermarks, in menu order: one for all panels of the process. GUI thread.
inline QStringList listOfWatermarks;

// The rows of `map` (WatermarkMap), with the names of the list after the first one, and the
// options in a submenu.
void PopulateWatermarkMenuFromMapAndHistory(const Device &device, Menu &menu,
                                            const SettingMap *map);

// Enables what can be done with the chosen watermark, and checks it and its options.
void MarkWatermarkMenu(Menu &menu, const BookletWatermarkSettings &settings);

// What an item of the options' submenu does; false for any other command.
bool applyWatermarkOption(BookletWatermarkSettings &settings, OSType command);

} // namespace kelvo
