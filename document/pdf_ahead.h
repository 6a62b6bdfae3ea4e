#pragma once

#include "outgoing_pdf.h"
#include "pdf_helpers.h"
#include "pdf_pages.h"

#include <atomic>

namespace kelvo {

// A PDF that is read once, for two purposes: it is checked when it is opened, and kept by the
// helper that did so, until it is known what is written into it. For documents that are printed as
// soon as the settings are there: a document that is kept takes memory, in the helper.
class PdfAhead
{
public:
    // `name` is that of the embedded file that will be replaced.
    PdfAhead(PdfHelpers helpers, const QString &name);

    // As tidyPdf() of pdf_pages.h, with another file in the folder of `target`.
    Result<PdfPages> tidy(const QString &source, const QString &target,
                          const QStringList &passwords, const std::atomic_bool &cancelled);
    // The path of a PDF that makeOutgoingPdf() would make of the one that was tidied, or its error.
    // Once, and only of one that was sound, with a file of the constructor's name; whatever the
    // error says, the PDF can be made anew then.
    Result<QString> write(const PdfLayout &layout, const EmbeddedFile &file);

private:
    PdfHelpers m_helpers;
    const QString m_name;
    QString m_written; // empty: nothing is kept
    std::atomic_bool m_isUsed = false;
};

} // namespace kelvo
