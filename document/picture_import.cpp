#include "picture_import.h"

#include "document_helper.h"
#include "document_kind.h"
#include "texts.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cmath>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvo {

namespace {

// A file of the user's, open for reading.
class OpenFile
{
public:
    explicit OpenFile(const QString &path)
        // A pipe that nobody writes into is not waited for.
        : m_fd(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    Q_DISABLE_COPY_MOVE(OpenFile)
    ~OpenFile()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    int number() const { return m_fd; } // -1, and errno, where it is not

private:
    int m_fd;
};

Error refused(Error::Code code, const QString &path, const QString &reason)
{
    const QString advice = code == Error::Code::TooLarge
        ? translate("Document", "make it smaller, or choose another one")
        : translate("Document", "choose another picture, or repair this one");
    return Error{code, path, joined({reason, advice})};
}

QString kindText(DocumentKind kind, QByteArrayView head)
{
    switch (kind) {
    case DocumentKind::Pdf:
        return translate("Document", "this is a PDF document");
    case DocumentKind::PostScript:
        return translate("Document", "this is a PostScript document");
    case DocumentKind::WebP:
        return translate("Document", "this is a WebP picture");
    case DocumentKind::Text:
        return translate("Document", "this is a text");
    default:
        return unsupportedKindText(head);
    }
}

bool isTaken(DocumentKind kind)
{
    return kind != DocumentKind::WebP && !pictureFormat(kind).isEmpty();
}

// The reasons why the open file is not even handed on.
std::optional<Error> problemOf(int file, const QString &path)
{
    struct stat status = {};
    if (::fstat(file, &status) != 0)
        return refused(Error::Code::NotReadable, path, qt_error_string(errno));
    if (!S_ISREG(status.st_mode)) {
        return refused(Error::Code::NotReadable, path,
                       translate("Document", "this is no file, but a folder or a device"));
    }
    if (status.st_size > limits::pictureBytes) {
        return refused(Error::Code::TooLarge, path,
                       translate("Document", "a picture of more than %1 MB is not taken")
                           .arg(limits::pictureBytes / limits::MiB));
    }
    QByteArray head(kKindBytes, Qt::Uninitialized);
    const ssize_t count = ::pread(file, head.data(), kKindBytes, 0);
    if (count < 0)
        return refused(Error::Code::NotReadable, path, qt_error_string(errno));
    if (count == 0)
        return refused(Error::Code::Damaged, path, translate("Document", "the file is empty"));
    head.truncate(count);
    const DocumentKind kind = documentKind(head);
    if (isTaken(kind))
        return std::nullopt;
    return Error{
        Error::Code::Unsupported, path,
        joined({kindText(kind, head),
                translate("Document",
                          "choose a picture in PNG, JPEG, GIF, BMP, TIFF or SVG format")})};
}

bool isSound(const ImportedPicture &picture)
{
    const auto isLength = [](double points) { return std::isfinite(points) && points > 0; };
    const qint64 pixels = qint64(picture.size.width()) * picture.size.height();
    return !picture.isNull() && pixels <= limits::importedPixels
        && picture.bytes.size() == 4 * pixels && isLength(picture.naturalSize.width())
        && isLength(picture.naturalSize.height());
}

} // namespace

Result<ImportedPicture> importPicture(const QString &path, const std::atomic_bool *cancelled)
{
    if (cancelled && *cancelled)
        return Error{Error::Code::Cancelled, path, {}};
    const OpenFile file(path);
    if (file.number() < 0) {
        return refused(errno == ENOENT ? Error::Code::NotFound : Error::Code::NotReadable, path,
                       qt_error_string(errno));
    }
    if (const std::optional<Error> problem = problemOf(file.number(), path))
        return *problem;

    // It is given the file open: what reads it then needs no right to open any, nor a name.
    const HelperJob job{path, QStringLiteral("/"), cancelled, file.number()};
    Result<ImportedPicture> picture =
        ask<ImportedPicture>(Task::ImportPicture, job, qint32(file.number()));
    if (!picture && picture.error().where.isEmpty())
        return refused(picture.error().code, path, picture.error().detail);
    return !picture || isSound(picture.value()) ? picture : senselessAnswer(path);
}

} // namespace kelvo
