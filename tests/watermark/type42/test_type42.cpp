#include "made_font.h"
#include "named_glyphs.h"
#include "sfnt_strings.h"
#include "standard_error.h"
#include "table.h"
#include "true_type.h"
#include "type42.h"

#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

constexpr char missingTable[] = "DEBUG: Malformed TrueType file - missing vital table.\n";
constexpr char badMagic[] = "DEBUG: Malformed TrueType file - Bad magic number\n";

// The program of a font that converts.
QByteArray programOf(const QByteArray &font, const QString &name = u"Made"_s)
{
    QByteArray program;
    const auto converted = convertTTFtoPS42(font, name, program);
    return converted ? program : converted.reason().toUtf8();
}

// What stands between the first two of these in `text`.
QByteArray between(const QByteArray &text, const QByteArray &before, const QByteArray &behind)
{
    const qsizetype begin = text.indexOf(before) + before.size();
    return text.mid(begin, text.indexOf(behind, begin) - begin);
}

// The strings of a program as bytes, each with its last 00.
QList<QByteArray> stringsOf(const QByteArray &program)
{
    QList<QByteArray> strings;
    for (QByteArray text : between(program, "/sfnts [\n", "] def").split('<').mid(1)) {
        text.chop(text.size() - text.indexOf('>'));
        strings << QByteArray::fromHex(text);
    }
    return strings;
}

} // namespace

class TestType42 : public QObject
{
    Q_OBJECT

private slots:
    void writesTheProgram();
    void writesNumbersAsPrintfDoes_data();
    void writesNumbersAsPrintfDoes();
    void namesGlyphs_data();
    void namesGlyphs();
    void namesGlyphsThatMeet();
    void namesTheFont_data();
    void namesTheFont();
    void encodesWhatTheFontNames();
    void splitsAtGlyphs_data();
    void splitsAtGlyphs();
    void findsGlyphStarts_data();
    void findsGlyphStarts();
    void keepsTheFontInItsStrings_data();
    void keepsTheFontInItsStrings();
    void endsLinesByCount();
    void refusesDamagedFonts_data();
    void refusesDamagedFonts();
    void makesFontsOfMembers();
    void refusesMembers_data();
    void refusesMembers();
};

void TestType42::writesTheProgram()
{
    MadeFont made = MadeFont::withGlyphs(3, 4);
    made.table("post") = MadeFont::postWithNames({"x", "A", "alt"});
    made.table("post").replace(16, 8, MadeFont::big32(1234) + MadeFont::big32(-1));
    const QByteArray font = made.bytes();
    QByteArray hex;
    for (qsizetype i = 0; i < font.size(); ++i)
        hex += font.mid(i, 1).toHex().toUpper() + (i % 30 == 29 ? "\n" : "");
    QByteArray encoding;
    for (int code = 0; code < 256; ++code)
        encoding +=
            "dup " + QByteArray::number(code) + (code == 'A' ? " /A" : " /.notdef") + " put\n";

    QByteArray program = "before ";
    QVERIFY(convertTTFtoPS42(font, u"Made-Bold"_s, program));

    const QByteArray expected = "before %!PS-TrueTypeFont-1.0000-1.5000\n"
                                "%%VMUsage: 1234 -1\n"
                                "11 dict begin\n"
                                "/FontName /Made-Bold def\n"
                                "/Encoding 256 array\n"
        + encoding
        + "readonly def/PaintType 0 def\n"
          "/FontMatrix [1 0 0 1 0 0] def\n"
          "/FontBBox [-0.100000 -0.200000 1.000000 0.800000] def\n"
          "/FontType 42 def\n"
          "/FontInfo 8 dict dup begin\n"
          "end readonly def\n"
          "/sfnts [\n<"
        + hex
        + "00>] def\n"
          "/CharStrings 3 dict dup begin\n"
          "/.notdef 0 def\n"
          "/A 1 def\n"
          "/alt 2 def\n"
          "end readonly def\n"
          "FontName currentdict end definefont pop\n";
    QCOMPARE(program, expected);
    QCOMPARE(program.capacity(), program.size());
}

void TestType42::writesNumbersAsPrintfDoes_data()
{
    const Table<int, int, int, QByteArray, QByteArray> row{"revision", "unitsPerEm", "xMin",
                                                           "revisionText", "xMinText"};
    row("half to even", 0x0800, 128, 1, "0.0312", "0.007812");
    row("below zero", -0x10000, 3, -1, "-1.0000", "-0.333333");
    row("widest", 0x7FFFFFFF, 1, -32768, "32768.0000", "-32768.000000");
}

