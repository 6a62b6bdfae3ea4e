#pragma once

#include "result.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

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
// the same file, moved, where it is sound. Locked when it asks for a password and none
// of `passwords` is right, Refused when it must not be printed and none of them is its
// owner's, Damaged when it cannot be read or has no page, NotWritable when `target`
// cannot be written, TimedOut and TooLarge when that takes more than a child may have
// (child_process.h).
Result<PdfPages> tidyPdf(const QString &source, const QString &target, const QStringList &passwords,
                         const std::atomic_bool &cancelled);

// What a helper has found, with the file moved to `target` where it is sound.
Result<PdfPages> takenWhereSound(Result<PdfPages> pages, const QString &source,
                                 const QString &target);

// A PDF at `target` of all pages of `sources`, one after the other. Each document keeps what
// is typed into its fields, what it shows of its layers, and where its links lead, whatever
// the others have under the same names.
Result<void> joinPdfs(const QStringList &sources, const QString &target,
                      const std::atomic_bool &cancelled);

} // namespace kelvo
