#include "document.h"
#include "document_files.h"
#include "files.h"
#include "sample_documents.h"
#include "size_limits.h"
#include "table.h"

#include <QElapsedTimer>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include <poppler-form.h>
#include <poppler-qt6.h>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace kelvo;
using namespace kelvo::test;

Q_DECLARE_METATYPE(kelvo::Error::Code)

namespace {

Result<Document> open(const QString &path)
{
    const std::atomic_bool cancelled = false;
    return openDocument({path, {}}, cancelled);
}

QByteArray encrypted(const QByteArray &pdf, const char *password, bool mayPrint)
{
    QPDF document;
    document.processMemoryFile("sample", pdf.constData(), static_cast<std::size_t>(pdf.size()));
    QPDFWriter writer(document);
    writer.setOutputMemory();
    writer.setR6EncryptionParameters(password, "owner", true, true, true, true, true, true,
                                     mayPrint ? qpdf_r3p_full : qpdf_r3p_none, true);
    writer.write();
    const std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
    return QByteArray(reinterpret_cast<const char *>(buffer->getBuffer()),
                      static_cast<qsizetype>(buffer->getSize()));
}

// As before AES: RC4 with 40 or 128 bits, and a password in whatever bytes its maker took.
QByteArray encryptedWithRc4(const QByteArray &pdf, int bits, const char *password, bool mayPrint)
{
    QPDF document;
    document.processMemoryFile("sample", pdf.constData(), static_cast<std::size_t>(pdf.size()));
    QPDFWriter writer(document);
    writer.setOutputMemory();
    if (bits == 40)
        writer.setR2EncryptionParametersInsecure(password, "owner", mayPrint, true, true, true);
    else
        writer.setR3EncryptionParametersInsecure(password, "owner", true, true, true, true, true,
                                                 true, mayPrint ? qpdf_r3p_full : qpdf_r3p_none);
    writer.write();
    const std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
    return QByteArray(reinterpret_cast<const char *>(buffer->getBuffer()),
                      static_cast<qsizetype>(buffer->getSize()));
}

QString textOf(const Document &document)
{
    const auto pdf = Poppler::Document::load(document.pdfPath());
    QStringList pages;
    for (int page = 0; page < pdf->numPages(); ++page)
        pages << pdf->page(page)->text(QRectF()).trimmed();
    return pages.join(u'|');
}

const QByteArray postScriptPage =
    "/Helvetica findfont 20 scalefont setfont 72 700 moveto (hello) show showpage\n";

} // namespace

class TestDocuments : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void makesPdfOfEachKind_data();
    void makesPdfOfEachKind();
    void refusesWhatItCannotPrint_data();
    void refusesWhatItCannotPrint();
    void obeysSizeLimits_data();
    void obeysSizeLimits();
    void keepsOutOtherFiles_data();
    void keepsOutOtherFiles();
    void setsTexts_data();
    void setsTexts();
    void saysWhichFontIsMissing_data();
    void saysWhichFontIsMissing();
    void fillsPagesBetweenTheMargins();
    void wrapsOneEndlessLine();
    void tellsShownSizes_data();
    void tellsShownSizes();
    void repairsDamageAndSaysSo();
    void unlocksWhatNeedsNoPassword();
    void opensWithAPassword_data();
    void opensWithAPassword();
    void joinsDocuments();
    void keepsFilesPrivateAndCleansUp();
    void saysThatTheDiskIsFull();
    void saysThatNoTemporaryFileCanBeMade();
    void doesNotWaitForASilentPipe();
    void stopsWhenCancelled();
    void namesTheMissingPackage();
    void readsStandardInput();
    void placesPictures_data();
    void placesPictures();
};

// Whatever a test did: when its documents are gone, so are their files.
void TestDocuments::cleanup()
{
    QCOMPARE(QDir::temp().entryList({"kelvo-print-*"}, QDir::Dirs), QStringList());
}

