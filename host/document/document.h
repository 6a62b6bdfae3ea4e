#pragma once

#include "page_ranges.h"
#include "result.h"

#include <QSizeF>
#include <QString>

#include <atomic>
#include <memory>
#include <vector>

namespace kelvo {

// What the user prints, as a PDF in a private 0600 file that goes when the last
// copy of this goes. A value; cheap to copy; never changes.
class Document
{
public:
    QString title() const;
    QString pdfPath() const;
    int pageCount() const;
    QSizeF pageSize(int page) const; // points, as shown (rotation counted); page from 1
    bool isNull() const { return !d; }

    // The same pages cut to `runs`: what is really printed.
    Result<Document> withPages(const std::vector<PageRun> &runs) const;

private:
    friend class DocumentReader;
    friend Result<Document> documentFromPdf(const QString &path, const QString &title);
    struct Data;
    std::shared_ptr<const Data> d;
};

// A PDF that is checked, copied and counted. Damaged where neither qpdf nor
// poppler reads it, Refused when it asks for a password.
Result<Document> documentFromPdf(const QString &path, const QString &title);

// Where a document comes from.
struct DocumentSource
{
    QString path;  // "-" or empty: standard input
    QString title; // empty: the file's name, "(stdin)" for standard input
};

// Reads PDF, PostScript, plain text (UTF-8, else Latin-1) and pictures, told
// apart by their bytes, and makes a PDF of each: PostScript through Ghostscript
// and pictures in a child process with limits on time, memory and size. Blocks:
// call it on a worker thread; `cancelled` is looked at now and then.
Result<Document> openDocument(const DocumentSource &source, const std::atomic_bool &cancelled);

// The one entry of the child process that decodes pictures: main() calls it for
// its hidden option and exits with the result.
int runPictureHelper(const QString &picturePath, const QString &pdfPath);

} // namespace kelvo
