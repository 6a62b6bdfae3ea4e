#include "menu.h"

namespace kelvo {

namespace {

template <typename Items>
auto findIn(Items &items, OSType command) -> decltype(items.data())
{
    for (auto &item : items) {
        if (item.command == command)
            return &item;
        if (auto *found = findIn(item.submenu, command))
            return found;
    }
    return nullptr;
}

} // namespace

MenuItem *findItem(Menu &menu, OSType command)
{
    return command == kNoCommand ? nullptr : findIn(menu.items, command);
}

const MenuItem *findItem(const Menu &menu, OSType command)
{
    return command == kNoCommand ? nullptr : findIn(menu.items, command);
}

} // namespace kelvo
