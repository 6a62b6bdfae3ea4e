#include "document_functions.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <QMutex>

namespace kelvo {

namespace {

struct Module
{
    QMutex mutex;
    QString path; // empty: beside the program
    const DocumentFunctions *functions = nullptr;
};

// Never destroyed: a thread may outlive every static object.
Module &module()
{
    static auto &state = *new Module;
    return state;
}

QString findModule(const QString &given)
{
    if (!given.isEmpty())
        return QFileInfo::exists(given) ? given : QString();
    const QString folder = QCoreApplication::applicationDirPath();
    for (const char *place : {"/../lib/KelvoDocuments.so", "/../lib/kelvo/KelvoDocuments.so"}) {
        const QString path = folder + QLatin1String(place);
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

Result<const DocumentFunctions *> loadModule(const QString &given)
{
    const QString path = findModule(given);
    if (path.isEmpty()) {
        return Error{Error::Code::NotFound,
                     given.isEmpty() ? QStringLiteral("KelvoDocuments.so") : given,
                     QStringLiteral("the part that reads documents is not installed beside the "
                                    "program; install kelvo-print anew")};
    }
    QLibrary library(path);
    library.setLoadHints(QLibrary::PreventUnloadHint);
    if (!library.load()) {
        return Error{Error::Code::Damaged, path,
                     QStringLiteral("the part that reads documents cannot be loaded: ")
                         + library.errorString()};
    }
    const auto entry = reinterpret_cast<DocumentModuleEntry>(library.resolve(kDocumentModuleEntry));
    const DocumentFunctions *functions = entry ? entry(KELVO_VERSION) : nullptr;
    if (!functions) {
        return Error{Error::Code::Damaged, path,
                     QStringLiteral("this is not the part that reads documents of kelvo-print %1; "
                                    "install kelvo-print anew")
                         .arg(QStringLiteral(KELVO_VERSION))};
    }
    return functions;
}

} // namespace

Result<const DocumentFunctions *> documentFunctions()
{
    const QMutexLocker lock(&module().mutex);
    if (!module().functions) {
        const auto loaded = loadModule(module().path);
        if (!loaded)
            return loaded.error();
        module().functions = loaded.value();
    }
    return module().functions;
}

void setDocumentModule(const QString &path)
{
    const QMutexLocker lock(&module().mutex);
    module().path = path;
}

// ---- what is in the module, for callers that do not care where it is

Result<PdfPages> tidyPdf(const QString &source, const QString &target)
{
    const auto functions = documentFunctions();
    return functions ? functions.value()->tidyPdf(source, target)
                     : Result<PdfPages>(functions.error());
}

Result<void> selectPdfPages(const QString &source, const std::vector<PageRun> &runs,
                            const QString &target)
{
    const auto functions = documentFunctions();
    return functions ? functions.value()->selectPdfPages(source, runs, target)
                     : Result<void>(functions.error());
}

Result<void> convertText(const ConverterFiles &files, const QSizeF &paper,
                         const std::atomic_bool &cancelled)
{
    const auto functions = documentFunctions();
    return functions ? functions.value()->convertText(files, paper, cancelled)
                     : Result<void>(functions.error());
}

} // namespace kelvo
