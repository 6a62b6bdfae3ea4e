#include "script_parser.h"

#include "secret_mask.h"
#include "ticket_path.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

using namespace kelvo;

class TestScriptParser : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryForm_data();
    void readsEveryForm();
    void refusesWithTheLineAndTheReason_data();
    void refusesWithTheLineAndTheReason();
    void keepsLineNumbersOverCommentsAndBlankLines();
    void everyCommandHasHelp();
    void walksIntoTheTicket();
    void neverRepeatsWhatIsTyped();
    void masksWholeWords_data();
    void masksWholeWords();
    void masksControlsButNotWhatTheyAreCalled();
};

// One line back as text, so that a row shows all that was read.
static QString shape(const ScriptLine &line)
{
    QStringList parts{QString::number(static_cast<int>(line.command))};
    if (line.control)
        parts << QStringLiteral("control=") + line.control->text();
    if (line.code)
        parts << QStringLiteral("code=%1").arg(*line.code, 8, 16);
    if (line.item)
        parts << QStringLiteral("item=") + line.item->description();
    for (const ScriptWord &word : line.arguments)
        parts << (word.quoted ? QStringLiteral("\"%1\"").arg(word.text) : word.text);
    return parts.mid(1).join(u'|');
}

void TestScriptParser::readsEveryForm_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("shape");

    QTest::newRow("ID of two words") << QByteArray("click KPDE 670") << "control=KPDE 670";
    QTest::newRow("speaking name") << QByteArray("click @aboutButton") << "control=@aboutButton";
    QTest::newRow("negative ID") << QByteArray("click KPDE -3") << "control=KPDE -3";
    QTest::newRow("number") << QByteArray("choose KPDE 102 6") << "control=KPDE 102|item=6";
    QTest::newRow("negative number")
        << QByteArray("choose @lighten -5") << "control=@lighten|item=-5";
    QTest::newRow("code") << QByteArray("choose @a 'Kujn'") << "control=@a|item=1265986158";
    QTest::newRow("unset") << QByteArray("choose @a unset") << "control=@a|item=unset";
    QTest::newRow("key") << QByteArray("choose @a key SecurePrint")
                         << "control=@a|item=key SecurePrint";
    QTest::newRow("key with blanks") << QByteArray("choose @a key \"Save to Mailbox Command\"")
                                     << "control=@a|item=key Save to Mailbox Command";
    QTest::newRow("text") << QByteArray("choose @a text \"Letter (8.5 x 11 in)\"")
                          << "control=@a|item=\"Letter (8.5 x 11 in)\"";
    QTest::newRow("row") << QByteArray("choose @a row 3") << "control=@a|item=row 3";
    QTest::newRow("menu item") << QByteArray("item @m 'Stp1'") << "control=@m|code=53747031";
    QTest::newRow("menu item told apart")
        << QByteArray("item @m 'Ssiz' 4") << "control=@m|code=5373697a|item=4";
    QTest::newRow("state after an item") << QByteArray("expect-item @m 'Ssiz' 4 checked")
                                         << "control=@m|code=5373697a|item=4|checked";
    QTest::newRow("state alone") << QByteArray("expect-item @m 'Stp1' absent")
                                 << "control=@m|code=53747031|absent";
    QTest::newRow("escapes") << QByteArray(R"(type @t "a \"b\" \\ \n")")
                             << "control=@t|\"a \"b\" \\ \n\"";
    QTest::newRow("secret") << QByteArray("type @t secret pin") << "control=@t|secret|pin";
    QTest::newRow("text called secret")
        << QByteArray("type @t \"secret\"") << "control=@t|\"secret\"";
    QTest::newRow("absent, and a text that says so")
        << QByteArray("expect-ticket com.kelvo.print.X \"absent\"")
        << "com.kelvo.print.X|\"absent\"";
    QTest::newRow("cell") << QByteArray("expect @l cell 2 1 \"Page 3\"")
                          << "control=@l|cell|2|1|\"Page 3\"";
    QTest::newRow("code as a value")
        << QByteArray("expect @a value 'Kujn'") << "control=@a|value|1265986158";
    QTest::newRow("comment behind") << QByteArray("tab 4 # Advanced") << "4";
    QTest::newRow("hash inside a text") << QByteArray("type @t \"#1\"") << "control=@t|\"#1\"";
    QTest::newRow("carriage return") << QByteArray("print\r\n") << "";
    QTest::newRow("beyond ASCII") << QByteArray("type @t \"Müller 東京\"")
                                  << QStringLiteral("control=@t|\"Müller 東京\"");
    QTest::newRow("time with seconds") << QByteArray("time @t 23:59:59") << "control=@t|23:59:59";
    QTest::newRow("drag") << QByteArray("drag @p -1.5 20") << "control=@p|-1.5|20";
}

