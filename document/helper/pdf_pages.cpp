#include "kept_pdf.h"
#include "pdf_file.h"
#include "tasks.h"
#include "texts.h"

#include <QRectF>

#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <algorithm>
#include <cmath>
#include <unistd.h>

namespace kelvo::documents {

namespace {

// What viewers take for a page without a sensible size of its own.
constexpr QSizeF fallbackSize(612, 792); // points, US Letter

// `box` in whole, or nothing where it is no rectangle with an area.
QRectF rectangle(QPDFObjectHandle box)
{
    if (!box.isRectangle())
        return {};
    const auto corners = box.getArrayAsRectangle();
    return QRectF(QPointF(corners.llx, corners.lly), QPointF(corners.urx, corners.ury))
        .normalized();
}

double number(QPDFObjectHandle object, double otherwise)
{
    return object.isNumber() ? object.getNumericValue() : otherwise;
}

QSizeF shownSize(QPDFPageObjectHelper &page)
{
    const QRectF media = rectangle(page.getAttribute("/MediaBox", false));
    const QRectF crop = rectangle(page.getAttribute("/CropBox", false));
    const QRectF shown = crop.isEmpty() ? media : media.isEmpty() ? crop : crop & media;
    const double unit = number(page.getObjectHandle().getKey("/UserUnit"), 1);
    const QSizeF size = (shown.isEmpty() ? media.size() : shown.size()) * unit;
    // Three points are the smallest page that PDF knows; NaN fails both.
    if (!(size.width() >= 3 && size.height() >= 3) || !std::isfinite(size.width() * size.height()))
        return fallbackSize;
    const double turn = number(page.getAttribute("/Rotate", false), 0);
    const bool isSideways = std::isfinite(turn) && std::abs(std::fmod(turn, 180)) == 90;
    return isSideways ? size.transposed() : size;
}

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
        for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(pdf).getAllPages())
            pages.sizes.push_back(shownSize(page));
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

Result<void> selectPdfPages(const QString &source, const std::vector<PageRun> &runs,
                            const QString &target)
{
    return guarded(source, [&]() -> Result<void> {
        auto files = openPdfFiles(source, target);
        if (!files)
            return files.error();
        QPDF pdf;
        load(pdf, files.value().source);
        QPDFPageDocumentHelper helper(pdf);
        // The document is cut in place, not copied page by page: layers that are
        // switched off and form fields live in its catalog.
        std::vector<QPDFPageObjectHelper> pages = helper.getAllPages();
        // From the end, because what follows a page is renumbered.
        for (auto page = pages.rbegin(); page != pages.rend(); ++page)
            helper.removePage(*page);

        std::vector<bool> isKept(pages.size());
        for (const PageRun &run : runs) {
            for (int number = run.first; number <= run.last; ++number) {
                const auto index = static_cast<std::size_t>(number - 1);
                helper.addPage(pages.at(index), false); // a page named twice becomes a copy
                isKept[index] = true;
            }
        }

        // Bookmarks, links and form fields still point at the other pages and
        // would keep their contents in the file.
        for (std::size_t index = 0; index < pages.size(); ++index) {
            if (!isKept[index]) {
                pdf.replaceObject(pages[index].getObjectHandle().getObjGen(),
                                  QPDFObjectHandle::newNull());
            }
        }
        pdf.getRoot().removeKey("/PageLabels"); // they count the pages that were
        return writePdf(pdf, *files.value().target);
    });
}

} // namespace kelvo::documents
