#include "stock_menu_button.h"

#include "custom_stock_size_dialog.h"
#include "picture_view.h"
#include "pictures.h"
#include "popups.h"
#include "stock_dialogs.h"
#include "stock_library.h"
#include "stock_menus.h"
#include "stock_pictures.h"
#include "stock_summary.h"
#include "texts.h"
#include "ticket_places.h"

namespace kelvo {

namespace {

void showStock(const _StockMenuCommandEventHandlerData &data)
{
    if (data.summary)
        ShowStockSummary(data.device, data.summary, data.stock, data.jobContext);
    StockIconEventHandler(data);
}

// A special page's paper stands in a list, with the rest of that page.
void tellTicketPlaces(MenuButton *button)
{
    const TicketPlace color{kPPDChoices, QStringLiteral("MediaColor")};
    const TicketPlace type{kPPDChoices, QStringLiteral("MediaType")};
    setTicketPlaces(button, {color}, kCommandStockColor);
    setTicketPlaces(button, {type}, kCommandStockType);
    setTicketPlaces(button, {color, type}, kCommandStockDefault);
}

OSStatus initializeButton(MenuButton *button, _StockMenuCommandEventHandlerData *data,
                          Menu (*menuFor)(const Device &, JobContext))
{
    if (!button || !data || !data->device.bundle || !data->stock)
        return paramErr;
    FinalizeStockMenuButton(data);
    data->button = button;
    button->setMenu(menuFor(data->device, data->jobContext));
    if (data->jobContext == kJobContextJob)
        tellTicketPlaces(button);
    button->setMenuUpdate([data](Menu &menu) { markStockMenu(menu.items, *data->stock); });
    data->handlers.push_back(installEventHandler(
        button, [data](const Event &event) { return StockMenuCommandEventHandler(event, data); }));
    showStock(*data);
    return noErr;
}

// Width and length are asked for, and only then the size is a custom one.
OSStatus takeCustomSize(_StockMenuCommandEventHandlerData &data)
{
    Stock &stock = *data.stock;
    stock.setSource(kUnset);
    std::int32_t width = stock.width();
    std::int32_t length = stock.length();
    DialogResult result = DialogResult::Cancel;
    const OSStatus status =
        RunModalCustomStockSizeDialog(data.device, &result, &width, &length, data.button);
    if (status == noErr && result == DialogResult::OK) {
        stock.setSize(kStockSizeCustom);
        stock.setWidth(width);
        stock.setLength(length);
    }
    forgetStockName(stock);
    return status;
}

} // namespace

OSStatus InitializeStockMenuButton(MenuButton *button, _StockMenuCommandEventHandlerData *data)
{
    return initializeButton(button, data, stockButtonMenu);
}

OSStatus InitializeStockSizeMenuButton(MenuButton *button, _StockMenuCommandEventHandlerData *data)
{
    return initializeButton(button, data, [](const Device &device, JobContext jobContext) {
        Menu menu;
        PopulateStockSizeMenu(menu, device, jobContext);
        return menu;
    });
}

void FinalizeStockMenuButton(_StockMenuCommandEventHandlerData *data)
{
    if (!data)
        return;
    data->handlers.clear();
    if (data->button)
        data->button->setMenuUpdate({});
    data->button.clear();
}

void FinalizeStockSizeMenuButton(_StockMenuCommandEventHandlerData *data)
{
    FinalizeStockMenuButton(data);
}

OSStatus StockMenuCommandEventHandler(const Event &event, _StockMenuCommandEventHandlerData *data)
{
    if (event.kind != EventKind::Command || !data || !data->stock)
        return eventNotHandledErr;
    OSStatus status = noErr;
    const Stock before = *data->stock;
    if (event.command == kCommandStockAdvanced) {
        DialogResult result = DialogResult::Cancel;
        status = RunModalAdvancedStockSelection(data->device, kDialogModeEdit, data->jobContext,
                                                kNamedPaperLibrary, data->stock, &result,
                                                data->button, data->offersSize);
        if (status != noErr || result != DialogResult::OK)
            return status;
        forgetStockName(*data->stock);
    } else if (event.command == kCommandStockSize && event.reference == kStockSizeCustom) {
        status = takeCustomSize(*data);
    } else if (!applyStockCommand(*data->stock, event.command, event.reference, data->jobContext)) {
        return eventNotHandledErr;
    }
    if (event.command != kCommandStockAdvanced)
        leaveLibrary(*data->stock, before, readStockLibrary(),
                     ownSizeFor(data->jobContext, data->offersSize));
    showStock(*data);
    if (data->changed)
        data->changed();
    return status;
}

void StockIconEventHandler(const _StockMenuCommandEventHandlerData &data)
{
    if (data.icon && data.stock)
        showStockIcon(data.device.bundle, data.icon, *data.stock,
                      stockSummaryText(data.device, data.jobContext, data.stock));
}

void showStockIcon(CFBundleRef bundle, PictureView *icon, const Stock &stock,
                   const QString &description)
{
    if (!bundle || !icon)
        return;
    QStringList files;
    for (const QString &name : stockPictures(stock)) {
        const QString file = pictureFile(bundle->resourcesPath(), name);
        if (!file.isEmpty())
            files << file;
    }
    QStringList words;
    for (const QString &line : description.split(u'\n'))
        words << (line.startsWith(QLatin1String("- ")) ? line.mid(2) : line);
    icon->setPictures(files, separated(words));
}

OSStatus ShowStockSummary(const Device &device, SummaryView *view, const Stock *stock,
                          JobContext jobContext)
{
    if (!device.bundle || !view)
        return paramErr;
    return UpdateSummaryTextView(view, stockSummaryText(device, jobContext, stock));
}

OSStatus ShowStockSummary(CFBundleRef bundle, SummaryView *view, const Stock *stock,
                          JobContext jobContext)
{
    return ShowStockSummary(currentDevice(bundle), view, stock, jobContext);
}

} // namespace kelvo
