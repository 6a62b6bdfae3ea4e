#pragma once

#include "result.h"

#include <QByteArray>
#include <QString>

// Files inside PDFs. A file counts as named so where any reader could find it under
// that name: in the document's list of files, sorted or not, at a page, a picture or a
// note, in any text encoding, in capitals or not, with folders before it.
namespace kelvo {

// A new PDF at `target`: the one at `source` with `bytes` as its only embedded file
// `name`, of type `mimeType`; with null `bytes` it has none. Notes that stand for such
// a file go with it, and so does all that no longer belongs to the document, such as
// what its earlier revisions held. Damaged for what cannot be read; NotWritable about
// `target`; Refused, and no file at `target`, when a second look at what was written
// finds another one; and the errors of runChild(). Blocks: for worker threads.
Result<void> replaceEmbeddedFile(const QString &source, const QString &name,
                                 const QByteArray &mimeType, const QByteArray &bytes,
                                 const QString &target);

} // namespace kelvo
