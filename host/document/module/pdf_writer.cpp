#include "pdf_writer.h"

#include "output_file.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFWriter.hh>

#include <string>

namespace kelvo::documents {

Result<void> writePdf(QPDF &pdf, const QString &target)
{
    auto file = OutputFile::create(target);
    if (!file)
        return file.error();
    std::string failure;
    try {
        QPDFWriter writer(pdf, "document", file.value().stream(), false);
        writer.setPreserveEncryption(false);
        writer.write();
    } catch (const QPDFExc &) {
        (void)file.value().close(); // the document is at fault, as the caller tells
        throw;
    } catch (const std::exception &problem) {
        failure = problem.what();
    }
    if (auto closed = file.value().close(); !closed)
        return closed;
    if (!failure.empty())
        return Error{Error::Code::NotWritable, target, QString::fromStdString(failure)};
    return {};
}

} // namespace kelvo::documents
