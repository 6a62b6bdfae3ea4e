#include "job_wait.h"

#include "interruption.h"
#include "job_watch.h"
#include "terminal.h"
#include "texts.h"

#include <QEventLoop>

#include <algorithm>
#include <memory>
#include <utility>

namespace kelvo {

namespace {

using State = JobCondition::State;

void say(const QString &text)
{
    printLine(stderr, QStringLiteral("kelvo-print: ") + text);
}

struct Waiting
{
    std::unique_ptr<JobWatch> watch;
    QString said;
    bool isLost = false;

    bool isDone() const { return isLost || watch->isOver(); }
    bool isIn(State state) const { return watch->condition().state == state; }
};

ExitStatus statusOf(const std::vector<Waiting> &jobs)
{
    const auto isAny = [&jobs](const auto &what) { return std::ranges::any_of(jobs, what); };
    if (isAny([](const Waiting &job) { return job.isIn(State::Aborted); }))
        return ExitStatus::Failed;
    if (isAny([](const Waiting &job) { return job.isLost; }))
        return ExitStatus::NoDestination;
    if (isAny([](const Waiting &job) { return job.isIn(State::Cancelled); }))
        return ExitStatus::Cancelled;
    return ExitStatus::Printed;
}

} // namespace

ExitStatus leaveJobs(const std::vector<SentJob> &jobs)
{
    for (const SentJob &job : jobs)
        say(translate("Main", "%1 goes on without this program; “cancel %1” takes it back")
                .arg(job.name()));
    return ExitStatus::Cancelled;
}

ExitStatus waitForJobs(const std::vector<SentJob> &jobs, int timeoutMs)
{
    QEventLoop loop;
    bool isInterrupted = false;
    onInterruption(&loop, [&] {
        isInterrupted = true;
        loop.quit();
    });
    std::vector<Waiting> all(jobs.size());
    const auto quitWhenDone = [&] {
        if (std::ranges::all_of(all, &Waiting::isDone))
            loop.quit();
    };
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        Waiting &job = all[i];
        job.watch = std::make_unique<JobWatch>(jobs[i], timeoutMs);
        const JobWatch *watch = job.watch.get();
        QObject::connect(watch, &JobWatch::changed, &loop, [&job, watch, quitWhenDone] {
            const QString state = stateInWords(watch->condition());
            if (std::exchange(job.said, state) != state)
                say(jobLine(watch->job().name(), state));
            quitWhenDone();
        });
        QObject::connect(watch, &JobWatch::lost, &loop, [&job, quitWhenDone](const Error &error) {
            job.isLost = true;
            say(translate("Main",
                          "%1 was sent, and nobody knows what became of it (%2). It may still be "
                          "printed: look with “lpstat -W all” before you print it again")
                    .arg(error.where, error.detail));
            quitWhenDone();
        });
    }
    for (const Waiting &job : all)
        job.watch->start();
    if (!all.empty())
        loop.exec();
    if (!isInterrupted)
        return statusOf(all);
    std::vector<SentJob> left;
    for (const Waiting &job : all) {
        if (!job.isDone())
            left.push_back(job.watch->job());
    }
    return leaveJobs(left);
}

} // namespace kelvo
