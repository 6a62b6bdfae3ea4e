#include "document_helper.h"
#include "helper_messages.h"
#include "picture_import.h"
#include "sample_documents.h"
#include "table.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>

using namespace kelvo;
using namespace kelvo::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(kelvo::Error::Code)

namespace {

// A JPEG that says it was taken with the camera on its side.
QByteArray turned(QByteArray jpeg)
{
    const QByteArray tag = bigEndian(0x0112'0003) + bigEndian(1) + bigEndian(6 << 16);
    return jpeg.insert(2,
                       QByteArray("\xff\xe1\0\x22"
                                  "Exif\0\0MM\0*\0\0\0\x08\0\x01",
                                  20)
                           + tag + bigEndian(0));
}

QByteArray svg(const QByteArray &inside)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='200' height='100'>"
        + inside + "</svg>";
}

QImage imageOf(const ImportedPicture &picture)
{
    return QImage(reinterpret_cast<const uchar *>(picture.bytes.constData()), picture.size.width(),
                  picture.size.height(), QImage::Format_ARGB32_Premultiplied)
        .copy();
}

// A folder with a converter that is the shell script `script`.
QString scriptedConverter(const QByteArray &script)
{
    QDir().mkpath(u"scripted"_s);
    const QString path = file(u"scripted/kelvo-converter"_s, "#!/bin/sh\n" + script + "\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return QFileInfo(u"scripted"_s).absoluteFilePath();
}

} // namespace

class TestPictureImport : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setDocumentHelperFolder({}); }
    void takesEachKind_data();
    void takesEachKind();
    void keepsOutOtherFiles();
    void obeysLimits_data();
    void obeysLimits();
    void refusesWhatIsNoPicture_data();
    void refusesWhatIsNoPicture();
    void saysWhatBecameOfTheReader_data();
    void saysWhatBecameOfTheReader();
    void canBeCancelled();
};

