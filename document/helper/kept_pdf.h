#pragma once

#include "outgoing_pdf.h"
#include "pdf_file.h"
#include "pdf_pages.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace kelvo::documents {

// The steps of which tasks on PDFs are made. They throw what libqpdf throws.

// Loads `pdf` from the source of `files` and looks at it, as tidyPdf() of document/pdf_pages.h
// says; one that is not sound is written to their target. Errors are about `source`.
Result<PdfPages> tidyPdf(QPDF &pdf, PdfFiles &files, const QString &source,
                         const QStringList &passwords);
// Every file that a reader could find under `name`, and what stands for it.
void takeEmbeddedFileOut(QPDF &pdf, const QString &name);
// Writes the document's list of files anew, with `file`, where it has bytes.
void embedFile(QPDF &pdf, const EmbeddedFile &file);

// A PDF that is read once: it is checked, and kept until it is known what goes into it.
class KeptPdf
{
public:
    // As tidyPdf() of tasks.h. One that is sound is kept, for write() to make a PDF at
    // `written` of it.
    Result<PdfPages> tidy(const QString &source, const QString &target,
                          const QStringList &passwords, const QString &written,
                          const QString &name);
    // Takes the file called `name` out of what was kept; nothing where nothing is.
    void prepare();
    // Once, after prepare(): as makePdf() does it, with a file of the name that tidy() was told.
    // Damaged also where nothing was kept.
    Result<void> write(const PdfLayout &layout, const EmbeddedFile &file);

private:
    QPDF m_pdf;
    std::optional<OutputFile> m_target; // none: nothing is kept
    QString m_source, m_name;
    Result<void> m_prepared;
};

} // namespace kelvo::documents
