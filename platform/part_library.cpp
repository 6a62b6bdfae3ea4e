#include "part_library.h"

#include "texts.h"

#include <QFileInfo>
#include <QLibrary>

namespace kelvo {

Result<const void *> openPartLibrary(const PartLibrary &library, const QString &folder)
{
    const QString path = folder + u'/' + QLatin1String(library.fileName);
    if (!QFileInfo::exists(path))
        return Error{Error::Code::NotFound, path, translate(library.context, library.isMissing)};
    QLibrary file(path);
    // What is in use outlives whoever has asked for it.
    file.setLoadHints(
        QLibrary::PreventUnloadHint
        | (library.isBoundLazily ? QLibrary::LoadHints() : QLibrary::ResolveAllSymbolsHint));
    if (!file.load()) {
        return Error{Error::Code::NotReadable, path,
                     translate(library.context, library.cannotBeLoaded).arg(file.errorString())};
    }
    auto *entry = reinterpret_cast<PartEntry *>(file.resolve(library.entry));
    const void *part = entry ? entry(KELVO_VERSION) : nullptr;
    if (!part) {
        return Error{
            Error::Code::Damaged, path,
            translate(library.context, library.isOfAnother).arg(QStringLiteral(KELVO_VERSION))};
    }
    return part;
}

} // namespace kelvo
