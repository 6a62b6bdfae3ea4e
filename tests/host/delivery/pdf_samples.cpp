#include "pdf_samples.h"

#include <QFile>
#include <QList>
#include <QRandomGenerator>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

void writePdf(const QString &path, int pages, const QMap<QString, QByteArray> &attachments,
              qsizetype filler)
{
    QPDF pdf;
    pdf.emptyPDF();
    QPDFPageDocumentHelper helper(pdf);
    for (int page = 1; page <= pages; ++page) {
        auto content = QPDFObjectHandle::newStream(&pdf, "0 0 m 10 10 l S\n");
        auto dictionary = QPDFObjectHandle::parse("<</Type /Page /Resources <<>> /MediaBox [0 0 "
                                                  + std::to_string(100 + page) + " 200]>>");
        dictionary.replaceKey("/Contents", content);
        helper.addPage(QPDFPageObjectHelper(pdf.makeIndirectObject(dictionary)), false);
    }
    QPDFEmbeddedFileDocumentHelper files(pdf);
    for (auto file = attachments.cbegin(); file != attachments.cend(); ++file) {
        // "key (name)" sets both.
        const std::string key = file.key().section(u' ', 0, 0).toStdString();
        const QString inner = file.key().section(u'(', 1).chopped(file.key().contains(u'('));
        const std::string name = inner.isEmpty() ? key : inner.toStdString();
        auto stream = QPDFEFStreamObjectHelper::createEFStream(pdf, file->toStdString());
        files.replaceEmbeddedFile(key, QPDFFileSpecObjectHelper::createFileSpec(pdf, name, stream));
    }
    if (filler > 0) {
        QByteArray noise(filler, Qt::Uninitialized);
        QRandomGenerator random(1);
        for (char &byte : noise)
            byte = static_cast<char>(random.generate());
        pdf.getTrailer().replaceKey("/Filler",
                                    QPDFObjectHandle::newStream(&pdf, noise.toStdString()));
    }
    const QByteArray name = QFile::encodeName(path); // the writer does not copy it
    QPDFWriter writer(pdf, name.constData());
    writer.write();
}

QMap<QString, QByteArray> attachmentsOf(const QString &path)
{
    QPDF pdf;
    pdf.processFile(QFile::encodeName(path).constData());
    QPDFEmbeddedFileDocumentHelper files(pdf);
    QMap<QString, QByteArray> attachments;
    for (const auto &[key, file] : files.getEmbeddedFiles()) {
        const QString name = QString::fromStdString(file->getFilename());
        QString shown = QString::fromStdString(key);
        if (shown != name)
            shown += QStringLiteral(" (%1)").arg(name);
        auto stream = file->getEmbeddedFileStream();
        if (!stream.isStream())
            continue;
        const auto bytes = stream.getStreamData();
        attachments.insert(shown,
                           QByteArray(reinterpret_cast<const char *>(bytes->getBuffer()),
                                      static_cast<qsizetype>(bytes->getSize())));
    }
    return attachments;
}

static void addTexts(QPDFObjectHandle object, QStringList &texts)
{
    if (object.isString())
        texts << QString::fromStdString(object.getUTF8Value());
    if (object.isStream())
        object = object.getDict();
    for (auto &[key, value] : object.isDictionary() ? object.getDictAsMap()
                                                    : std::map<std::string, QPDFObjectHandle>()) {
        if (!value.isIndirect() && key != "/Contents")
            addTexts(value, texts);
    }
    for (auto &item :
         object.isArray() ? object.getArrayAsVector() : std::vector<QPDFObjectHandle>()) {
        if (!item.isIndirect())
            addTexts(item, texts);
    }
}

QStringList namesInside(const QString &path)
{
    QPDF pdf;
    pdf.processFile(QFile::encodeName(path).constData());
    QStringList texts;
    for (auto &object : pdf.getAllObjects())
        addTexts(object, texts);
    return texts;
}

QByteArrayList streamsInside(const QString &path)
{
    QPDF pdf;
    pdf.processFile(QFile::encodeName(path).constData());
    QByteArrayList streams;
    for (auto &object : pdf.getAllObjects()) {
        if (!object.isStream())
            continue;
        const auto bytes = object.getStreamData();
        streams << QByteArray(reinterpret_cast<const char *>(bytes->getBuffer()),
                              static_cast<qsizetype>(bytes->getSize()));
    }
    return streams;
}

QList<int> pagesOf(const QString &path)
{
    QPDF pdf;
    pdf.processFile(QFile::encodeName(path).constData());
    QList<int> pages;
    for (auto &page : QPDFPageDocumentHelper(pdf).getAllPages()) {
        const auto box = page.getMediaBox().getArrayAsRectangle();
        pages << static_cast<int>(box.urx) - 100;
    }
    return pages;
}
