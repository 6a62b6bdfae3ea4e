#pragma once

#include "device.h"
#include "menu.h"
#include "stock.h"

// The menus of a stock button, as data, and what their commands do to a stock.
namespace kelvo {

inline constexpr OSType kCommandStockSize = fourCharCode("Ssiz");
inline constexpr OSType kCommandStockColor = fourCharCode("Sclr");
inline constexpr OSType kCommandStockType = fourCharCode("Styp");
inline constexpr OSType kCommandStockSource = fourCharCode("Ssrc");
inline constexpr OSType kCommandStockDefault = fourCharCode("Sdef");
inline constexpr OSType kCommandStockAdvanced = fourCharCode("Sadv");

// Each appends to `menu`; a choice's ticket value is the item's reference. For
// special pages the first item is "use job setting" with kUnset, colours and
// types are without "unspecified", and types without the printer's default. A
// cover cannot have a custom size.
void PopulateStockSizeMenu(Menu &menu, const Device &device, JobContext jobContext);
void PopulateStockTypeMenu(Menu &menu, const Device &device, JobContext jobContext);
void PopulateStockColorMenu(Menu &menu, const Device &device, JobContext jobContext);

// Size (special pages alone), colour and type as submenus, two dividers, and for
// covers and inserts the post-print inserter where it is fitted. Whoever shows
// the menu adds items for 'Sdef' and 'Sadv'.
void PopulateStockMenu(Menu &menu, const Device &device, JobContext jobContext);

// The same on the current device.
void PopulateStockSizeMenu(Menu &menu, CFBundleRef bundle, JobContext jobContext);
void PopulateStockTypeMenu(Menu &menu, CFBundleRef bundle, JobContext jobContext);
void PopulateStockColorMenu(Menu &menu, CFBundleRef bundle, JobContext jobContext);
void PopulateStockMenu(Menu &menu, CFBundleRef bundle, JobContext jobContext);

// The whole menu of a stock button: default stock, PopulateStockMenu's, advanced
// selection.
Menu stockButtonMenu(const Device &device, JobContext jobContext);

// The pop-ups of a stock's type and colour, as the stock dialogs show them: the choices of
// the PPD with "not set" among them, and those types and that colour that only a stock has.
// They send no commands: what was chosen counts with OK.
Menu stockTypeMenu(const Device &device, JobContext jobContext);
Menu stockColorMenu(const Device &device, JobContext jobContext);
// The item that stands for `type` there: one that is not set is the printer's default.
std::int32_t shownStockType(const Menu &types, std::int32_t type);

// Checks the choices, in submenus too, that `stock` has.
void markStockMenu(std::vector<MenuItem> &items, const Stock &stock);

// What 'Ssiz' (but the custom size), 'Sclr', 'Styp', 'Ssrc' and 'Sdef' do to
// `stock`. False, and nothing changed, for any other command. Transparency
// brings the clear colour with it.
bool applyStockCommand(Stock &stock, OSType command, std::int32_t value, JobContext jobContext);

// A stock that was named is no longer that one once something of it is changed.
void forgetStockName(Stock &stock);

} // namespace kelvo
