#pragma once

#include <QDateTime>

#include <cstdint>

// Long-date seconds: wall-clock seconds since 1 January 1904, 00:00, 86,400 a
// day, without any time-zone arithmetic: a time stored on one side of a
// daylight-saving change shows the same clock on the other.
namespace kelvo {

using LongDateTime = std::int64_t;

// Only the clock and the calendar of the arguments count, never their zone. An
// invalid date gives 0, an invalid time midnight.
LongDateTime longDateFrom(const QDate &date, const QTime &time);
LongDateTime longDateFrom(const QDateTime &local);
QDate dateOf(LongDateTime moment);
QTime timeOf(LongDateTime moment); // whole seconds

LongDateTime currentLongDate();
// `time` of today, or of tomorrow where that is before `now`: a change to or from daylight
// saving in between moves nothing.
LongDateTime nextMomentAt(const QTime &time, LongDateTime now);

} // namespace kelvo
