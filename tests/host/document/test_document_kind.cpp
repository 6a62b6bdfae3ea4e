#include "document_kind.h"

#include <QTest>

using namespace kelvo;

Q_DECLARE_METATYPE(kelvo::DocumentKind)

class TestDocumentKind : public QObject
{
    Q_OBJECT

private slots:
    void tellsKindsApart_data();
    void tellsKindsApart();
};

void TestDocumentKind::tellsKindsApart_data()
{
    using Kind = DocumentKind;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<DocumentKind>("kind");
    const auto raw = [](const char *bytes, qsizetype size) { return QByteArray(bytes, size); };

    QTest::newRow("nothing") << QByteArray() << Kind::Empty;
    QTest::newRow("PDF") << QByteArray("%PDF-1.4\n") << Kind::Pdf;
    QTest::newRow("PDF at the last place") << QByteArray(1019, '\n') + "%PDF-" << Kind::Pdf;
    QTest::newRow("one place later") << QByteArray(1020, '\n') + "%PDF-" << Kind::Text;
    QTest::newRow("PDF after binary junk") << raw("\0\1\2%PDF-1.4", 11) << Kind::Pdf;
    QTest::newRow("PostScript") << QByteArray("%!PS-Adobe-3.0\n") << Kind::PostScript;
    QTest::newRow("PostScript that speaks of PDF") << QByteArray("%!PS\n%PDF-") << Kind::PostScript;
    QTest::newRow("wrapped PostScript")
        << QByteArray("\x1b%-12345X@PJL\r\n%!PS\n") << Kind::PostScript;
    QTest::newRow("printer data") << QByteArray("\x1b%-12345X@PJL\r\n") << Kind::Unsupported;
    QTest::newRow("PNG") << QByteArray("\x89PNG\r\n\x1a\n") << Kind::Png;
    QTest::newRow("text with a line end lost") << QByteArray("\x89PNG\n") << Kind::Text;
    QTest::newRow("JPEG") << QByteArray("\xff\xd8\xff\xe0") << Kind::Jpeg;
    QTest::newRow("GIF") << QByteArray("GIF89a") << Kind::Gif;
    QTest::newRow("TIFF") << raw("II*\0", 4) << Kind::Tiff;
    QTest::newRow("TIFF, big-endian") << raw("MM\0*", 4) << Kind::Tiff;
    QTest::newRow("WebP") << raw("RIFF\1\2\3\4WEBPVP8 ", 16) << Kind::WebP;
    QTest::newRow("a sound") << raw("RIFF\1\2\3\4WAVEfmt ", 16) << Kind::Unsupported;
    QTest::newRow("BMP") << raw("BM\1\1\0\0\0\0\0\0\66\0\0\0\50\0\0\0", 18) << Kind::Bmp;
    QTest::newRow("a brand") << QByteArray("BMW builds cars and motorcycles") << Kind::Text;
    QTest::newRow("SVG") << QByteArray("<svg/>") << Kind::Svg;
    QTest::newRow("SVG after a prolog")
        << QByteArray("\xef\xbb\xbf <?xml version='1.0'?>\n<!-- > -->"
                      "<!DOCTYPE svg [<!ENTITY a '>'>]><s:svg xmlns:s='x'>")
        << Kind::Svg;
    QTest::newRow("HTML with a drawing")
        << QByteArray("<!DOCTYPE html><html><svg></svg></html>") << Kind::Text;
    QTest::newRow("a comment without end") << QByteArray("<!-- <svg>") << Kind::Text;
    QTest::newRow("a name that begins alike") << QByteArray("<svgish>") << Kind::Text;
    QTest::newRow("Latin-1") << QByteArray("Gr\xfc\xdf"
                                           "e\n")
                             << Kind::Text;
    QTest::newRow("coloured log") << QByteArray("\x1b[31mred\x1b[0m\n") << Kind::Text;
    QTest::newRow("UTF-16") << raw("\xff\xfe"
                                   "a\0b\0",
                                   6)
                            << Kind::Text;
    QTest::newRow("a zero byte") << raw("text\0text", 9) << Kind::Unsupported;
    QTest::newRow("office") << QByteArray("PK\x03\x04word") << Kind::Unsupported;
}

void TestDocumentKind::tellsKindsApart()
{
    QFETCH(QByteArray, bytes);
    QFETCH(DocumentKind, kind);

    QCOMPARE(documentKind(bytes), kind);
    QVERIFY(!unsupportedKindText(bytes).isEmpty());
}

QTEST_APPLESS_MAIN(TestDocumentKind)
#include "test_document_kind.moc"
