#include "script_parser.h"

#include "secret_mask.h"
#include "table.h"
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
    const Table<QByteArray, QString> row{"text", "shape"};

    row("ID of two words", "click KPDE 670", "control=KPDE 670");
    row("speaking name", "click @aboutButton", "control=@aboutButton");
    row("negative ID", "click KPDE -3", "control=KPDE -3");
    row("number", "choose KPDE 102 6", "control=KPDE 102|item=6");
    row("negative number", "choose @lighten -5", "control=@lighten|item=-5");
    row("code", "choose @a 'Kujn'", "control=@a|item=1265986158");
    row("unset", "choose @a unset", "control=@a|item=unset");
    row("key", "choose @a key SecurePrint", "control=@a|item=key SecurePrint");
    row("key with blanks", "choose @a key \"Save to Mailbox Command\"",
        "control=@a|item=key Save to Mailbox Command");
    row("text", "choose @a text \"Letter (8.5 x 11 in)\"",
        "control=@a|item=\"Letter (8.5 x 11 in)\"");
    row("row", "choose @a row 3", "control=@a|item=row 3");
    row("menu item", "item @m 'Stp1'", "control=@m|code=53747031");
    row("menu item told apart", "item @m 'Ssiz' 4", "control=@m|code=5373697a|item=4");
    row("state after an item", "expect-item @m 'Ssiz' 4 checked",
        "control=@m|code=5373697a|item=4|checked");
    row("state alone", "expect-item @m 'Stp1' absent", "control=@m|code=53747031|absent");
    row("escapes", R"(type @t "a \"b\" \\ \n")", "control=@t|\"a \"b\" \\ \n\"");
    row("secret", "type @t secret pin", "control=@t|secret|pin");
    row("text called secret", "type @t \"secret\"", "control=@t|\"secret\"");
    row("absent, and a text that says so", "expect-ticket com.kelvo.print.X \"absent\"",
        "com.kelvo.print.X|\"absent\"");
    row("cell", "expect @l cell 2 1 \"Page 3\"", "control=@l|cell|2|1|\"Page 3\"");
    row("code as a value", "expect @a value 'Kujn'", "control=@a|value|1265986158");
    row("comment behind", "tab 4 # Advanced", "4");
    row("hash inside a text", "type @t \"#1\"", "control=@t|\"#1\"");
    row("carriage return", "print\r\n", "");
    row("beyond ASCII", "type @t \"Müller 東京\"", "control=@t|\"Müller 東京\"");
    row("time with seconds", "time @t 23:59:59", "control=@t|23:59:59");
    row("drag", "drag @p -1.5 20", "control=@p|-1.5|20");
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
    const Table<QByteArray, QString> row{"text", "reason"};

    row("unknown command, near one", "chose @a 1", "did you mean choose?");
    row("unknown command, far from all", "xyzzy", "there is no command “xyzzy”");
    row("quoted command", "\"print\"", "there is no command");
    row("too few words", "choose @a", "choose CONTROL WHAT");
    row("too many words", "print now", "there is too much");
    row("blanks without quotes", "expect @a text One Two", "double quotes");
    row("typed blanks without quotes", "type @a One Two", "double quotes");
    row("open quote", "type @a \"One", "not closed");
    row("text glued to another", "type @a \"One\"Two", "comes a blank");
    row("unknown escape", "type @a \"\\t\"", "no escape");
    row("code of three", "command 'abc'", "four characters");
    row("code of five", "command 'abcde'", "four characters");
    row("word for a code", "command help", "single quotes");
    row("ID without number", "click KPDE", "is no control");
    row("signature of three", "click KPD 1", "is no control");
    row("row 0", "choose @a row 0", "rows count from 1");
    row("fraction for a number", "set @a 1.5", "no whole number");
    row("number above 32 bits", "set @a 2147483648", "no whole number");
    row("unknown state", "expect-item @m 'abcd' big", "none of present");
    row("unknown property", "expect @a txt 1", "did you mean text?");
    row("cell without column", "expect @a cell 1 x", "a row, a column");
    row("check neither on nor off", "check @a yes", "none of on, off");
    row("24 o'clock", "time @a 24:00", "no time");
    row("negative row in a selection", "select @a 1,-2", "no list of rows");
    row("secret without name", "type @a secret", "its name");
    row("not UTF-8", "type @a \"\xff\"", "UTF-8");
    row("binary",
        QByteArray("\x7f"
                   "ELF\0\1\2",
                   7),
        "UTF-8");
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
    const Table<QStringList, QString, QString> row{"secrets", "text", "masked"};
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
    QTEST(maskedText(text, secrets), "masked");
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
