#pragma once

#include "page_ranges.h"
#include "result.h"

#include <QSizeF>
#include <QString>

#include <vector>

// The only code that edits the pages of PDFs. libqpdf throws; nothing leaves here.
namespace kelvo {

struct PdfPages
{
    std::vector<QSizeF> sizes; // points, as shown
    bool isRepaired = false;   // something was missing or wrong and was made good
};

// Checks the PDF at `source` and makes a sound, unencrypted one of it at `target`:
// the same file, moved, where nothing had to change. Refused when it asks for a
// password or must not be printed, Damaged when it cannot be read or has no
// page, NotWritable when `target` cannot be written.
Result<PdfPages> tidyPdf(const QString &source, const QString &target);

// A PDF at `target` of the pages that `runs` name, in their order. What belongs
// to the other pages alone is not in it.
Result<void> selectPdfPages(const QString &source, const std::vector<PageRun> &runs,
                            const QString &target);

} // namespace kelvo
