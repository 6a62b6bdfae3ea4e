#pragma once

#include "device.h"
#include "event.h"
#include "menu_button.h"
#include "picture_view.h"
#include "stock.h"
#include "summary_view.h"

#include <QPointer>

#include <functional>
#include <vector>

// A button whose menu changes a stock, with the stock's summary and icon beside it.
namespace kelvo {

// What a stock button, its summary and its icon share. It belongs to the panel or
// dialog that shows them, and must stay where it is while they are initialized.
struct _StockMenuCommandEventHandlerData // NOLINT(bugprone-reserved-identifier)
{
    Device device;
    Stock *stock = nullptr; // the owner's
    JobContext jobContext = kJobContextJob;
    bool offersSize = true; // in the advanced selection of a special page's stock
    QPointer<SummaryView> summary;
    QPointer<PictureView> icon;            // may be null
    QPointer<MenuButton> button;           // set by Initialize…
    std::vector<EventHandlerRef> handlers; // set by Initialize…, emptied by Finalize…
    // Called after each command that changed the stock, once summary and icon show
    // it; may be empty.
    std::function<void()> changed;
};

// Fills the button's menu (stockButtonMenu, or the sizes alone), takes its
// commands, and shows the stock. paramErr when button, stock or the device's bundle is missing.
OSStatus InitializeStockMenuButton(MenuButton *button, _StockMenuCommandEventHandlerData *data);
OSStatus InitializeStockSizeMenuButton(MenuButton *button, _StockMenuCommandEventHandlerData *data);
void FinalizeStockMenuButton(_StockMenuCommandEventHandlerData *data);
void FinalizeStockSizeMenuButton(_StockMenuCommandEventHandlerData *data);

// Takes the six stock commands (stock_menus.h); eventNotHandledErr for any other.
OSStatus StockMenuCommandEventHandler(const Event &event, _StockMenuCommandEventHandlerData *data);

// Shows the stock's pictures in the icon.
void StockIconEventHandler(const _StockMenuCommandEventHandlerData &data);
// The same for any stock; `description` is what a screen reader says. Nothing happens
// without an icon or a bundle.
void showStockIcon(CFBundleRef bundle, PictureView *icon, const Stock &stock,
                   const QString &description);

// Puts the stock's summary into the view; an empty one for a null stock. paramErr
// when bundle or view is missing.
OSStatus ShowStockSummary(const Device &device, SummaryView *view, const Stock *stock,
                          JobContext jobContext);
// On the current device.
OSStatus ShowStockSummary(CFBundleRef bundle, SummaryView *view, const Stock *stock,
                          JobContext jobContext);

} // namespace kelvo
