#pragma once

#include "result.h"

#include <QSizeF>
#include <QString>

#include <atomic>
#include <vector>

// What is read of PDFs: in a child process with limits on time and memory. Blocks: for worker
// threads.
namespace kelvo {

struct PdfPages
{
    std::vector<QSizeF> sizes; // points, as shown
    bool isRepaired = false;   // something was missing or wrong and was made good
    bool isSound = false;      // nothing had to change
};

// Checks the PDF at `source` and makes a sound, unencrypted one of it at `target`:
// the same file, moved, where it is sound. Refused when it asks for a password or
// must not be printed, Damaged when it cannot be read or has no page, NotWritable
// when `target` cannot be written, TimedOut and TooLarge when that takes more than a
// child may have (child_process.h).
Result<PdfPages> tidyPdf(const QString &source, const QString &target,
                         const std::atomic_bool &cancelled);

// What a helper has found, with the file moved to `target` where it is sound.
Result<PdfPages> takenWhereSound(Result<PdfPages> pages, const QString &source,
                                 const QString &target);

} // namespace kelvo
