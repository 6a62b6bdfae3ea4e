#pragma once

#include "long_date.h"

#include <QTime>

namespace kelvo {

// What the time is until the user chooses one: a day after `now`.
LongDateTime defaultDelayedPrintTime(LongDateTime now);

// `time` of today, or of tomorrow where that is before `now`. Wall-clock time: a
// change to or from daylight saving in between moves nothing.
LongDateTime delayedPrintTime(const QTime &time, LongDateTime now);

// This moment on the wall clock.
LongDateTime currentLongDate();

} // namespace kelvo