void TestPictureImport::takesEachKind_data()
{
    // middle: what a pixel in the middle is, or nearly is
    const Table<QByteArray, QSizeF, QSize, QRgb> row{"bytes", "natural", "size", "middle"};
    constexpr QRgb red = qRgba(255, 0, 0, 255);
    row("PNG", picture("png", {30, 20}), {30, 20}, {30, 20}, red);
    row("BMP", picture("bmp", {30, 20}), {30, 20}, {30, 20}, red);
    row("JPEG", picture("jpeg", {30, 20}), {30, 20}, {30, 20}, red);
    row("JPEG, gray", picture("jpeg", {30, 20}, QImage::Format_Grayscale8), {30, 20}, {30, 20},
        qRgba(87, 87, 87, 255));
    row("JPEG, turned", turned(picture("jpeg", {30, 20})), {20, 30}, {20, 30}, red);
    row("GIF",
        QByteArray("GIF89a\1\0\1\0\x80\0\0\xff\0\0\xff\xff\xff,\0\0\0\0\1\0\1\0\0"
                   "\2\2D\1\0;",
                   35),
        {1, 1}, {1, 1}, red);
    row("TIFF with pages", tiff(3), {1, 1}, {1, 1}, qRgba(0, 0, 0, 255));
    row("as many pixels as come back", picture("png", {4000, 2000}), {4000, 2000}, {4000, 2000},
        red);
    row("one row more", picture("png", {4000, 2001}), {4000, 2001}, {3999, 2000}, red);
    row("a line", picture("png", {20'000, 1}), {20'000, 1}, {20'000, 1}, red);
    row("SVG", svg("<rect width='200' height='100' fill='#f00' fill-opacity='0.5'/>"), {200, 100},
        {2048, 1024}, qRgba(128, 0, 0, 128));
    row("SVG with text, nothing in the middle", svg("<text x='9' y='9'>hello</text>"), {200, 100},
        {2048, 1024}, 0);
    row("SVG, large", svg("").replace("200", "9000").replace("'100'", "'9000'"), {9000, 9000},
        {2828, 2828}, 0);
}

void TestPictureImport::takesEachKind()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QSizeF, natural);
    QFETCH(QSize, size);
    QFETCH(QRgb, middle);

    const auto picture = importPicture(file(u"%d -o 'x' <b>.txt"_s, bytes));

    QVERIFY2(picture, qPrintable(picture.reason()));
    QCOMPARE(picture.value().naturalSize, natural);
    QCOMPARE(picture.value().size, size);
    QCOMPARE(picture.value().bytes.size(), qsizetype(4) * size.width() * size.height());
    const QRgb pixel = imageOf(picture.value()).pixel(size.width() / 2, size.height() / 2);
    for (const int shift : {0, 8, 16, 24}) {
        const auto part = [shift](QRgb rgba) { return int(rgba >> shift & 0xff); };
        QVERIFY2(qAbs(part(pixel) - part(middle)) < 4, qPrintable(QString::number(pixel, 16)));
    }
}

void TestPictureImport::keepsOutOtherFiles()
{
    const QByteArray other = file(u"red.png"_s, picture("png", {10, 10})).toLocal8Bit();
    const QString path =
        file(u"drawing"_s, svg("<image width='200' height='100' xlink:href='" + other + "'/>"));

    const auto picture = importPicture(path);

    QVERIFY2(picture, qPrintable(picture.reason()));
    QCOMPARE(picture.value().leftOut, 1);
    QCOMPARE(imageOf(picture.value()).pixel(1024, 512), 0U);
}

void TestPictureImport::obeysLimits_data()
{
    using Code = Error::Code;
    const Table<QByteArray, qint64, Error::Code, QString> row{"head", "size", "code", "words"};
    row("pixels", emptyPng(20'000, 10'000), 100, Code::Damaged, "cannot be read");
    row("pixels, one row above", emptyPng(20'000, 10'001), 100, Code::TooLarge, "200 million");
    row("bytes", emptyPng(1, 1), limits::pictureBytes, Code::Damaged, "cannot be read");
    row("bytes + 1", emptyPng(1, 1), limits::pictureBytes + 1, Code::TooLarge, "256 MB");
}

void TestPictureImport::obeysLimits()
{
    QFETCH(QByteArray, head);
    QFETCH(qint64, size);
    QFETCH(Error::Code, code);
    QFETCH(QString, words);
    const QString path = sparseFile(head, size);

    const auto picture = importPicture(path);

    QFile::remove(path);
    QVERIFY(!picture);
    QCOMPARE(picture.error().code, code);
    QCOMPARE(picture.error().where, path);
    QVERIFY2(picture.error().detail.contains(words), qPrintable(picture.reason()));
    QVERIFY(picture.error().detail.contains(u"another"_s)); // what to do
}

void TestPictureImport::refusesWhatIsNoPicture_data()
{
    using Code = Error::Code;
    const Table<QByteArray, Error::Code, QString> row{"bytes", "code", "words"};
    row("nothing", {}, Code::Damaged, "is empty");
    row("text", "a text", Code::Unsupported, "this is a text; choose a picture in PNG, JPEG");
    row("PDF", pdfWithPages({""}), Code::Unsupported, "a PDF document");
    row("PostScript", "%!PS\n", Code::Unsupported, "PostScript");
    row("WebP", picture("webp", {20, 30}), Code::Unsupported, "a WebP picture");
    row("office", "PK\3\4x", Code::Unsupported, "office");
    row("cut off", picture("png", {300, 200}).first(60), Code::Damaged, "cannot be read");
    row("all numbers", emptyPng(0x7fffffff, 0x7fffffff), Code::Damaged, "cannot be read");
    row("SVG cut off", "<svg xmlns='http://www.w3.org/2000/svg'><g", Code::Damaged,
        "the drawing cannot be read");
    row("no file", "NONE", Code::NotFound, "No such file");
    row("folder", "FOLDER", Code::NotReadable, "a folder");
    row("pipe", "PIPE", Code::NotReadable, "no file");
    row("not for us", "CLOSED", Code::NotReadable, "ermission");
}

void TestPictureImport::refusesWhatIsNoPicture()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Error::Code, code);
    QFETCH(QString, words);
    QFile::remove(u"picture"_s);
    QDir().rmdir(u"picture"_s);
    const QString path = QDir::current().absoluteFilePath(u"picture"_s);
    if (bytes == "FOLDER")
        QVERIFY(QDir().mkdir(path));
    else if (bytes == "PIPE")
        QCOMPARE(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    else if (bytes != "NONE")
        file(u"picture"_s, bytes);
    if (bytes == "CLOSED")
        QFile::setPermissions(path, {});

    const auto picture = importPicture(path);

    QVERIFY(!picture);
    QCOMPARE(picture.error().code, code);
    QCOMPARE(picture.error().where, path);
    QVERIFY2(picture.error().detail.contains(words), qPrintable(picture.reason()));
    QVERIFY2(picture.error().detail.contains(u"choose"_s), qPrintable(picture.reason()));
}