void TestDocuments::makesPdfOfEachKind_data()
{
    // size: points, rounded, of the first page
    const Table<QByteArray, int, QSize> row{"bytes", "pages", "size"};
    const QSize portrait(595, 842);
    const QSize landscape(842, 595);

    row("PDF", pdfWithPages({"", ""}), 2, QSize(201, 300));
    row("PDF after junk", "junk\n" + pdfWithPages({""}), 1, QSize(201, 300));
    row("PostScript", "%!PS\n" + postScriptPage + postScriptPage, 2, portrait);
    row("wrapped PostScript",
        "\x1b%-12345X@PJL ENTER LANGUAGE=POSTSCRIPT\r\n%!PS\n" + postScriptPage, 1, portrait);
    row("EPS without showpage",
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n0 0 9 9 rectfill\n", 1, portrait);
    row("PNG, wide", picture("png", {300, 200}), 1, landscape);
    row("JPEG, tall", picture("jpeg", {200, 300}), 1, portrait);
    row("JPEG, larger than paper", picture("jpeg", {6000, 2000}), 1, landscape);
    // Qt converts these on threads.
    row("JPEG, gray", picture("jpeg", {600, 800}, QImage::Format_Grayscale8), 1, portrait);
    row("JPEG, sharper than paper", picture("jpeg", {8000, 300}), 1, landscape);
    row("PNG, transparent", picture("png", {600, 800}, QImage::Format_ARGB32), 1, portrait);
    row("BMP", picture("bmp", {20, 30}), 1, portrait);
    row("WebP", picture("webp", {20, 30}), 1, portrait);
    row("GIF",
        QByteArray("GIF89a\1\0\1\0\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\1\0\1\0\0"
                   "\2\2D\1\0;",
                   35),
        1, portrait);
    row("TIFF with pages", tiff(3), 3, portrait);
    row("SVG",
        "<svg xmlns='http://www.w3.org/2000/svg' width='300' "
        "height='100'><text x='9' y='50'>hello</text></svg>",
        1, landscape);
}

void TestDocuments::makesPdfOfEachKind()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, pages);
    QFETCH(QSize, size);

    // No ending, and a name that a careless caller would take for something else.
    const Result<Document> document = open(file("%d -o 'x' <b>.ps.png", bytes));

    QVERIFY2(document, document ? "" : qPrintable(document.error().text()));
    QCOMPARE(document.value().title(), "%d -o 'x' <b>.ps.png");
    QCOMPARE(document.value().pageCount(), pages);
    QCOMPARE(document.value().pageSize(1).toSize(), size);
    QVERIFY(!document.value().isRepaired());
    const auto pdf = Poppler::Document::load(document.value().pdfPath());
    QVERIFY(pdf);
    QCOMPARE(pdf->numPages(), pages);
    QCOMPARE(pdf->page(0)->pageSizeF().toSize(), size);
}

void TestDocuments::refusesWhatItCannotPrint_data()
{
    using Code = Error::Code;
    // words: in the message
    const Table<QByteArray, Error::Code, QString> row{"bytes", "code", "words"};

    const QByteArray pdf = pdfWithPages({"", ""});
    row("empty", {}, Code::Damaged, "is empty");
    row("binary", QByteArray("\1\0\2\0", 4), Code::Unsupported, "can be printed");
    row("office", "PK\3\4x", Code::Unsupported, "office");
    row("binary after much text", QByteArray(100'000, 'a') + '\0', Code::Unsupported,
        "no text has");
    row("PDF, only its header", pdf.first(20), Code::Damaged, "damaged");
    row("PDF without pages",
        pdfOf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [] /Count 0 >>"}),
        Code::Damaged, "no pages");
    row("PDF that is its own page tree",
        pdfOf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [2 0 R] /Count 1 >>"}),
        Code::Damaged, "PDF");
    row("PDF with a password", encrypted(pdf, "secret", true), Code::Locked, "with a password");
    row("PDF that must not be printed", encrypted(pdf, "", false), Code::Refused, "does not allow");
    row("PostScript with an error", "%!PS\nnonsense showpage\n", Code::Damaged, "undefined");
    row("PostScript that reads files", "%!PS\n(/etc/passwd) (r) file showpage\n", Code::Damaged,
        "invalidfileaccess");
    row("picture cut off", picture("png", {300, 200}).first(60), Code::Damaged, "cannot be read");
    row("picture at the pixel limit", emptyPng(20'000, 10'000), Code::Damaged, "cannot be read");
    row("one row above", emptyPng(20'000, 10'001), Code::TooLarge, "200 million");
    row("picture of all numbers", emptyPng(0x7fffffff, 0x7fffffff), Code::Damaged,
        "cannot be read");
    row("SVG cut off", "<svg xmlns='http://www.w3.org/2000/svg'><g", Code::Damaged,
        "cannot be read");
}

void TestDocuments::refusesWhatItCannotPrint()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Error::Code, code);
    QFETCH(QString, words);
    const QString path = file("document", bytes);

    const Result<Document> document = open(path);

    QVERIFY(!document);
    QCOMPARE(document.error().code, code);
    QCOMPARE(document.error().where, path);
    QVERIFY2(document.error().detail.contains(words), qPrintable(document.error().detail));
}

