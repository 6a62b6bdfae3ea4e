#include "background_work.h"
#include "delivery.h"
#include "job_watch.h"
#include "private_cups.h"
#include "sample_ppds.h"
#include "unreliable_server.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace kelvo;
using State = JobCondition::State;

// What becomes of jobs after they went out, with a real server.
class TestJobWatch : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { QVERIFY(waitForBackgroundWork(10000)); } // joins its threads
    void initTestCase();
    void aHeldJobIsPrintedWhenItIsReleased();
    void aJobIsTakenBack();
    void aStoppedPrinterSaysWhy();
    void aServerThatDiesIsNotWaitedFor();

private:
    SentJob sent(bool isHeld);

    PrivateCups m_cups;
};

void TestJobWatch::initTestCase()
{
    QCOMPARE(m_cups.start(), QString());
    QCOMPARE(m_cups.addQueue("Hall-3", samplePpd("full")), QString());
}

SentJob TestJobWatch::sent(bool isHeld)
{
    PreparedJob job;
    job.pdfPath = QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf");
    if (isHeld)
        job.options = {{"job-hold-until", "indefinite"}};
    const std::atomic_bool cancelled = false;
    const auto sent = deliverToQueue(job, "Hall-3", "Title", 5000, cancelled);
    return sent ? sent.value() : SentJob();
}

void TestJobWatch::aHeldJobIsPrintedWhenItIsReleased()
{
    JobWatch watch(sent(true), 5000);
    watch.start();
    QTRY_COMPARE(watch.condition(), (JobCondition{State::Held, 0, "indefinite"}));
    QCOMPARE(conditionInWords(watch.condition()), "held until somebody releases it");
    QCOMPARE(QProcess::execute("lp", {"-i", watch.job().name(), "-H", "resume"}), 0);
    QTRY_COMPARE_WITH_TIMEOUT(watch.condition().state, State::Completed, 15000);
}

void TestJobWatch::aJobIsTakenBack()
{
    JobWatch watch(sent(true), 5000);
    QSignalSpy refused(&watch, &JobWatch::notCancelled);
    watch.start();
    watch.cancel();
    QTRY_COMPARE(watch.condition().state, State::Cancelled);
    // Somebody else is late.
    JobWatch late(watch.job(), 5000);
    QSignalSpy tooLate(&late, &JobWatch::notCancelled);
    late.cancel();
    QVERIFY(tooLate.wait());
    QVERIFY(tooLate[0][0].value<Error>().detail.contains("too late"));
    QVERIFY(refused.isEmpty());
}

void TestJobWatch::aStoppedPrinterSaysWhy()
{
    QCOMPARE(m_cups.administer({"-r", "Belt torn", "Hall-3"}, "cupsdisable"), QString());
    JobWatch watch(sent(false), 5000);
    watch.start();
    QTRY_COMPARE(conditionInWords(watch.condition()), "waiting, the printer is stopped: Belt torn");
    QCOMPARE(m_cups.administer({"Hall-3"}, "cupsenable"), QString());
    QTRY_COMPARE_WITH_TIMEOUT(watch.condition().state, State::Completed, 15000);
}

void TestJobWatch::aServerThatDiesIsNotWaitedFor()
{
    JobWatch watch(sent(true), 700);
    QSignalSpy lost(&watch, &JobWatch::lost);
    watch.start();
    QTRY_COMPARE(watch.condition().state, State::Held);
    const UnreliableServer silent(UnreliableServer::Trouble::NeverAnswers);
    qputenv("CUPS_SERVER", silent.address().toUtf8());
    QVERIFY(lost.wait(15000));
    QCOMPARE(watch.condition().state, State::Held); // as it was heard last
    QVERIFY(!lost.wait(1500));                      // once
    qputenv("CUPS_SERVER", m_cups.server().toUtf8());
}

QTEST_GUILESS_MAIN(TestJobWatch)
#include "test_job_watch.moc"