void TestScriptParser::readsEveryForm()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, shape);

    const auto lines = parseScript(text, QStringLiteral("s"));

    QVERIFY2(lines, qPrintable(lines ? QString() : lines.error().text()));
    QCOMPARE(lines.value().size(), 1U);
    QCOMPARE(::shape(lines.value().front()), shape);
}

void TestScriptParser::refusesWithTheLineAndTheReason_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");

    QTest::newRow("unknown command, near one")
        << QByteArray("chose @a 1") << "did you mean choose?";
    QTest::newRow("unknown command, far from all")
        << QByteArray("xyzzy") << "there is no command \"xyzzy\"";
    QTest::newRow("quoted command") << QByteArray("\"print\"") << "there is no command";
    QTest::newRow("too few words") << QByteArray("choose @a") << "choose CONTROL WHAT";
    QTest::newRow("too many words") << QByteArray("print now") << "there is too much";
    QTest::newRow("blanks without quotes")
        << QByteArray("expect @a text One Two") << "double quotes";
    QTest::newRow("typed blanks without quotes")
        << QByteArray("type @a One Two") << "double quotes";
    QTest::newRow("open quote") << QByteArray("type @a \"One") << "not closed";
    QTest::newRow("text glued to another") << QByteArray("type @a \"One\"Two") << "comes a blank";
    QTest::newRow("unknown escape") << QByteArray("type @a \"\\t\"") << "no escape";
    QTest::newRow("code of three") << QByteArray("command 'abc'") << "four characters";
    QTest::newRow("code of five") << QByteArray("command 'abcde'") << "four characters";
    QTest::newRow("word for a code") << QByteArray("command help") << "single quotes";
    QTest::newRow("ID without number") << QByteArray("click KPDE") << "is no control";
    QTest::newRow("signature of three") << QByteArray("click KPD 1") << "is no control";
    QTest::newRow("row 0") << QByteArray("choose @a row 0") << "rows count from 1";
    QTest::newRow("fraction for a number") << QByteArray("set @a 1.5") << "no whole number";
    QTest::newRow("number above 32 bits") << QByteArray("set @a 2147483648") << "no whole number";
    QTest::newRow("unknown state") << QByteArray("expect-item @m 'abcd' big") << "none of present";
    QTest::newRow("unknown property") << QByteArray("expect @a txt 1") << "did you mean text?";
    QTest::newRow("cell without column") << QByteArray("expect @a cell 1 x") << "a row, a column";
    QTest::newRow("check neither on nor off") << QByteArray("check @a yes") << "none of on, off";
    QTest::newRow("24 o'clock") << QByteArray("time @a 24:00") << "no time";
    QTest::newRow("negative row in a selection")
        << QByteArray("select @a 1,-2") << "no list of rows";
    QTest::newRow("secret without name") << QByteArray("type @a secret") << "its name";
    QTest::newRow("not UTF-8") << QByteArray("type @a \"\xff\"") << "UTF-8";
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\0\1\2",
                                          7)
                            << "UTF-8";
}

void TestScriptParser::refusesWithTheLineAndTheReason()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);

    const auto lines = parseScript("print\n\n" + text + "\nprint", QStringLiteral("a.kps"));

    QVERIFY(!lines);
    QCOMPARE(lines.error().where, QStringLiteral("a.kps:3"));
    QVERIFY2(lines.error().detail.contains(reason), qPrintable(lines.error().detail));
}

void TestScriptParser::keepsLineNumbersOverCommentsAndBlankLines()
{
    const auto lines = parseScript("# one\n\n  tab 4\n\t# four\nprint", QStringLiteral("s"));

    QVERIFY(lines);
    QCOMPARE(lines.value().size(), 2U);
    QCOMPARE(lines.value()[0].number, 3);
    QCOMPARE(lines.value()[1].number, 5);

    // Somebody has written a comment; an empty file is what is left of a script.
    QVERIFY(parseScript("# later\n", QStringLiteral("s")));
    for (const char *empty : {"", " \r\n\n"}) {
        const auto read = parseScript(empty, QStringLiteral("s"));
        QVERIFY(!read);
        QVERIFY2(read.error().text().startsWith(u"s:1: the script is empty; write "),
                 qPrintable(read.error().text()));
    }
}

void TestScriptParser::everyCommandHasHelp()
{
    // The help is what users read first: it must name each command, once.
    QStringList names;
    for (const ScriptCommandHelp &row : scriptCommandHelp()) {
        const QString name = QString::fromUtf8(row.usage).section(u' ', 0, 0);
        QVERIFY2(!names.contains(name), qPrintable(name));
        QVERIFY2(*row.meaning, qPrintable(name));
        names << name;
    }
    QCOMPARE(names.size(), static_cast<int>(ScriptCommand::Screenshot) + 1);
}

