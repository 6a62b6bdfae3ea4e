#include "ticket_attachment.h"

#include "output_file.h"
#include "property_list.h"

#include <QFile>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <sys/random.h>

#include <cerrno>
#include <cstring>
#include <vector>

namespace kelvo {

namespace {

using Code = Error::Code;

// `work`, which may throw what libqpdf throws, as a result.
template <typename Work>
auto guarded(const QString &path, Work work) -> decltype(work())
{
    try {
        return work();
    } catch (const QPDFExc &problem) {
        return Error{Code::Damaged, path, QString::fromStdString(problem.getMessageDetail())};
    } catch (const std::exception &problem) {
        return Error{Code::Damaged, path, QString::fromUtf8(problem.what())};
    }
}

void open(QPDF &pdf, const QString &path)
{
    pdf.setSuppressWarnings(true);
    pdf.processFile(QFile::encodeName(path).constData());
}

// The keys of the embedded files that a reader would take for the ticket: the
// name in the document's tree and the file's own may differ.
std::vector<std::string> ticketKeys(QPDFEmbeddedFileDocumentHelper &files)
{
    const auto isTicket = [](const std::string &name) {
        return kTicketAttachmentName.compare(QString::fromStdString(name), Qt::CaseInsensitive)
            == 0;
    };
    std::vector<std::string> keys;
    for (const auto &[key, file] : files.getEmbeddedFiles()) {
        if (isTicket(key) || isTicket(file->getFilename()))
            keys.push_back(key);
    }
    return keys;
}

Result<void> write(QPDF &pdf, const QString &target)
{
    auto file = OutputFile::create(target);
    if (!file)
        return file.error();
    std::string failure;
    try {
        QPDFWriter writer(pdf, "document", file.value().stream(), false);
        writer.write();
    } catch (const QPDFExc &) {
        (void)file.value().close(); // the document is at fault, which guarded() tells
        throw;
    } catch (const std::exception &problem) {
        failure = problem.what();
    }
    if (auto closed = file.value().close(); !closed)
        return closed;
    if (!failure.empty())
        return Error{Code::NotWritable, target, QString::fromStdString(failure)};
    return {};
}

} // namespace

Result<QByteArray> ticketForJob(const TicketFile &ticket)
{
    QByteArray nonce(16, Qt::Uninitialized);
    if (::getrandom(nonce.data(), static_cast<std::size_t>(nonce.size()), 0) != nonce.size())
        return Error{Code::NotReadable, QStringLiteral("getrandom"),
                     QString::fromUtf8(std::strerror(errno))};
    TicketFile sent = ticket;
    sent.unknown.insert(kTicketNonceKey, nonce);
    sent.printSettings.entries.erase(kPMPageRangesKey);
    return CFPropertyListCreateXMLData(propertyListFrom(sent));
}

Result<bool> holdsTicket(const QString &path)
{
    return guarded(path, [&]() -> Result<bool> {
        QPDF pdf;
        open(pdf, path);
        QPDFEmbeddedFileDocumentHelper files(pdf);
        return !ticketKeys(files).empty();
    });
}

Result<void> replaceTicket(const QString &source, const QByteArray &ticket, const QString &target)
{
    return guarded(source, [&]() -> Result<void> {
        QPDF pdf;
        open(pdf, source);
        QPDFEmbeddedFileDocumentHelper files(pdf);
        for (const std::string &key : ticketKeys(files))
            files.removeEmbeddedFile(key);
        if (!ticket.isNull()) {
            const std::string name = kTicketAttachmentName.toStdString();
            auto stream = QPDFEFStreamObjectHelper::createEFStream(pdf, ticket.toStdString());
            stream.setSubtype("application/x-plist");
            files.replaceEmbeddedFile(name,
                                      QPDFFileSpecObjectHelper::createFileSpec(pdf, name, stream));
        }
        return write(pdf, target);
    });
}

} // namespace kelvo
