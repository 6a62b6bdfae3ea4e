#include "background_work.h"
#include "delivery.h"
#include "pdf_samples.h"
#include "printers.h"
#include "private_cups.h"
#include "sample_ppds.h"
#include "table.h"
#include "unreliable_server.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace kelvo;
using Code = Error::Code;
using Trouble = UnreliableServer::Trouble;

// Servers that are not there, never answer, stop reading or lose the answer:
// every call comes back in time and says what is known.
class TestDeadServers : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { QVERIFY(waitForBackgroundWork(10000)); } // joins its threads
    void initTestCase();
    void failWhereThereIsNone();
    void timeOutWhereNothingIsAnswered();
    void keepNobodyWaitingAtTheEnd();
    void giveOnlyWholePpds();
    void giveUpAHalfSentJob_data();
    void giveUpAHalfSentJob();
    void sayThatAJobMayHaveBeenAccepted();

private:
    Result<SentJob> deliver(int timeoutMs);
    void use(const QString &server) { qputenv("CUPS_SERVER", server.toUtf8()); }

    PrivateCups m_cups;
    QTemporaryDir m_folder;
    PreparedJob m_job;
    std::atomic_bool m_cancelled = false;
};

constexpr int timeout = 400;             // milliseconds
constexpr int promptly = timeout + 4000; // on a busy machine; a hang would be longer

void TestDeadServers::initTestCase()
{
    QString problem = m_cups.start();
    const QString ppdPath = ppdWithoutTicket();
    if (problem.isEmpty())
        problem = m_cups.addQueue("Office", ppdPath);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));

    const QString path = m_folder.filePath("sample.pdf");
    writePdf(path, 1, {}, 8'000'000); // more than sockets keep on their way
    const auto ppd = PpdFile::open(ppdPath).value();
    JobRequest request;
    request.document = documentFromPdf(path, "sample").value();
    request.ppd = ppd.get();
    const auto job = prepareJob(request);
    QVERIFY2(job, qPrintable(job.reason()));
    m_job = job.value();
}

Result<SentJob> TestDeadServers::deliver(int timeoutMs)
{
    return deliverToQueue(m_job, "Office", "Title", timeoutMs, m_cancelled);
}

void TestDeadServers::failWhereThereIsNone()
{
    for (const QString &server :
         {QStringLiteral("127.0.0.1:%1").arg(freePort()), m_folder.filePath("no-server.sock")}) {
        use(server);
        const auto listed = listPrinters(5000);
        QVERIFY(!listed);
        QVERIFY2(listed.error().code == Code::Unreachable, qPrintable(listed.reason()));
        QVERIFY2(listed.error().text().contains("lpstat -r"), qPrintable(listed.reason()));
        const auto delivered = deliver(5000);
        QVERIFY(!delivered);
        QVERIFY2(delivered.error().code == Code::Unreachable, qPrintable(delivered.reason()));

        PrinterDirectory directory;
        QSignalSpy failed(&directory, &PrinterDirectory::ppdFailed);
        directory.fetchPpd("Office", 5000);
        QVERIFY(failed.wait(5000));
        QCOMPARE(failed.first().at(1).value<Error>().code, Code::Unreachable);
    }
}

