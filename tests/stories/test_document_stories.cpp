#include "kelvo_print.h"
#include "private_cups.h"
#include "sample_ppds.h"
#include "table.h"

#include <poppler-qt6.h>

#include <QDir>
#include <QTest>

#include <memory>
#include <signal.h>

using namespace kelvo;

namespace {

// Opens with "sesam", and for its owner with "owner"; four pages of AES-256.
const QString lockedPath = QStringLiteral(KELVO_SOURCE_DIR "/tests/walk/locked.pdf");

void writeDocuments(const Desk &desk)
{
    for (const char *name : {"a", "b", "c", "d", "e"})
        putFile(desk.path(QString::fromLatin1(name) + ".txt"), QByteArray("text of ") + name);
    putFile(desk.path("locked.pdf"), bytesOf(lockedPath));
    for (const auto &[name, password] : {std::pair{"right", "sesam"}, {"wrong", "Sesam"}}) {
        putFile(desk.path(name), QByteArray(password) + '\n');
        QFile::setPermissions(desk.path(name), QFile::ReadOwner | QFile::WriteOwner);
    }
}

const QStringList toFolder{"--demo", "--no-window", "--to", "out"};

} // namespace

// Several documents in one run, and those that ask for a password.
class TestDocumentStories : public QObject
{
    Q_OBJECT

private slots:
    void printsThemInOrder_data();
    void printsThemInOrder();
    void saysWhereOneFails();
    void keepsCountThroughACrash();
    void addsAndJoinsThemInTheWindow();
};

void TestDocumentStories::printsThemInOrder_data()
{
    // out: what is said of each job, or why there is none
    const Table<QStringList, int, QString> row{"arguments", "status", "out"};
    row("a job each", {"a.txt", "b.txt"}, 0, "out/1-a.txt a.txt|out/2-b.txt b.txt");
    row("called as asked", {"-t", "Minutes", "a.txt", "-"}, 0,
        "out/1-a.txt Minutes – a.txt|out/2-(stdin) Minutes – (stdin)");
    row("one job of all", {"--join", "c.txt", "a.txt", "b.txt"}, 0, "out c.txt and 2 more");
    row("one job of one", {"--join", "a.txt"}, 0, "out a.txt");
    row("one is not there", {"a.txt", "missing.pdf"}, 1, "missing.pdf: there is no such document");
    row("one has fewer pages", {"locked.pdf", "a.txt", "--secret", "DOCUMENT=right", "-P", "2"}, 2,
        "Pages of a.txt: ");
    row("locked", {"a.txt", "locked.pdf"}, 1, "--secret DOCUMENT=FILE");
    row("locked, a wrong password", {"locked.pdf", "--secret", "DOCUMENT=wrong"}, 1,
        "locked with another password");
    row("unlocked", {"locked.pdf", "--secret", "DOCUMENT=right"}, 0, "out locked.pdf");
    row("each by its number",
        {"a.txt", "locked.pdf", "--secret", "DOCUMENT=wrong", "--secret", "DOCUMENT2=right"}, 0,
        "out/1-a.txt a.txt|out/2-locked.pdf locked.pdf");
    row("joined", {"locked.pdf", "a.txt", "--join", "--secret", "DOCUMENT=right"}, 0,
        "out locked.pdf and 1 more");
}

void TestDocumentStories::printsThemInOrder()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, out);
    const Desk desk;
    writeDocuments(desk);

    const Run run = desk.run(toFolder + arguments, "piped in");

    QENDED(run, status);
    if (status != 0) {
        QVERIFY2(run.err.contains(out), qPrintable(run.err));
        QVERIFY(!QFile::exists(desk.path("out")));
        return;
    }
    QCOMPARE(run.out.trimmed().replace(u'\n', u'|'), out);
    for (const QString &job : run.out.trimmed().split(u'\n')) {
        const auto pdf =
            Poppler::Document::load(desk.path(job.section(u' ', 0, 0)) + "/document.pdf");
        QVERIFY(pdf && !pdf->isEncrypted());
        if (job.contains("c.txt and 2")) {
            QStringList pages;
            for (int page = 0; page < pdf->numPages(); ++page)
                pages << pdf->page(page)->text({}).trimmed();
            QCOMPARE(pages, QStringList({"text of c", "text of a", "text of b"}));
        }
    }
}

