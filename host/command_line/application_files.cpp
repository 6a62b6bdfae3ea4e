#include "application_files.h"

#include "texts.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace kelvo {

Result<Bundle *> openPanelBundle()
{
    const QString given = qEnvironmentVariable("KELVO_BUNDLE");
    if (!given.isEmpty())
        return Bundle::open(given);
    const QString folder = QCoreApplication::applicationDirPath();
    for (const char *place : {"/../lib/KelvoPDE.pde", "/../lib/kelvo/KelvoPDE.pde"}) {
        const QString path = folder + QLatin1String(place);
        if (QFileInfo::exists(path + QStringLiteral("/Info.plist")))
            return Bundle::open(path);
    }
    return Error{Error::Code::NotFound, QStringLiteral("KelvoPDE.pde"),
                 translate("CommandLine", "it is not installed beside the program")};
}

QString findSharedFile(const QString &name)
{
    // Texts are asked for before there is an application object that knows its folder.
    const QString path = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath()
        + QStringLiteral("/../share/kelvo-print/") + name;
    return QFileInfo::exists(path) ? QFileInfo(path).canonicalFilePath() : QString();
}

} // namespace kelvo
