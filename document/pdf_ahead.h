#pragma once

#include "document_helper.h"
#include "pdf_pages.h"

#include <atomic>
#include <memory>

namespace kelvo {

// A PDF that is read once, for two purposes: it is checked when it is opened, and kept by the
// helper that did so, until it is known what is written into it. For documents that are printed as
// soon as the settings are there: a document that is kept takes memory, in the helper.
class PdfAhead
{
public:
    // Starts the helpers: one that reads and writes, and one that looks again. They end with the
    // calling thread. `name` is that of the embedded file that will be replaced. Null: they cannot
    // be started; whoever reads the document without them says why.
    static std::shared_ptr<PdfAhead> start(const QString &name);

    // As tidyPdf() of pdf_pages.h, with another file in the folder of `target`.
    Result<PdfPages> tidy(const QString &source, const QString &target,
                          const std::atomic_bool &cancelled);
    // The path of a PDF that replaceEmbeddedFile() (embedded_files.h) would make of the one that
    // was tidied, or its error. Once, and only of one that was sound; whatever the error says, the
    // file can be made anew then.
    Result<QString> write(const QByteArray &mimeType, const QByteArray &bytes);

private:
    PdfAhead(const QString &name, RunningHelper &&writer, RunningHelper &&checker);

    const QString m_name;
    RunningHelper m_writer, m_checker;
    QString m_written; // empty: nothing is kept
    std::atomic_bool m_isUsed = false;
};

} // namespace kelvo
