#include "watermark_menu.h"

#include "setting_maps.h"

namespace kelvo {

namespace {

constexpr OSType optionsCommand = fourCharCode("KWmO");

constexpr bool isPages(std::int32_t value)
{
    return value == kWatermarkOnAllPages || value == kWatermarkOnPage1;
}

} // namespace

void PopulateWatermarkMenuFromMapAndHistory(const Device &device, Menu &menu, const SettingMap *map)
{
    menu.items.clear();
    PopulateMenuFromMap(device, menu, map, kJobContextJob, kNoCommand);
    if (MenuItem *options = findItem(menu, optionsCommand)) {
        Menu submenu;
        PopulateMenuFromMap(device, submenu, WatermarkOptionsMap, kJobContextJob, kNoCommand);
        options->submenu = std::move(submenu.items);
    }
    std::vector<MenuItem> names;
    for (const QString &name : listOfWatermarks)
        names.push_back({.text = name,
                         .command = kCommandWatermark,
                         .reference = static_cast<std::int32_t>(names.size())});
    menu.items.insert(menu.items.begin() + !menu.items.empty(), names.begin(), names.end());
}

void MarkWatermarkMenu(Menu &menu, const BookletWatermarkSettings &settings)
{
    const bool hasOne = !settings.watermark.isEmpty();
    for (MenuItem &item : menu.items) {
        if (item.command == kCommandEditWatermark || item.command == kCommandDeleteWatermark)
            item.enabled = hasOne;
        item.checked = item.command == kCommandWatermark
            ? item.text == settings.watermark
            : item.command == kCommandNoWatermark && !hasOne;
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
