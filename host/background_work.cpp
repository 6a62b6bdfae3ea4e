#include "background_work.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <semaphore>
#include <system_error>
#include <thread>
#include <vector>

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

bool canStartThreads(int count)
{
    std::counting_semaphore<> allTried(0);
    std::vector<std::thread> threads;
    try {
        while (static_cast<int>(threads.size()) < count)
            threads.emplace_back([&allTried] { allTried.acquire(); });
    } catch (const std::system_error &) {
    }
    allTried.release(static_cast<std::ptrdiff_t>(threads.size()));
    for (std::thread &thread : threads)
        thread.join();
    return static_cast<int>(threads.size()) == count;
}

QString noThreadReason()
{
    return QStringLiteral("the system gives this program no thread, because too many processes run "
                          "for this user or in this container; end some, or have the limit raised "
                          "(ulimit -u), and try again");
}

bool waitForBackgroundWork(int milliseconds)
{
    std::unique_lock lock(running().mutex);
    return running().ended.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                    [] { return running().count == 0; });
}

} // namespace kelvo
