#include "sample_documents.h"

#include <QBuffer>
#include <QDir>
#include <QFile>

namespace kelvo::test {

QByteArray pdfOf(const QList<QByteArray> &objects)
{
    QByteArray pdf = "%PDF-1.7\n";
    QByteArray table = "0000000000 65535 f \n";
    for (qsizetype index = 0; index < objects.size(); ++index) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(index + 1) + " 0 obj\n" + objects[index] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    const QByteArray start = QByteArray::number(pdf.size());
    return pdf + "xref\n0 " + count + "\n" + table + "trailer\n<< /Size " + count
        + " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

QByteArray updatedPdf(const QByteArray &pdf, const QMap<int, QByteArray> &objects)
{
    QByteArray updated = pdf;
    QByteArray table;
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        const QByteArray number = QByteArray::number(object.key());
        table += number + " 1\n" + QByteArray::number(updated.size()).rightJustified(10, '0')
            + " 00000 n \n";
        updated += number + " 0 obj\n" + *object + "\nendobj\n";
    }
    const QByteArray trailer = pdf.sliced(pdf.lastIndexOf("/Size "));
    const QByteArray size = trailer.first(trailer.indexOf("/Root"));
    const QByteArray earlier = trailer.sliced(trailer.indexOf("startxref\n") + 10).split('\n')[0];
    const QByteArray start = QByteArray::number(updated.size());
    return updated + "xref\n" + table + "trailer\n<< " + size + "/Root 1 0 R /Prev " + earlier
        + " >>\nstartxref\n" + start + "\n%%EOF\n";
}

QByteArray stream(const QByteArray &contents)
{
    return "<< /Length " + QByteArray::number(contents.size()) + " >>\nstream\n" + contents
        + "\nendstream";
}

QByteArray pdfWithPages(const QList<QByteArray> &contents, const QByteArray &pageEntries)
{
    // 1 the catalog, 2 the page tree, then each page and its contents.
    QByteArray kids;
    QList<QByteArray> pages;
    for (qsizetype index = 0; index < contents.size(); ++index) {
        const QByteArray number = QByteArray::number(3 + 2 * index);
        kids += number + " 0 R ";
        pages << "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + QByteArray::number(201 + index)
                + " 300] /Contents " + QByteArray::number(4 + 2 * index) + " 0 R " + pageEntries
                + " >>";
        pages << stream(contents[index]);
    }
    return pdfOf(QList<QByteArray>{"<< /Type /Catalog /Pages 2 0 R >>",
                                   "<< /Type /Pages /Kids [" + kids + "] /Count "
                                       + QByteArray::number(contents.size()) + " >>"}
                 + pages);
}

QByteArray filled(const QByteArray &rgb)
{
    return rgb + " rg 0 0 2000 2000 re f";
}

QByteArray picture(const char *format, const QSize &size, QImage::Format pixels)
{
    QImage image(size, pixels);
    image.fill(Qt::red);
    image.setDotsPerMeterX(2835); // 72 dpi: a pixel is a point
    image.setDotsPerMeterY(2835);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, format) ? bytes : QByteArray();
}

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(number >> shift);
    return bytes;
}

QByteArray emptyPng(quint32 width, quint32 height)
{
    const QByteArray header =
        "IHDR" + bigEndian(width) + bigEndian(height) + QByteArray("\x08\x02\0\0\0", 5);
    quint32 crc = 0xffffffff;
    for (const char byte : header) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xedb88320 : 0);
    }
    return "\x89PNG\r\n\x1a\n" + bigEndian(13) + header + bigEndian(~crc) + bigEndian(1000)
        + "IDAT\x78\x9c";
}

QByteArray tiff(int pages)
{
    QByteArray bytes = QByteArray("MM\0*", 4) + bigEndian(8);
    const auto entry = [](int tag, int type, quint32 value) {
        return bigEndian(quint32(tag) << 16 | quint32(type)) + bigEndian(1)
            + (type == 3 ? bigEndian(value << 16) : bigEndian(value));
    };
    for (int page = 0; page < pages; ++page) {
        const auto next = static_cast<quint32>(bytes.size() + 2 + 8 * 12 + 4);
        bytes += QByteArray("\0\x08", 2) + entry(256, 3, 1) + entry(257, 3, 1) + entry(258, 3, 8)
            + entry(259, 3, 1) + entry(262, 3, 1) + entry(273, 4, 8) + entry(278, 3, 1)
            + entry(279, 4, 1) + bigEndian(page + 1 < pages ? next : 0);
    }
    return bytes;
}

QString file(const QString &name, const QByteArray &bytes)
{
    QFile made(name);
    const bool isWritten = made.open(QIODevice::WriteOnly) && made.write(bytes) == bytes.size();
    return isWritten ? QDir::current().absoluteFilePath(name) : QString();
}

QString sparseFile(const QByteArray &head, qint64 size)
{
    const QString path = file("sparse", head);
    return QFile::resize(path, size) ? path : QString();
}

} // namespace kelvo::test
