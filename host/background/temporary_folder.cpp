#include "temporary_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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

QString temporaryPath()
{
    // Qt has no name for a folder that is missing; "/" would follow from none.
    const QString path = QDir::tempPath();
    return path.isEmpty() ? QFileInfo(qEnvironmentVariable("TMPDIR")).absoluteFilePath() : path;
}

TemporaryFolder::TemporaryFolder()
{
    auto held = HeldPath::make(temporaryPath(), kTemporaryFolderPrefix, LeftoverKind::Folder);
    if (!held) {
        m_problem = held.error().detail;
        return;
    }
    m_held = std::move(held).value();
    m_path = QFile::decodeName(m_held.path());
    const std::lock_guard lock(folders().mutex);
    folders().paths.insert(m_path);
}

TemporaryFolder::~TemporaryFolder()
{
    remove();
}

void TemporaryFolder::remove()
{
    const std::lock_guard lock(folders().mutex);
    if (folders().paths.remove(m_path))
        QDir(m_path).removeRecursively();
    m_held = {};
}

void removeTemporaryFolders()
{
    const std::lock_guard lock(folders().mutex);
    for (const QString &path : std::as_const(folders().paths))
        QDir(path).removeRecursively();
}

} // namespace kelvo
