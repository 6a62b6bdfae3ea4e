#pragma once

#include "device.h"
#include "status.h"
#include "stock.h"

class QWidget;

// What a stock is, beyond the menu of its button. `result` is OK or Cancel;
// nothing changes on Cancel. paramErr when a pointer is missing, kWindowNotMade
// when the window is.
namespace kelvo {

// Which named stocks a dialog offers: 1, those of the user's library.
enum NamedPaperContext : std::int32_t { kNamedPaperLibrary = 1 };

// Description, weight, coating, finish, grain, punched and comment.
OSStatus RunModalStockDescriptionSetup(const Device &device, DialogMode mode, JobContext jobContext,
                                       Stock *stock, DialogResult *result,
                                       QWidget *parent = nullptr);

// Type, with the name and the number of tabs of those types that have them.
OSStatus RunModalStockTypeSetup(const Device &device, DialogMode mode, JobContext jobContext,
                                Stock *stock, DialogResult *result, QWidget *parent = nullptr);

// All of the stock, with the library of named stocks. No size is offered for the job,
// and none where `offersSize` is false.
OSStatus RunModalAdvancedStockSelection(const Device &device, DialogMode mode,
                                        JobContext jobContext, NamedPaperContext namedPapers,
                                        Stock *stock, DialogResult *result,
                                        QWidget *parent = nullptr, bool offersSize = true);
// On the current device.
inline OSStatus RunModalAdvancedStockSelection(CFBundleRef bundle, DialogMode mode,
                                               JobContext jobContext, NamedPaperContext namedPapers,
                                               Stock *stock, DialogResult *result)
{
    return RunModalAdvancedStockSelection(currentDevice(bundle), mode, jobContext, namedPapers,
                                          stock, result);
}

} // namespace kelvo