void TestType42::writesNumbersAsPrintfDoes()
{
    QFETCH(int, revision);
    QFETCH(int, unitsPerEm);
    QFETCH(int, xMin);
    MadeFont made = MadeFont::withGlyphs(1, 4);
    QByteArray &head = made.table("head");
    head.replace(4, 4, MadeFont::big32(revision));
    MadeFont::put16(head, 18, unitsPerEm);
    MadeFont::put16(head, 36, xMin);

    const QByteArray program = programOf(made.bytes());

    QTEST(between(program, "%!PS-TrueTypeFont-1.0000-", "\n"), "revisionText");
    QTEST(between(program, "/FontBBox [", " "), "xMinText");
}

void TestType42::namesGlyphs_data()
{
    const Table<QByteArray, QByteArray> row{"post", "lines"};
    const auto names = [](const QList<QByteArray> &list) { return MadeFont::postWithNames(list); };
    row("as they are", names({".notdef", "A.sc", "f_i"}), "/A.sc 1 def\n/f_i 2 def\n");
    row("the first has a name", names({"A", "B", "A", "B"}), "/B 1 def\n/A 2 def\n");
    row(".notdef elsewhere", names({"A", ".notdef", "B"}), "/B 2 def\n");
    row("delimiters", names({"", "/quit", "a b", "x)", "per%"}),
        "/#2Fquit 1 def\n/a#20b 2 def\n/x#29 3 def\n/per#25 4 def\n");
    row("an escape is no other's name", names({"", "a b", "a#20b"}),
        "/a#20b 1 def\n/a#2320b 2 def\n");
    row("not seen", names({"", QByteArray("\0\n\x7f", 3), "\xc3\xa9"}),
        "/#00#0A#7F 1 def\n/#C3#A9 2 def\n");
    row("numbers", names({"", "12", "-.5", "6e7", "16#FF", "1a", "-", "."}),
        "/#312 1 def\n/#2D.5 2 def\n/#36e7 3 def\n/#316#23FF 4 def\n/1a 5 def\n/- 6 def\n/. 7 "
        "def\n");
    row("empty", names({"A", "", "#"}), "/# 1 def\n/#23 2 def\n");
    row("as long as names may be", names({"", QByteArray(127, 'x')}),
        "/" + QByteArray(127, 'x') + " 1 def\n");
    row("longer", names({"", QByteArray(128, 'x'), QByteArray(43, ' '), "#g1"}),
        "/#g1 1 def\n/#g2 2 def\n/#23g1 3 def\n");

    QByteArray standard = names({"", "A", "x"});
    MadeFont::put16(standard, 34 + 2, 257);
    MadeFont::put16(standard, 34 + 4, 258 + 1);
    row("a standard name, and one by number", standard, "/dcroat 1 def\n/A 2 def\n");
    MadeFont::put16(standard, 34 + 2, 258 + 3);
    row("beyond the names", standard, "/A 2 def\n");
    QByteArray cut = names({"", "A", "xyz"});
    cut.chop(1);
    row("a name beyond the table", cut, "/A 1 def\n");
    for (const int format : {0x00010000, 0x00028000, 0x00030000}) {
        QByteArray post = names({"", "A"});
        post.replace(0, 4, MadeFont::big32(format));
        row(qPrintable(u"format %1"_s.arg(format >> 12, 0, 16)), post, "");
    }
}

void TestType42::namesGlyphs()
{
    QFETCH(QByteArray, post);
    MadeFont made = MadeFont::withGlyphs(qFromBigEndian<quint16>(post.constData() + 32), 4);
    made.table("post") = post;
    const QByteArray program = programOf(made.bytes());
    QTEST(between(program, " dict dup begin\n/.notdef 0 def\n", "end readonly"), "lines");
}

// Names that differ where nobody looks when they are put in their places, each twice.
void TestType42::namesGlyphsThatMeet()
{
    QList<QByteArray> texts{".notdef"};
    for (int i = 100; texts.size() < 60; ++i)
        texts << QByteArray(8, 'x') + QByteArray::number(i) + QByteArray(29, 'x');
    const QList<QByteArray> twice = texts + texts;
    const NamedGlyphs glyphs({twice.begin(), twice.end()});
    QCOMPARE(glyphs.list().size(), std::size_t(60));
    QVERIFY(glyphs.contains(texts.last()) && !glyphs.contains("n"));
}

