#pragma once

#include "four_char_code.h"

#include <QString>

#include <cstdint>
#include <vector>

// A menu as plain data. Pop-up buttons and menu buttons show it; rules and
// tests read it without any window.
namespace kelvo {

struct MenuItem
{
    QString text;
    QString key; // the map's key or the PPD choice that the item stands for; may be empty
    OSType command = kNoCommand;
    std::int32_t reference = 0; // the item's ticket value
    bool enabled = true;
    bool checked = false;
    bool divider = false;          // a line; its text is not shown
    std::vector<MenuItem> submenu; // not empty: opens a submenu, cannot be chosen itself
};

struct Menu
{
    std::vector<MenuItem> items;
    const void *reference = nullptr; // the map that filled it; compared, never followed
};

// The first item, submenus included, that carries `command`; null when none
// does, and for kNoCommand.
MenuItem *findItem(Menu &menu, OSType command);
const MenuItem *findItem(const Menu &menu, OSType command);

} // namespace kelvo
