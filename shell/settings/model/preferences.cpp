#include "preferences.h"

#include "file_store.h"
#include "folders.h"
#include "property_list.h"
#include "size_limits.h"
#include "terminal.h"
#include "texts.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

namespace kelvo {

namespace {

bool reportWriting(const Result<void> &written)
{
    if (!written) {
        const int number = written.error().number;
        printLine(
            stderr,
            QStringLiteral("WriteUserPreferences() failed (%1)").arg(number ? number : EINVAL));
        // The number alone does not say which file it was, nor what to do.
        printLine(stderr, written.error().text());
    }
    return bool(written);
}

// With what is missing above it, for the user alone. False when something else
// than a folder is in the way.
bool makeFolder(const QString &path)
{
    const QFileInfo folder(path);
    if (folder.exists())
        return folder.isDir();
    if (!folder.isRoot() && !makeFolder(folder.path()))
        return false;
    return QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)
        || QFileInfo(path).isDir(); // another dialog was faster
}

} // namespace

Result<QString> userPreferencePath(const QString &name)
{
    const QString folder = userPreferencesFolder();
    if (folder.isEmpty())
        return Error{Error::Code::NotFound, name,
                     translate("Files", "there is no preferences folder")};
    return folder + QLatin1Char('/') + safeFileName(name);
}

std::optional<QString> CopyPreferenceFileURL(const QString &name)
{
    const QString support = localApplicationSupportFolder();
    const QString makerFolder = support + QStringLiteral("/Kelvo");
    if (support.isEmpty() || !makeFolder(makerFolder))
        return std::nullopt;
    return makerFolder + QLatin1Char('/') + safeFileName(name);
}

std::optional<QVariant> CopyXMLData(const QString &name)
{
    const std::optional<QString> path = CopyPreferenceFileURL(name);
    if (!path)
        return std::nullopt;
    const Result<QByteArray> bytes = readFile(*path, limits::plistBytes);
    if (!bytes)
        return std::nullopt;
    Result<QVariant> list = CFPropertyListCreateFromXMLData(bytes.value(), *path);
    if (!list) {
        printLine(stderr,
                  QStringLiteral("CopyXMLData()::CFPropertyListCreateFromXMLData() error: ")
                      + list.error().text());
        return std::nullopt;
    }
    return list.value();
}

std::optional<Dictionary> CopyUserPreferences(const QString &name)
{
    const Result<QString> path = userPreferencePath(name);
    if (!path)
        return std::nullopt;
    const Result<QVariant> list = readPropertyList(path.value());
    return list ? dictionary(list.value()).value_or(Dictionary()) : Dictionary();
}

bool WriteUserPreferences(const QString &name, const Dictionary &propertyList)
{
    return ChangeUserPreferences(name, [&propertyList](Dictionary &content) {
        content = propertyList;
        return true;
    });
}

bool ChangeUserPreferences(const QString &name, const std::function<bool(Dictionary &)> &change)
{
    const Result<QString> path = userPreferencePath(name);
    return reportWriting(path ? changeDictionaryFile(path.value(), DamagedStore::SetAside, change)
                              : path.error());
}

} // namespace kelvo