void TestDocuments::obeysSizeLimits_data()
{
    using Code = Error::Code;
    const Table<QByteArray, qint64, Error::Code> row{"head", "size", "code"};

    // At the limit the zeros are looked at, and found to be neither text nor picture.
    const QByteArray text(kKindBytes, 'a');
    const QByteArray png = emptyPng(1, 1);
    row("text", text, limits::textBytes, Code::Unsupported);
    row("text + 1", text, limits::textBytes + 1, Code::TooLarge);
    row("picture", png, limits::pictureBytes, Code::Damaged);
    row("picture + 1", png, limits::pictureBytes + 1, Code::TooLarge);
    row("PDF + 1", "%PDF-1.7\n", limits::documentBytes + 1, Code::TooLarge);
}

void TestDocuments::obeysSizeLimits()
{
    QFETCH(QByteArray, head);
    QFETCH(qint64, size);
    QFETCH(Error::Code, code);
    const QString path = sparseFile(head, size);
    QVERIFY(!path.isEmpty());

    const Result<Document> document = open(path);

    QFile::remove(path);
    QVERIFY(!document);
    QCOMPARE(document.error().code, code);
}

// What a drawing shows of other files, and of pictures that it holds.
void TestDocuments::keepsOutOtherFiles_data()
{
    // inside: of an <svg> of 10 by 10; FILE is a red picture
    const Table<QByteArray, bool, bool> row{"inside", "isRed", "isSaid"};
    const auto base64 = [](const QByteArray &bytes) { return bytes.toBase64(); };
    const QByteArray png = base64(picture("png", {10, 10}));
    const auto image = [](const QByteArray &address, const char *attribute = "xlink:href") {
        return QByteArray("<image width='10' height='10' ") + attribute + "='" + address + "'/>";
    };
    const auto svg = [](const QByteArray &inside) {
        return "<svg xmlns='http://www.w3.org/2000/svg' "
               "xmlns:xlink='http://www.w3.org/1999/xlink' width='10' height='10'>"
            + inside + "</svg>";
    };
    const auto held = [&](const QByteArray &inside) {
        return image("data:image/svg+xml;base64," + base64(svg(inside)));
    };
    const QByteArray style = "rect{fill:#ff0000}";
    const QByteArray rect = "<rect width='10' height='10'/>";

    row("path", image("FILE"), false, true);
    row("path, href", image("FILE", "href"), false, true);
    row("path, another prefix", image("FILE", "x:href"), false, true);
    row("address", image("file://FILE"), false, true);
    row("like data", image("data/../../../../../../../../../../../../FILE"), false, true);
    row("like an anchor", image("#FILE"), false, true);
    row("through an entity", QByteArray(image("&amp;&lt;FILE")), false, true);
    row("pipe", image("PIPE"), false, true);
    row("in a held drawing", held(image("FILE")), false, true);
    row("in a held drawing of a held drawing", held(held(image("FILE"))), false, true);
    row("pipe in a held drawing", held(image("PIPE")), false, true);
    row("held drawing, compressed",
        image("data:;base64," + base64("\x1f\x8b" + qCompress(svg(image("PIPE"))).mid(4))), false,
        true);
    row("style of another file",
        QByteArray("<?xml-stylesheet type=\"text/css\" href=\"STYLE\"?>" + rect), false, true);
    row("style's address", QByteArray("<style>rect{fill:url(FILE)}</style>" + rect), false, true);
    row("style's address, in pieces", QByteArray("<style>rect{fill:url<?x?>(FILE)}</style>" + rect),
        false, true);
    row("style's address, behind an element",
        QByteArray("<style><b/>rect{fill:url(FILE)}</style>" + rect), false, true);
    row("part of another file", "<use xlink:href='FILE#a'/>", false, true);
    row("two files", image("FILE") + image("PIPE"), false, true);

    row("held picture", image("data:image/png;base64," + png), true, false);
    row("held picture, escaped", image(" data:image/png;base64,\n" + png.toPercentEncoding()), true,
        false);
    row("held drawing", held("<style>" + style + "</style>" + rect), true, false);
    row("part of its own",
        "<defs><rect id='a' fill='#ff0000' width='10' height='10'/></defs>"
        "<use xlink:href='#a'/><a xlink:href='http://example.com/'/>",
        true, false);
    row("gradient of its own",
        "<linearGradient id='g'><stop stop-color='#ff0000'/></linearGradient>"
        "<rect width='10' height='10' style='fill:url(#g)'/>",
        true, false);
}

