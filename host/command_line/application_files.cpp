#include "application_files.h"

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
                 QStringLiteral("it is not installed beside the program")};
}

QString findSharedFile(const QString &name)
{
    const QString path =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../share/kelvo-print/") + name;
    return QFileInfo::exists(path) ? QFileInfo(path).canonicalFilePath() : QString();
}

} // namespace kelvo
