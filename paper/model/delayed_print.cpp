#include "delayed_print.h"

namespace kelvo {

namespace {

constexpr LongDateTime oneDay = 86'400; // seconds

} // namespace

LongDateTime defaultDelayedPrintTime(LongDateTime now)
{
    return now + oneDay;
}

LongDateTime delayedPrintTime(const QTime &time, LongDateTime now)
{
    const LongDateTime today = longDateFrom(dateOf(now), time);
    return today < now ? today + oneDay : today;
}

LongDateTime currentLongDate()
{
    return longDateFrom(QDateTime::currentDateTime());
}

} // namespace kelvo
