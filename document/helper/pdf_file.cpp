#include "pdf_file.h"

#include "confinement.h"
#include "size_limits.h"
#include "texts.h"

#include <qpdf/QPDFWriter.hh>

#include <QFile>

#include <cerrno>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>

namespace kelvo::documents {

Error damaged(const QString &path, const QPDFExc &problem)
{
    if (problem.getErrorCode() == qpdf_e_password) {
        return Error{Error::Code::Refused, path,
                     translate("Document",
                               "the document is locked with a password; save a copy without "
                               "one and print that")};
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

Result<PdfFiles> openPdfFiles(const QString &source, const QString &target, const QString &second)
{
    PdfFiles files;
    files.source = std::fopen(QFile::encodeName(source).constData(), "rbe");
    if (!files.source)
        return Error{Error::Code::NotReadable, source, qt_error_string(errno)};
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

} // namespace

void load(QPDF &pdf, std::FILE *source)
{
    pdf.setSuppressWarnings(true);
    // libqpdf goes from object to object, and a stream loses what it has read with each step:
    // from memory, a document of many small objects takes half the time.
    if (const std::string_view bytes = mapped(source); !bytes.empty()) {
        std::fclose(source);
        pdf.processMemoryFile("document", bytes.data(), bytes.size());
        return;
    }
    pdf.processFile("document", source, true);
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
