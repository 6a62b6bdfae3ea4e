#include "background_work.h"

#include "texts.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <iterator>
#include <list>
#include <mutex>
#include <semaphore>
#include <system_error>
#include <thread>
#include <vector>

namespace kelvo {

namespace {

struct Work
{
    std::thread thread;
    bool hasEnded = false;
};

struct Running
{
    std::mutex mutex;
    std::condition_variable ended;
    std::list<Work> works;
};

// Never destroyed: a thread may outlive every static object.
Running &running()
{
    static auto &state = *new Running;
    return state;
}

// All of them have ended. What the libraries keep for a thread is gone only once it is
// joined: a program that ends before tears it away, and leaks it at best.
void join(std::list<Work> works)
{
    for (Work &work : works)
        work.thread.join();
}

// With the lock.
std::list<Work> takeEnded(std::list<Work> &works)
{
    std::list<Work> ended;
    for (auto work = works.begin(); work != works.end();) {
        const auto next = std::next(work);
        if (work->hasEnded)
            ended.splice(ended.end(), works, work);
        work = next;
    }
    return ended;
}

void noteEnd(Work &work)
{
    const std::lock_guard lock(running().mutex);
    work.hasEnded = true;
    running().ended.notify_all();
}

} // namespace

bool startBackgroundWork(std::function<void()> work)
{
    const std::lock_guard lock(running().mutex);
    std::list<Work> &works = running().works;
    join(takeEnded(works));
    works.emplace_back();
    const auto self = std::prev(works.end());
    try {
        self->thread = std::thread([work = std::move(work), self]() mutable {
            work();
            work = nullptr; // lets go of what it owns before it counts as ended
            noteEnd(*self);
        });
    } catch (const std::system_error &) {
        works.erase(self);
        return false;
    }
    return true;
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
    return translate("Background",
                     "the system gives this program no thread, because too many processes run "
                     "for this user or in this container; end some, or have the limit raised "
                     "(ulimit -u), and try again");
}

bool waitForBackgroundWork(int milliseconds)
{
    std::unique_lock lock(running().mutex);
    std::list<Work> &works = running().works;
    const bool areAllEnded =
        running().ended.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                 [&works] { return std::ranges::all_of(works, &Work::hasEnded); });
    std::list<Work> ended = takeEnded(works);
    lock.unlock();
    join(std::move(ended));
    return areAllEnded;
}

} // namespace kelvo
