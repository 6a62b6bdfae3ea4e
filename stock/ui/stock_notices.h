#pragma once

#include "bundle.h"
#include "stock_library.h"
#include "stock_properties.h"

class QWidget;

// What the stock dialogs say when something cannot be done; nothing for None.
namespace kelvo {

void showStockProblem(CFBundleRef bundle, StockProblem problem, QWidget *parent);
// `name` is the stock's that was to be saved or removed.
void showLibraryProblem(CFBundleRef bundle, LibraryProblem problem, const QString &name,
                        QWidget *parent);

// Asks before the library loses the stock of that name.
enum class LibraryChange { Replace, Remove };
bool mayChangeLibrary(CFBundleRef bundle, LibraryChange change, const QString &name,
                      QWidget *parent);

} // namespace kelvo
