#pragma once

#include "document_files.h"
#include "pdf_pages.h"
#include "result.h"

#include <QByteArray>
#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

// What the module KelvoDocuments does for the program. The libraries that read
// and draw documents bring dozens of others with them, and nothing of them is needed
// before a document is opened: the module is loaded then.
namespace kelvo {

// A PDF whose pages are drawn. For one thread.
class PdfDrawing
{
public:
    virtual ~PdfDrawing() = default;

    // `page` from 1, fitted into `pixels`. Null when it cannot be drawn, or is no
    // longer wanted: `isAbandoned` is asked while it is drawn.
    virtual QImage draw(int page, const QSize &pixels,
                        const std::function<bool()> &isAbandoned) = 0;
};

// None of them throws. They may be called on any thread, also at the same time.
struct DocumentFunctions
{
    Result<PdfPages> (*tidyPdf)(const QString &source, const QString &target); // pdf_pages.h
    Result<void> (*selectPdfPages)(const QString &source, const std::vector<PageRun> &runs,
                                   const QString &target);
    Result<void> (*convertText)(const ConverterFiles &files, const QSizeF &paper,
                                const std::atomic_bool &cancelled); // document_files.h
    // The picture at `picturePath` as a PDF; in the child process only.
    Result<void> (*makePicturePdf)(const QString &picturePath, const QString &pdfPath);
    // Null for what cannot be read.
    std::unique_ptr<PdfDrawing> (*openDrawing)(const QString &pdfPath);
    // Whether the PDF has an embedded file `name`, in capitals or not. Damaged for
    // what cannot be read.
    Result<bool> (*holdsEmbeddedFile)(const QString &pdfPath, const QString &name);
    // A new PDF at `target`: the one at `source` with `bytes` as its only embedded
    // file `name`, of type `mimeType`; with null `bytes` it has none. Damaged, or
    // NotWritable about `target`.
    Result<void> (*replaceEmbeddedFile)(const QString &source, const QString &name,
                                        const QByteArray &mimeType, const QByteArray &bytes,
                                        const QString &target);
};

// The module's, which is loaded with the first call and stays. NotFound when it is
// not beside the program, Damaged when it cannot be loaded or is of another
// version. Every call after a failure tries again. Blocks for some milliseconds:
// not for the GUI thread. Needs the application object.
Result<const DocumentFunctions *> documentFunctions();

// In place of ../lib/KelvoDocuments.so and ../lib/kelvo/KelvoDocuments.so beside
// the program; empty: those. Changes nothing once the module is loaded.
void setDocumentModule(const QString &path);

// The module's only entry, with this name; null for a program of another
// `version` than its own.
using DocumentModuleEntry = const DocumentFunctions *(*)(const char *version);
inline constexpr const char *kDocumentModuleEntry = "kelvoDocumentFunctions";

} // namespace kelvo
