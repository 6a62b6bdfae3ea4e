#include "stock_popups.h"

#include "popups.h"
#include "stock.h"
#include "stock_menus.h"
#include "ticket_values.h"

#include <algorithm>

namespace kelvo {

namespace {

MenuItem choiceItem(const QString &text, std::int32_t reference)
{
    MenuItem item;
    item.text = text;
    item.reference = reference;
    return item;
}

bool offers(const Menu &menu, std::int32_t reference)
{
    return std::ranges::find(menu.items, reference, &MenuItem::reference) != menu.items.end();
}

// `sameAsUnset` is a choice that says what "not set" says, so that it is not
// offered twice.
void fillPopup(PopupButton *popup, CFBundleRef bundle, JobContext jobContext, Menu menu,
               std::int32_t sameAsUnset, std::initializer_list<MenuItem> further)
{
    if (!popup)
        return;
    for (MenuItem &item : menu.items)
        item.command = kNoCommand;
    if (!offers(menu, kUnset) && !offers(menu, sameAsUnset))
        menu.items.insert(menu.items.begin(), choiceItem(notSetText(bundle, jobContext), kUnset));
    menu.items.insert(menu.items.end(), further);
    popup->setMenu(std::move(menu));
}

} // namespace

void fillStockTypePopup(CFBundleRef bundle, PopupButton *popup, JobContext jobContext)
{
    Menu menu;
    PopulateStockTypeMenu(menu, bundle, jobContext);
    fillPopup(
        popup, bundle, jobContext, std::move(menu), kStockTypeSystemDefault,
        {choiceItem(localizedText(bundle, QStringLiteral("StockTypePrecutTab")),
                    kStockTypePrecutTab),
         choiceItem(localizedText(bundle, QStringLiteral("StockTypeOrdered")), kStockTypeOrdered),
         choiceItem(localizedText(bundle, QStringLiteral("StockTypeCustom")), kStockTypeCustom)});
}

void fillStockColorPopup(CFBundleRef bundle, PopupButton *popup, JobContext jobContext)
{
    Menu menu;
    PopulateStockColorMenu(menu, bundle, jobContext);
    fillPopup(
        popup, bundle, jobContext, std::move(menu), kUnset,
        {choiceItem(localizedText(bundle, QStringLiteral("StockColorCustom")), kStockColorCustom)});
}

void showStockType(CFBundleRef bundle, PopupButton *popup, std::int32_t type)
{
    const bool isDefault = popup && type == kUnset && !offers(popup->menu(), kUnset);
    showChoice(bundle, popup, isDefault ? kStockTypeSystemDefault : type);
}

QString notSetText(CFBundleRef bundle, JobContext jobContext)
{
    return localizedText(bundle,
                         jobContext == kJobContextJob ? QStringLiteral("PrinterDefault")
                                                      : QStringLiteral("UseJobSetting"));
}

} // namespace kelvo