void TestDocuments::keepsOutOtherFiles()
{
    QFETCH(QByteArray, inside);
    QFETCH(bool, isSaid);
    const QString pipe = QDir::current().absoluteFilePath("svg-pipe");
    ::mkfifo(pipe.toLocal8Bit().constData(), 0600);
    inside.replace("FILE", file("red.png", picture("png", {10, 10})).toLocal8Bit());
    inside.replace("PIPE", pipe.toLocal8Bit());
    inside.replace("STYLE", file("red.css", "rect{fill:#ff0000}").toLocal8Bit());
    const QString path = file("svg",
                              "<svg xmlns='http://www.w3.org/2000/svg' "
                              "xmlns:xlink='http://www.w3.org/1999/xlink' "
                              "xmlns:x='http://www.w3.org/1999/xlink' width='10' height='10'>"
                                  + inside + "</svg>");

    QElapsedTimer timer;
    timer.start();
    const Result<Document> document = open(path);

    QVERIFY2(document, qPrintable(document.reason()));
    QVERIFY(timer.elapsed() < 60'000); // nobody writes into the pipe
    const QString remark = document.value().remark();
    QCOMPARE(!remark.isEmpty(), isSaid);
    if (isSaid)
        QVERIFY2(remark.contains(inside.count("<image") == 2 ? "2 other files, which are left out"
                                                             : "another file, which is left out"),
                 qPrintable(remark));
    const auto pdf = Poppler::Document::load(document.value().pdfPath());
    const QImage page = pdf->page(0)->renderToImage();
    const QColor middle = page.pixelColor(page.rect().center()); // a JPEG's red is nearly that
    QTEST(middle.red() > 250 && middle.green() < 5, "isRed");
}

void TestDocuments::setsTexts_data()
{
    // text: as poppler reads it; pages between bars
    const Table<QByteArray, QString> row{"bytes", "text"};

    row("UTF-8",
        "Gr\xc3\xbc\xc3\x9f"
        "e\n",
        "Grüße");
    row("Latin-1",
        "Gr\xfc\xdf"
        "e\n",
        "Grüße");
    row("Windows quotes", "\x93hi\x94 \x80", "“hi” €");
    row("UTF-16",
        QByteArray("\xff\xfe"
                   "h\0i\0",
                   6),
        "hi");
    row("byte order mark", "\xef\xbb\xbfhi", "hi");
    row("form feeds", "one\ftwo\n\f\fthree", "one|two||three");
    row("form feed at the end", "one\f", "one");
    row("all line ends", "a\nb\r\nc\rd", "a\nb\nc\nd");
    row("terminal codes", "\x1b[1;31mN\bNAME\x1b[0m", "NAME");
    row("what needs no glyph",
        "1\xe1\x85\x9f"
        "23\xef\xb8\x8f"
        "4\xe2\x80\x8d"
        "5\xc2\x81"
        "6\xf0\x9b\xb2\xa0"
        "7\xc2\x85"
        "8",
        "1234567\n8");
    row("no markup", "<b>x</b> &amp;", "<b>x</b> &amp;");
}

void TestDocuments::setsTexts()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);

    const Result<Document> document = open(file("text", bytes));

    QVERIFY2(document, document ? "" : qPrintable(document.error().text()));
    QCOMPARE(textOf(document.value()), text);
}

void TestDocuments::saysWhichFontIsMissing_data()
{
    // words: in the message
    const Table<QByteArray, QString, QString> row{"text", "words", "advice"};
    const char *package = "fonts-noto", *ownFont = "the font that the text was written with";
    row("script of history", "one\ntwo \xf0\x92\x80\x80 three\n",
        "“\U00012000” (U+12000) in line 2", package);
    row("script of today", "\xe1\x80\x80", "Burmese", package);
    row("sign before digits", "\xd8\x80", "(U+0600)", package);
    row("private use", "a\n\xee\x80\x80", "U+E000 in line 2", ownFont);
    row("private use, last plane", "\xf4\x80\x80\x80", "U+100000", ownFont);
    row("not assigned", "\xcd\xb8", "U+0378", ownFont);
    row("never a character", "\xef\xbf\xbe", "U+FFFE", ownFont);
}

