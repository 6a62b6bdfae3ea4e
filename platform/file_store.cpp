#include "file_store.h"

#include "file_names.h"
#include "property_list.h"
#include "size_limits.h"
#include "terminal.h"
#include "texts.h"
#include "values.h"

#include <QCryptographicHash>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>

namespace kelvo {

namespace {

using Code = Error::Code;

// A file descriptor that is closed at the end of its scope.
class Descriptor
{
public:
    explicit Descriptor(int fd)
        : m_fd(fd)
    {
    }
    ~Descriptor() { close(); }
    Descriptor(Descriptor &&other) noexcept
        : m_fd(std::exchange(other.m_fd, -1))
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    explicit operator bool() const { return m_fd >= 0; }
    int get() const { return m_fd; }

    // False when the system reports now what it could not write before.
    bool close() { return m_fd < 0 || ::close(std::exchange(m_fd, -1)) == 0; }

private:
    int m_fd;
};

Error systemError(Code code, const QString &path, int number = errno)
{
    return {code, path, QString::fromUtf8(std::strerror(number)), number};
}

// A path that the system would cut off at its null character names another file.
std::optional<Error> problemOf(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(0)))
        return Error{Code::NotFound, path, translate("Files", "not a path")};
    return std::nullopt;
}

QString folderOf(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash < 0)
        return QStringLiteral(".");
    return slash == 0 ? QStringLiteral("/") : path.left(slash);
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

// Creates what is missing of `folder`, 0700.
Result<void> makeFolder(const QString &folder)
{
    const QByteArray path = fileNameBytes(folder);
    if (::mkdir(path.constData(), 0700) == 0 || errno == EEXIST)
        return {}; // something else of that name fails when it is used
    const int reason = errno;
    const QString outer = folderOf(folder);
    if (reason != ENOENT || outer == folder || outer == QLatin1String("."))
        return systemError(Code::NotWritable, folder, reason);
    if (auto made = makeFolder(outer); !made)
        return made;
    if (::mkdir(path.constData(), 0700) == 0 || errno == EEXIST)
        return {};
    return systemError(Code::NotWritable, folder);
}

