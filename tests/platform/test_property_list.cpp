#include "file_store.h"
#include "property_list.h"
#include "size_limits.h"
#include "table.h"
#include "values.h"

#include <QDateTime>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <limits>

using namespace kelvo;
using namespace Qt::StringLiterals;
using Code = Error::Code;

class TestPropertyList : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatItWrote_data();
    void readsWhatItWrote();
    void writesTheSameBytesForTheSameList();
    void readsValues_data();
    void readsValues();
    void refusesOtherFiles_data();
    void refusesOtherFiles();
    void saysInWhichLineAFileIsWrong();
    void refusesWhatNoListCanHold_data();
    void refusesWhatNoListCanHold();
    void holdsItsLimits_data();
    void holdsItsLimits();
    void agreesWithOtherPrograms();
    void readsWhatPythonWrote();
};

static const QDateTime leapDay(QDate(2024, 2, 29), QTime(23, 59, 58), Qt::UTC);

static QByteArray document(const QByteArray &content)
{
    return "<?xml version=\"1.0\"?>\n<plist version=\"1.0\">\n" + content + "\n</plist>\n";
}

// One of each kind, and the edges of each.
static Dictionary everything()
{
    return {
        {u"texts"_s,
         QStringList{QString(), u" <&>\"' "_s, u"tab\tline\nreturn\r."_s, u"é € 漢"_s,
                     QString::fromUcs4(U"\U0001F5A8\U0010FFFF")}},
        {u"integers"_s,
         Array{0, -1, std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min()}},
        {u"reals"_s, Array{0.5, -0.0, 0.1, 1.0, 1e22, 5e-324, 1.7976931348623157e308}},
        {u"booleans"_s, Array{true, false}},
        {u"date"_s, leapDay},
        {u"data"_s, Array{QByteArray(), QByteArray("a"), QByteArray("\0\xFF\n", 3)}},
        {u"empty"_s, Array{Dictionary(), Array()}},
        {u"<&>"_s, Dictionary{{QString(), u"empty key"_s}}},
    };
}

void TestPropertyList::readsWhatItWrote_data()
{
    const Table<QVariant, QVariant> row{"written", "read"};
    row("everything", QVariant(everything()), QVariant(everything()));
    row("narrow integer", QVariant(7), QVariant(qint64(7)));
    row("unsigned", QVariant(quint64(7)), QVariant(qint64(7)));
    row("whole real", QVariant(7.0), QVariant(7.0));
    row("float", QVariant(0.1F), QVariant(double(0.1F)));
    row("local date with milliseconds", QVariant(leapDay.addMSecs(999).toOffsetFromUtc(3600)),
        QVariant(leapDay));
    row("null text", QVariant(QString()), QVariant(QLatin1String("")));
}

void TestPropertyList::readsWhatItWrote()
{
    QFETCH(QVariant, written);
    QFETCH(QVariant, read);
    const auto xml = CFPropertyListCreateXMLData(written);
    QVERIFY2(xml, qPrintable(xml.reason()));
    const auto back = CFPropertyListCreateFromXMLData(xml.value(), u"list"_s);
    QVERIFY2(back, qPrintable(back.reason()));
    const auto again = CFPropertyListCreateXMLData(back.value());
    QVERIFY(again);
    QCOMPARE(again.value(), xml.value()); // tells -0 from 0 and 7 from 7.0
    if (read.typeId() == QMetaType::QVariantMap)
        return; // string lists come back as arrays
    QCOMPARE(back.value().typeId(), read.typeId());
    QCOMPARE(back.value(), read);
    if (read.typeId() == QMetaType::QString)
        QVERIFY(!back.value().toString().isNull());
}

void TestPropertyList::writesTheSameBytesForTheSameList()
{
    const Dictionary list{{u"b"_s, Array{1, 0.5}}, {u"B"_s, true}};
    const auto xml = CFPropertyListCreateXMLData(list);
    QVERIFY(xml);
    QCOMPARE(xml.value(),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                        "<plist version=\"1.0\">\n"
                        "<dict>\n\t<key>B</key>\n\t<true/>\n\t<key>b</key>\n\t<array>\n"
                        "\t\t<integer>1</integer>\n\t\t<real>0.5</real>\n\t</array>\n</dict>\n"
                        "</plist>\n"));
}

