#pragma once

#include <QString>

#include <functional>

// Threads for work that can block, for ever if need be. They are counted, so
// that the program can end in the middle of one without tearing away what it uses.
namespace kelvo {

// `work` on a thread of its own; what it uses it must own. False when the
// system has no thread to give: `work` is not called then.
bool startBackgroundWork(std::function<void()> work);
// Whether the system would give `count` threads at once, just now.
bool canStartThreads(int count);
// What to tell the user when there is none, and what to do about it.
QString noThreadReason();

// Whether all work has ended within `milliseconds`. Where it has not, the
// program must leave with _exit().
bool waitForBackgroundWork(int milliseconds);

} // namespace kelvo