// Not an error when it fails: the new file stands, and a crash of the whole
// machine would at worst bring the old one back.
void syncFolder(const QString &folder)
{
    const Descriptor fd(
        ::open(fileNameBytes(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd)
        ::fsync(fd.get());
}

// The lock of the store at `path`, held until the descriptor is closed. The
// lock file stays: one that is removed could be locked by two at once.
Result<std::shared_ptr<Descriptor>> lockFor(const QString &path, StoreLock scope)
{
    const QString lockPath = folderOf(path) + QStringLiteral("/.")
        + (scope == StoreLock::OfFolder ? QString() : nameOf(path) + u'.') + QStringLiteral("lock");
    auto fd = std::make_shared<Descriptor>(
        ::open(fileNameBytes(lockPath).constData(),
               O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
    if (!*fd)
        return errno == ELOOP
            ? Error{Code::Refused, lockPath,
                    translate("Files", "the lock file is a symbolic link; remove it")}
            : systemError(Code::NotWritable, lockPath);
    struct stat status;
    if (::fstat(fd->get(), &status) != 0 || !S_ISREG(status.st_mode))
        return Error{Code::Refused, lockPath,
                     translate("Files", "the lock file is not a regular file; remove it")};

    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + std::chrono::milliseconds(limits::fileLockWaitMs);
    while (::flock(fd->get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return systemError(Code::NotWritable, lockPath);
        if (Clock::now() >= deadline)
            return Error{Code::TimedOut, path,
                         translate("Files", "another program is writing it; try again")};
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return fd;
}

bool writeAll(int fd, const QByteArray &bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count =
            ::write(fd, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            if (count == 0)
                errno = ENOSPC;
            return false;
        }
        done += count;
    }
    return true;
}

// Everything up to the rename, checked. `errno` says why it failed.
bool syncAndClose(Descriptor &fd, qint64 size)
{
    struct stat status;
    if (::fsync(fd.get()) != 0 || ::fstat(fd.get(), &status) != 0)
        return false;
    if (status.st_size != size) {
        errno = EIO;
        return false;
    }
    return fd.close();
}

// Opens a regular file for reading. O_NONBLOCK: a FIFO of that name must not
// stop the program.
Result<std::shared_ptr<Descriptor>> openForReading(const QString &path, struct stat &status)
{
    if (const auto problem = problemOf(path))
        return *problem;
    auto fd = std::make_shared<Descriptor>(
        ::open(fileNameBytes(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!*fd)
        return systemError(errno == ENOENT || errno == ENOTDIR ? Code::NotFound : Code::NotReadable,
                           path);
    if (::fstat(fd->get(), &status) != 0)
        return systemError(Code::NotReadable, path);
    if (!S_ISREG(status.st_mode))
        return Error{Code::NotReadable, path, translate("Files", "not a regular file")};
    return fd;
}

// Renames the damaged store at `path` to the first free NAME.damaged-N.
Result<void> setAside(const QString &path, const Error &reason)
{
    for (int number = 1; number < 1000; ++number) {
        const QString aside = path + QStringLiteral(".damaged-%1").arg(number);
        // A link never replaces what is there, on any file system that has links.
        if (::link(fileNameBytes(path).constData(), fileNameBytes(aside).constData()) != 0) {
            if (errno == EEXIST)
                continue;
            return systemError(Code::NotWritable, aside);
        }
        if (::unlink(fileNameBytes(path).constData()) != 0)
            return systemError(Code::NotWritable, path);
        printLine(stderr,
                  translate("Files", "%1: damaged, kept as %2 (%3)")
                      .arg(path, nameOf(aside), reason.text()));
        return {};
    }
    return Error{
        Code::NotWritable, path,
        translate("Files", "damaged, and too many damaged copies lie beside it; remove them")};
}

// What a store holds, or why it counts as damaged; any other failure to read it
// is an error.
struct StoreContent
{
    QVariantMap dictionary;
    std::optional<Error> damage;
};

Result<StoreContent> readStore(const QString &path)
{
    const auto list = readPropertyList(path);
    if (list) {
        if (const auto root = dictionary(list.value()))
            return StoreContent{*root, std::nullopt};
        return StoreContent{{},
                            Error{Code::WrongType, path, translate("Files", "not a dictionary")}};
    }
    switch (list.error().code) {
    case Code::NotFound:
        return StoreContent{};
    case Code::NotReadable: // nobody has seen its bytes
        return list.error();
    default:
        return StoreContent{{}, list.error()};
    }
}

} // namespace

QString writingAdvice(int number)
{
    switch (number) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return translate("Files", "make room there, or name another place");
    case EACCES:
    case EPERM:
        return translate("Files", "change the rights there, or name a place that you may write to");
    default:
        return translate("Files", "name another place");
    }
}

FileStamp stampOf(const QString &path)
{
    struct stat status;
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    const auto nanoseconds = [](const timespec &time) {
        return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
    };
    return {status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
            nanoseconds(status.st_ctim)};
}

Result<QByteArray> readFile(const QString &path, qint64 limit)
{
    struct stat status;
    const auto opened = openForReading(path, status);
    if (!opened)
        return opened.error();
    const Descriptor &fd = *opened.value();
    const Error tooLarge{Code::TooLarge, path, translate("Files", "more than %1 bytes").arg(limit)};
    if (status.st_size > limit)
        return tooLarge;

    // The size is only a hint: files of /proc say 0, and a file may be growing.
    // One byte more than it says shows the end without growing the buffer.
    QByteArray bytes;
    qsizetype used = 0;
    for (bytes.resize(std::max<qsizetype>(status.st_size + 1, 4096));;) {
        const ssize_t count =
            ::read(fd.get(), bytes.data() + used, static_cast<std::size_t>(bytes.size() - used));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return systemError(Code::NotReadable, path);
        if (count == 0)
            break;
        used += count;
        if (used > limit)
            return tooLarge;
        if (used == bytes.size())
            bytes.resize(used * 2);
    }
    bytes.truncate(used);
    return bytes;
}

Result<StagedFile> StagedFile::write(const QString &path, const Writer &writer)
{
    if (const auto problem = problemOf(path))
        return Error{Code::NotWritable, problem->where, problem->detail};
    struct stat status;
    if (::stat(fileNameBytes(path).constData(), &status) == 0 && !S_ISREG(status.st_mode))
        return Error{Code::NotWritable, path, translate("Files", "not a regular file")};

    StagedFile staged;
    auto temporary = HeldPath::make(folderOf(path), kStagedFilePrefix, LeftoverKind::File);
    if (!temporary)
        return systemError(Code::NotWritable, path, temporary.error().number);
    staged.m_path = path;
    staged.m_temporary = std::move(temporary).value();
    const int fd = staged.m_temporary.fd();
    const Result<qint64> size = writer(fd);
    if (!size)
        return size.error();
    if (size.value() < 0)
        return systemError(Code::NotWritable, path);
    staged.m_size = size.value();
    // The disk begins now, and is waited for in settle().
    static_cast<void>(::sync_file_range(fd, 0, 0, SYNC_FILE_RANGE_WRITE));
    return staged;
}

Result<void> StagedFile::settle()
{
    // The lock outlives the closing that shows whether all was written.
    Descriptor fd(::fcntl(m_temporary.fd(), F_DUPFD_CLOEXEC, 0));
    if (!fd || !syncAndClose(fd, m_size))
        return systemError(Code::NotWritable, m_path);
    return {};
}

Result<StagedFile> StagedFile::withBytes(const QString &path, const QByteArray &bytes)
{
    return write(path, [&bytes](int fd) -> Result<qint64> {
        return writeAll(fd, bytes) ? bytes.size() : -1;
    });
}

Result<StagedFile> StagedFile::withCopy(const QString &path, const QString &source)
{
    struct stat status;
    const auto from = openForReading(source, status);
    if (!from)
        return from.error();
    return write(path, [&](int fd) -> Result<qint64> {
        QByteArray block;
        for (qint64 copied = 0;; copied += block.size()) {
            block.resize(256 * 1024);
            ssize_t count = 0;
            do {
                count = ::read(from.value()->get(), block.data(),
                               static_cast<std::size_t>(block.size()));
            } while (count < 0 && errno == EINTR);
            if (count < 0)
                return systemError(Code::NotReadable, source);
            if (count == 0)
                return copied;
            block.truncate(count);
            if (!writeAll(fd, block))
                return -1;
        }
    });
}

StagedFile::StagedFile(StagedFile &&other) noexcept
    : m_path(std::move(other.m_path))
    , m_temporary(std::move(other.m_temporary))
    , m_size(other.m_size)
{
}

StagedFile::~StagedFile()
{
    if (!m_temporary.path().isEmpty())
        ::unlink(m_temporary.path().constData());
}

Result<void> StagedFile::place(std::span<StagedFile> files)
{
    for (StagedFile &file : files) {
        if (auto settled = file.settle(); !settled)
            return settled;
    }
    QStringList folders;
    Result<void> placed;
    for (StagedFile &file : files) {
        if (::rename(file.m_temporary.path().constData(), fileNameBytes(file.m_path).constData())
            != 0) {
            placed = systemError(Code::NotWritable, file.m_path);
            break;
        }
        file.m_temporary = {};
        if (const QString folder = folderOf(file.m_path); !folders.contains(folder))
            folders.append(folder);
    }
    for (const QString &folder : std::as_const(folders))
        syncFolder(folder);
    return placed;
}

Result<void> replaceFile(const QString &path, const QByteArray &bytes)
{
    auto staged = StagedFile::withBytes(path, bytes);
    return staged ? staged.value().place() : staged.error();
}

Result<void> changeDictionaryFile(const QString &path, DamagedStore damaged,
                                  const std::function<bool(QVariantMap &)> &change, StoreLock scope)
{
    if (auto made = makeFolder(folderOf(path)); !made)
        return made;
    const auto lock = lockFor(path, scope);
    if (!lock)
        return lock.error();
    auto content = readStore(path);
    if (!content)
        return content.error();
    const auto &damage = content.value().damage;
    if (damage && damaged == DamagedStore::Keep)
        return *damage;
    if (!change(content.value().dictionary))
        return {};
    const auto xml = CFPropertyListCreateXMLData(content.value().dictionary);
    if (!xml)
        return Error{xml.error().code, path + QStringLiteral(": ") + xml.error().where,
                     xml.error().detail};
    if (damage) {
        if (auto moved = setAside(path, *damage); !moved)
            return moved;
    }
    return replaceFile(path, xml.value());
}

Result<void> removeFile(const QString &path, StoreLock scope)
{
    if (const auto problem = problemOf(path))
        return *problem;
    const QByteArray target = fileNameBytes(path);
    struct stat status;
    if (::lstat(target.constData(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR))
        return systemError(Code::NotFound, path); // and no lock file is left for it
    const auto lock = lockFor(path, scope);
    if (!lock)
        return lock.error();
    if (::unlink(target.constData()) != 0)
        return systemError(errno == ENOENT ? Code::NotFound : Code::NotWritable, path);
    syncFolder(folderOf(path));
    return {};
}

QString safeFileName(const QString &name)
{
    // What follows a percent sign keeps names apart: two hexadecimal digits are
    // a byte, "u" a lone surrogate, "~" a hash, "-" the empty name.
    constexpr qsizetype longest = 200;
    if (name.isEmpty())
        return QStringLiteral("%-");

    QByteArray safe;
    const auto encode = [&safe](const QByteArray &bytes) {
        for (const char byte : bytes)
            safe += '%' + QByteArray(1, byte).toHex().toUpper();
    };
    QByteArray shortened; // as much as leaves room for a hash
    constexpr qsizetype hashLength = 2 + 32;
    for (qsizetype i = 0; i < name.size(); ++i) {
        char32_t code = name[i].unicode();
        QString character = name.mid(i, 1);
        if (name[i].isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
            code = QChar::surrogateToUcs4(name[i], name[i + 1]);
            character = name.mid(i++, 2);
        }
        switch (QChar::category(code)) {
        case QChar::Other_Surrogate:
            safe += "%u" + QByteArray::number(static_cast<uint>(code), 16).toUpper();
            break;
        case QChar::Other_Control:
        case QChar::Other_Format: // turns the direction of what is shown
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            encode(character.toUtf8());
            break;
        default:
            if (code == '/' || code == '%' || (code == '.' && i == 0))
                encode(character.toUtf8());
            else
                safe += character.toUtf8();
        }
        if (safe.size() <= longest - hashLength)
            shortened = safe;
    }
    if (safe.size() > longest) {
        const QByteArray units(reinterpret_cast<const char *>(name.utf16()), name.size() * 2);
        safe = shortened + "%~"
            + QCryptographicHash::hash(units, QCryptographicHash::Sha256).toHex().left(32);
    }
    return QString::fromUtf8(safe);
}

} // namespace kelvo