void TestDocuments::saysWhichFontIsMissing()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, words);
    QFETCH(QString, advice);
    // Whatever else is installed here.
    const QString fonts = file("fonts.conf",
                               "<fontconfig><include>/etc/fonts/fonts.conf</include><selectfont>"
                               "<rejectfont><glob>*.?t?</glob></rejectfont>"
                               "<acceptfont><glob>*DejaVu*</glob></acceptfont>"
                               "</selectfont></fontconfig>");
    qputenv("FONTCONFIG_FILE", fonts.toLocal8Bit());

    const Result<Document> document = open(file("text", text));
    qunsetenv("FONTCONFIG_FILE");

    QVERIFY(!document);
    QCOMPARE(document.error().code, Error::Code::Unsupported);
    const QString detail = document.error().detail;
    QVERIFY2(detail.contains(words) && detail.contains(advice), qPrintable(detail));
}

void TestDocuments::fillsPagesBetweenTheMargins()
{
    const Result<Document> document = open(file("text", QByteArray("Ag\n").repeated(200)));
    QVERIFY(document);

    const double margin = 20 / 25.4 * 72;
    const QRectF inside = QRectF(QPointF(), document.value().pageSize(1))
                              .adjusted(margin - 1, margin - 1, 1 - margin, 1 - margin);
    const auto pdf = Poppler::Document::load(document.value().pdfPath());
    std::size_t words = 0;
    for (int page = 0; page < pdf->numPages(); ++page) {
        const auto boxes = pdf->page(page)->textList();
        words += boxes.size();
        for (const auto &box : boxes)
            QVERIFY(inside.contains(box->boundingBox()));
        // One more line would not have gone on a page that is followed by another.
        const double lineHeight = boxes[1]->boundingBox().top() - boxes[0]->boundingBox().top();
        QVERIFY(page + 1 == pdf->numPages()
                || boxes.back()->boundingBox().bottom() + lineHeight > inside.bottom());
    }
    QCOMPARE(words, std::size_t(200));
}

// Longer than the pieces that are laid out at a time: nothing may be lost,
// doubled or broken where they meet.
void TestDocuments::wrapsOneEndlessLine()
{
    QByteArray line;
    for (int number = 0; number < 5000; ++number)
        line += QByteArray::number(number) + "\xc3\xa9 ";

    const Result<Document> document = open(file("text", line));

    QVERIFY(document);
    const QString text = textOf(document.value());
    QCOMPARE(QString(text).replace(u'|', u' ').simplified(), QString::fromUtf8(line).trimmed());
    for (const QString &row : text.split(QRegularExpression("[\n|]")).mid(0, 300))
        QVERIFY2(row.size() > 70 && row.size() <= 80, qPrintable(row));
}

void TestDocuments::tellsShownSizes_data()
{
    const Table<QByteArray, QSizeF> row{"entries", "size"};

    row("media box", {}, QSizeF(201, 300));
    row("rotated", "/Rotate 90", QSizeF(300, 201));
    row("rotated back", "/Rotate -270", QSizeF(300, 201));
    row("rotated by nonsense", "/Rotate 45", QSizeF(201, 300));
    row("cropped", "/CropBox [10 10 110 60]", QSizeF(100, 50));
    row("cropped upside down", "/CropBox [110 60 10 10]", QSizeF(100, 50));
    row("cropped beyond the paper", "/CropBox [-10 -10 900 900]", QSizeF(201, 300));
    row("cropped away", "/CropBox [500 500 600 600]", QSizeF(201, 300));
    row("a unit of its own", "/UserUnit 2", QSizeF(402, 600));
}

void TestDocuments::tellsShownSizes()
{
    QFETCH(QByteArray, entries);

    const Result<Document> document = open(file("pdf", pdfWithPages({""}, entries)));

    QVERIFY(document);
    QTEST(document.value().pageSize(1), "size");
    QVERIFY(document.value().pageSize(0).isEmpty());
    QVERIFY(document.value().pageSize(2).isEmpty());
}