void TestScriptParser::walksIntoTheTicket()
{
    Ticket ticket, page;
    ticket.entries[QStringLiteral("a")].value =
        Dictionary{{QStringLiteral("b"),
                    Array{qint64(7), Dictionary{{QStringLiteral("c"), QStringLiteral("x")}}, 2.5}}};
    ticket.entries[QStringLiteral("a/b")].value = true;
    page.entries[QStringLiteral("o")].value = qint64(2);

    const auto at = [&ticket, &page](const char *path) -> QString {
        const auto value = valueAtPath(ticket, page, QString::fromLatin1(path));
        return value ? scriptText(*value) : QStringLiteral("absent");
    };

    QCOMPARE(at("a/b"), QStringLiteral("true")); // a key with a slash wins
    QCOMPARE(at("o"), QStringLiteral("2"));
    QCOMPARE(at("a/z"), QStringLiteral("absent"));
    ticket.entries.erase(QStringLiteral("a/b"));
    QCOMPARE(at("a/b/0"), QStringLiteral("7"));
    QCOMPARE(at("a/b/1/c"), QStringLiteral("x"));
    QCOMPARE(at("a/b/2"), QStringLiteral("2.5"));
    QCOMPARE(at("a/b/3"), QStringLiteral("absent"));
    QCOMPARE(at("a/b/-1"), QStringLiteral("absent"));
    QCOMPARE(at("a/b/0/x"), QStringLiteral("absent"));
    QCOMPARE(at("a/b/1"), QStringLiteral("{\"c\":\"x\"}"));
}

void TestScriptParser::neverRepeatsWhatIsTyped()
{
    for (const char *line : {"type passcode 4711", "type \"4711\" @passcode", "type KPDE \"4711\"",
                             "type @passcode \"4711", "type @passcode \"4711\"x",
                             "type @passcode 4711 4711", "type @passcode \"4711\" 4711 4711"}) {
        const auto read = parseScript(line, QStringLiteral("t.kps"));
        QVERIFY2(!read, line);
        QVERIFY2(!read.error().text().contains(u"4711"), qPrintable(read.error().text()));
    }
}

void TestScriptParser::masksWholeWords_data()
{
    QTest::addColumn<QStringList>("secrets");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("masked");
    const auto row = [](const char *name, const QStringList &secrets, const char *text,
                        const char *masked) {
        QTest::newRow(name) << secrets << QString::fromUtf8(text) << QString::fromUtf8(masked);
    };
    row("alone", {"4711"}, "4711", "••••");
    row("in a sentence", {"4711"}, "code 4711. 4711-4711", "code ••••. ••••-••••");
    row("the longer one first", {"4711", "4711 a"}, "4711 a, 4711", "••••, ••••");
    row("part of a word", {"4711"}, "47110 x4711 4711mm _4711", "47110 x4711 4711mm _4711");
    row("part of a number", {"4711"}, "0.4711 4711,5", "0.4711 4711,5");
    row("too short to be looked for", {"1", "12", "123", ""}, "1 copy of 12, line 123",
        "1 copy of 12, line 123");
    row("not a word at its ends", {"(pin)"}, "a(pin)b", "a••••b");
    row("quotes and umlauts", {"a\"b\\ü"}, "say a\"b\\ü!", "say ••••!");
}

void TestScriptParser::masksWholeWords()
{
    QFETCH(QStringList, secrets);
    QFETCH(QString, text);
    QFETCH(QString, masked);
    QCOMPARE(maskedText(text, secrets), masked);
}

void TestScriptParser::masksControlsButNotWhatTheyAreCalled()
{
    const auto json = [](const char *text) { return QJsonDocument::fromJson(text).array(); };
    const QJsonValue open = json(R"([{"id":"KPDE 4711","name":"4711","kind":"4711",
        "text":"a 4711","label":"4711","rows":[["4711","x"]],"maximum":4711},
        {"text":"4711","value":4711,"items":[{"text":"4711","value":1}]},
        {"text":"x","items":["4711"]}])");
    const QJsonValue masked = json(R"([{"id":"KPDE 4711","name":"4711","kind":"4711",
        "text":"a ••••","label":"••••","rows":[["••••","x"]],"maximum":4711},
        {"text":"4711","value":4711,"items":[{"text":"4711","value":1}]},
        {"text":"x","items":["••••"]}])");
    QCOMPARE(maskedControls(open, {"4711", "1"}), masked);
}

QTEST_GUILESS_MAIN(TestScriptParser)
#include "test_script_parser.moc"
