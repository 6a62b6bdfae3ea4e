#include "document_files.h"

#include "output_file.h"
#include "size_limits.h"
#include "texts.h"

#include <QByteArray>
#include <QElapsedTimer>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdint>
#include <langinfo.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace kelvo {

namespace {

constexpr int pollMs = 100;

qint64 sizeLimit(DocumentKind kind)
{
    if (kind == DocumentKind::Text)
        return limits::textBytes;
    return pictureFormat(kind).isEmpty() ? limits::documentBytes : limits::pictureBytes;
}

Error tooLarge(const QString &where, DocumentKind kind)
{
    const QString text = kind == DocumentKind::Text
        ? translate("Document", "a text of more than %1 MB is not printed")
        : pictureFormat(kind).isEmpty()
        ? translate("Document", "a document of more than %1 MB is not printed")
        : translate("Document", "a picture of more than %1 MB is not printed");
    return Error{Error::Code::TooLarge, where, text.arg(sizeLimit(kind) / limits::MiB)};
}

// Up to `size` bytes; fewer only at the end of the input. Waits for a slow
// sender no longer than the user does, and for a silent one no longer than the source says.
Result<qsizetype> readBlock(const OpenSource &source, char *bytes, qsizetype size,
                            const std::atomic_bool &cancelled)
{
    qsizetype done = 0;
    QElapsedTimer silence;
    silence.start();
    while (done < size) {
        if (cancelled)
            return Error{Error::Code::Cancelled, source.where, {}};
        pollfd ready{source.fd, POLLIN, 0};
        if (::poll(&ready, 1, pollMs) == 0) {
            if (source.patienceMs > 0 && silence.hasExpired(source.patienceMs)) {
                return Error{Error::Code::TimedOut, source.where,
                             translate("Document",
                                       "this is a pipe, and nothing came through it for %1 "
                                       "seconds; start what writes into it, or name a file")
                                 .arg(source.patienceMs / 1000.0)};
            }
            continue;
        }
        const ssize_t count =
            ::read(source.fd, bytes + done, static_cast<std::size_t>(size - done));
        if (count < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (count < 0)
            return Error{Error::Code::NotReadable, source.where, qt_error_string(errno)};
        if (count == 0)
            break;
        done += count;
        silence.restart();
    }
    return done;
}

} // namespace

QSizeF localePaper()
{
    // A locale of our own: setlocale() would change the other threads' too.
    locale_t locale = ::newlocale(LC_PAPER_MASK, "", nullptr);
    if (!locale)
        return kA4;
    // glibc hands the number of millimetres out in place of a pointer.
    const auto height = reinterpret_cast<std::intptr_t>(::nl_langinfo_l(_NL_PAPER_HEIGHT, locale));
    ::freelocale(locale);
    return static_cast<int>(height) == 279 ? kLetter : kA4;
}

Result<DocumentKind> copySource(const OpenSource &source, const QString &target,
                                const std::atomic_bool &cancelled)
{
    const QString &where = source.where;
    std::vector<char> block(1024 * 1024);
    Result<qsizetype> count = readBlock(source, block.data(), kKindBytes, cancelled);
    if (!count)
        return count.error();

    const QByteArrayView head(block.data(), count.value());
    const DocumentKind kind = documentKind(head);
    if (kind == DocumentKind::Empty)
        return Error{Error::Code::Damaged, where, translate("Document", "the file is empty")};
    if (kind == DocumentKind::Unsupported) {
        return Error{Error::Code::Unsupported, where,
                     joined({unsupportedKindText(head),
                             translate("Document",
                                       "PDF, PostScript, pictures and plain text can be "
                                       "printed")})};
    }

    const qint64 most = sizeLimit(kind);
    struct stat status = {};
    if (::fstat(source.fd, &status) == 0 && status.st_size > most)
        return tooLarge(where, kind);

    Result<OutputFile> file = OutputFile::create(target);
    if (!file)
        return file.error();
    qint64 total = 0;
    while (count.value() > 0) {
        total += count.value();
        if (total > most)
            return tooLarge(where, kind);
        if (!file.value().write(block.data(), static_cast<std::size_t>(count.value())))
            return file.value().error();
        count = readBlock(source, block.data(), static_cast<qsizetype>(block.size()), cancelled);
        if (!count)
            return count.error();
    }
    if (Result<void> closed = file.value().close(); !closed)
        return closed.error();
    return kind;
}

Error converterError(Error::Code code, const ConverterFiles &files, const QString &detail)
{
    if (isFull(files.folder))
        return notWritable(files.pdf, ENOSPC);
    return Error{code, files.where, detail};
}

PicturePlacement placePicture(const QSizeF &size, const QSizeF &paper)
{
    constexpr double margin = 12 / 25.4 * 72; // 12 mm, in points
    PicturePlacement placement;
    placement.paper = size.width() > size.height() ? paper.transposed() : paper;
    const QSizeF room = placement.paper - QSizeF(2 * margin, 2 * margin);
    const double scale =
        std::min({1.0, room.width() / size.width(), room.height() / size.height()});
    placement.picture.setSize(size * scale);
    placement.picture.moveCenter(
        QPointF(placement.paper.width() / 2, placement.paper.height() / 2));
    return placement;
}

} // namespace kelvo
