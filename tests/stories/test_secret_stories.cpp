#include "kelvo_print.h"

#include <QTest>

using namespace kelvo;

// What the program must keep to itself, and what it must not pass on to a terminal.
class TestSecretStories : public QObject
{
    Q_OBJECT

private slots:
    void showsControlCharactersAsEscapes_data();
    void showsControlCharactersAsEscapes();
};

// Everybody may name files, options and keys of tickets.
void TestSecretStories::showsControlCharactersAsEscapes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said");
    const QStringList demo{"--demo", "--no-window", "--to", "out"};
    const auto row = [](const char *name, const QStringList &arguments, int status,
                        const char *said) {
        QTest::newRow(name) << arguments << status << QString::fromUtf8(said);
    };
    row("option", {"--a\x1b[2J"}, 2, "kelvo-print: --a\\x1b[2J: there is no such option");
    row("value of an option", demo + QStringList{"-o", QString::fromUtf8("P\xc2\x9bQ=1")}, 3,
        "P\\x9bQ");
    row("document", {"--ppd", "none\n.ppd", "--to", "out", "--no-window", documentPath}, 4,
        "kelvo-print: none\\n.ppd: ");
    row("script", {"--demo", "--no-window", "--script", QString::fromUtf8("a\u202e.kps")}, 2,
        "a\\u202e.kps: ");
    row("ticket and summary",
        {"--demo", "--no-window", "--ticket-in", "keys.plist", "--script", "s.kps"}, 0,
        "\n  com.other\\n\\x7fKey = \"one\\ntwo\"\n");
}

void TestSecretStories::showsControlCharactersAsEscapes()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, said);
    const Desk desk;
    TicketFile ticket;
    ticket.printSettings.entries[QStringLiteral("com.other\n\x7fKey")] = {"one\ntwo", {}};
    QVERIFY(writeTicketFile(desk.path("keys.plist"), ticket));
    write(desk.path("s.kps"), "summary\n");

    const Run run = desk.run(arguments);
    QENDED(run, status);
    const QString text = run.out + run.err;
    QVERIFY2(text.contains(said), qPrintable(text));
    for (const QChar c : text)
        QVERIFY2(c == u'\n' || (c.isPrint() || c.isSurrogate()), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestSecretStories)
#include "test_secret_stories.moc"
