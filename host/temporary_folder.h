#pragma once

#include <QTemporaryDir>

namespace kelvo {

// A folder of rights 0700 that goes with its owner; also where the owner is a
// thread that the program leaves behind (see removeTemporaryFolders).
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    bool isValid() const { return m_folder.isValid(); }
    QString errorString() const { return m_folder.errorString(); }
    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }
    void remove();

private:
    QTemporaryDir m_folder;
};

// Before the program leaves without ending its threads: removes the folders that
// are still there, and with them users' documents and tickets.
void removeTemporaryFolders();

} // namespace kelvo