void TestDocuments::repairsDamageAndSaysSo()
{
    QByteArray pdf = pdfWithPages({filled("1 0 0"), filled("0 1 0")});
    pdf.replace("startxref\n", "startxref\n9");

    const Result<Document> document = open(file("pdf", pdf));

    QVERIFY(document);
    QVERIFY(document.value().isRepaired());
    QCOMPARE(document.value().pageCount(), 2);
    const Result<Document> again = documentFromPdf(document.value().pdfPath(), {});
    QVERIFY(again);
    QVERIFY(!again.value().isRepaired());
    QVERIFY(!documentFromPdf(file("text", "text"), {}));
}

void TestDocuments::unlocksWhatNeedsNoPassword()
{
    const QByteArray pdf = encrypted(pdfWithPages({"", ""}), "", true);

    const Result<Document> document = open(file("pdf", pdf));

    QVERIFY(document);
    QVERIFY(!document.value().isRepaired());
    QVERIFY(bytesOf(document.value().pdfPath()).indexOf("/Encrypt") < 0);
}

void TestDocuments::opensWithAPassword_data()
{
    // code: of the failure; Cancelled for none
    const Table<QByteArray, QStringList, Error::Code> row{"bytes", "passwords", "code"};
    const QByteArray pdf = pdfWithPages({filled("1 0 0"), ""});
    const auto opened = Error::Code::Cancelled;
    const QByteArray aes = encrypted(pdf, "Grün\u00e9 пароль", true);
    row("AES-256", aes, {"Grün\u00e9 пароль"}, opened);
    row("AES-256, letters put together", aes, {"Gru\u0308ne\u0301 пароль"}, opened);
    row("the second of two", aes, {"wrong", "Grün\u00e9 пароль"}, opened);
    row("a wrong one", aes, {"grün\u00e9 пароль"}, Error::Code::Locked);
    row("RC4, 40 bits", encryptedWithRc4(pdf, 40, "secret", true), {"secret"}, opened);
    row("RC4, Latin letters", encryptedWithRc4(pdf, 128, "Gr\xfcn", true), {"Grün"}, opened);
    row("RC4, as UTF-8", encryptedWithRc4(pdf, 128, "Grün", true), {"Grün"}, opened);
    row("not needed", encrypted(pdf, "", true), {"wrong"}, opened);
    row("for its user, printing banned", encrypted(pdf, "secret", false), {"secret"},
        Error::Code::Refused);
    row("for its owner, printing banned", encrypted(pdf, "secret", false), {"secret", "owner"},
        opened);
    row("for its owner, no other needed", encryptedWithRc4(pdf, 128, "", false), {"owner"}, opened);
}

void TestDocuments::opensWithAPassword()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, passwords);
    QFETCH(Error::Code, code);
    const std::atomic_bool cancelled = false;
    DocumentSource source{file("locked.pdf", bytes), {}};
    source.passwords = passwords;

    // With what comes on the command line, and what is typed later, each by itself.
    const Result<Document> atOnce = openDocument(source, cancelled);
    source.passwords.clear();
    LockedDocument locked;
    Result<Document> later = openDocument(source, cancelled, {}, &locked);
    QCOMPARE(locked.isNull(), bool(later));
    QVERIFY(QFile::remove(source.path));
    for (const QString &password : std::as_const(passwords)) {
        if (!later)
            later = locked.unlocked(password, cancelled);
    }

    for (const Result<Document> &document : {atOnce, later}) {
        QCOMPARE(document ? Error::Code::Cancelled : document.error().code, code);
        if (!document)
            continue;
        QCOMPARE(document.value().pageCount(), 2);
        QVERIFY(bytesOf(document.value().pdfPath()).indexOf("/Encrypt") < 0);
    }
}

