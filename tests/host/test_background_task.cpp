#include "background_task.h"
#include "background_work.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <sys/resource.h>

#include <memory>
#include <vector>

using namespace kelvo;

// Answers of threads, met by what windows do with them: also run under the thread
// sanitizer (./check --tsan).
class TestBackgroundTask : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { QVERIFY(waitForBackgroundWork(10000)); } // joins its threads
    void anAnswerComesOnceWhileAnEventLoopRuns();
    void anAnswerMayEndItsTaskOrStartTheNext();
    void noAnswerComesAfterTheTask();
    void withoutAThreadNothingIsCalled();
};

// Whoever waits is on the spot when the answer comes, while its thread still ends.
template <typename Condition>
static bool spinUntil(Condition isMet)
{
    QDeadlineTimer deadline(20000);
    while (!isMet() && !deadline.hasExpired())
        QCoreApplication::processEvents();
    return isMet();
}

void TestBackgroundTask::anAnswerComesOnceWhileAnEventLoopRuns()
{
    constexpr int runs = 500;
    int answered = 0;
    for (int i = 0; i < runs; ++i) {
        BackgroundTask<std::unique_ptr<int>> task;
        std::vector<int> answers;
        QVERIFY(task.start([i] { return std::make_unique<int>(i); },
                           [&](std::unique_ptr<int> answer) {
                               answers.push_back(answer ? *answer : -1);
                               QEventLoop loop;
                               QTimer::singleShot(i % 20 == 0 ? 5 : 0, &loop, &QEventLoop::quit);
                               loop.exec();
                               ++answered;
                           }));
        QVERIFY(spinUntil([&] { return answered == i + 1; }));
        QVERIFY2(answers == std::vector<int>{i}, qPrintable(QString::number(answers.size())));
    }
    QVERIFY(waitForBackgroundWork(5000));
    QCoreApplication::processEvents();
    QCOMPARE(answered, runs);
}

void TestBackgroundTask::anAnswerMayEndItsTaskOrStartTheNext()
{
    constexpr int steps = 200;
    auto task = std::make_unique<BackgroundTask<int>>();
    int last = 0;
    std::function<void(int)> next = [&](int answer) {
        last = answer;
        if (answer == steps)
            task.reset();
        else if (!task->start([answer] { return answer + 1; }, next))
            last = -1;
    };
    QVERIFY(task->start([] { return 1; }, next));
    QVERIFY(spinUntil([&] { return !task || last < 0; }));
    QCOMPARE(last, steps);
}

void TestBackgroundTask::noAnswerComesAfterTheTask()
{
    int answers = 0;
    const auto count = [&answers](int) { ++answers; };
    for (int i = 0; i < 200; ++i) {
        BackgroundTask<int> gone;
        QVERIFY(gone.start([] { return 1; }, count));
        BackgroundTask<int> replaced;
        QVERIFY(replaced.start([] { return 1; }, count));
        QVERIFY(replaced.start([] { return 2; }, [](int) {}));
        // Some answers are on their way already, and some are not.
        if (i % 2 == 0)
            QVERIFY(waitForBackgroundWork(5000));
    }
    QVERIFY(waitForBackgroundWork(5000));
    QCoreApplication::processEvents();
    QCOMPARE(answers, 0);
}

void TestBackgroundTask::withoutAThreadNothingIsCalled()
{
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_NPROC, &before), 0);
    const rlimit none = {1, before.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_NPROC, &none), 0);
    int calls = 0;
    BackgroundTask<int> task;
    const bool isStarted = task.start([&calls] { return ++calls; }, [&calls](int) { ++calls; });
    QCOMPARE(::setrlimit(RLIMIT_NPROC, &before), 0);
    QVERIFY(!isStarted);
    QVERIFY(waitForBackgroundWork(0));
    QCoreApplication::processEvents();
    QCOMPARE(calls, 0);
    // The task is as good as new.
    QVERIFY(task.start([] { return 7; }, [&calls](int answer) { calls = answer; }));
    QVERIFY(spinUntil([&] { return calls == 7; }));
}

QTEST_GUILESS_MAIN(TestBackgroundTask)
#include "test_background_task.moc"
