#include "watermark_menu.h"

#include "setting_maps.h"

namespace kelvo {

namespace {

constexpr bool isPages(std::int32_t value)
{
    return value == kWatermarkOnAllPages || value == kWatermarkOnPage1;
}

} // namespace

void fillMenuWithNames(const Device &device, Menu &menu, const SettingMap *map,
                       const SettingMap *optionsMap, const QStringList &names)
{
    menu.items.clear();
    PopulateMenuFromMap(device, menu, map, kJobContextJob, kNoCommand);
    if (MenuItem *options = findItem(menu, kCommandWatermarkOptions)) {
        Menu submenu;
        PopulateMenuFromMap(device, submenu, optionsMap, kJobContextJob, kNoCommand);
        options->submenu = std::move(submenu.items);
    }
    std::vector<MenuItem> items;
    for (const QString &name : names)
        items.push_back({.text = name,
                         .command = kCommandWatermark,
                         .reference = static_cast<std::int32_t>(items.size())});
    menu.items.insert(menu.items.begin() + !menu.items.empty(), items.begin(), items.end());
}

void checkName(Menu &menu, const QString &chosen)
{
    for (MenuItem &item : menu.items)
        item.checked = item.command == kCommandWatermark
            ? item.text == chosen
            : item.command == kCommandNoWatermark && chosen.isEmpty();
}

void enableItems(Menu &menu, std::initializer_list<OSType> commands, bool isEnabled)
{
    for (const OSType command : commands) {
        if (MenuItem *item = findItem(menu, command))
            item->enabled = isEnabled;
    }
}

void PopulateWatermarkMenuFromMapAndHistory(const Device &device, Menu &menu, const SettingMap *map)
{
    fillMenuWithNames(device, menu, map, WatermarkOptionsMap, listOfWatermarks);
}

void MarkWatermarkMenu(Menu &menu, const BookletWatermarkSettings &settings)
{
    checkName(menu, settings.watermark);
    enableItems(menu, {kCommandEditWatermark, kCommandDeleteWatermark},
                !settings.watermark.isEmpty());
    for (MenuItem &item : menu.items) {
        for (MenuItem &option : item.submenu)
            option.checked = !option.divider
                && option.reference
                    == (isPages(option.reference) ? settings.pages : settings.option);
    }
}

bool applyWatermarkOption(BookletWatermarkSettings &settings, OSType command)
{
    const SettingMap *option = WatermarkOptionsMap;
    while (option->localizedKey && option->commandID != command)
        ++option;
    if (!option->localizedKey || command == kNoCommand)
        return false;
    (isPages(option->ticketValue) ? settings.pages : settings.option) = option->ticketValue;
    return true;
}

} // namespace kelvo
