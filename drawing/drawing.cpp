#include "drawing.h"

#include "library_entry.h"
#include "part_library.h"
#include "texts.h"

#include <QtGlobal>

namespace kelvo::drawing {

namespace {

// `fileName` and `entry` of one of the two.
constexpr PartLibrary partThatDraws(const char *fileName, const char *entry)
{
    return {fileName,
            entry,
            "Drawing",
            QT_TRANSLATE_NOOP("Drawing",
                              "this part that draws is not installed beside the "
                              "program’s libraries; install kelvo-print anew"),
            QT_TRANSLATE_NOOP("Drawing",
                              "this part that draws cannot be loaded (%1); install "
                              "kelvo-print anew, with the packages that it needs"),
            QT_TRANSLATE_NOOP("Drawing",
                              "this is not the part that draws of kelvo-print %1; "
                              "install kelvo-print anew")};
}
constexpr PartLibrary drawingLibrary = partThatDraws("libkelvo_drawing.so", drawingEntry);
constexpr PartLibrary pdfViewLibrary = partThatDraws("libkelvo_pdf_view.so", pdfViewEntry);

} // namespace

Result<const Library *> library(const QString &folder)
{
    return openPart<Library>(drawingLibrary, folder);
}

Result<Picture> showPdf(const QByteArray &pdf, const QSize &pixels, bool isOnWhite,
                        const QString &folder)
{
    if (pixels.isEmpty())
        return Picture{};
    const Result<const PdfView *> view = openPart<PdfView>(pdfViewLibrary, folder);
    return view ? view.value()->show(pdf, pixels, isOnWhite) : view.error();
}

LibraryVersions libraryVersions(const QString &folder)
{
    LibraryVersions versions;
    if (const auto drawing = library(folder))
        versions.insert(drawing.value()->versions());
    if (const auto view = openPart<PdfView>(pdfViewLibrary, folder))
        versions.insert(view.value()->versions());
    return versions;
}

Result<std::unique_ptr<Page>> Library::beginPage(const QSizeF &size, Writer writer) const
{
    for (const double side : {size.width(), size.height()}) {
        if (!(side > 0 && side <= longestSide)) {
            return Error{
                Error::Code::OutOfRange, translate("Drawing", "page"),
                translate("Drawing", "a side of %1 points; draw one of more than 0 and at most %2")
                    .arg(side)
                    .arg(longestSide)};
        }
    }
    return makePage(size, std::move(writer));
}

} // namespace kelvo::drawing
