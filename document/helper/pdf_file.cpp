#include "pdf_file.h"

#include "confinement.h"
#include "size_limits.h"
#include "texts.h"

#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

#include <QFile>

#include <cerrno>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace kelvo::documents {

Error damaged(const QString &path, const QPDFExc &problem)
{
    if (problem.getErrorCode() == qpdf_e_password) {
        return Error{Error::Code::Locked, path,
                     translate("Document", "the document is locked with a password")};
    }
    return Error{Error::Code::Damaged, path,
                 translate("Document", "the PDF is damaged and cannot be repaired: %1")
                     .arg(QString::fromStdString(problem.getMessageDetail()))};
}

Error damaged(const QString &path, const std::exception &problem)
{
    return Error{
        Error::Code::Damaged, path,
        translate("Document", "the PDF cannot be read: %1").arg(QString::fromUtf8(problem.what()))};
}

Result<std::FILE *> openToRead(const QString &path)
{
    std::FILE *file = std::fopen(QFile::encodeName(path).constData(), "rbe");
    if (!file)
        return Error{Error::Code::NotReadable, path, qt_error_string(errno)};
    return file;
}

Result<PdfFiles> openPdfFiles(const QString &source, const QString &target, const QString &second)
{
    const auto opened = openToRead(source);
    if (!opened)
        return opened.error();
    PdfFiles files;
    files.source = opened.value();
    for (const auto &[path, file] : {std::pair(&target, &files.target), {&second, &files.second}}) {
        if (path->isEmpty())
            continue;
        auto output = OutputFile::create(*path);
        if (!output)
            return output.error();
        *file = std::move(output).value();
    }
    confineToOpenFiles();
    return files;
}

namespace {

// Larger ones are left to read(): addresses are limited, and reading takes longer anyway.
constexpr qint64 mostMapped = 64 * limits::MiB;

// The bytes of `source`, for as long as the process runs; none where they are not to be mapped.
// It is a file of ours that nobody changes while a helper reads it.
std::string_view mapped(std::FILE *source)
{
    struct stat status = {};
    if (::fstat(::fileno(source), &status) != 0 || status.st_size <= 0
        || status.st_size > mostMapped) {
        return {};
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    void *bytes = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, ::fileno(source), 0);
    return bytes == MAP_FAILED ? std::string_view()
                               : std::string_view(static_cast<const char *>(bytes), size);
}

// What may have been made of `password`, as bytes: UTF-8 for AES-256, where letters that look the
// same count as the same; PDFDocEncoding for what is older, and whatever its maker took for that.
std::vector<std::string> spellings(const QString &password)
{
    std::vector<std::string> all =
        QUtil::possible_repaired_encodings(password.toUtf8().toStdString());
    all.push_back(password.normalized(QString::NormalizationForm_KC).toUtf8().toStdString());
    return all;
}

// The one of `passwords` that load() speaks of. None is right: one that is not. `read` loads
// the document with a password.
template <typename Read>
std::string findPassword(const QStringList &passwords, Read read)
{
    std::string right;
    bool isFound = false;
    const auto lets = [&](const std::string &password) {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        try {
            read(pdf, password);
        } catch (const QPDFExc &problem) {
            if (problem.getErrorCode() == qpdf_e_password)
                return false;
            throw;
        }
        if (!std::exchange(isFound, true))
            right = password;
        if (!mayPrint(pdf))
            return false;
        right = password;
        return true;
    };
    if (lets({})) // no password is as good as any other
        return {};
    for (const QString &password : passwords) {
        for (const std::string &spelling : spellings(password)) {
            if (lets(spelling))
                return spelling;
        }
    }
    return right;
}

} // namespace

void load(QPDF &pdf, std::FILE *source, const QStringList &passwords)
{
    // libqpdf goes from object to object, and a stream loses what it has read with each step:
    // from memory, a document of many small objects takes half the time.
    const std::string_view bytes = mapped(source);
    const auto read = [&](QPDF &into, const std::string &password, bool isLast = false) {
        if (bytes.empty())
            into.processFile("document", source, isLast, password.c_str());
        else
            into.processMemoryFile("document", bytes.data(), bytes.size(), password.c_str());
    };
    if (!bytes.empty())
        std::fclose(source);
    pdf.setSuppressWarnings(true);
    read(pdf, passwords.isEmpty() ? std::string() : findPassword(passwords, read), true);
}

bool mayPrint(QPDF &pdf)
{
    return pdf.allowPrintLowRes() || pdf.allowPrintHighRes() || pdf.ownerPasswordMatched();
}

Result<void> writePdf(QPDF &pdf, OutputFile &target)
{
    std::string failure;
    try {
        QPDFWriter writer(pdf, "document", target.stream(), false);
        writer.setPreserveEncryption(false);
        writer.write();
    } catch (const QPDFExc &) {
        (void)target.close(); // the document is at fault, as the caller tells
        throw;
    } catch (const std::exception &problem) {
        failure = problem.what();
    }
    if (auto closed = target.close(); !closed)
        return closed;
    if (!failure.empty())
        return Error{Error::Code::NotWritable, target.path(), QString::fromStdString(failure)};
    return {};
}

} // namespace kelvo::documents