void TestPropertyList::readsValues_data()
{
    const Table<QByteArray, QVariant> row{"content", "value"};
    row("hexadecimal", "<integer>0x1F</integer>", qint64(31));
    row("least hexadecimal", "<integer>-0x8000000000000000</integer>",
        std::numeric_limits<qint64>::min());
    row("blanks around", "<integer> +12\n</integer>", qint64(12));
    row("real with exponent", "<real>+1.5E3</real>", 1500.0);
    row("data in lines", "<data>\n\tAAE\n\tC\n</data>", QByteArray("\0\1\2", 3));
    row("data of one byte", "<data>/w==</data>", QByteArray("\xFF"));
    row("data of two bytes", "<data>+/8=</data>", QByteArray("\xFB\xFF"));
    row("data of four bytes", "<data>AAECA\t\nw =\r= </data>", QByteArray("\0\1\2\3", 4));
    row("no data", "<data> </data>", QByteArray());
    // Much of it is read past the parser, where it is what it looks like.
    const QByteArray much(6000, 'x');
    const QByteArray digits = much.toBase64();
    row("much data", "<data>" + digits + "</data>", much);
    row("much data, twice",
        "<array><data>" + digits + "</data><data>\n" + digits + "</data></array>",
        Array{much, much});
    row("much data and a reference", "<data>" + digits + "&#81;&#81;==</data>", much + "A");
    row("much data and a comment", "<data>" + digits + "<!-- a -->QQ==</data>", much + "A");
    row("much data in a comment", "<data><!-- <data>" + digits + "< -->QQ==</data>",
        QByteArray("A"));
    row("much data in CDATA", "<string><![CDATA[<data>" + digits + "<]]></string>",
        QString::fromLatin1("<data>" + digits + "<"));
    row("CDATA", "<string><![CDATA[a<b]]>&#x43;&amp;</string>", u"a<bC&"_s);
    row("comments", "<!-- a --><string>a<!-- b -->c</string>", u"ac"_s);
    row("true with an end", "<true> </true>", true);
    row("key again deeper", "<dict><key>a</key><dict><key>a</key><true/></dict></dict>",
        Dictionary{{u"a"_s, Dictionary{{u"a"_s, true}}}});
}

void TestPropertyList::readsValues()
{
    QFETCH(QByteArray, content);
    QFETCH(QVariant, value);
    const auto list = CFPropertyListCreateFromXMLData(document(content), u"list"_s);
    QVERIFY2(list, qPrintable(list.reason()));
    QCOMPARE(list.value().typeId(), value.typeId());
    QCOMPARE(list.value(), value);
}