// What two documents call the same stays each one's own.
void TestDocuments::joinsDocuments()
{
    // A field with a value and no picture of it, a layer, and a link to the second page by name.
    const auto sample = [](const QByteArray &value, const QByteArray &layers) {
        return pdfOf(
            {"<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [7 0 R] /NeedAppearances true "
             "/DA (/Helv 12 Tf 0 g) /DR << /Font << /Helv 9 0 R >> >> >> "
             "/OCProperties << /OCGs [8 0 R] /D << "
                 + layers + " >> >> /Names << /Dests << /Names [(end) [5 0 R /Fit]] >> >> >>",
             "<< /Type /Pages /Kids [3 0 R 5 0 R] /Count 2 >>",
             "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 300] /Contents 4 0 R "
             "/Resources << /Properties << /L 8 0 R >> >> /Annots [7 0 R 10 0 R] >>",
             stream("/OC /L BDC 1 0 0 rg 0 0 100 100 re f EMC"),
             "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 300] /Contents 6 0 R >>",
             stream("0 1 0 rg 0 0 50 50 re f"),
             "<< /Type /Annot /Subtype /Widget /FT /Tx /T (name) /V (" + value
                 + ") /DA (/Helv 12 Tf 0 g) /F 4 /P 3 0 R /Rect [10 200 190 230] >>",
             "<< /Type /OCG /Name (Layer) >>",
             "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
             "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /Border [0 0 0] /Dest (end) >>"});
    };
    std::vector<Document> parts;
    for (const QByteArray &pdf :
         {sample("Anna", "/OFF [8 0 R]"), sample("Boris", "/BaseState /OFF /ON [8 0 R]"),
          sample("Carla", "/BaseState /OFF"), pdfWithPages({filled("0 0 1")})}) {
        const auto part = open(file("part.pdf", pdf));
        QVERIFY2(part, qPrintable(part.reason()));
        parts.push_back(part.value());
    }

    const std::atomic_bool cancelled = false;
    const auto joined = joinDocuments(parts, "All", cancelled);

    QVERIFY2(joined, qPrintable(joined.reason()));
    QCOMPARE(joined.value().title(), "All");
    QCOMPARE(joined.value().pageCount(), 7);
    QCOMPARE(joined.value().pageSize(7), parts.back().pageSize(1));
    const auto whole = Poppler::Document::load(joined.value().pdfPath());
    QVERIFY(whole);
    int page = 0;
    for (const Document &part : parts) {
        const auto own = Poppler::Document::load(part.pdfPath());
        const int first = page;
        for (int i = 0; i < own->numPages(); ++i, ++page) {
            QCOMPARE(whole->page(page)->renderToImage(), own->page(i)->renderToImage());
            for (const auto &link : whole->page(page)->links())
                QCOMPARE(static_cast<const Poppler::LinkGoto &>(*link).destination().pageNumber(),
                         first + 2);
            QCOMPARE(whole->page(page)->links().size(), own->page(i)->links().size());
        }
    }
    QCOMPARE(whole->page(2)->formFields().size(), 1u);
    const auto shown = [&](int number) {
        return static_cast<const Poppler::FormFieldText &>(*whole->page(number)->formFields()[0])
            .text();
    };
    QCOMPARE(QStringList({shown(0), shown(2), shown(4)}), QStringList({"Anna", "Boris", "Carla"}));
}

