#pragma once

#include "document_kind.h"
#include "result.h"

#include <QRectF>
#include <QSizeF>
#include <QString>

#include <atomic>

// What the readers of documents share.
namespace kelvo {

// What a converter works on. Every path is ours, inside one private folder;
// nothing that the user named is among them.
struct ConverterFiles
{
    QString folder;
    QString source; // a copy of what the user chose
    QString pdf;    // to be made
    QString where;  // how messages name the user's file
};

// A4, or US Letter where the locale (LC_PAPER) says so; points, portrait.
QSizeF localePaper();
inline constexpr QSizeF kA4(595.276, 841.89);
inline constexpr QSizeF kLetter(612, 792);

// What the user chose, open for reading.
struct OpenSource
{
    int fd = -1;
    QString where;      // how messages name it
    int patienceMs = 0; // how long it may send nothing; 0: for ever
};

// Reads `source` to its end into a new 0600 file `target`. Its kind is told by the
// first bytes; what is not printed, or is larger than its kind may be, is
// refused before it is copied.
Result<DocumentKind> copySource(const OpenSource &source, const QString &target,
                                const std::atomic_bool &cancelled);

// An Error of a converter that failed: a full disk speaks through strange
// messages, so it is looked for first.
Error converterError(Error::Code code, const ConverterFiles &files, const QString &detail);

// Each makes the PDF at `files.pdf`, in a child process.
Result<void> convertText(const ConverterFiles &files, const QSizeF &paper,
                         const std::atomic_bool &cancelled);
Result<void> convertPostScript(const ConverterFiles &files, const QSizeF &paper,
                               const std::atomic_bool &cancelled);
// The value is a sentence on what was left out of the picture; mostly empty.
Result<QString> convertPicture(const ConverterFiles &files, const std::atomic_bool &cancelled);

// Where a picture of `size` (points, at its own resolution) lies.
struct PicturePlacement
{
    QSizeF paper;   // turned to landscape for a wide picture
    QRectF picture; // centred; made smaller to fit, never larger
};
PicturePlacement placePicture(const QSizeF &size, const QSizeF &paper);

} // namespace kelvo