void TestPropertyList::refusesOtherFiles_data()
{
    const Table<QByteArray, Code> file{"xml", "code"};
    const auto content = [&](const char *name, const QByteArray &xml, Code code) {
        file(name, document(xml), code); // an error stands in line 3
    };
    file("empty file", "", Code::Damaged);
    file("binary list", "bplist00\xD0", Code::Unsupported);
    file("another root", "<html/>", Code::Damaged);
    file("value as root", "<string>a</string>", Code::Damaged);
    file("text as root", "a", Code::Damaged);
    file("something behind", document("<true/>") + "<plist/>", Code::Damaged);
    file("cut off", document("<true/>").chopped(5), Code::Damaged);
    file("declared entity", "<!DOCTYPE plist [<!ENTITY a 'b'>]>" + document("<string>&a;</string>"),
         Code::Damaged);
    file("entity from a file",
         "<!DOCTYPE plist [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>" + document("<true/>"),
         Code::Damaged);
    file("entity of the outer declaration",
         "<!DOCTYPE plist SYSTEM 'x.dtd'>" + document("<string>&a;</string>"), Code::Damaged);
    content("no value", "", Code::Damaged);
    content("two values", "<true/><true/>", Code::Damaged);
    content("bad UTF-8", "<string>\xFF</string>", Code::Damaged);
    content("zero character", "<string>&#0;</string>", Code::Damaged);
    content("unknown element", "<float>1</float>", Code::Damaged);
    content("list in a list", "<array><plist/></array>", Code::Damaged);
    content("element in a text", "<string>a<true/></string>", Code::Damaged);
    content("text outside", "<array>a</array>", Code::Damaged);
    content("content in true", "<true>1</true>", Code::Damaged);
    content("key twice", "<dict><key>a</key><true/><key>a</key><true/></dict>", Code::Damaged);
    content("key twice, unsorted",
            "<dict><key>b</key><true/><key>a</key><true/><key>b</key><true/></dict>",
            Code::Damaged);
    content("key without value", "<dict><key>a</key></dict>", Code::Damaged);
    content("key after key", "<dict><key>a</key><key>b</key></dict>", Code::Damaged);
    content("value without key", "<dict><true/></dict>", Code::Damaged);
    content("key in an array", "<array><key>a</key></array>", Code::Damaged);
    content("2^63", "<integer>9223372036854775808</integer>", Code::OutOfRange);
    content("below -2^63", "<integer>-0x8000000000000001</integer>", Code::OutOfRange);
    content("no digits", "<integer/>", Code::OutOfRange);
    content("two signs", "<integer>+-1</integer>", Code::OutOfRange);
    content("fraction as integer", "<integer>1.5</integer>", Code::OutOfRange);
    content("comma in a real", "<real>1,5</real>", Code::OutOfRange);
    content("two signs of a real", "<real>+-1</real>", Code::OutOfRange);
    content("infinity", "<real>inf</real>", Code::OutOfRange);
    content("real too large", "<real>1e999</real>", Code::OutOfRange);
    content("no such day", "<date>2023-02-29T00:00:00Z</date>", Code::Damaged);
    content("date without zone", "<date>2024-02-29T00:00:00</date>", Code::Damaged);
    content("no base64", "<data>AA*=</data>", Code::Damaged);
    content("data cut off", "<data>AAAAA</data>", Code::Damaged);
    content("much data cut off", "<data>" + QByteArray(6001, 'A') + "</data>", Code::Damaged);
    content("much data ends the file", "<data>" + QByteArray(6000, 'A'), Code::Damaged);
    content("data behind the end", "<data>QQ==QQ==</data>", Code::Damaged);
    content("data within the padding", "<data>QQ=Q</data>", Code::Damaged);
    content("padding alone", "<data>====</data>", Code::Damaged);
    content("padding too many", "<data>QQ===</data>", Code::Damaged);
    content("padding of a full group", "<data>AAAA=</data>", Code::Damaged);
    content("padding missing", "<data>QQ</data>", Code::Damaged);
    content("padding for one digit", "<data>AAAAQ===</data>", Code::Damaged);
    content("base64 for URLs", "<data>-_8=</data>", Code::Damaged);
    content("data not of ASCII", "<data>AA\xC3\xA4=</data>", Code::Damaged);
}

void TestPropertyList::refusesOtherFiles()
{
    QFETCH(QByteArray, xml);
    QFETCH(Code, code);
    const auto list = CFPropertyListCreateFromXMLData(xml, u"a.plist"_s);
    QVERIFY(!list);
    QCOMPARE(list.error().code, code);
    QVERIFY(list.error().where.startsWith(u"a.plist"_s));
    QVERIFY(!list.error().detail.isEmpty());
}

void TestPropertyList::saysInWhichLineAFileIsWrong()
{
    const QByteArray lines = "<data>\n" + QByteArray(6000, 'A') + "</data><float/>";
    for (const QByteArray &content :
         {QByteArray("<true/>\n<float/>"), QByteArray("<true/>\n<integer>x</integer>"),
          QByteArray("<true/>\n\xFF"), lines})
        QCOMPARE(CFPropertyListCreateFromXMLData(document(content), u"a.plist"_s).error().where,
                 u"a.plist, line 4"_s);
}

void TestPropertyList::refusesWhatNoListCanHold_data()
{
    // value: stands at outer/1 of the list
    const Table<QVariant, Code> row{"value", "code"};
    row("nothing", {}, Code::WrongType);
    row("another type", QVariant(QSize(1, 2)), Code::WrongType);
    row("null character", QVariant(QString(QChar(0))), Code::Unsupported);
    row("control character", QVariant(u"\x1B"_s), Code::Unsupported);
    row("half a pair", QVariant(QString(QChar(0xD83D))), Code::Unsupported);
    row("halves swapped", QVariant(QString(QChar(0xDC00)) + QChar(0xD83D)), Code::Unsupported);
    row("U+FFFF", QVariant(QString(QChar(0xFFFF))), Code::Unsupported);
    row("2^63", QVariant(quint64(1) << 63), Code::OutOfRange);
    row("not a number", QVariant(std::nan("")), Code::OutOfRange);
    row("infinite float", QVariant(HUGE_VALF), Code::OutOfRange);
    row("no date", QVariant(QDateTime()), Code::OutOfRange);
    row("year 10000", QVariant(QDateTime(QDate(10000, 1, 1), QTime(0, 0), Qt::UTC)),
        Code::OutOfRange);
}

