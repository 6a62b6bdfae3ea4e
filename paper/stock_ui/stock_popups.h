#pragma once

#include "bundle.h"
#include "popup_button.h"
#include "setting_map.h"

// Pop-ups of a stock's type and colour, as the stock dialogs show them. They send
// no commands: what was chosen counts with OK.
namespace kelvo {

// The choices of the PPD with "not set" among them, and those types and that
// colour that only a stock has.
void fillStockTypePopup(CFBundleRef bundle, PopupButton *popup, JobContext jobContext);
void fillStockColorPopup(CFBundleRef bundle, PopupButton *popup, JobContext jobContext);

// Shows `value`; one that is not offered shows nothing. A type that is not set
// shows as the printer's default.
void showStockType(PopupButton *popup, std::int32_t type);
void showStockColor(PopupButton *popup, std::int32_t color);

// "Printer default" for the job, "Use job setting" for a special page.
QString notSetText(CFBundleRef bundle, JobContext jobContext);

} // namespace kelvo
