// Preloaded into a program that is measured: ends it with its first painted frame that shows a
// named widget, and tells what it took until then. A program needs no hook of its own for that,
// and its clearing up is not measured. It brings no library along: when and in which order Qt's
// are loaded is part of what is measured. What needs Qt is in frame_contents.so, opened with the
// first frame.
//
// KELVO_FRAME_SHOWS  a visible widget's object name begins like this
// KELVO_FRAME_FD     where the FrameReport is written
#include "first_frame.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

using kelvo::bench::FrameReport;

namespace {

constexpr char flushSymbol[] = "_ZN13QBackingStore5flushERK7QRegionP7QWindowRK6QPoint";

// Plain types: they have their values before any constructor runs.
char *shows = nullptr;
int reportFd = -1;

// Children of the measured program are not measured.
__attribute__((constructor)) void takeOrders()
{
    const char *name = std::getenv("KELVO_FRAME_SHOWS");
    const char *fd = std::getenv("KELVO_FRAME_FD");
    shows = name && *name ? strdup(name) : nullptr;
    reportFd = fd && shows ? std::atoi(fd) : -1;
    unsetenv("LD_PRELOAD");
    unsetenv("KELVO_FRAME_SHOWS");
    unsetenv("KELVO_FRAME_FD");
}

std::int64_t now(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec;
}

std::int64_t peakMemory()
{
    std::int64_t peak = 0;
    char line[256];
    std::FILE *status = std::fopen("/proc/self/status", "re");
    while (status && std::fgets(line, sizeof line, status)) {
        if (std::strncmp(line, "VmHWM:", 6) == 0)
            peak = std::atoll(line + 6) * 1024;
    }
    if (status)
        std::fclose(status);
    return peak;
}

// Libraries that a library of the program brought are found by their handle only.
template <typename Function>
Function function(const char *library, int flags, const char *symbol)
{
    void *handle = dlopen(library, RTLD_LAZY | flags);
    const auto found = handle ? reinterpret_cast<Function>(dlsym(handle, symbol)) : nullptr;
    if (!found) {
        std::fprintf(stderr, "first_frame: %s\n", dlerror());
        _exit(1);
    }
    return found;
}

} // namespace

// Every frame of a widget window goes through here when it has been painted: this is
// QBackingStore::flush(const QRegion &, QWindow *, const QPoint &).
extern "C" __attribute__((visibility("default"))) void
kelvoFlush(void *store, const void *region, void *window,
           const void *offset) __asm__("_ZN13QBackingStore5flushERK7QRegionP7QWindowRK6QPoint");

void kelvoFlush(void *store, const void *region, void *window, const void *offset)
{
    using Flush = void (*)(void *, const void *, void *, const void *);
    static const auto next = function<Flush>("libQt6Gui.so.6", RTLD_NOLOAD, flushSymbol);
    next(store, region, window, offset);
    if (reportFd < 0)
        return;
    const FrameReport report{now(CLOCK_MONOTONIC), now(CLOCK_PROCESS_CPUTIME_ID), peakMemory()};
    using Look = bool (*)(const void *, const void *, const char *);
    static const auto isShown = function<Look>(KELVO_FRAME_CONTENTS, 0, "kelvoFrameShows");
    if (!isShown(store, window, shows))
        return;
    const ssize_t written = ::write(reportFd, &report, sizeof report);
    _exit(written == sizeof report ? 0 : 1);
}
