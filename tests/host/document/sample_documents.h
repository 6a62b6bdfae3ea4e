#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QMap>
#include <QString>

// Documents for the tests, made of bytes that one can read.
namespace kelvo::test {

// A sound PDF file of `objects`; the first is number 1, the catalog.
QByteArray pdfOf(const QList<QByteArray> &objects);

// `pdf`, one of pdfOf(), as saved again by a program that only appends: with other
// objects of these numbers. The old ones' bytes stay.
QByteArray updatedPdf(const QByteArray &pdf, const QMap<int, QByteArray> &objects);

// "<< … /Length n >> stream …" of page contents.
QByteArray stream(const QByteArray &contents);

// A PDF with one page for each of `contents`. Page n is 200 + n points wide and
// 300 high; `pageEntries` go into every page's dictionary.
QByteArray pdfWithPages(const QList<QByteArray> &contents, const QByteArray &pageEntries = {});

// Page contents: the whole page in a colour ("1 0 0" is red).
QByteArray filled(const QByteArray &rgb);

// A red picture; a pixel is a point.
QByteArray picture(const char *format, const QSize &size,
                   QImage::Format pixels = QImage::Format_RGB32);

// A PNG that says it is this large, and is not.
QByteArray emptyPng(quint32 width, quint32 height);

// A grey TIFF of one pixel a page.
QByteArray tiff(int pages);

QByteArray bigEndian(quint32 number);

// Writes `bytes` to `name` in the current folder, the test's own; its full path.
QString file(const QString &name, const QByteArray &bytes);

// A file of `size` bytes that begins with `head`; the rest are zeros that take no room.
QString sparseFile(const QByteArray &head, qint64 size);

} // namespace kelvo::test
