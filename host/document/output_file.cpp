#include "output_file.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace kelvo {

Error notWritable(const QString &path, int errorNumber)
{
    QString reason = qt_error_string(errorNumber);
    if (errorNumber == ENOSPC || errorNumber == EDQUOT) {
        reason += QStringLiteral("; make room there, or set TMPDIR to a folder on another disk");
    }
    return Error{Error::Code::NotWritable, path, reason};
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
    return notWritable(m_path, m_errno != 0 ? m_errno : EIO);
}

} // namespace kelvo
