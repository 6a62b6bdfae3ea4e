#include "kelvo_print.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace kelvo;

// What the program must keep to itself, and what it must not pass on to a terminal.
class TestSecretStories : public QObject
{
    Q_OBJECT

private slots:
    void masksAPasscodeAndNothingElse_data();
    void masksAPasscodeAndNothingElse();
    void showsControlCharactersAsEscapes_data();
    void showsControlCharactersAsEscapes();
};

// One digit is a part of nearly everything that a script asks for.
void TestSecretStories::masksAPasscodeAndNothingElse_data()
{
    QTest::addColumn<QByteArray>("passcode");
    QTest::newRow("one digit") << QByteArray("1");
    QTest::newRow("three digits") << QByteArray("102");
    QTest::newRow("a control's number") << QByteArray("8501");
    QTest::newRow("twelve digits") << QByteArray("123456789012");
}

void TestSecretStories::masksAPasscodeAndNothingElse()
{
    QFETCH(QByteArray, passcode);
    const Desk desk;
    write(desk.path("s.kps"),
          "tab 1\nchoose @jobType key SecurePrint\n"
          "type @passcode \"CODE\"\ntype @confirmPasscode \"CODE\"\nclick @showPasscode\n"
          "controls\nclick @okButton\nsummary\nexpect-ticket com.kelvo.print.JobType absent\n");
    QByteArray script = contents(desk.path("s.kps"));
    write(desk.path("s.kps"), script.replace("CODE", passcode));
    const Run run = desk.run({"--demo", "--no-window", "--script", "s.kps"});
    QENDED(run, 2);

    const qsizetype end = run.out.indexOf(QLatin1String("\n]\n")) + 3;
    QJsonParseError error;
    const QJsonArray controls = QJsonDocument::fromJson(run.out.left(end).toUtf8(), &error).array();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QMap<QString, QString> texts;
    for (const auto &control : controls)
        texts.insert(control[QLatin1String("id")].toString(),
                     control[QLatin1String("text")].toString());
    QCOMPARE(texts.value("KPDE 8501"), QStringLiteral("••••"));
    QCOMPARE(texts.value("KPDE 8502"), QStringLiteral("••••"));
    QCOMPARE(texts.value("KPDE 8503"), QStringLiteral("1 to 12 digits"));

    const QString summary = run.out.mid(end);
    QVERIFY2(summary.contains("Copies: 1\n"), qPrintable(summary));
    QVERIFY2(summary.contains("SecurePrintPassword = \"••••\""), qPrintable(summary));
    QVERIFY2(run.err.contains("s.kps:9: "), qPrintable(run.err));
    QVERIFY2(run.err.contains("\"SecurePrintPassword\":\"••••\""), qPrintable(run.err));
    for (const QString &text : {summary, run.err})
        QCOMPARE(text.count(QStringLiteral("••••")), 1);
}

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
