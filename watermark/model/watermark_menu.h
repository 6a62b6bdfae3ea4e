#pragma once

#include "booklet_watermark_settings.h"
#include "menu.h"
#include "setting_map.h"

#include <QStringList>

#include <initializer_list>

// Menus of what a store has: none, the user's, how the chosen one is printed, and what can be
// done with it.
namespace kelvo {

// ---- of watermarks, and of cover images

inline constexpr OSType kCommandNoWatermark = fourCharCode("KWmX");
inline constexpr OSType kCommandWatermark = fourCharCode("KWmW"); // reference: index in the list
inline constexpr OSType kCommandWatermarkOptions = fourCharCode("KWmO"); // has a submenu

// The rows of `map`, with the names after the first one, and those of `optionsMap` in the
// submenu of the options.
void fillMenuWithNames(const Device &device, Menu &menu, const SettingMap *map,
                       const SettingMap *optionsMap, const QStringList &names);
// Checks the chosen name, or that there is none when it is empty.
void checkName(Menu &menu, const QString &chosen);
// Enables what can be done with one.
void enableItems(Menu &menu, std::initializer_list<OSType> commands, bool isEnabled);

// ---- of watermarks

inline constexpr OSType kCommandNewWatermark = fourCharCode("KWmN");
inline constexpr OSType kCommandEditWatermark = fourCharCode("KWmE");
inline constexpr OSType kCommandDeleteWatermark = fourCharCode("KWmD");

// The user's watermarks, in menu order: one for all panels of the process. GUI thread.
inline QStringList listOfWatermarks;

// Filled from `map` (WatermarkMap) and the list.
void PopulateWatermarkMenuFromMapAndHistory(const Device &device, Menu &menu,
                                            const SettingMap *map);

// Enables what can be done with the chosen watermark, and checks it and its options.
void MarkWatermarkMenu(Menu &menu, const BookletWatermarkSettings &settings);

// What an item of the options' submenu does; false for any other command.
bool applyWatermarkOption(BookletWatermarkSettings &settings, OSType command);

} // namespace kelvo
