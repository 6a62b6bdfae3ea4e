#include "pdf_file.h"

#include "confinement.h"
#include "texts.h"

#include <qpdf/QPDFWriter.hh>

#include <QFile>

#include <cerrno>
#include <string>

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

void load(QPDF &pdf, std::FILE *source)
{
    pdf.setSuppressWarnings(true);
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
