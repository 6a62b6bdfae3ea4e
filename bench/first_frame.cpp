// Preloaded into a program that is measured: ends it with its first painted frame
// that shows a named widget, and tells what it took until then. A program needs
// no hook of its own for that, and its clearing up is not measured.
//
// KELVO_FRAME_SHOWS  a visible widget's object name begins like this
// KELVO_FRAME_FD     where the FrameReport is written
#include "first_frame.h"

#include <QApplication>
#include <QBackingStore>
#include <QWidget>
#include <QWindow>

#include <dlfcn.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

using kelvo::bench::FrameReport;

namespace {

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

// The most memory that was resident at once, in KiB.
std::int64_t peakMemory()
{
    std::int64_t peak = 0;
    char line[256];
    std::FILE *status = std::fopen("/proc/self/status", "re");
    while (status && std::fgets(line, sizeof line, status)) {
        if (std::strncmp(line, "VmHWM:", 6) == 0)
            peak = std::atoll(line + 6);
    }
    if (status)
        std::fclose(status);
    return peak;
}

bool isShown(const QWindow *window)
{
    const QLatin1String begin(shows);
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && widget->objectName().startsWith(begin)
            && widget->window()->windowHandle() == window)
            return true;
    }
    return false;
}

} // namespace

// Every frame of a widget window goes through here when it has been painted.
__attribute__((visibility("default"))) void
QBackingStore::flush(const QRegion &region, QWindow *window, const QPoint &offset)
{
    using Flush = void (*)(QBackingStore *, const QRegion &, QWindow *, const QPoint &);
    static const auto next = reinterpret_cast<Flush>(
        dlsym(RTLD_NEXT, "_ZN13QBackingStore5flushERK7QRegionP7QWindowRK6QPoint"));
    next(this, region, window, offset);
    if (reportFd < 0 || !isShown(window ? window : this->window()))
        return;
    const FrameReport report{now(CLOCK_MONOTONIC), now(CLOCK_PROCESS_CPUTIME_ID), peakMemory()};
    const ssize_t written = ::write(reportFd, &report, sizeof report);
    _exit(written == sizeof report ? 0 : 1);
}
