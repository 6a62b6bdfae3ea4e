#include "drawing.h"

#include "library_entry.h"
#include "texts.h"

#include <QFileInfo>
#include <QLibrary>

namespace kelvo::drawing {

namespace {

// What the library `name` in `folder` has for this version. A file that is open already is
// not opened again.
template <typename Part>
Result<const Part *> open(const QString &folder, QLatin1String name, const char *entryName)
{
    const QString path = folder + QLatin1Char('/') + name;
    if (!QFileInfo::exists(path)) {
        return Error{Error::Code::NotFound, path,
                     translate("Drawing",
                               "this part that draws is not installed beside the "
                               "program's libraries; install kelvo-print anew")};
    }
    QLibrary file(path);
    // A symbol that is missing shows here and not in the middle of a page; fonts that are
    // in use outlive whoever has drawn.
    file.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    if (!file.load()) {
        return Error{Error::Code::NotReadable, path,
                     translate("Drawing",
                               "this part that draws cannot be loaded (%1); install "
                               "kelvo-print anew, with the packages that it needs")
                         .arg(file.errorString())};
    }
    auto *entry = reinterpret_cast<Entry<Part> *>(file.resolve(entryName));
    const Part *part = entry ? entry(KELVO_VERSION) : nullptr;
    if (!part) {
        return Error{Error::Code::Damaged, path,
                     translate("Drawing",
                               "this is not the part that draws of kelvo-print %1; "
                               "install kelvo-print anew")
                         .arg(QStringLiteral(KELVO_VERSION))};
    }
    return part;
}

} // namespace

Result<const Library *> library(const QString &folder)
{
    return open<Library>(folder, QLatin1String("libkelvo_drawing.so"), drawingEntry);
}

Result<Picture> showPdf(const QByteArray &pdf, const QSize &pixels, bool isOnWhite,
                        const QString &folder)
{
    if (pixels.isEmpty())
        return Picture{};
    const Result<const PdfView *> view =
        open<PdfView>(folder, QLatin1String("libkelvo_pdf_view.so"), pdfViewEntry);
    return view ? view.value()->show(pdf, pixels, isOnWhite) : view.error();
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
