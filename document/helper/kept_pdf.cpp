#include "kept_pdf.h"

#include "page_layout.h"
#include "tasks.h"

#include <utility>

namespace kelvo::documents {

// The steps for which one must know what goes out.
static Result<void> finish(QPDF &pdf, const PdfLayout &layout, const EmbeddedFile &file,
                           OutputFile &target)
{
    layOutPages(pdf, layout);
    embedFile(pdf, file);
    return writePdf(pdf, target);
}

Result<PdfPages> KeptPdf::tidy(const QString &source, const QString &target,
                               const QStringList &passwords, const QString &written,
                               const QString &name)
{
    auto files = openPdfFiles(source, target, written);
    if (!files)
        return files.error();
    m_source = source;
    m_name = name;
    Result<PdfPages> pages = tidyPdf(m_pdf, files.value(), source, passwords);
    if (pages && pages.value().isSound)
        m_target = std::move(files.value().second);
    return pages;
}

void KeptPdf::prepare()
{
    if (!m_target)
        return;
    m_prepared = guarded(m_source, [this]() -> Result<void> {
        takeEmbeddedFileOut(m_pdf, m_name);
        return {};
    });
}

Result<void> KeptPdf::write(const PdfLayout &layout, const EmbeddedFile &file)
{
    if (!m_target)
        return Error{Error::Code::Damaged, m_source, {}};
    auto target = std::exchange(m_target, std::nullopt);
    if (!m_prepared)
        return m_prepared;
    return guarded(m_source,
                   [&]() -> Result<void> { return finish(m_pdf, layout, file, *target); });
}

Result<void> makePdf(const QString &source, const PdfLayout &layout, const EmbeddedFile &file,
                     const QString &target)
{
    return guarded(source, [&]() -> Result<void> {
        auto files = openPdfFiles(source, target);
        if (!files)
            return files.error();
        QPDF pdf;
        load(pdf, files.value().source);
        takeEmbeddedFileOut(pdf, file.name);
        return finish(pdf, layout, file, *files.value().target);
    });
}

} // namespace kelvo::documents
