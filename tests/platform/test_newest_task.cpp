#include "newest_task.h"

#include <QTest>
#include <QThread>

using namespace kelvo;

class TestNewestTask : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheNewestIsAnswered();
    void anAnswerMayStartTheNextOrEndTheTask();
    void whatIsNoLongerWantedEnds();
};

namespace {

// Lasts until it is unwanted, or at most a second.
void lastWhileWanted(const std::atomic_bool &isUnwanted)
{
    for (int i = 0; i < 100 && !isUnwanted; ++i)
        QThread::msleep(10);
}

} // namespace

void TestNewestTask::onlyTheNewestIsAnswered()
{
    NewestTask task;
    QStringList answers;
    for (const char *name : {"first", "second", "third"}) {
        QVERIFY(task.start([&answers, name](const std::atomic_bool &) {
            return [&answers, name] { answers.append(name); };
        }));
    }
    QVERIFY(task.isBusy());
    QTRY_COMPARE(answers, QStringList{"third"});
    QVERIFY(!task.isBusy());
    QTest::qWait(20);
    QCOMPARE(answers.size(), 1);
}

void TestNewestTask::anAnswerMayStartTheNextOrEndTheTask()
{
    auto task = std::make_unique<NewestTask>();
    const QThread *window = QThread::currentThread();
    const auto work = [](const NewestTask::Answer &answer) {
        return [answer](const std::atomic_bool &) { return answer; };
    };
    const NewestTask::Answer end = [&] {
        if (QThread::currentThread() == window)
            task.reset();
    };
    QVERIFY(task->start(work([&] { QVERIFY(task->start(work(end))); })));
    QTRY_VERIFY(!task);
}

void TestNewestTask::whatIsNoLongerWantedEnds()
{
    std::atomic_int begun = 0;
    int ended = 0, answers = 0;
    {
        NewestTask task;
        for (int i = 0; i < 3; ++i) {
            QVERIFY(task.start([&](const std::atomic_bool &isUnwanted) {
                ++begun;
                lastWhileWanted(isUnwanted);
                ended += isUnwanted ? 1 : 0;
                return [&answers] { ++answers; };
            }));
            QTRY_COMPARE(begun.load(), i + 1);
        }
    }
    QCoreApplication::processEvents();
    QCOMPARE(ended, 3);
    QCOMPARE(answers, 0);
}

QTEST_GUILESS_MAIN(TestNewestTask)
#include "test_newest_task.moc"
