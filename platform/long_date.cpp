#include "long_date.h"

namespace kelvo {

namespace {

constexpr LongDateTime secondsADay = 86'400;
constexpr qint64 epoch = 2'416'481; // the Julian day number of 1 January 1904

// Days since the epoch, rounded down: moments before 1904 are on their own day.
LongDateTime dayOf(LongDateTime moment)
{
    const LongDateTime day = moment / secondsADay;
    return moment % secondsADay < 0 ? day - 1 : day;
}

} // namespace

LongDateTime longDateFrom(const QDate &date, const QTime &time)
{
    if (!date.isValid())
        return 0;
    return (date.toJulianDay() - epoch) * secondsADay + time.msecsSinceStartOfDay() / 1000;
}

LongDateTime longDateFrom(const QDateTime &local)
{
    return longDateFrom(local.date(), local.time());
}

QDate dateOf(LongDateTime moment)
{
    return QDate::fromJulianDay(epoch + dayOf(moment));
}

QTime timeOf(LongDateTime moment)
{
    const LongDateTime seconds = moment % secondsADay;
    const LongDateTime ofDay = seconds < 0 ? seconds + secondsADay : seconds;
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(ofDay) * 1000);
}

LongDateTime currentLongDate()
{
    return longDateFrom(QDateTime::currentDateTime());
}

LongDateTime nextMomentAt(const QTime &time, LongDateTime now)
{
    const LongDateTime today = longDateFrom(dateOf(now), time);
    return today < now ? today + secondsADay : today;
}

} // namespace kelvo
