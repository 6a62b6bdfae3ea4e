#include "drawing.h"

#include "library_entry.h"
#include "texts.h"

#include <QFileInfo>
#include <QLibrary>

namespace kelvo::drawing {

Result<const Library *> library(const QString &folder)
{
    const QString path = folder + QLatin1String("/libkelvo_drawing.so");
    if (!QFileInfo::exists(path)) {
        return Error{Error::Code::NotFound, path,
                     translate("Drawing",
                               "this part that draws texts is not installed beside the "
                               "program's libraries; install kelvo-print anew")};
    }
    QLibrary file(path);
    // A symbol that is missing shows here and not in the middle of a page; fonts that are
    // in use outlive whoever has drawn.
    file.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    if (!file.load()) {
        return Error{Error::Code::NotReadable, path,
                     translate("Drawing",
                               "this part that draws texts cannot be loaded (%1); install "
                               "kelvo-print anew, with the packages that it needs")
                         .arg(file.errorString())};
    }
    auto *entry = reinterpret_cast<Entry *>(file.resolve(entryName));
    const Library *library = entry ? entry(KELVO_VERSION) : nullptr;
    if (!library) {
        return Error{Error::Code::Damaged, path,
                     translate("Drawing",
                               "this is not the part that draws texts of kelvo-print %1; "
                               "install kelvo-print anew")
                         .arg(QStringLiteral(KELVO_VERSION))};
    }
    return library;
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
