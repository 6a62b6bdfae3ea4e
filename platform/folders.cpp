#include "folders.h"

#include <QDir>

#include <unistd.h>

namespace kelvo {

namespace {

// The folder named by an environment variable, without a trailing slash; empty
// when the variable is missing, empty or not an absolute path (a relative one
// would depend on where the program was started).
QString folderFrom(const char *variable)
{
    const QString path = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(path) ? QDir::cleanPath(path) : QString();
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
        config = folderBelow(folderFrom("HOME"), QStringLiteral(".config"));
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
    return folderBelow(folderFrom("HOME"), QStringLiteral(".local/share"));
}

QString siteFolder()
{
    const QString chosen = folderFrom("KELVO_SITE_DIR");
    return chosen.isEmpty() ? QStringLiteral("/etc/xdg/kelvo") : chosen;
}

} // namespace kelvo
