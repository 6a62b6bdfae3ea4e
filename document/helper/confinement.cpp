#include "confinement.h"

#include "sanitizers.h"

#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace kelvo::documents {

namespace {

// Newer than the headers of Debian 12; the kernel is asked for what it knows.
constexpr std::uint64_t truncateAccess = 1ULL << 14;      // from version 3
constexpr std::uint64_t deviceControlAccess = 1ULL << 15; // from version 5
constexpr std::uint64_t tcpAccess = 3;                    // bind and connect, from version 4
constexpr std::uint64_t otherProcesses = 3;               // sockets and signals, from version 6

constexpr std::uint64_t readAccess = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t writeAccess = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_MAKE_REG
    | LANDLOCK_ACCESS_FS_REMOVE_FILE | truncateAccess;

// What can be allowed of a single file.
constexpr std::uint64_t fileAccess =
    LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE | truncateAccess;

// As the kernel has it now; an older one takes a longer record whose end is zero.
struct RulesetAttributes
{
    std::uint64_t files = 0;
    std::uint64_t network = 0;
    std::uint64_t scopes = 0;
};

// What a process may open, from restrict() on.
class Ruleset
{
public:
    Ruleset()
    {
        const long version =
            ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
        if (version < 1)
            return;
        RulesetAttributes all;
        all.files = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
        if (version >= 2)
            all.files |= LANDLOCK_ACCESS_FS_REFER;
        if (version >= 3)
            all.files |= truncateAccess;
        if (version >= 4)
            all.network = tcpAccess;
        if (version >= 5)
            all.files |= deviceControlAccess;
        if (version >= 6)
            all.scopes = otherProcesses;
        m_handled = all.files;
        m_fd = static_cast<int>(::syscall(SYS_landlock_create_ruleset, &all, sizeof all, 0));
    }
    Ruleset(const Ruleset &) = delete;
    Ruleset &operator=(const Ruleset &) = delete;
    ~Ruleset()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }

    void allow(const QString &path, std::uint64_t access)
    {
        const int fd = ::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC);
        if (m_fd < 0 || fd < 0)
            return;
        if (!QFileInfo(path).isDir())
            access &= fileAccess;
        landlock_path_beneath_attr rule = {};
        rule.allowed_access = access & m_handled;
        rule.parent_fd = fd;
        ::syscall(SYS_landlock_add_rule, m_fd, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
        ::close(fd);
    }

    // Every child is started with PR_SET_NO_NEW_PRIVS, without which this fails.
    void restrict() const
    {
        if (m_fd >= 0)
            ::syscall(SYS_landlock_restrict_self, m_fd, 0);
    }

private:
    int m_fd = -1; // none: the kernel has no Landlock
    std::uint64_t m_handled = 0;
};

} // namespace

void confineToOpenFiles()
{
    Ruleset().restrict();
    if (kHasSanitizer)
        return;
    // The lowest free number is the first that may not be given out; open files keep
    // theirs, also above it.
    const int lowestFree = ::dup(STDERR_FILENO);
    if (lowestFree < 0)
        return;
    ::close(lowestFree);
    const rlimit none{static_cast<rlim_t>(lowestFree), static_cast<rlim_t>(lowestFree)};
    ::setrlimit(RLIMIT_NOFILE, &none);
}

void confineTo(const QStringList &toRead, const QString &toWrite)
{
    Ruleset ruleset;
    for (const QString &path : toRead)
        ruleset.allow(path, readAccess);
    if (!toWrite.isEmpty())
        ruleset.allow(toWrite, readAccess | writeAccess);
    ruleset.restrict();
}

} // namespace kelvo::documents
