#include "file_names.h"
#include "file_store.h"
#include "kelvo_print.h"
#include "sample_ppds.h"
#include "table.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

#include <sys/resource.h>

using namespace kelvo;

// What the program must keep to itself.
class TestSecretStories : public QObject
{
    Q_OBJECT

private slots:
    void masksAPasscodeAndNothingElse_data();
    void masksAPasscodeAndNothingElse();
    void leavesNothingOfAKilledRun_data();
    void leavesNothingOfAKilledRun();
    void leavesARunThatLivesAlone();
    void endsOnASignalBeforeThereIsADialog();
    void closesItsMemoryOnceItHoldsASecret_data();
    void closesItsMemoryOnceItHoldsASecret();
    void printsUnderAnyName_data();
    void printsUnderAnyName();
};

// One digit is a part of nearly everything that a script asks for.
void TestSecretStories::masksAPasscodeAndNothingElse_data()
{
    const Table<QByteArray> row{"passcode"};
    row("one digit", "1");
    row("three digits", "102");
    row("a control's number", "8501");
    row("twelve digits", "123456789012");
}

void TestSecretStories::masksAPasscodeAndNothingElse()
{
    QFETCH(QByteArray, passcode);
    const Desk desk;
    putFile(desk.path("s.kps"),
            "tab 1\nchoose @jobType key SecurePrint\n"
            "type @passcode \"CODE\"\ntype @confirmPasscode \"CODE\"\nclick @showPasscode\n"
            "controls\nclick @okButton\nsummary\nexpect-ticket com.kelvo.print.JobType absent\n");
    QByteArray script = bytesOf(desk.path("s.kps"));
    putFile(desk.path("s.kps"), script.replace("CODE", passcode));
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

namespace {

// Folders and files of a moment, of any run.
QStringList leftoversOf(const Desk &desk)
{
    const auto all = QDir::Dirs | QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot;
    QStringList names = QDir(desk.path("tmp")).entryList({"kelvo-print-*"}, all);
    for (const QString &folder : {desk.path("out"), desk.presetFolder()})
        names += QDir(folder).entryList({".kelvo-*"}, all);
    return names;
}

void giveTemporaryFolder(Desk &desk)
{
    QDir().mkpath(desk.path("tmp"));
    desk.set("TMPDIR", desk.path("tmp"));
}

const QStringList secureJob{"--demo", "--no-window", "--script", script("secure-print.kps"),
                            "--to",   "out"};

} // namespace

// Between any two steps somebody may pull the plug.
void TestSecretStories::leavesNothingOfAKilledRun_data()
{
    const Table<QString> row{"step"};
    for (const char *step : {"flock:when=1", "fsync:when=1", "fsync:when=3", "rename:when=1",
                             "rename:when=3", "unlink:when=2"})
        row(step, QString::fromLatin1(step));
}

void TestSecretStories::leavesNothingOfAKilledRun()
{
    QFETCH(QString, step);
    Desk desk;
    giveTemporaryFolder(desk);
    desk.unset("XDG_RUNTIME_DIR");
    const QString kill =
        step.section(u':', 0, 0) + QStringLiteral(":signal=KILL:") + step.section(u':', 1);
    desk.under({"strace", "-f", "-qq", "-o", desk.path("trace"), "-e", "inject=" + kill});
    QCOMPARE(desk.run(secureJob).status, -1);
    QVERIFY2(!leftoversOf(desk).isEmpty(), "nothing was killed in the middle");

    desk.under({});
    QENDED(desk.run(secureJob), 0);
    QCOMPARE(leftoversOf(desk), QStringList());
}

void TestSecretStories::leavesARunThatLivesAlone()
{
    Desk desk;
    giveTemporaryFolder(desk);
    QProcess waiting;
    desk.prepare(waiting, {"--demo", "--no-window", "--to", "waiting", "-"});
    waiting.start();
    waiting.write("%PDF");
    QTRY_VERIFY(!leftoversOf(desk).isEmpty());
    const QStringList held = leftoversOf(desk);

    QENDED(desk.run(secureJob), 0);
    QCOMPARE(leftoversOf(desk), held);
    waiting.write(bytesOf(documentPath).mid(4));
    waiting.closeWriteChannel();
    QVERIFY(waiting.waitForFinished());
    QCOMPARE(waiting.exitCode(), 0);
    QCOMPARE(leftoversOf(desk), QStringList());
}

void TestSecretStories::endsOnASignalBeforeThereIsADialog()
{
    Desk desk;
    giveTemporaryFolder(desk);
    desk.unset("XDG_RUNTIME_DIR");
    desk.leaveLeaksAlone();
    // The main thread alone: fontconfig's may make a folder too, and a second signal ends
    // the program at once.
    desk.under(
        {"strace", "-qq", "-o", desk.path("trace"), "-e", "inject=mkdir:signal=TERM:when=1"});
    QENDED(desk.run(secureJob), 130);
    QCOMPARE(leftoversOf(desk), QStringList());
    QVERIFY(!QFile::exists(desk.path("out")));
}

void TestSecretStories::closesItsMemoryOnceItHoldsASecret_data()
{
    const Table<QStringList, bool> row{"arguments", "isClosed"};
    row("of a script", {"--secret", "CODE=code.txt"}, true);
    row("of a ticket", {"--ticket-in", "ticket.plist"}, true);
    row("none", {}, false);
}

void TestSecretStories::closesItsMemoryOnceItHoldsASecret()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, isClosed);
    Desk desk;
    giveTemporaryFolder(desk);
    putFile(desk.path("code.txt"), "4815");
    QVERIFY(QFile::setPermissions(desk.path("code.txt"), QFile::ReadOwner | QFile::WriteOwner));
    TicketFile ticket;
    ticket.printSettings.entries[QStringLiteral("com.kelvo.print.JobType")] = {
        Dictionary{{"JobType", 6}, {"SecurePrintPassword", "4815"}}, {}};
    QVERIFY(writeTicketFile(desk.path("ticket.plist"), ticket));
    desk.atStart([] {
        rlimit cores;
        ::getrlimit(RLIMIT_CORE, &cores);
        cores.rlim_cur = cores.rlim_max;
        ::setrlimit(RLIMIT_CORE, &cores);
    });

    QProcess waiting;
    desk.prepare(waiting, arguments + QStringList{"--demo", "--no-window", "--to", "out", "-"});
    waiting.start();
    QTRY_VERIFY(!leftoversOf(desk).isEmpty()); // the document is waited for, secrets are read
    const QString process = QStringLiteral("/proc/%1/").arg(waiting.processId());
    // A process that the kernel makes no core file of closes this to its own user.
    QTRY_COMPARE(QFile(process + "environ").open(QIODevice::ReadOnly), !isClosed);
    static const QRegularExpression noCores(QStringLiteral("Max core file size +0 +0 "));
    if (isClosed)
        QVERIFY(noCores.match(QString::fromLatin1(bytesOf(process + "limits"))).hasMatch());
    waiting.kill();
    waiting.waitForFinished();
}

