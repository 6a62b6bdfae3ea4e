#include "output_file.h"

#include "size_limits.h"
#include "texts.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace kelvo {

bool isFull(const QString &folder)
{
    constexpr quint64 enough = limits::MiB;
    struct statvfs disk = {};
    if (::statvfs(QFile::encodeName(folder).constData(), &disk) != 0)
        return false;
    // A file system without a fixed number of files tells none at all.
    return quint64(disk.f_bavail) * disk.f_frsize < enough
        || (disk.f_files > 0 && disk.f_favail == 0);
}

Error notWritable(const QString &path, int errorNumber)
{
    // Our files lie in a private folder that is gone when this is read.
    QString folder = QFileInfo(path).path();
    if (QFileInfo(folder).fileName().startsWith(QLatin1String("kelvo-print-")))
        folder = QFileInfo(folder).path();
    if (errorNumber == 0)
        errorNumber = isFull(folder) ? ENOSPC : EIO;
    if (errorNumber == ENOSPC || errorNumber == EDQUOT) {
        return Error{Error::Code::NotWritable, folder,
                     translate("Document",
                               "the folder for temporary files is full (%1); remove what is "
                               "no longer needed there, or set TMPDIR to a folder on another "
                               "disk")
                         .arg(qt_error_string(errorNumber))};
    }
    return Error{Error::Code::NotWritable, path, qt_error_string(errorNumber)};
}

Error folderNotMade(const QString &folder, const QString &reason)
{
    if (isFull(folder))
        return notWritable(folder + QLatin1String("/x"), ENOSPC);
    return Error{Error::Code::NotWritable, folder,
                 translate("Document",
                           "the folder for temporary files is missing or cannot be written "
                           "(%1); set TMPDIR to another one")
                     .arg(reason)};
}

Result<OutputFile> OutputFile::create(const QString &path)
{
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd < 0)
        return notWritable(path, errno);
    OutputFile file;
    file.m_path = path;
    file.m_stream.reset(::fdopen(fd, "wb"));
    if (!file.m_stream) {
        const int errorNumber = errno;
        ::close(fd);
        return notWritable(path, errorNumber);
    }
    return file;
}

bool OutputFile::write(const char *bytes, std::size_t size)
{
    if (std::fwrite(bytes, 1, size, m_stream.get()) == size)
        return true;
    m_errno = errno;
    return false;
}

Result<void> OutputFile::close()
{
    std::FILE *stream = m_stream.release();
    const bool failedBefore = m_errno != 0 || std::ferror(stream);
    if (std::fclose(stream) != 0 && m_errno == 0)
        m_errno = errno;
    if (failedBefore || m_errno != 0)
        return error();
    return {};
}

Error OutputFile::error() const
{
    // A library that wrote and failed on its own keeps the reason to itself.
    return notWritable(m_path, m_errno);
}

} // namespace kelvo
