#pragma once

#include "compiled_windows.h"

class QWidget;

namespace kelvo {

class DescribedWidgets;

// The window of `windows` whose steps are those of `window`, a row of it, with its texts as they
// stand in the description: as Qt's own loader makes it of the .ui file. Widgets come from
// `widgets`, which has a problem where one of them cannot be made; a plain one stands there then.
// `parent` may be null: the caller owns the window.
QWidget *buildWindow(const CompiledWindows &windows, const CompiledWindow &window,
                     DescribedWidgets &widgets, QWidget *parent);

} // namespace kelvo
