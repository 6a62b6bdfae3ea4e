#include "background_task.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

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

} // namespace

void beginBackgroundWork()
{
    const std::lock_guard lock(running().mutex);
    ++running().count;
}

void endBackgroundWork()
{
    const std::lock_guard lock(running().mutex);
    --running().count;
    running().ended.notify_all();
}

bool waitForBackgroundWork(int milliseconds)
{
    std::unique_lock lock(running().mutex);
    return running().ended.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                    [] { return running().count == 0; });
}

} // namespace kelvo
