#include "leftovers.h"

#include "file_names.h"

#include <QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace kelvo {

namespace {

constexpr int kDigits = 16;

struct CloseDirectory
{
    void operator()(DIR *directory) const { ::closedir(directory); }
};
using Directory = std::unique_ptr<DIR, CloseDirectory>;

class Descriptor
{
public:
    explicit Descriptor(int fd)
        : m_fd(fd)
    {
    }
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int get() const { return m_fd; }
    int take() { return std::exchange(m_fd, -1); }

private:
    int m_fd;
};

Error systemError(const QString &folder)
{
    return {Error::Code::NotWritable, folder, QString::fromLocal8Bit(std::strerror(errno)), errno};
}

bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

// Whether `name` in the folder `at` is still what `fd` is.
bool isStillThere(int at, const char *name, int fd)
{
    struct stat named, open;
    return ::fstatat(at, name, &named, AT_SYMLINK_NOFOLLOW) == 0 && ::fstat(fd, &open) == 0
        && isSame(named, open);
}

bool hasOurName(std::string_view name, QLatin1String prefix)
{
    const std::string_view begin(prefix.data(), static_cast<std::size_t>(prefix.size()));
    return name.starts_with(begin) && name.size() == begin.size() + kDigits
        && std::ranges::all_of(name.substr(begin.size()), [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
           });
}

int openFor(int at, const char *name, LeftoverKind kind, int flags)
{
    const int as = kind == LeftoverKind::Folder ? O_DIRECTORY : O_NONBLOCK;
    return ::openat(at, name, as | flags | O_NOFOLLOW | O_CLOEXEC, 0600);
}

bool isOurs(int fd, LeftoverKind kind)
{
    struct stat status;
    if (::fstat(fd, &status) != 0 || status.st_uid != ::geteuid())
        return false;
    const mode_t wanted = kind == LeftoverKind::Folder ? S_IFDIR | 0700 : S_IFREG | 0600;
    return (status.st_mode & (S_IFMT | 0777)) == wanted;
}

// By descriptors: nobody can put a link in the way of what is removed.
void removeContents(int folder)
{
    Descriptor copy(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const Directory directory(::fdopendir(copy.get()));
    if (!directory)
        return;
    copy.take();
    while (const dirent *entry = ::readdir(directory.get())) {
        const char *name = entry->d_name;
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0)
            continue;
        if (::unlinkat(folder, name, 0) == 0 || errno != EISDIR)
            continue;
        const Descriptor inner(openFor(folder, name, LeftoverKind::Folder, O_RDONLY));
        if (inner.get() >= 0)
            removeContents(inner.get());
        ::unlinkat(folder, name, AT_REMOVEDIR);
    }
}

} // namespace

HeldPath::HeldPath(HeldPath &&other) noexcept
    : m_path(std::exchange(other.m_path, {}))
    , m_fd(std::exchange(other.m_fd, -1))
{
}

HeldPath &HeldPath::operator=(HeldPath &&other) noexcept
{
    std::swap(m_path, other.m_path);
    std::swap(m_fd, other.m_fd);
    return *this;
}

HeldPath::~HeldPath()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

Result<HeldPath> HeldPath::make(const QString &folder, QLatin1String prefix, LeftoverKind kind)
{
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const QString name = prefix
            + QString::number(QRandomGenerator::system()->generate64(), 16)
                  .rightJustified(kDigits, u'0');
        HeldPath held;
        held.m_path = fileNameBytes(folder + u'/' + name);
        const char *path = held.m_path.constData();
        // Whoever is clearing up may meet it before it is locked. Then it is gone, or
        // goes at once, and another one is made.
        const bool isFolder = kind == LeftoverKind::Folder;
        if (isFolder && ::mkdir(path, 0700) != 0) {
            if (errno == EEXIST)
                continue;
            return systemError(folder);
        }
        held.m_fd = openFor(AT_FDCWD, path, kind, isFolder ? O_RDONLY : O_RDWR | O_CREAT | O_EXCL);
        if (held.m_fd < 0) {
            if (errno == (isFolder ? ENOENT : EEXIST))
                continue;
            return systemError(folder);
        }
        const bool isLocked = ::flock(held.m_fd, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
        if (isLocked && isStillThere(AT_FDCWD, path, held.m_fd))
            return held;
    }
    errno = EEXIST;
    return systemError(folder);
}

void removeLeftovers(const QString &folder, QLatin1String prefix, LeftoverKind kind)
{
    const Directory directory(::opendir(fileNameBytes(folder).constData()));
    if (!directory)
        return;
    const int at = ::dirfd(directory.get());
    while (const dirent *entry = ::readdir(directory.get())) {
        const char *name = entry->d_name;
        if (!hasOurName(name, prefix))
            continue;
        const Descriptor fd(openFor(at, name, kind, O_RDONLY));
        if (fd.get() < 0 || !isOurs(fd.get(), kind) || ::flock(fd.get(), LOCK_EX | LOCK_NB) != 0
            || !isStillThere(at, name, fd.get()))
            continue;
        if (kind == LeftoverKind::Folder)
            removeContents(fd.get());
        ::unlinkat(at, name, kind == LeftoverKind::Folder ? AT_REMOVEDIR : 0);
    }
}

} // namespace kelvo