void TestPictureImport::saysWhatBecameOfTheReader_data()
{
    using Code = Error::Code;
    const Table<QByteArray, Error::Code> row{"script", "code"};
    row("crash", "kill -SEGV $$", Code::Damaged);
    row("out of memory", "exit 21", Code::TooLarge);
    row("silence", "exit 0", Code::Damaged);
    row("processor time", "kill -XCPU $$", Code::TimedOut);
    // An answer of two pixels: with all their bytes, with fewer, and with no size.
    const auto answer = [](const QSizeF &natural, const QSize &size, qsizetype bytes) {
        QByteArray encoded;
        QDataStream out(&encoded, QIODevice::WriteOnly);
        out << true << natural << size << QByteArray(bytes, '\0') << 0;
        const MessageSize length = MessageSize(encoded.size());
        encoded.prepend(reinterpret_cast<const char *>(&length), sizeof length);
        QByteArray octal;
        for (const char byte : encoded)
            octal += "\\0" + QByteArray::number(static_cast<unsigned char>(byte), 8);
        return "cat > /dev/null; printf '%b' '" + octal + "'";
    };
    row("an answer", answer({2, 1}, {2, 1}, 8), Code::Unsupported); // none of these
    row("fewer bytes", answer({2, 1}, {2, 1}, 7), Code::Damaged);
    row("more bytes", answer({2, 1}, {2, 1}, 12), Code::Damaged);
    row("no pixels", answer({2, 1}, {0, 1}, 0), Code::Damaged);
    row("negative ones", answer({2, 1}, {-2, -1}, 8), Code::Damaged);
    row("no number", answer({qQNaN(), 1}, {2, 1}, 8), Code::Damaged);
}

void TestPictureImport::saysWhatBecameOfTheReader()
{
    QFETCH(QByteArray, script);
    QFETCH(Error::Code, code);
    const QString path = file(u"sound"_s, picture("png", {3, 2}));
    setDocumentHelperFolder(scriptedConverter(script));

    const auto picture = importPicture(path);

    QCOMPARE(bool(picture), code == Error::Code::Unsupported);
    if (!picture) {
        QCOMPARE(picture.error().code, code);
        QCOMPARE(picture.error().where, path);
    }
}

void TestPictureImport::canBeCancelled()
{
    const QString path = file(u"sound"_s, picture("png", {3, 2}));
    setDocumentHelperFolder(scriptedConverter("exec sleep 60"));
    const std::atomic_bool cancelled = true;
    QCOMPARE(importPicture(path, &cancelled).error().code, Error::Code::Cancelled);
}

QTEST_GUILESS_MAIN(TestPictureImport)
#include "test_picture_import.moc"