void TestDocumentStories::saysWhereOneFails()
{
    const Desk desk;
    writeDocuments(desk);
    QVERIFY(QDir().mkpath(desk.path("out")));
    putFile(desk.path("out/2-b.txt"), "no folder");

    const Run run = desk.run(toFolder + QStringList{"a.txt", "b.txt", "c.txt"});

    QENDED(run, 1);
    QCOMPARE(run.out, "out/1-a.txt a.txt\n");
    QVERIFY2(run.err.contains("2-b.txt: this is not a folder"), qPrintable(run.err));
    QVERIFY2(run.err.contains("Sent: a.txt (out/1-a.txt). Not sent: b.txt, c.txt."),
             qPrintable(run.err));
    QVERIFY(!QFile::exists(desk.path("out/3-c.txt")));
}

// Whatever ends the program, what it has said is what has gone; at most the next one has, too.
void TestDocumentStories::keepsCountThroughACrash()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue(QStringLiteral("Hall-3"), samplePpd("full")), QString());
    const Desk desk;
    writeDocuments(desk);
    QProcess process;
    desk.prepare(process,
                 {"-d", "Hall-3", "--no-window", "a.txt", "b.txt", "c.txt", "d.txt", "e.txt"});
    process.start();
    QByteArray out;
    while (out.count('\n') < 2 && process.waitForReadyRead(20'000))
        out += process.readAllStandardOutput();
    ::kill(static_cast<pid_t>(process.processId()), SIGKILL);
    QVERIFY(process.waitForFinished());
    out += process.readAllStandardOutput();

    QStringList said;
    for (const QByteArray &line : out.trimmed().split('\n'))
        said << QString::fromUtf8(line.split(' ').last());
    QVERIFY2(said.size() >= 2 && said.size() < 5, out.constData());
    QCOMPARE(said, QStringList({"a.txt", "b.txt", "c.txt", "d.txt", "e.txt"}).first(said.size()));
    QStringList arrived;
    for (const PrivateCups::Job &job : cups.jobs(int(said.size())))
        arrived << job.title;
    QCOMPARE(arrived.first(std::min(said.size(), arrived.size())), said);
    QVERIFY2(arrived.size() <= said.size() + 1, qPrintable(arrived.join(u' ')));
}

void TestDocumentStories::addsAndJoinsThemInTheWindow()
{
    const Desk desk;
    writeDocuments(desk);
    putFile(desk.path("s.kps"),
            "key \"Ctrl+O\"\nfile \"locked.pdf\"\n"
            "expect @documents items 2\nexpect @print enabled false\n"
            "choose @documents row 2\nclick @enterPassword\n"
            "type @documentPassword secret WRONG\nclick @showPassword\nshow @documentPassword\n"
            "click @ok\nexpect @passwordProblem text \"This is not the password.\"\n"
            "expect @documentPassword focus true\n"
            "type @documentPassword secret DOCUMENT\nclick @ok\n"
            "expect-window @printDialog\nexpect @print enabled true\n"
            "item @documentMenu 'DcRm'\nexpect @documents visible false\n"
            "key \"Ctrl+O\"\nfile \"b.txt\"\ncheck @joinDocuments on\n");

    const Run run =
        desk.run({"--demo", "--no-window", "--to", "out", "--script", "s.kps", "--print",
                  "--secret", "DOCUMENT1=wrong", "--secret", "WRONG=wrong", "--secret",
                  "DOCUMENT2=right", "--secret", "DOCUMENT=right", "a.txt"});

    QENDED(run, 0);
    QVERIFY2(run.out.contains("••••") && !run.out.contains("Sesam"), qPrintable(run.out));
    QVERIFY2(run.out.endsWith("out a.txt and 1 more\n"), qPrintable(run.out));
}

QTEST_GUILESS_MAIN(TestDocumentStories)
#include "test_document_stories.moc"
