#include "document.h"

#include "characters.h"
#include "document_files.h"
#include "file_names.h"
#include "output_file.h"
#include "pdf_ahead.h"
#include "pdf_pages.h"
#include "temporary_folder.h"
#include "texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvo {

struct Document::Data
{
    QString title;
    std::shared_ptr<TemporaryFolder> folder; // goes with us
    QString pdfPath;                         // inside the folder
    std::vector<QSizeF> sizes;
    bool isRepaired = false;
    QString remark;
    std::shared_ptr<PdfAhead> ahead; // null: pdfPath is to be read again
};

struct LockedDocument::Data
{
    OpenSource source; // closed by now
    QString title;
    std::shared_ptr<TemporaryFolder> folder;
    QString copy; // in it, locked as it came
};

// Makes documents; the one place that knows how their files lie.
class DocumentReader
{
public:
    struct Wanted
    {
        QString title;
        QStringList passwords = {};
        bool onlyPdf = false;
        std::shared_ptr<PdfAhead> ahead = {};
        LockedDocument *locked = nullptr;
    };
    static Result<Document> read(const OpenSource &source, Wanted wanted,
                                 const std::atomic_bool &cancelled);
    static Result<Document> unlock(const LockedDocument::Data &locked, const QString &password,
                                   const std::atomic_bool &cancelled);
    static Result<Document> join(const std::vector<Document> &documents, const QString &title,
                                 const std::atomic_bool &cancelled);

private:
    static Result<std::shared_ptr<TemporaryFolder>> makeFolder();
    // The value is the document's remark.
    static Result<QString> convert(DocumentKind kind, const ConverterFiles &files,
                                   const std::atomic_bool &cancelled);
};

