#include "folders.h"

#include "system_information.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <unistd.h>

namespace kelvo {

namespace {

// A folder of the environment, without a trailing slash; empty where it is no absolute
// path (a relative one would depend on where the program was started).
QString absoluteFolder(const QString &path)
{
    return QDir::isAbsolutePath(path) ? QDir::cleanPath(path) : QString();
}

QString folderFrom(const char *variable)
{
    return absoluteFolder(qEnvironmentVariable(variable));
}

// Services and cron jobs may run without HOME.
QString homeFolder()
{
    const QString home = folderFrom("HOME");
    return home.isEmpty() ? absoluteFolder(ownersHome().value_or(QString())) : home;
}

QString folderBelow(const QString &folder, const QString &name)
{
    if (folder.isEmpty())
        return {};
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

} // namespace

QString userPreferencesFolder()
{
    QString config = folderFrom("XDG_CONFIG_HOME");
    if (config.isEmpty())
        config = folderBelow(homeFolder(), QStringLiteral(".config"));
    return folderBelow(config, QStringLiteral("kelvo"));
}

QString localApplicationSupportFolder()
{
    const QString chosen = folderFrom("KELVO_SUPPORT_DIR");
    if (!chosen.isEmpty())
        return chosen;
    if (::access("/var/lib/Kelvo/.", W_OK | X_OK) == 0)
        return QStringLiteral("/var/lib");
    const QString data = folderFrom("XDG_DATA_HOME");
    if (!data.isEmpty())
        return data;
    return folderBelow(homeFolder(), QStringLiteral(".local/share"));
}

QStringList siteFolders()
{
    if (const QString chosen = folderFrom("KELVO_SITE_DIR"); !chosen.isEmpty())
        return {chosen};
    QStringList folders;
    const QStringList configs = qEnvironmentVariable("XDG_CONFIG_DIRS").split(u':');
    for (const QString &config : configs) {
        if (const QString folder = absoluteFolder(config); !folder.isEmpty())
            folders << folderBelow(folder, QStringLiteral("kelvo"));
    }
    return folders.isEmpty() ? QStringList{QStringLiteral("/etc/xdg/kelvo")} : folders;
}

QString libraryFolder()
{
    // Not by the program: the extension may be in another one than ours.
    static const char here = 0;
    Dl_info library = {};
    if (::dladdr(&here, &library) == 0 || !library.dli_fname)
        return {};
    return QFileInfo(QFile::decodeName(library.dli_fname)).canonicalPath();
}

} // namespace kelvo
