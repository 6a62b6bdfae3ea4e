#include "interruption.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace kelvo {

namespace {

// So long after a signal the program ends as the user would have it, and tells what
// became of a job; then it hangs, and is ended.
constexpr unsigned int signalSeconds = 10;

int signalPipe[2] = {-1, -1};

extern "C" void noteSignal(int)
{
    const int before = errno;
    ::alarm(signalSeconds);
    const char byte = 0;
    // A full pipe holds a signal already.
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = before;
}

// The first signal only: SA_RESETHAND. `flags`: SA_RESTART or 0.
void noteSignals(int flags)
{
    std::signal(SIGALRM, SIG_DFL); // whatever the caller left
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = flags | SA_RESETHAND;
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before = {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) // as nohup and shells in the background leave it
            sigaction(number, &action, nullptr);
    }
}

} // namespace

void noteInterruptions()
{
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) == 0)
        noteSignals(0);
}

void onInterruption(QObject *window, const std::function<void()> &end)
{
    if (signalPipe[0] < 0)
        return;
    noteSignals(SA_RESTART);
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, window);
    QObject::connect(notifier, &QSocketNotifier::activated, window, [end] {
        char byte;
        [[maybe_unused]] const ssize_t count = ::read(signalPipe[0], &byte, 1);
        end();
    });
}

} // namespace kelvo
