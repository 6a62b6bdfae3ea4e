#include "kept_pdf.h"
#include "pdf_file.h"
#include "shown_page.h"
#include "tasks.h"
#include "texts.h"

#include <unistd.h>

namespace kelvo::documents {

namespace {

bool beginsWithHeader(std::FILE *source)
{
    constexpr QByteArrayView header("%PDF-");
    char begin[header.size()];
    return ::pread(::fileno(source), begin, sizeof begin, 0) == header.size()
        && QByteArrayView(begin, header.size()) == header;
}

} // namespace

Result<PdfPages> tidyPdf(QPDF &pdf, PdfFiles &files, const QString &source,
                         const QStringList &passwords)
{
    Result<PdfPages> tidied = guarded(source, [&]() -> Result<PdfPages> {
        const bool hasHeader = beginsWithHeader(files.source);
        load(pdf, files.source, passwords);
        if (!mayPrint(pdf)) {
            return Error{
                Error::Code::Refused, source,
                translate("Document", "the author of the document does not allow printing it")};
        }

        PdfPages pages;
        for (const QPDFObjectHandle &page : pdf.getAllPages())
            pages.sizes.push_back(shownPage(page).size());
        if (pages.sizes.empty())
            return Error{Error::Code::Damaged, source,
                         translate("Document", "the document has no pages")};

        pages.isRepaired = pdf.anyWarnings();
        pages.isSound = !pages.isRepaired && !pdf.isEncrypted() && hasHeader;
        if (pages.isSound)
            return pages;
        if (Result<void> written = writePdf(pdf, *files.target); !written)
            return written.error();
        return pages;
    });
    if (tidied || tidied.error().code != Error::Code::Locked || passwords.isEmpty())
        return tidied;
    return Error{Error::Code::Locked, source,
                 translate("Document", "the document is locked with another password")};
}

Result<PdfPages> tidyPdf(const QString &source, const QString &target, const QStringList &passwords)
{
    auto files = openPdfFiles(source, target);
    if (!files)
        return files.error();
    QPDF pdf;
    return tidyPdf(pdf, files.value(), source, passwords);
}

} // namespace kelvo::documents
