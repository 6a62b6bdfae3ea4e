// kelvo-job-notice: shows what becomes of a job, with a button that cancels it, until the job is
// over or the user has put the message away. One thing after the other, without an event loop:
// there is nobody who would have to wait for it. It has no output; what it cannot do, nobody
// misses.

#include "cups_connection.h"
#include "desktop_notification.h"
#include "job_notice.h"
#include "sent_job.h"
#include "texts.h"

#include <algorithm>
#include <chrono>
#include <clocale>
#include <csignal>
#include <utility>

#include <unistd.h>

using namespace kelvo;

namespace {

using Clock = std::chrono::steady_clock;
using Kind = DesktopNotification::Event::Kind;

// So long it stays for a job that does not move: one that is held until tomorrow does not keep a
// process until then.
constexpr std::chrono::hours longest(1);
// A desktop takes a message away when its program ends: so long the last one stands.
constexpr int lastMs = 15'000;
constexpr int soonMs = 300;
constexpr int lateMs = 5'000;

const QString cancelKey = QStringLiteral("cancel");

class Notice
{
public:
    Notice(const JobNotice &notice, DesktopNotification &desktop)
        : m_desktop(desktop)
        , m_body(notice.body)
        , m_job{notice.queue, notice.jobId}
        , m_timeoutMs(notice.timeoutMs)
    {
    }

    void follow(const QString &summary)
    {
        const auto begin = Clock::now();
        auto change = begin, answer = begin;
        show(summary);
        while (Clock::now() - begin < longest) {
            Patience patience(m_timeoutMs);
            const auto condition = readCondition(m_job, patience);
            if (condition || condition.error().code == Error::Code::NotFound) {
                answer = Clock::now();
                if (!condition)
                    return; // nobody knows how it ended
                const JobCondition &now = condition.value();
                if (tell(now))
                    change = answer;
                if (now.isOver()) {
                    stayForAMoment();
                    return;
                }
            } else if (Clock::now() - answer > std::chrono::milliseconds(m_timeoutMs)) {
                break;
            }
            const auto still =
                std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - change);
            if (!waitFor(std::clamp(int(still.count() / 10), soonMs, lateMs)))
                return;
        }
        m_isCancelOffered = false; // nobody will hear it
        show(m_shown);
        stayForAMoment();
    }

private:
    void show(const QString &summary)
    {
        m_shown = summary;
        std::vector<DesktopNotification::Action> actions;
        if (m_isCancelOffered)
            actions.push_back({cancelKey, translate("Notice", "Cancel Job")});
        m_desktop.show(summary, m_body, actions);
    }

    // True where it is news.
    bool tell(const JobCondition &condition)
    {
        const QString summary = jobLine(m_job.name(), stateInWords(condition));
        if (summary == m_told)
            return false;
        m_told = summary;
        m_isCancelOffered = !condition.isOver();
        show(summary);
        return true;
    }

    // False when there is nothing left to do: the message was put away.
    bool waitFor(int milliseconds)
    {
        const auto event = m_desktop.wait(milliseconds);
        if (event.kind == Kind::Pressed && event.key == cancelKey) {
            m_isPressed = true;
            cancel();
        }
        // Desktops close the message whose button was pressed.
        if (event.kind == Kind::Closed)
            return std::exchange(m_isPressed, false);
        return event.kind != Kind::Gone;
    }

    void cancel()
    {
        Patience patience(m_timeoutMs);
        const auto cancelled = takeBack(m_job, patience);
        if (cancelled)
            return; // its state says so
        m_isCancelOffered = cancelled.error().code != Error::Code::Refused;
        show(notCancelledLine(m_job.name(), cancelled.error().detail));
    }

    void stayForAMoment()
    {
        const auto end = Clock::now() + std::chrono::milliseconds(lastMs);
        for (;;) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
            if (left <= 0 || !waitFor(int(left)))
                return;
        }
    }

    DesktopNotification &m_desktop;
    const QString m_body;
    const SentJob m_job;
    const int m_timeoutMs;
    bool m_isCancelOffered = true;
    bool m_isPressed = false;
    QString m_shown, m_told;
};

} // namespace

int main()
{
    // Of whoever started kelvo-print: a lock, a pipe that somebody reads to its end.
    ::close_range(3, ~0U, 0);
    std::signal(SIGPIPE, SIG_IGN);
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
    const auto started = startedNotice();
    if (!started)
        return 1;
    // Whatever hangs, a bus or a server, does so for nobody; but not for ever.
    ::alarm(unsigned(std::chrono::seconds(longest).count() + 120));
    loadTexts(started->textFolder, started->languages);
    const auto desktop = DesktopNotification::open();
    if (!desktop)
        return 1;
    const JobNotice &notice = started->notice;
    if (notice.queue.isEmpty()) {
        desktop->show(notice.summary, notice.body);
        desktop->wait(lastMs);
    } else {
        Notice(notice, *desktop).follow(notice.summary);
    }
    return 0;
}
