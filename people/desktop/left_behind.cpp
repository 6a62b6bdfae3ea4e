#include "left_behind.h"

#include "texts.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace kelvo {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto lookEvery = 20ms;    // at the flag, which nobody tells of
constexpr auto timeToListen = 50ms; // for a call that is told to end

struct State
{
    std::mutex mutex;
    std::condition_variable changed;
    bool hasEnded = false;
    GLibOwner<GCancellable> cancellable{g_cancellable_new()};
};

void run(State &state, const std::function<void(GCancellable *)> &work)
{
    {
        // What the address book's objects would do in the window's event loop ends with them.
        const GLibOwner<GMainContext> context(g_main_context_new());
        g_main_context_push_thread_default(context.get());
        work(state.cancellable.get());
        g_main_context_pop_thread_default(context.get());
    }
    const std::lock_guard lock(state.mutex);
    state.hasEnded = true;
    state.changed.notify_all();
}

} // namespace

CallEnd runCall(const std::function<void(GCancellable *)> &work, AddressBook::Flag cancelled,
                std::optional<std::chrono::milliseconds> longest)
{
    const auto isCancelled = [cancelled] { return cancelled && *cancelled; };
    if (isCancelled())
        return CallEnd::Cancelled;
    const auto state = std::make_shared<State>();
    std::thread thread;
    try {
        thread = std::thread([state, work] { run(*state, work); });
    } catch (const std::system_error &) {
        return CallEnd::NoThread;
    }

    const auto begin = Clock::now();
    const auto hasEnded = [&state] { return state->hasEnded; };
    CallEnd end = CallEnd::Done;
    std::unique_lock lock(state->mutex);
    while (end == CallEnd::Done && !state->changed.wait_for(lock, lookEvery, hasEnded)) {
        if (isCancelled())
            end = CallEnd::Cancelled;
        else if (longest && Clock::now() - begin > *longest)
            end = CallEnd::TimedOut;
    }
    if (end != CallEnd::Done) {
        lock.unlock();
        g_cancellable_cancel(state->cancellable.get());
        lock.lock();
        // What has been done by then counts: a person who was added has a uid.
        if (!state->changed.wait_for(lock, timeToListen, hasEnded)) {
            thread.detach();
            return end;
        }
    }
    lock.unlock();
    thread.join();
    return CallEnd::Done;
}

Error unfinished(CallEnd end)
{
    const QString where = translate("People", "address book");
    switch (end) {
    case CallEnd::Done:
    case CallEnd::Cancelled:
        break;
    case CallEnd::TimedOut:
        return {Error::Code::TimedOut, where,
                translate("People", "the desktop does not answer; log in anew")};
    case CallEnd::NoThread:
        return {Error::Code::Refused, where,
                translate("People",
                          "the system has no thread to give; end other programs and try again")};
    }
    return {Error::Code::Cancelled, where, translate("People", "stopped before it had answered")};
}

} // namespace kelvo