void TestDocuments::keepsFilesPrivateAndCleansUp()
{
    ::umask(0);
    const QString source = file("text", "text");
    QString folder;
    {
        Result<Document> document = open(source);
        QVERIFY(document);
        Document copy = document.value();
        document = Error{Error::Code::NotFound, {}, {}};
        folder = QFileInfo(copy.pdfPath()).path();
        struct stat status = {};
        QCOMPARE(::stat(folder.toLocal8Bit().constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, 0700U);
        QCOMPARE(::stat(copy.pdfPath().toLocal8Bit().constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, 0600U);
        // The PDF alone: no copy of the source lies beside it.
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList("document.pdf"));
    }
    QVERIFY(!QFileInfo::exists(folder));
    QCOMPARE(bytesOf(source), "text");
}

void TestDocuments::saysThatTheDiskIsFull()
{
    const std::pair<QByteArray, rlim_t> rows[] = {
        {pdfWithPages({QByteArray(20'000, '\n')}), 10'000},
        {"text", 2000},
        {QByteArray(20'000, 'x'), 10'000}, // the source of a text
    };
    for (const auto &[bytes, room] : rows) {
        const QString path = file("document", bytes);
        const FullDisk full(room); // bytes that a file may have
        const Result<Document> document = open(path);
        QVERIFY(!document);
        QCOMPARE(document.error().code, Error::Code::NotWritable);
        QVERIFY2(document.error().where.startsWith(QDir::tempPath()),
                 qPrintable(document.error().text()));
    }
}

void TestDocuments::saysThatNoTemporaryFileCanBeMade()
{
    const QByteArray before = qgetenv("TMPDIR");
    const QString path = file("document", "text");
    QVERIFY(QDir().mkdir("closed") && QFile::setPermissions("closed", QFile::ReadOwner));
    const QString closed = QFileInfo("closed").canonicalFilePath();
    for (const QString &folder : {QStringLiteral("/no/such folder"), closed}) {
        qputenv("TMPDIR", folder.toUtf8());
        const Result<Document> document = open(path);
        qputenv("TMPDIR", before);
        QVERIFY(!document);
        QCOMPARE(document.error().code, Error::Code::NotWritable);
        QCOMPARE(document.error().where, folder);
        QVERIFY2(document.error().detail.contains("set TMPDIR to another"),
                 qPrintable(document.error().text()));
    }
}

void TestDocuments::doesNotWaitForASilentPipe()
{
    QVERIFY(::mkfifo("silent", 0600) == 0);
    const std::atomic_bool cancelled = false;
    const Result<Document> silent = openDocument({"silent", {}, 300}, cancelled);
    QVERIFY(!silent);
    QCOMPARE(silent.error().code, Error::Code::TimedOut);
    QVERIFY2(silent.error().detail.contains("0.3 seconds"), qPrintable(silent.error().detail));

    // A slow one is no silent one.
    std::thread writer([] {
        QFile pipe("silent");
        if (!pipe.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return;
        for (int part = 0; part < 4; ++part) {
            pipe.write("text ");
            std::this_thread::sleep_for(std::chrono::milliseconds(500));
        }
    });
    const Result<Document> slow = openDocument({"silent", {}, 1500}, cancelled);
    writer.join();
    QVERIFY2(slow, qPrintable(slow.reason()));
    QCOMPARE(textOf(slow.value()), "text text text text");
}

void TestDocuments::stopsWhenCancelled()
{
    QVERIFY(::mkfifo("pipe", 0600) == 0);
    for (const QString &path : {file("loop", "%!PS\n{} loop\n"), QString("pipe")}) {
        std::atomic_bool cancelled = false;
        QElapsedTimer timer;
        timer.start();
        std::thread user([&cancelled] {
            std::this_thread::sleep_for(std::chrono::milliseconds(300));
            cancelled = true;
        });
        const Result<Document> document = openDocument({path, {}}, cancelled);
        user.join();
        QVERIFY(!document);
        QCOMPARE(document.error().code, Error::Code::Cancelled);
        QVERIFY(timer.elapsed() < 20'000);
    }
}

void TestDocuments::namesTheMissingPackage()
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QDir::currentPath().toLocal8Bit());
    const Result<Document> document = open(file("ps", "%!PS\n" + postScriptPage));
    qputenv("PATH", path);

    QVERIFY(!document);
    QCOMPARE(document.error().code, Error::Code::Unsupported);
    QVERIFY(document.error().detail.contains("“ghostscript”"));
}

void TestDocuments::readsStandardInput()
{
    const int fd =
        ::open(file("pdf", pdfWithPages({"", ""})).toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
    const int before = ::dup(STDIN_FILENO);
    QVERIFY(::dup2(fd, STDIN_FILENO) == STDIN_FILENO);
    const Result<Document> document = open("-");
    ::dup2(before, STDIN_FILENO);
    ::close(before);
    ::close(fd);

    QVERIFY(document);
    QCOMPARE(document.value().title(), "(stdin)");
    QCOMPARE(document.value().pageCount(), 2);
}

void TestDocuments::placesPictures_data()
{
    const Table<QSizeF, QSizeF, QRectF> row{"size", "paper", "placed"};
    const double margin = 12 / 25.4 * 72;
    const QSizeF room = kLetter - QSizeF(2 * margin, 2 * margin);

    row("small, at its size", QSizeF(100, 200), kLetter, QRectF(256, 296, 100, 200));
    row("wide", QSizeF(200, 100), kLetter.transposed(), QRectF(296, 256, 200, 100));
    row("square", QSizeF(100, 100), kLetter, QRectF(256, 346, 100, 100));
    row("fills the room exactly", room, kLetter, QRectF(QPointF(margin, margin), room));
    row("too large", room * 10, kLetter, QRectF(QPointF(margin, margin), room));
}

void TestDocuments::placesPictures()
{
    QFETCH(QSizeF, size);
    QFETCH(QSizeF, paper);
    QFETCH(QRectF, placed);

    const PicturePlacement placement = placePicture(size, kLetter);

    QCOMPARE(placement.paper, paper);
    QVERIFY(qAbs(placement.picture.x() - placed.x()) < 0.01);
    QVERIFY(qAbs(placement.picture.y() - placed.y()) < 0.01);
    QCOMPARE(placement.picture.size(), placed.size());
}

QTEST_GUILESS_MAIN(TestDocuments)
#include "test_documents.moc"