void TestType42::namesTheFont_data()
{
    const Table<QString, QByteArray> row{"name", "written"};
    row("plain", u"DejaVuSans-Bold"_s, "DejaVuSans-Bold");
    row("code", u"x def (f) run %"_s, "x#20def#20#28f#29#20run#20#25");
    row("a number", u"8#17"_s, "#38#2317");
    row("511 bytes", QString(511, u'x'), QByteArray(511, 'x'));
    row("longer", QString(512, u'x'), QByteArray(511, 'x'));
    row("within a character", QString(510, u'x') + u'é', QByteArray(510, 'x'));
}

void TestType42::namesTheFont()
{
    QFETCH(QString, name);
    const QByteArray program = programOf(MadeFont::withGlyphs(1, 4).bytes(), name);
    QTEST(between(program, "/FontName /", " def\n"), "written");
}

// Names beside codes as printers have them; a glyph's name that glyph 0 bears is not found.
void TestType42::encodesWhatTheFontNames()
{
    MadeFont made = MadeFont::withGlyphs(6, 4);
    made.table("post") =
        MadeFont::postWithNames({"space", "quoteright", "a", "germandbls", "ae", "Euro"});
    const QByteArray program = programOf(made.bytes());
    QByteArray lines;
    for (const QByteArray &line : between(program, "256 array\n", "readonly").split('\n')) {
        if (!line.contains("/.notdef"))
            lines += line + ';';
    }
    QCOMPARE(lines,
             QByteArray("dup 39 /quoteright put;dup 97 /a put;dup 241 /ae put;"
                        "dup 251 /germandbls put;;"));
}

