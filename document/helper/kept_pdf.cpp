#include "kept_pdf.h"

#include <utility>

namespace kelvo::documents {

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

Result<void> KeptPdf::write(const QByteArray &mimeType, const QByteArray &bytes)
{
    if (!m_target)
        return Error{Error::Code::Damaged, m_source, {}};
    auto target = std::exchange(m_target, std::nullopt);
    if (!m_prepared)
        return m_prepared;
    return guarded(m_source, [&]() -> Result<void> {
        embedFile(m_pdf, m_name, mimeType, bytes);
        return writePdf(m_pdf, *target);
    });
}

} // namespace kelvo::documents
