#pragma once

#include "document_files.h"
#include "outgoing_pdf.h"
#include "pdf_pages.h"
#include "picture_import.h"
#include "result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// What the helpers do, each task in a file of its own: it opens its files, lets go of
// the right to open any other (confinement.h), and only then looks at what is in them.
// Their own namespace keeps them apart from the program's functions of the same names,
// which ask for them and say what they do.
namespace kelvo::documents {

Result<PdfPages> tidyPdf(const QString &source, const QString &target,
                         const QStringList &passwords);
Result<void> joinPdfs(const QStringList &sources, const QString &target);
// Without the second look, which is checkEmbeddedFile(), in another process.
Result<void> makePdf(const QString &source, const PdfLayout &layout, const EmbeddedFile &file,
                     const QString &target);
// Whether the only embedded file `name` has these `bytes`, or with null `bytes` there
// is none; else Refused.
Result<void> checkEmbeddedFile(const QString &pdfPath, const QString &name,
                               const QByteArray &bytes);
Result<void> convertText(const ConverterFiles &files, const QSizeF &paper);
// The value is how many files that the picture names were left out of it.
Result<int> convertPicture(const ConverterFiles &files);
// Of the open file; errors are of nothing in particular.
Result<ImportedPicture> importPicture(int descriptor);

} // namespace kelvo::documents
