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

// Shows the type as showChoice does; one that is not set as the printer's default.
void showStockType(CFBundleRef bundle, PopupButton *popup, std::int32_t type);

// "Printer default" for the job, "Use job setting" for a special page.
QString notSetText(CFBundleRef bundle, JobContext jobContext);

} // namespace kelvo
