#include "background_work.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace kelvo {

namespace {

struct Running
{
    std::mutex mutex;
    std::condition_variable ended;
    int count = 0;
};

// Never destroyed: a thread may outlive every static object.
Running &running()
{
    static auto &state = *new Running;
    return state;
}

void count(int change)
{
    const std::lock_guard lock(running().mutex);
    running().count += change;
    running().ended.notify_all();
}

} // namespace

bool startBackgroundWork(std::function<void()> work)
{
    count(1);
    try {
        std::thread([work = std::move(work)]() mutable {
            work();
            work = nullptr; // lets go of what it owns before it counts as ended
            count(-1);
        }).detach();
        return true;
    } catch (const std::system_error &) {
        count(-1);
        return false;
    }
}

bool waitForBackgroundWork(int milliseconds)
{
    std::unique_lock lock(running().mutex);
    return running().ended.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                    [] { return running().count == 0; });
}

} // namespace kelvo