namespace {

constexpr QLatin1String pdfName("document.pdf");

class FileDescriptor
{
public:
    explicit FileDescriptor(int fd)
        : m_fd(fd)
    {
    }
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_fd(std::exchange(other.m_fd, -1))
    {
    }
    FileDescriptor &operator=(FileDescriptor &&) = delete;
    ~FileDescriptor()
    {
        if (m_fd > STDERR_FILENO)
            ::close(m_fd);
    }
    int get() const { return m_fd; }

private:
    int m_fd;
};

Result<FileDescriptor> openSource(const QString &path)
{
    // Not blocking: a named pipe without a writer would hang here, where nothing counts
    // the time.
    const int fd =
        ::open(fileNameBytes(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (fd < 0) {
        const auto code = errno == ENOENT ? Error::Code::NotFound : Error::Code::NotReadable;
        return Error{code, path, qt_error_string(errno)};
    }
    FileDescriptor file(fd);
    struct stat status = {};
    if (::fstat(fd, &status) == 0 && S_ISDIR(status.st_mode)) {
        return Error{Error::Code::NotReadable, path,
                     translate("Document", "this is a folder; choose a file in it")};
    }
    return file;
}

// `error` of a step on our own files, as one about the user's file. Where our
// files cannot be written, their folder is what the user must look at.
Error aboutSource(Error error, const QString &where)
{
    if (error.code != Error::Code::NotWritable)
        error.where = where;
    return error;
}

bool isStandardInput(const DocumentSource &source)
{
    return source.path.isEmpty() || source.path == QLatin1String("-");
}

QString inOneLine(const QString &title)
{
    QString line;
    eachCharacter(title, [&line](char32_t c) {
        if (!isKept(c) && c >= ' ')
            line += QChar(QChar::ReplacementCharacter);
        else if (isSeen(c))
            line += QString::fromUcs4(&c, 1);
        else if (QChar::category(c) != QChar::Other_Format)
            line += u' ';
    });
    return line.simplified();
}

} // namespace

QString askedTitle(const QString &title)
{
    return inOneLine(title);
}

QString titleOf(const DocumentSource &source)
{
    QString title = inOneLine(source.title);
    if (title.isEmpty())
        title = isStandardInput(source) ? QStringLiteral("(stdin)")
                                        : inOneLine(QFileInfo(source.path).fileName());
    return title.isEmpty() ? QStringLiteral("(untitled)") : title;
}

Result<std::shared_ptr<TemporaryFolder>> DocumentReader::makeFolder()
{
    auto folder = std::make_shared<TemporaryFolder>();
    if (!folder->isValid())
        return folderNotMade(temporaryPath(), folder->errorString());
    return folder;
}

Result<QString> DocumentReader::convert(DocumentKind kind, const ConverterFiles &files,
                                        const std::atomic_bool &cancelled)
{
    if (kind != DocumentKind::Text && kind != DocumentKind::PostScript)
        return convertPicture(files, cancelled);
    const Result<void> made = kind == DocumentKind::Text
        ? convertText(files, localePaper(), cancelled)
        : convertPostScript(files, localePaper(), cancelled);
    return made ? Result<QString>(QString()) : Result<QString>(made.error());
}

Result<Document> DocumentReader::read(const OpenSource &opened, Wanted wanted,
                                      const std::atomic_bool &cancelled)
{
    const QString &where = opened.where;
    auto folder = makeFolder();
    if (!folder)
        return folder.error();
    const QString path = folder.value()->path();
    const QString source = path + QLatin1String("/source");
    const Result<DocumentKind> kind = copySource(opened, source, cancelled);
    if (!kind)
        return kind.error();

    auto data = std::make_shared<Document::Data>();
    QString unchecked = source;
    if (kind.value() != DocumentKind::Pdf) {
        if (wanted.onlyPdf)
            return Error{Error::Code::Damaged, where, translate("Document", "this is no PDF")};
        unchecked = path + QLatin1String("/converted.pdf");
        Result<QString> made = convert(kind.value(), {path, source, unchecked, where}, cancelled);
        if (!made)
            return made.error();
        data->remark = std::move(made).value();
    }

    data->pdfPath = path + QLatin1Char('/') + pdfName;
    Result<PdfPages> pages = wanted.ahead
        ? wanted.ahead->tidy(unchecked, data->pdfPath, wanted.passwords, cancelled)
        : tidyPdf(unchecked, data->pdfPath, wanted.passwords, cancelled);
    if (!pages) {
        const bool isLocked =
            pages.error().code == Error::Code::Locked || pages.error().code == Error::Code::Refused;
        if (isLocked && wanted.locked) {
            wanted.locked->d = std::make_shared<LockedDocument::Data>(
                LockedDocument::Data{opened, wanted.title, folder.value(), source});
        }
        return aboutSource(pages.error(), where);
    }
    // A converter that writes damage has met a full disk or a broken document.
    if (unchecked != source && pages.value().isRepaired) {
        return converterError(Error::Code::Damaged, {path, source, unchecked, where},
                              translate("Document", "it could not be turned into a sound PDF"));
    }
    QFile::remove(source);
    QFile::remove(unchecked);

    data->title = wanted.title;
    data->sizes = std::move(pages.value().sizes);
    data->isRepaired = pages.value().isRepaired;
    if (pages.value().isSound)
        data->ahead = std::move(wanted.ahead);
    data->folder = std::move(folder).value();
    Document document;
    document.d = std::move(data);
    return document;
}

Result<Document> DocumentReader::unlock(const LockedDocument::Data &locked, const QString &password,
                                        const std::atomic_bool &cancelled)
{
    auto data = std::make_shared<Document::Data>();
    data->pdfPath = locked.folder->path() + QLatin1Char('/') + pdfName;
    QFile::remove(data->pdfPath); // what an earlier try has left
    Result<PdfPages> pages = tidyPdf(locked.copy, data->pdfPath, {password}, cancelled);
    if (!pages)
        return aboutSource(pages.error(), locked.source.where);
    QFile::remove(locked.copy);
    data->title = locked.title;
    data->sizes = std::move(pages.value().sizes);
    data->isRepaired = pages.value().isRepaired;
    data->folder = locked.folder;
    Document document;
    document.d = std::move(data);
    return document;
}

Result<Document> DocumentReader::join(const std::vector<Document> &documents, const QString &title,
                                      const std::atomic_bool &cancelled)
{
    auto folder = makeFolder();
    if (!folder)
        return folder.error();
    auto data = std::make_shared<Document::Data>();
    data->title = title;
    data->folder = std::move(folder).value();
    data->pdfPath = data->folder->path() + QLatin1Char('/') + pdfName;
    QStringList sources, remarks;
    for (const Document &document : documents) {
        sources << document.pdfPath();
        data->sizes.insert(data->sizes.end(), document.d->sizes.begin(), document.d->sizes.end());
        data->isRepaired = data->isRepaired || document.isRepaired();
        if (!document.remark().isEmpty())
            remarks << document.remark();
    }
    data->remark = remarks.join(u' ');
    if (Result<void> made = joinPdfs(sources, data->pdfPath, cancelled); !made)
        return aboutSource(made.error(), title);
    Document document;
    document.d = std::move(data);
    return document;
}

QString Document::title() const
{
    return d ? d->title : QString();
}

QString Document::pdfPath() const
{
    return d ? d->pdfPath : QString();
}

int Document::pageCount() const
{
    return d ? static_cast<int>(d->sizes.size()) : 0;
}

QSizeF Document::pageSize(int page) const
{
    return page >= 1 && page <= pageCount() ? d->sizes[static_cast<std::size_t>(page - 1)]
                                            : QSizeF();
}

bool Document::isRepaired() const
{
    return d && d->isRepaired;
}

QString Document::remark() const
{
    return d ? d->remark : QString();
}

std::optional<Document::Written> Document::writtenAhead(const PdfLayout &layout,
                                                        const EmbeddedFile &file) const
{
    if (!d || !d->ahead)
        return std::nullopt;
    const Result<QString> path = d->ahead->write(layout, file);
    return path ? std::optional(Written{path.value(), d}) : std::nullopt;
}

Result<Document> LockedDocument::unlocked(const QString &password,
                                          const std::atomic_bool &cancelled) const
{
    return DocumentReader::unlock(*d, password, cancelled);
}

Result<Document> joinDocuments(const std::vector<Document> &documents, const QString &title,
                               const std::atomic_bool &cancelled)
{
    return DocumentReader::join(documents, title, cancelled);
}

Result<Document> documentFromPdf(const QString &path, const QString &title)
{
    Result<FileDescriptor> file = openSource(path);
    if (!file)
        return file.error();
    const std::atomic_bool notCancelled = false;
    return DocumentReader::read({file.value().get(), path},
                                {.title = titleOf({path, title}), .onlyPdf = true}, notCancelled);
}

Result<Document> openDocument(const DocumentSource &source, const std::atomic_bool &cancelled,
                              std::shared_ptr<PdfAhead> ahead, LockedDocument *locked)
{
    DocumentReader::Wanted wanted{titleOf(source), source.passwords, false, std::move(ahead),
                                  locked};
    if (isStandardInput(source))
        return DocumentReader::read({STDIN_FILENO, QStringLiteral("(stdin)")}, std::move(wanted),
                                    cancelled);
    Result<FileDescriptor> file = openSource(source.path);
    if (!file)
        return file.error();
    return DocumentReader::read({file.value().get(), source.path, source.patienceMs},
                                std::move(wanted), cancelled);
}

} // namespace kelvo
