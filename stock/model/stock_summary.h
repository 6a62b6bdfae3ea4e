#pragma once

#include "custom_size.h"
#include "device.h"
#include "setting_map.h"
#include "stock.h"

#include <QString>

namespace kelvo {

// One line for each thing that the stock says, joined by `separator`:
//
//   its name ("Name: My card"); the size, but for the job's own stock, whose size
//   belongs to the page set-up; colour; type. A stock known by its name alone
//   shows nothing else, one from the post-print inserter only that, and one from
//   another source nothing.
//
// What is not set has no line; for the job an unset colour or type is a line
// without text.
QString GenerateStockSummary(const Device &device, JobContext jobContext, const Stock &stock,
                             const QString &separator);
// The same on the current device.
QString GenerateStockSummary(CFBundleRef bundle, JobContext jobContext, const Stock &stock,
                             const QString &separator);

// What the stock says of one of them; empty where it says nothing, or what the device
// does not have.
QString stockSizeText(const Device &device, const Stock &stock);
QString stockColorText(const Device &device, const Stock &stock);
QString stockTypeText(const Device &device, const Stock &stock); // "Precut tab (5)"

// The size as the stock dialogs show it: width and length of a custom one, in `unit`, and in
// words also that there is none or none that the device knows.
QString stockSizeWords(const Device &device, JobContext jobContext, const Stock &stock,
                       SizeUnit unit);

// "White, Plain": the job's paper in a line, for those who can leave it to the job; empty
// where that says nothing, and for null.
QString jobPaperText(const Device &device, const Stock *jobStock);

// What a summary view shows for it: the lines, or where there are none "printer
// default" (the job) or "use job setting". Empty for null.
QString stockSummaryText(const Device &device, JobContext jobContext, const Stock *stock);

} // namespace kelvo