void TestPropertyList::refusesWhatNoListCanHold()
{
    QFETCH(QVariant, value);
    QFETCH(Code, code);
    const auto xml = CFPropertyListCreateXMLData(Dictionary{{u"outer"_s, Array{true, value}}});
    QVERIFY(!xml);
    QCOMPARE(xml.error().code, code);
    QCOMPARE(xml.error().where, u"outer/1"_s);
}

void TestPropertyList::holdsItsLimits_data()
{
    const Table<QByteArray, bool> row{"xml", "fits"};
    const auto nested = [](int depth) {
        return document(QByteArray("<array>").repeated(depth)
                        + QByteArray("</array>").repeated(depth));
    };
    row("deepest", nested(limits::plistDepth), true);
    row("too deep", nested(limits::plistDepth + 1), false);
    const auto many = [](qint64 values) { // the array is one of them
        return document("<array>" + QByteArray("<true/>").repeated(values - 1) + "</array>");
    };
    row("most values", many(limits::plistNodes), true);
    row("too many values", many(limits::plistNodes + 1), false);
    const auto padded = [](qint64 size) {
        const QByteArray list = document("<true/>");
        return list + QByteArray(size - list.size(), ' ');
    };
    row("most bytes", padded(limits::plistBytes), true);
    row("too many bytes", padded(limits::plistBytes + 1), false);
}

void TestPropertyList::holdsItsLimits()
{
    QFETCH(QByteArray, xml);
    QFETCH(bool, fits);
    const auto list = CFPropertyListCreateFromXMLData(xml, u"list"_s);
    QCOMPARE(bool(list), fits);
    if (!fits) {
        QCOMPARE(list.error().code, Code::TooLarge);
        return;
    }
    // What could be read can be written, and one level more cannot.
    QVERIFY(CFPropertyListCreateXMLData(list.value()));
    if (qstrcmp(QTest::currentDataTag(), "most bytes") != 0) {
        const auto more = CFPropertyListCreateXMLData(Array{list.value()});
        QVERIFY(!more);
        QCOMPARE(more.error().code, Code::TooLarge);
    }
}

// A list of ours through another program's binary form and back.
void TestPropertyList::agreesWithOtherPrograms()
{
    QTemporaryDir folder;
    const QString ours = folder.filePath(u"ours.plist"_s);
    const QString binary = folder.filePath(u"binary.plist"_s);
    const QString back = folder.filePath(u"back.plist"_s);
    Dictionary list = everything();
    // plistutil's own writer prints reals with few digits, drops empty keys and
    // turns returns into newlines.
    list.insert(u"texts"_s,
                list.value(u"texts"_s).toStringList().replaceInStrings(u"\r"_s, QString()));
    list.insert(u"reals"_s, Array{0.5, 1.0, 1e22});
    list.remove(u"<&>"_s);
    QVERIFY(replaceFile(ours, CFPropertyListCreateXMLData(list).value()));
    for (const QStringList &arguments :
         {QStringList{u"-i"_s, ours, u"-o"_s, binary, u"-f"_s, u"bin"_s},
          QStringList{u"-i"_s, binary, u"-o"_s, back, u"-f"_s, u"xml"_s}}) {
        QCOMPARE(QProcess::execute(u"plistutil"_s, arguments), 0);
    }
    const auto theirs = readPropertyList(back);
    QVERIFY2(theirs, qPrintable(theirs.reason()));
    const auto expected = readPropertyList(ours);
    QVERIFY(expected);
    const Dictionary a = theirs.value().toMap(), b = expected.value().toMap();
    QCOMPARE(a.keys(), b.keys());
    for (const QString &key : b.keys())
        QVERIFY2(a.value(key) == b.value(key), qPrintable(key));
}

void TestPropertyList::readsWhatPythonWrote()
{
    const auto list = readPropertyList(QStringLiteral(KELVO_TEST_DATA "/platform/plistlib.plist"));
    QVERIFY2(list, qPrintable(list.reason()));
    const Dictionary expected{
        {u"data"_s, QByteArray(100, '\xAB')},
        {u"date"_s, leapDay},
        {u"deep"_s, Dictionary{{u"é"_s, Array{true, u"<&>\n"_s}}}},
        {u"integer"_s, std::numeric_limits<qint64>::min()},
        {u"real"_s, 0.1},
    };
    QCOMPARE(list.value().toMap(), expected);
}

QTEST_GUILESS_MAIN(TestPropertyList)
#include "test_property_list.moc"
