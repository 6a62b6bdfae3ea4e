#pragma once

#include "leftovers.h"

#include <QString>

namespace kelvo {

// The folder that temporary files go to, absolute; also where it is missing. TMPDIR says
// which, else the system.
QString temporaryPath();

// A folder of rights 0700 that goes with its owner; also where the owner is a
// thread that the program leaves behind (see removeTemporaryFolders), and at the
// next start where the program was killed (see removeLeftovers).
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    bool isValid() const { return !m_path.isEmpty(); }
    QString errorString() const { return m_problem; } // of the system, why it is not valid
    QString path() const { return m_path; }
    QString filePath(const QString &name) const { return m_path + u'/' + name; }
    void remove();

private:
    HeldPath m_held;
    QString m_path, m_problem;
};

// Before the program leaves without ending its threads: removes the folders that
// are still there, and with them users' documents and tickets.
void removeTemporaryFolders();

} // namespace kelvo