void TestDeadServers::timeOutWhereNothingIsAnswered()
{
    const UnreliableServer server(Trouble::NeverAnswers);
    QVERIFY(server.port() != 0);
    use(server.address());
    QElapsedTimer timer;
    timer.start();
    PrinterDirectory directory;
    QSignalSpy printers(&directory, &PrinterDirectory::printersFailed);
    QSignalSpy ppd(&directory, &PrinterDirectory::ppdFailed);
    directory.refresh(timeout);
    directory.fetchPpd("Office", timeout);
    QVERIFY(timer.elapsed() < timeout); // nothing waited so far
    QTRY_COMPARE_WITH_TIMEOUT(printers.size() + ppd.size(), 2, promptly);
    QVERIFY2(timer.elapsed() < promptly, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(printers.first().first().value<Error>().code, Code::TimedOut);
    QVERIFY(printers.first().first().value<Error>().detail.contains(server.address()));
    QCOMPARE(ppd.first().at(1).value<Error>().code, Code::TimedOut);

    timer.start();
    QCOMPARE(listPrinters(timeout).error().code, Code::TimedOut);
    QVERIFY(timer.elapsed() < promptly);
    timer.start();
    const auto delivered = deliver(timeout);
    QVERIFY(!delivered);
    QVERIFY2(delivered.error().code == Code::TimedOut, qPrintable(delivered.reason()));
    QVERIFY2(!delivered.error().detail.contains("accepted"), qPrintable(delivered.reason()));
    QVERIFY(timer.elapsed() < promptly);
    // And each answered once.
    QTest::qWait(timeout);
    QCOMPARE(printers.size() + ppd.size(), 2);
}

void TestDeadServers::keepNobodyWaitingAtTheEnd()
{
    const UnreliableServer server(Trouble::NeverAnswers);
    use(server.address());
    QElapsedTimer timer;
    timer.start();
    {
        PrinterDirectory directory;
        directory.refresh(60000);
        directory.fetchPpd("Office", 60000);
        QTest::qWait(100);
    }
    m_cancelled = false;
    std::thread impatient([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        m_cancelled = true;
    });
    const auto delivered = deliver(60000);
    impatient.join();
    m_cancelled = false;
    QVERIFY(!delivered);
    QCOMPARE(delivered.error().code, Code::Cancelled);
    QVERIFY(timer.elapsed() < promptly);
}

// Wherever its answer ends, a PPD that was cut off is not "there is none".
void TestDeadServers::giveOnlyWholePpds()
{
    const auto fetch = [this](const QString &server) {
        use(server);
        PrinterDirectory directory;
        QSignalSpy failed(&directory, &PrinterDirectory::ppdFailed);
        QSignalSpy fetched(&directory, &PrinterDirectory::ppdFetched);
        directory.fetchPpd("Office", 10000);
        while (failed.isEmpty() && fetched.isEmpty())
            QTest::qWait(1);
        return failed.isEmpty() ? std::optional<Error>() : failed.first().at(1).value<Error>();
    };
    const qint64 whole = QFileInfo(ppdWithoutTicket()).size();
    QList<qint64> places{0, 1, whole - 1, whole};
    for (qint64 place = 8; place < 700; place += 13) // the head of the answer, and beyond
        places << place;
    for (const qint64 place : places) {
        const UnreliableServer server(Trouble::CutsPpds, m_cups.port(), place);
        const auto error = fetch(server.address());
        QVERIFY2(error && error->code == Code::Unreachable,
                 qPrintable(QStringLiteral("cut after %1: %2")
                                .arg(place)
                                .arg(error ? error->text() : QStringLiteral("taken as whole"))));
    }
    QVERIFY(!fetch(m_cups.server()));
}

void TestDeadServers::giveUpAHalfSentJob_data()
{
    const Table<bool> row{"isCancelled"};
    row("timed out", false);
    row("cancelled", true);
}

void TestDeadServers::giveUpAHalfSentJob()
{
    QFETCH(bool, isCancelled);
    use(m_cups.server());
    const std::size_t before = m_cups.jobs(0).size();
    UnreliableServer server(Trouble::Stalls, m_cups.port(), 100'000);
    use(server.address());
    std::thread helper([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(timeout / 2));
        server.recover(); // for who cancels the job
        m_cancelled = isCancelled;
    });
    QElapsedTimer timer;
    timer.start();
    const auto delivered = deliver(isCancelled ? 60000 : timeout);
    helper.join();
    m_cancelled = false;
    QVERIFY(!delivered);
    QVERIFY2(delivered.error().code == (isCancelled ? Code::Cancelled : Code::TimedOut),
             qPrintable(delivered.reason()));
    QVERIFY2(delivered.error().detail.contains("nothing was printed"),
             qPrintable(delivered.reason()));
    QVERIFY(timer.elapsed() < promptly);

    use(m_cups.server());
    QProcess lpstat;
    lpstat.start("lpstat", {"-W", "not-completed", "-o"});
    QVERIFY(lpstat.waitForFinished());
    QCOMPARE(lpstat.readAllStandardOutput(), QByteArray());
    QCOMPARE(m_cups.jobs(0).size(), before);
}

void TestDeadServers::sayThatAJobMayHaveBeenAccepted()
{
    use(m_cups.server());
    const std::size_t before = m_cups.jobs(0).size();
    const UnreliableServer server(Trouble::LosesAnswers, m_cups.port());
    use(server.address());
    const auto delivered = deliver(timeout);
    QVERIFY(!delivered);
    QVERIFY2(delivered.error().code == Code::TimedOut, qPrintable(delivered.reason()));
    QVERIFY2(delivered.error().detail.contains("may have been accepted"),
             qPrintable(delivered.reason()));
    QVERIFY2(delivered.error().detail.contains("lpstat -W all"), qPrintable(delivered.reason()));
    // It was, and once.
    use(m_cups.server());
    QCOMPARE(m_cups.jobs(static_cast<int>(before) + 1).size(), before + 1);
    QVERIFY(delivered.error().detail.contains("Office-" + m_cups.jobs(0).back().id));
}

QTEST_GUILESS_MAIN(TestDeadServers)
#include "test_dead_servers.moc"
