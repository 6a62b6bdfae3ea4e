#pragma once

#include "result.h"

#include <QByteArray>
#include <QString>

// Files inside PDFs. A file counts as named so where any reader could find it under
// that name: in the document's list of files, sorted or not, at a page, a picture or a
// note, in any text encoding, in capitals or not, with folders before it. Each runs in
// a child process; Damaged for what cannot be read, and the errors of runChild().
// Block: for worker threads.
namespace kelvo {

Result<bool> holdsEmbeddedFile(const QString &pdfPath, const QString &name);

// A new PDF at `target`: the one at `source` with `bytes` as its only embedded file
// `name`, of type `mimeType`; with null `bytes` it has none. Notes that stand for such
// a file go with it. NotWritable about `target`; Refused, and no file at `target`, when
// a second look at what was written finds another one.
Result<void> replaceEmbeddedFile(const QString &source, const QString &name,
                                 const QByteArray &mimeType, const QByteArray &bytes,
                                 const QString &target);

} // namespace kelvo