// A name that no ticket could hold is no reason not to print.
void TestSecretStories::printsUnderAnyName_data()
{
    // title empty: none is given
    const Table<QByteArray, QByteArray, QString> row{"file", "title", "printed"};
    row("bytes that are no UTF-8", "Gr\xfc\xdf\x65.pdf", {},
        "Gr\xef\xbf\xbd\xef\xbf\xbd"
        "e.pdf");
    row("control characters in the name", "a\x01\x1b[2J\nb.pdf", {}, "a [2J b.pdf");
    row("nothing else in the name", "\x01", {}, "(untitled)");
    row("line break in the title", "a.pdf", "Quarter\n\x1b[2J\xc2\x9b\xe2\x80\xae end",
        "Quarter [2J end");
    row("no character of any list in the title", "a.pdf", "x\xef\xbf\xbe", "x\xef\xbf\xbd");
    row("a title of nothing", "a.pdf", "\n", "a.pdf");
}

void TestSecretStories::printsUnderAnyName()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, title);
    QFETCH(QString, printed);
    const Desk desk;
    const QString path = desk.path(fileNameFrom(file));
    QVERIFY(replaceFile(path, bytesOf(documentPath)));
    QVERIFY(QFile::copy(samplePpd("full"), desk.path("device.ppd")));

    // QProcess passes on text only: the shell makes bytes of the escapes.
    const auto quoted = [](const QByteArray &bytes) {
        QByteArray octal;
        for (const char byte : bytes)
            octal += '\\' + QByteArray::number(static_cast<uchar>(byte), 8).rightJustified(4, '0');
        return "\"$(printf '%b_' '" + octal + "')\"";
    };
    QByteArray command = "f=" + quoted(file) + "; t=" + quoted(title)
        + "; f=${f%_}; t=${t%_}; exec \"$0\" --ppd device.ppd --no-window --to out "
          "${t:+-t \"$t\"} \"$f\"";
    QProcess process;
    desk.prepare(process, {});
    process.setArguments({"-c", QString::fromLatin1(command), process.program()});
    process.setProgram("bash");
    process.start();
    QVERIFY(process.waitForFinished());
    const QByteArray error = process.readAllStandardError();
    QVERIFY2(process.exitCode() == 0, error.constData());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), "out " + printed + '\n');
    const TicketFile ticket = ticketIn(desk.path("out"));
    const auto name = ticket.printSettings.entries.find(kPMJobNameKey);
    QVERIFY(name != ticket.printSettings.entries.end());
    QCOMPARE(name->second.value.toString(), printed);
}

QTEST_GUILESS_MAIN(TestSecretStories)
#include "test_secret_stories.moc"
