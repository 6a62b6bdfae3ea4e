#include "temporary_folder.h"

#include <QDir>
#include <QSet>

#include <mutex>

namespace kelvo {

namespace {

struct Folders
{
    std::mutex mutex;
    QSet<QString> paths;
};

// Never destroyed: a thread may outlive every static object.
Folders &folders()
{
    static auto &all = *new Folders;
    return all;
}

} // namespace

TemporaryFolder::TemporaryFolder()
    : m_folder(QDir::temp().filePath(QStringLiteral("kelvo-print-XXXXXX")))
{
    const std::lock_guard lock(folders().mutex);
    if (m_folder.isValid())
        folders().paths.insert(m_folder.path());
}

TemporaryFolder::~TemporaryFolder()
{
    remove();
}

void TemporaryFolder::remove()
{
    const std::lock_guard lock(folders().mutex);
    folders().paths.remove(m_folder.path());
    m_folder.remove();
}

void removeTemporaryFolders()
{
    const std::lock_guard lock(folders().mutex);
    for (const QString &path : std::as_const(folders().paths))
        QDir(path).removeRecursively();
}

} // namespace kelvo
