#include "file_names.h"
#include "standard_error.h"
#include "table.h"
#include "terminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

// What reaches a terminal: words, and nothing that it would obey.
class TestTerminal : public QObject
{
    Q_OBJECT

private slots:
    void writesOutWhatIsNotSeen_data();
    void writesOutWhatIsNotSeen();
    void leavesOutPairsOfIsolates();
    void keepsItsOwnTabsAndLineEnds();
    void keepsJsonJson();
};

void TestTerminal::writesOutWhatIsNotSeen_data()
{
    const Table<QString, QString> row{"text", "visible"};
    row("words", u"Grüße, 印刷 😀 100% \\n"_s, u"Grüße, 印刷 😀 100% \\n"_s);
    row("line ends and tab", u"a\nb\r\nc\td"_s, u"a\\nb\\r\\nc\\td"_s);
    row("null", QString(QChar(0)) + u'x', u"\\x00x"_s);
    row("escape sequence", u"\x1b[2J"_s, u"\\x1b[2J"_s);
    row("DEL",
        u"a\x7f"
        u"b"_s,
        u"a\\x7fb"_s);
    row("C1", u"a\u009b2J"_s, u"a\\x9b2J"_s);
    row("bidi override", u"fdp.\u202etxt\u202c"_s, u"fdp.\\u202etxt\\u202c"_s);
    row("bidi isolate and mark", u"\u2066a\u200f"_s, u"\\u2066a\\u200f"_s);
    row("unseen", u"a\u200bb\ufeff"_s, u"a\\u200bb\\ufeff"_s);
    row("line separator", u"a\u2028b\u2029"_s, u"a\\u2028b\\u2029"_s);
    row("tag beyond the BMP", u"a\U000e0041"_s, u"a\\U000e0041"_s);
    row("joiners spell words", u"می\u200cخواهم 👩\u200d💻"_s, u"می\u200cخواهم 👩\u200d💻"_s);
    row("bytes of a file name", fileNameFrom("Gr\xfc\xdf\x65"), u"Gr\\xfc\\xdfe"_s);
    row("lone surrogates", QString(QChar(0xd83d)) + u'a' + QChar(0xde00), u"\\ud83da\\ude00"_s);
}

void TestTerminal::writesOutWhatIsNotSeen()
{
    QFETCH(QString, text);
    QFETCH(QString, visible);
    QCOMPARE(visibleText(text), visible);

    const StandardError written;
    printLine(stderr, text);
    QCOMPARE(QString::fromUtf8(written.text()), visible + u'\n');
}

void TestTerminal::leavesOutPairsOfIsolates()
{
    const StandardError written;
    printLine(stderr, u"\u2068a \u2066b\u2069\u2069 c"_s);
    printLine(stderr, u"\u2068a\u202e\u2069 \u2068b\u2068"_s);
    QCOMPARE(written.text(), "a b c\na\\u202e \\u2068b\\u2068\n");
}

void TestTerminal::keepsItsOwnTabsAndLineEnds()
{
    const StandardError written;
    printLine(stderr, QStringList{u"Hall\t3"_s, {}, u"two\nlines"_s});
    printLines(stderr, u"one\n\ntwo\x1b\n"_s);
    printLines(stderr, u"three"_s);
    QCOMPARE(written.text(), "Hall\\t3\t\ttwo\\nlines\none\n\ntwo\\x1b\nthree\n");
}

void TestTerminal::keepsJsonJson()
{
    const QJsonArray array{u"a\nb\x1b\x7f\u009b\u202e\U000e0041\"\\😀"_s, 12};
    const StandardError written;
    printJson(stderr, QJsonDocument(array));
    const QByteArray text = written.text();
    QCOMPARE(QJsonDocument::fromJson(text).array(), array);
    for (const char *escape : {"\\u001b", "\\u007f", "\\u009b", "\\u202e", "\\udb40\\udc41", "😀"})
        QVERIFY2(text.contains(escape), text.constData());
    QCOMPARE(text.count('\n'), 4);
}

QTEST_GUILESS_MAIN(TestTerminal)
#include "test_terminal.moc"
