#include "functions.h"
#include "pdf_writer.h"

#include <QFile>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>

#include <vector>

namespace kelvo::documents {

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

// The keys of the embedded files that a reader would take for `name`: the name
// in the document's tree and the file's own may differ.
std::vector<std::string> keysOf(QPDFEmbeddedFileDocumentHelper &files, const QString &name)
{
    const auto isNamed = [&name](const std::string &other) {
        return name.compare(QString::fromStdString(other), Qt::CaseInsensitive) == 0;
    };
    std::vector<std::string> keys;
    for (const auto &[key, file] : files.getEmbeddedFiles()) {
        if (isNamed(key) || isNamed(file->getFilename()))
            keys.push_back(key);
    }
    return keys;
}

} // namespace

Result<bool> holdsEmbeddedFile(const QString &pdfPath, const QString &name)
{
    return guarded(pdfPath, [&]() -> Result<bool> {
        QPDF pdf;
        open(pdf, pdfPath);
        QPDFEmbeddedFileDocumentHelper files(pdf);
        return !keysOf(files, name).empty();
    });
}

Result<void> replaceEmbeddedFile(const QString &source, const QString &name,
                                 const QByteArray &mimeType, const QByteArray &bytes,
                                 const QString &target)
{
    return guarded(source, [&]() -> Result<void> {
        QPDF pdf;
        open(pdf, source);
        QPDFEmbeddedFileDocumentHelper files(pdf);
        for (const std::string &key : keysOf(files, name))
            files.removeEmbeddedFile(key);
        if (!bytes.isNull()) {
            const std::string key = name.toStdString();
            auto stream = QPDFEFStreamObjectHelper::createEFStream(pdf, bytes.toStdString());
            stream.setSubtype(mimeType.toStdString());
            files.replaceEmbeddedFile(key,
                                      QPDFFileSpecObjectHelper::createFileSpec(pdf, key, stream));
        }
        return writePdf(pdf, target);
    });
}

} // namespace kelvo::documents
