#include "stock_menus.h"

#include "offered_choices.h"

#include <algorithm>

namespace kelvo {

namespace {

MenuItem divider()
{
    MenuItem item;
    item.text = QStringLiteral("-");
    item.enabled = false;
    item.divider = true;
    return item;
}

MenuItem commandItem(const QString &text, OSType command, std::int32_t reference = 0)
{
    MenuItem item;
    item.text = text;
    item.command = command;
    item.reference = reference;
    return item;
}

std::vector<MenuItem> choices(const Device &device, const char *option, OSType command)
{
    const QString keyword = QString::fromLatin1(option);
    Menu menu;
    if (device.hasOption(keyword))
        PopulateMenuWithOfferedChoices(menu, device.ppd, keyword, command);
    return std::move(menu.items);
}

MenuItem useJobSetting(const Device &device, OSType command)
{
    return commandItem(device.text("UseJobSetting"), command, kUnset);
}

void append(Menu &menu, std::vector<MenuItem> items)
{
    menu.items.insert(menu.items.end(), std::make_move_iterator(items.begin()),
                      std::make_move_iterator(items.end()));
}

// An item that opens one of the menus below.
void appendSubmenu(Menu &menu, const Device &device, const char *titleKey, OSType command,
                   void (*populate)(Menu &, const Device &, JobContext), JobContext jobContext)
{
    Menu submenu;
    populate(submenu, device, jobContext);
    MenuItem item = commandItem(device.text(titleKey), command);
    item.enabled = !submenu.items.empty();
    item.submenu = std::move(submenu.items);
    menu.items.push_back(std::move(item));
}

bool offers(const Menu &menu, std::int32_t reference)
{
    return std::ranges::find(menu.items, reference, &MenuItem::reference) != menu.items.end();
}

// `sameAsUnset` is a choice that says what "not set" says, so that it is not
// offered twice.
Menu dialogMenu(const Device &device, JobContext jobContext, Menu menu, std::int32_t sameAsUnset,
                std::vector<MenuItem> further)
{
    for (MenuItem &item : menu.items)
        item.command = kNoCommand;
    if (!offers(menu, kUnset) && !offers(menu, sameAsUnset))
        menu.items.insert(menu.items.begin(),
                          commandItem(device.text(notSetKey(jobContext)), kNoCommand, kUnset));
    append(menu, std::move(further));
    return menu;
}

bool isChosen(const MenuItem &item, const Stock &stock)
{
    if (item.command == kCommandStockSource)
        return stock.source() == item.reference;
    if (stock.source() != kUnset)
        return false;
    switch (item.command) {
    case kCommandStockSize:
        return stock.size() == item.reference;
    case kCommandStockColor:
        return stock.color() == item.reference;
    case kCommandStockType:
        return stock.type() == item.reference;
    default:
        return false;
    }
}

} // namespace

void PopulateStockSizeMenu(Menu &menu, const Device &device, JobContext jobContext)
{
    std::vector<MenuItem> items = choices(device, "PageSize", kCommandStockSize);
    if (jobContext == kJobContextCovers) {
        const auto custom = std::ranges::find(items, kStockSizeCustom, &MenuItem::reference);
        if (custom != items.end())
            custom->enabled = false;
    }
    if (jobContext != kJobContextJob)
        items.insert(items.begin(), useJobSetting(device, kCommandStockSize));
    append(menu, std::move(items));
}

void PopulateStockColorMenu(Menu &menu, const Device &device, JobContext jobContext)
{
    std::vector<MenuItem> items = choices(device, "MediaColor", kCommandStockColor);
    if (jobContext != kJobContextJob) {
        const auto unspecified =
            std::ranges::find(items, kStockColorUnspecified, &MenuItem::reference);
        if (unspecified != items.end())
            items.erase(unspecified);
        items.insert(items.begin(), useJobSetting(device, kCommandStockColor));
    }
    append(menu, std::move(items));
}

void PopulateStockTypeMenu(Menu &menu, const Device &device, JobContext jobContext)
{
    std::vector<MenuItem> items = choices(device, "MediaType", kCommandStockType);
    if (jobContext != kJobContextJob) {
        std::erase_if(items, [](const MenuItem &item) {
            return item.reference == kStockTypeSystemDefault
                || item.reference == kStockTypeUnspecified;
        });
        items.insert(items.begin(), useJobSetting(device, kCommandStockType));
    }
    append(menu, std::move(items));
}

void PopulateStockMenu(Menu &menu, const Device &device, JobContext jobContext)
{
    if (jobContext != kJobContextJob)
        appendSubmenu(menu, device, "OtherSize", kCommandStockSize, PopulateStockSizeMenu,
                      jobContext);
    appendSubmenu(menu, device, "OtherColor", kNoCommand, PopulateStockColorMenu, jobContext);
    appendSubmenu(menu, device, "OtherType", kNoCommand, PopulateStockTypeMenu, jobContext);
    menu.items.push_back(divider());
    menu.items.push_back(divider());
    if (jobContext == kJobContextCovers || jobContext == kJobContextInserts) {
        const std::optional<QString> name = device.featureText("PostPrintInserterKey");
        if (name)
            menu.items.push_back(commandItem(*name, kCommandStockSource, kStockSourceInserter));
    }
}

void PopulateStockSizeMenu(Menu &menu, CFBundleRef bundle, JobContext jobContext)
{
    PopulateStockSizeMenu(menu, currentDevice(bundle), jobContext);
}

void PopulateStockColorMenu(Menu &menu, CFBundleRef bundle, JobContext jobContext)
{
    PopulateStockColorMenu(menu, currentDevice(bundle), jobContext);
}

void PopulateStockTypeMenu(Menu &menu, CFBundleRef bundle, JobContext jobContext)
{
    PopulateStockTypeMenu(menu, currentDevice(bundle), jobContext);
}

void PopulateStockMenu(Menu &menu, CFBundleRef bundle, JobContext jobContext)
{
    PopulateStockMenu(menu, currentDevice(bundle), jobContext);
}

Menu stockButtonMenu(const Device &device, JobContext jobContext)
{
    Menu menu;
    menu.items.push_back(commandItem(device.text("Default Stock"), kCommandStockDefault));
    menu.items.push_back(divider());
    PopulateStockMenu(menu, device, jobContext);
    menu.items.push_back(divider());
    menu.items.push_back(
        commandItem(device.text("Advanced Stock Selection..."), kCommandStockAdvanced));
    return menu;
}

Menu stockTypeMenu(const Device &device, JobContext jobContext)
{
    const auto item = [&device](const char *key, std::int32_t type) {
        return commandItem(device.text(key), kNoCommand, type);
    };
    Menu types;
    PopulateStockTypeMenu(types, device, jobContext);
    return dialogMenu(device, jobContext, std::move(types), kStockTypeSystemDefault,
                      {item("StockTypePrecutTab", kStockTypePrecutTab),
                       item("StockTypeOrdered", kStockTypeOrdered),
                       item("StockTypeCustom", kStockTypeCustom)});
}

Menu stockColorMenu(const Device &device, JobContext jobContext)
{
    Menu colors;
    PopulateStockColorMenu(colors, device, jobContext);
    return dialogMenu(
        device, jobContext, std::move(colors), kUnset,
        {commandItem(device.text("StockColorCustom"), kNoCommand, kStockColorCustom)});
}

std::int32_t shownStockType(const Menu &types, std::int32_t type)
{
    return type == kUnset && !offers(types, kUnset) ? kStockTypeSystemDefault : type;
}

void markStockMenu(std::vector<MenuItem> &items, const Stock &stock)
{
    for (MenuItem &item : items) {
        markStockMenu(item.submenu, stock);
        item.checked = item.submenu.empty() && isChosen(item, stock);
    }
}

bool applyStockCommand(Stock &stock, OSType command, std::int32_t value, JobContext jobContext)
{
    switch (command) {
    case kCommandStockSize:
        if (value == kStockSizeCustom)
            return false;
        stock.setSource(kUnset);
        stock.setSize(value);
        break;
    case kCommandStockColor:
        stock.setSource(kUnset);
        stock.setColor(value);
        break;
    case kCommandStockType:
        stock.setSource(kUnset);
        stock.setType(value);
        if (value == kStockTypeTransparency)
            stock.setColor(kStockColorClear);
        break;
    case kCommandStockSource:
        stock.setSource(value);
        return true; // the name stays
    case kCommandStockDefault:
        DefaultStock(&stock, jobContext);
        return true;
    default:
        return false;
    }
    forgetStockName(stock);
    return true;
}

void forgetStockName(Stock &stock)
{
    stock.setCustomName(QStringLiteral(""));
    stock.setCustomNameOnly(false);
}

} // namespace kelvo
