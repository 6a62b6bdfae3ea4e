#pragma once

#include "pdf_layout.h"
#include "result.h"

#include <QByteArray>
#include <QString>

// The PDF that goes out: pages are laid out and a file is put in while the document is read and
// written once. What has laid it out is not what looks at it then.
namespace kelvo {

// A file inside a PDF. It counts as named so where any reader could find it under that name: in
// the document's list of files, sorted or not, at a page, a picture or a note, in any text
// encoding, in capitals or not, with folders before it.
struct EmbeddedFile
{
    QString name;
    QByteArray mimeType;
    QByteArray bytes; // null: the PDF has no file of that name
};

// A new PDF at `target`: the one at `source`, laid out as `layout` says, with `file` as its only
// embedded file of that name. Notes that stand for another one go with it, and so does all that no
// longer belongs to the document, such as what its earlier revisions held, and pages that
// `layout` leaves out. Damaged for what cannot be read; NotWritable about `target`; Refused, and no
// file at `target`, when a second look at what was written finds another file of that name; and the
// errors of runChild(). `layout` must have passed checkLayout(). Blocks: for worker threads.
//
// A page that is placed becomes one form, however often it is printed, drawn with its annotations
// and form fields. Where a layout is not the document as it is, its structure tree, whose
// marks lie elsewhere then, is left out, and where a page is placed, its XFA form, which would
// be shown in the pages' place.
Result<void> makeOutgoingPdf(const QString &source, const PdfLayout &layout,
                             const EmbeddedFile &file, const QString &target);

} // namespace kelvo