void TestType42::splitsAtGlyphs_data()
{
    using Offsets = QList<qsizetype>;
    const Table<qsizetype, Offsets, Offsets> row{"size", "starts", "ends"};
    Offsets thousands;
    for (qsizetype start = 300; start < 100'000; start += 1000)
        thousands << start;

    row("small", 40'000, {1000, 2000}, {40'000});
    row("just one", 65'534, {1000}, {65'534});
    row("one byte more", 65'535, {}, {65'534, 65'535});
    row("a glyph every 1000", 100'000, thousands, {65'300, 100'000});
    row("at the limit", 100'000, {65'532, 65'534, 65'536}, {65'534, 100'000});
    row("the last is odd", 100'000, {400, 50'000, 65'533}, {50'000, 100'000});
    row("only odd ones", 100'000, {401, 50'001, 65'533}, {65'534, 100'000});
    row("even from an even begin", 190'000, {50'000, 50'001, 110'001, 110'002},
        {50'000, 110'002, 175'536, 190'000});
    row("a begin is no end", 140'000, {0, 60'000, 60'000, 130'000}, {60'000, 125'534, 140'000});
}

void TestType42::splitsAtGlyphs()
{
    QFETCH(qsizetype, size);
    QFETCH(QList<qsizetype>, starts);
    const SfntStrings strings(QByteArray(size, 'x'), {starts.begin(), starts.end()});
    QTEST(QList<qsizetype>(strings.ends().begin(), strings.ends().end()), "ends");
}

void TestType42::findsGlyphStarts_data()
{
    const Table<QByteArray, int, QList<qsizetype>> row{"loca", "format", "starts"};
    const auto longOnes = MadeFont::big32(0) + MadeFont::big32(6) + MadeFont::big32(12);
    const auto shortOnes = MadeFont::big16(0) + MadeFont::big16(3) + MadeFont::big16(6);
    row("long", longOnes, 1, {0, 6});
    row("short", shortOnes, 0, {0, 6});
    row("another form", longOnes, 2, {});
    row("out of order", MadeFont::big32(12) + MadeFont::big32(4), 1, {4, 12});
    row("past glyf", MadeFont::big32(8) + MadeFont::big32(13), 1, {8});
    row("greatest", MadeFont::big32(-1) + MadeFont::big32(8), 1, {8});
    row("too short", MadeFont::big32(8) + "\0\0\0", 1, {8});
    row("empty", "", 0, {});
}

void TestType42::findsGlyphStarts()
{
    QFETCH(QByteArray, loca);
    QFETCH(int, format);
    MadeFont made = MadeFont::withGlyphs(2, 6);
    made.table("loca") = loca;
    const QByteArray font = made.bytes();
    const SfntDirectory directory = sfntDirectory(font);
    const auto glyf = find_table("glyf", directory);
    QVERIFY(glyf);
    QList<qsizetype> starts;
    for (const qsizetype start : readGlyphStarts(directory, 2, format))
        starts << start - (glyf->data() - font.data());
    QTEST(starts, "starts");
}

void TestType42::keepsTheFontInItsStrings_data()
{
    const Table<MadeFont, int> row{"made", "strings"};
    MadeFont withoutGlyphs = MadeFont::withGlyphs(100, 1000);
    withoutGlyphs.remove("loca");
    row("one string", MadeFont::withGlyphs(39, 1000), 1);
    row("even glyphs", MadeFont::withGlyphs(200, 1000), 4);
    row("odd glyphs", MadeFont::withGlyphs(200, 1001), 4);
    row("longer than a string", MadeFont::withGlyphs(2, 100'000), 5);
    row("no glyphs", withoutGlyphs, 2);
}

void TestType42::keepsTheFontInItsStrings()
{
    QFETCH(MadeFont, made);
    const QByteArray font = made.bytes();
    const QList<QByteArray> strings = stringsOf(programOf(font));
    QByteArray again;
    for (const QByteArray &string : strings) {
        QVERIFY(string.size() <= 65'535 && string.endsWith('\0'));
        QVERIFY(string.size() % 2 == 1 || &string == &strings.last());
        again += string.chopped(1);
    }
    QCOMPARE(again, font);
    QTEST(int(strings.size()), "strings");
}

// As it is defined: byte by byte, with two more for each string before.
void TestType42::endsLinesByCount()
{
    const QByteArray font = MadeFont::withGlyphs(150, 1001).bytes();
    const SfntStrings strings(font, {40'001, 60'000, 100'004});
    QByteArray expected;
    qsizetype begin = 0;
    for (std::size_t i = 0; i < strings.ends().size(); ++i) {
        expected += '<';
        for (qsizetype offset = begin; offset < strings.ends()[i]; ++offset) {
            expected += font.mid(offset, 1).toHex().toUpper();
            if ((offset + 2 * qsizetype(i)) % 30 == 29)
                expected += '\n';
        }
        expected += "00>";
        begin = strings.ends()[i];
    }
    QByteArray text(strings.textSize(), 'x');
    strings.writeText(text.data());
    QCOMPARE(text, expected);
}

void TestType42::refusesDamagedFonts_data()
{
    const Table<QByteArray, QByteArray, QByteArray> row{"font", "message", "reason"};
    const MadeFont sound = MadeFont::withGlyphs(3, 4);
    const auto changed = [&sound](const auto &change) {
        MadeFont font = sound;
        change(font);
        return font.bytes();
    };
    for (const char *tag : {"maxp", "head", "post", "name"}) {
        const QByteArray reason = "Made: the table " + QByteArray(tag) + " is missing or damaged";
        row(tag, changed([tag](MadeFont &font) { font.remove(tag); }), missingTable, reason);
        if (tag == QByteArray("name"))
            continue;
        row(qPrintable(u"%1 too short"_s.arg(QLatin1String(tag))), changed([tag](MadeFont &font) {
                font.table(tag).truncate(tag == QByteArray("maxp") ? 5 : tag[0] == 'h' ? 53 : 31);
            }),
            missingTable, reason);
    }
    QByteArray beyond = sound.bytes();
    MadeFont::put16(beyond, 12 + 3 * 16 - 4, 1);
    row("beyond the file", beyond, missingTable, "Made: the table name is missing or damaged");
    row("within the directory", sound.bytes().first(12 + 16 * 2 + 15), missingTable,
        "Made: the table maxp is missing or damaged");
    row("no units", changed([](MadeFont &font) { MadeFont::put16(font.table("head"), 18, 0); }),
        missingTable, "Made: the table head is missing or damaged");
    row("empty", "", missingTable, "Made: the table maxp is missing or damaged");
    row("a collection", "ttcf" + sound.bytes(), missingTable,
        "Made: the table maxp is missing or damaged");
    row("magic number", changed([](MadeFont &font) { font.table("head")[15] = 0; }), badMagic,
        "Made: the table head has a wrong magic number");
    row("names for more glyphs",
        changed([](MadeFont &font) { MadeFont::put16(font.table("post"), 32, 4); }), "",
        "Made: the table post has names for 4 glyphs, but the font has 3");
    row("names end early", changed([](MadeFont &font) { font.table("post").truncate(39); }), "",
        "Made: the table post ends within the numbers of the glyphs’ names");
    row("no names", changed([](MadeFont &font) { font.table("post").truncate(33); }), "",
        "Made: the table post has names for 0 glyphs, but the font has 3");
}

void TestType42::refusesDamagedFonts()
{
    QFETCH(QByteArray, font);
    QByteArray output = "before";
    QByteArray message, reason;
    {
        const StandardError error;
        reason = convertTTFtoPS42(font, u"Made"_s, output).reason().toUtf8();
        message = error.text();
    }
    QTEST(message, "message");
    QTEST(reason, "reason");
    QCOMPARE(output, QByteArray("before"));
}

namespace {

QByteArray collectionOf(const QList<qint64> &offsets, const QByteArray &fonts)
{
    QByteArray collection = "ttcf" + MadeFont::big32(0x00010000) + MadeFont::big32(offsets.size());
    for (const qint64 offset : offsets)
        collection += MadeFont::big32(offset);
    return collection + fonts;
}

} // namespace

void TestType42::makesFontsOfMembers()
{
    MadeFont first = MadeFont::withGlyphs(2, 6), second = MadeFont::withGlyphs(3, 5);
    second.table("odd ") = "12345";
    const QByteArray firstBytes = first.bytes(20);
    const QByteArray collection = collectionOf({20, 20 + firstBytes.size()},
                                               firstBytes + second.bytes(20 + firstBytes.size()));

    const auto font = sfntOfMember(collection, 1);

    QVERIFY(font);
    const SfntDirectory directory = sfntDirectory(font.value());
    QCOMPARE(directory.header.toByteArray(),
             second.version + MadeFont::big16(7) + MadeFont::big16(64) + MadeFont::big16(2)
                 + MadeFont::big16(48));
    quint32 sum = 0;
    for (qsizetype i = 0; i < font.value().size(); i += 4)
        sum += qFromBigEndian<quint32>(font.value().constData() + i);
    QCOMPARE(sum, 0xB1B0AFBAU);
    for (auto &[tag, data] : second.tables) {
        const auto found = find_table(tag, directory);
        QVERIFY(found);
        QCOMPARE((found->data() - font.value().data()) % 4, 0);
        if (tag == "head")
            data.replace(8, 4, found->sliced(8, 4).toByteArray()); // the adjustment
        QCOMPARE(found->toByteArray(), data);
    }
    QCOMPARE(directory.records.sliced(4, 4).toByteArray(), MadeFont::big32(0x01020304));
    QVERIFY(programOf(font.value()).contains("/CharStrings 3 dict"));
    QVERIFY(hasTrueTypeOutlines(font.value()));
    QVERIFY(!hasTrueTypeOutlines(collection));
}

void TestType42::refusesMembers_data()
{
    const Table<QByteArray, int, QString> row{"collection", "index", "reason"};
    const QByteArray font = MadeFont::withGlyphs(2, 6).bytes(16);
    const QByteArray sound = collectionOf({16}, font);
    row("no collection", font, 0, u"a font collection: the file is no font collection"_s);
    row("cut", sound.first(11), 0, u"a font collection: the file is no font collection"_s);
    row("one too many", sound, 1, u"a font collection: there is no font number 1 among its 1"_s);
    row("below 0", sound, -1, u"a font collection: there is no font number -1 among its 1"_s);
    const QString notThere =
        u"a font collection: the tables of font number %1 are not in the file"_s;
    row("no offset", "ttcf" + MadeFont::big32(0x00010000) + MadeFont::big32(9), 8, notThere.arg(8));
    row("beyond the file", collectionOf({-1}, font), 0, notThere.arg(0));
    row("at its end", collectionOf({16 + font.size() - 11}, font), 0, notThere.arg(0));
    QByteArray whole = MadeFont::big32(0) + MadeFont::big16(3) + QByteArray(6, '\0');
    for (int i = 0; i < 3; ++i)
        whole += "same" + MadeFont::big32(0) + MadeFont::big32(0) + MadeFont::big32(76);
    row("one upon another", collectionOf({16}, whole), 0,
        u"a font collection: the tables of font number 0 lie upon one another"_s);
}

void TestType42::refusesMembers()
{
    QFETCH(QByteArray, collection);
    QFETCH(int, index);
    QTEST(sfntOfMember(collection, index).reason(), "reason");
}

QTEST_GUILESS_MAIN(TestType42)
#include "test_type42.moc"
