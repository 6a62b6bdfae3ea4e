#pragma once

#include "document_functions.h"

// The functions of the module, each in a file of its own; what they do says
// document_functions.h. Their own namespace keeps them apart from the program's
// functions of the same names, which call them.
namespace kelvo::documents {

Result<PdfPages> tidyPdf(const QString &source, const QString &target);
Result<void> selectPdfPages(const QString &source, const std::vector<PageRun> &runs,
                            const QString &target);
Result<void> convertText(const ConverterFiles &files, const QSizeF &paper,
                         const std::atomic_bool &cancelled);
Result<void> makePicturePdf(const QString &picturePath, const QString &pdfPath);
std::unique_ptr<PdfDrawing> openDrawing(const QString &pdfPath);
Result<bool> holdsEmbeddedFile(const QString &pdfPath, const QString &name);
Result<void> replaceEmbeddedFile(const QString &source, const QString &name,
                                 const QByteArray &mimeType, const QByteArray &bytes,
                                 const QString &target);

} // namespace kelvo::documents
