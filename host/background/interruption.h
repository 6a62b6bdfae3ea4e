#pragma once

#include <functional>

class QObject;

// The first signal that asks the program to end (SIGINT, SIGTERM, SIGHUP) ends it as Cancel does,
// as soon as there is somebody to cancel; a second one ends it at once, and so does hanging for
// ten seconds after the first.
namespace kelvo {

// From now on; what waits for input ends with a signal (EINTR). Call it before the first
// temporary folder is made: a signal that ended the program at once would leave it.
void noteInterruptions();

// `end` ends what `window` is there for: called in the event loop, as long as `window` lives, also
// for a signal that came before. What waits for input goes on waiting from now on.
void onInterruption(QObject *window, const std::function<void()> &end);

} // namespace kelvo
