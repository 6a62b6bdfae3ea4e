#include "document_kind.h"
#include "table.h"

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
    const Table<QByteArray, DocumentKind> row{"bytes", "kind"};
    const auto raw = [](const char *bytes, qsizetype size) { return QByteArray(bytes, size); };

    row("nothing", {}, Kind::Empty);
    row("PDF", "%PDF-1.4\n", Kind::Pdf);
    row("PDF at the last place", QByteArray(1019, '\n') + "%PDF-", Kind::Pdf);
    row("one place later", QByteArray(1020, '\n') + "%PDF-", Kind::Text);
    row("PDF after binary junk", raw("\0\1\2%PDF-1.4", 11), Kind::Pdf);
    row("PostScript", "%!PS-Adobe-3.0\n", Kind::PostScript);
    row("PostScript that speaks of PDF", "%!PS\n%PDF-", Kind::PostScript);
    row("wrapped PostScript", "\x1b%-12345X@PJL\r\n%!PS\n", Kind::PostScript);
    row("printer data", "\x1b%-12345X@PJL\r\n", Kind::Unsupported);
    row("PNG", "\x89PNG\r\n\x1a\n", Kind::Png);
    row("text with a line end lost", "\x89PNG\n", Kind::Text);
    row("JPEG", "\xff\xd8\xff\xe0", Kind::Jpeg);
    row("GIF", "GIF89a", Kind::Gif);
    row("TIFF", raw("II*\0", 4), Kind::Tiff);
    row("TIFF, big-endian", raw("MM\0*", 4), Kind::Tiff);
    row("WebP", raw("RIFF\1\2\3\4WEBPVP8 ", 16), Kind::WebP);
    row("a sound", raw("RIFF\1\2\3\4WAVEfmt ", 16), Kind::Unsupported);
    row("BMP", raw("BM\1\1\0\0\0\0\0\0\66\0\0\0\50\0\0\0", 18), Kind::Bmp);
    row("a brand", "BMW builds cars and motorcycles", Kind::Text);
    row("SVG", "<svg/>", Kind::Svg);
    row("SVG after a prolog",
        "\xef\xbb\xbf <?xml version='1.0'?>\n<!-- > -->"
        "<!DOCTYPE svg [<!ENTITY a '>'>]><s:svg xmlns:s='x'>",
        Kind::Svg);
    row("HTML with a drawing", "<!DOCTYPE html><html><svg></svg></html>", Kind::Text);
    row("a comment without end", "<!-- <svg>", Kind::Text);
    row("a name that begins alike", "<svgish>", Kind::Text);
    row("Latin-1",
        "Gr\xfc\xdf"
        "e\n",
        Kind::Text);
    row("coloured log", "\x1b[31mred\x1b[0m\n", Kind::Text);
    row("UTF-16",
        raw("\xff\xfe"
            "a\0b\0",
            6),
        Kind::Text);
    row("a zero byte", raw("text\0text", 9), Kind::Unsupported);
    row("office", "PK\x03\x04word", Kind::Unsupported);
}

void TestDocumentKind::tellsKindsApart()
{
    QFETCH(QByteArray, bytes);

    QTEST(documentKind(bytes), "kind");
    QVERIFY(!unsupportedKindText(bytes).isEmpty());
}

QTEST_APPLESS_MAIN(TestDocumentKind)
#include "test_document_kind.moc"
