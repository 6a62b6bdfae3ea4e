#include "job_timing.h"

#include "nearest_name.h"
#include "texts.h"
#include "values.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace kelvo {

namespace {

using Code = Error::Code;

const QString client = QStringLiteral("com.kelvo.printingmanager");
const QString noHold = QStringLiteral("no-hold");

// As CUPS has them, with its hours, which are the server's.
struct HoldRow
{
    const char *word;
    const char *text; // after "held"
};
constexpr HoldRow holdRows[] = {
    {"no-hold", ""},
    {"indefinite", QT_TRANSLATE_NOOP("Job", "until somebody releases it")},
    {"day-time", QT_TRANSLATE_NOOP("Job", "until daytime (6 to 18 h)")},
    {"evening", QT_TRANSLATE_NOOP("Job", "until the evening (18 to 6 h)")},
    {"night", QT_TRANSLATE_NOOP("Job", "until the night (18 to 6 h)")},
    {"second-shift", QT_TRANSLATE_NOOP("Job", "until the second shift (16 to 24 h)")},
    {"third-shift", QT_TRANSLATE_NOOP("Job", "until the third shift (0 to 8 h)")},
    {"weekend", QT_TRANSLATE_NOOP("Job", "until the weekend")},
};

const HoldRow *findHold(const QString &word)
{
    const auto row = std::ranges::find_if(holdRows, [&word](const HoldRow &each) {
        return word.compare(QLatin1String(each.word), Qt::CaseInsensitive) == 0;
    });
    return row == std::end(holdRows) ? nullptr : row;
}

// "H:MM" too, as people write it; invalid for anything else.
QTime timeFrom(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9]{1,2}):([0-9]{2})(?::([0-9]{2}))?$"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return {};
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
}

QString textOf(const QTime &time)
{
    return time.toString(time.second() == 0 ? QStringLiteral("HH:mm") : QStringLiteral("HH:mm:ss"));
}

// The next moment, from now on, at which a clock of that kind shows `time`.
QDateTime next(const QTime &time, Qt::TimeSpec spec)
{
    const QDateTime now = QDateTime::currentDateTimeUtc().toTimeSpec(spec);
    const QDateTime today(now.date(), time, spec);
    return today < now ? QDateTime(now.date().addDays(1), time, spec) : today;
}

Error notInRange(const char *option, const QString &value, const QString &detail)
{
    return {Code::OutOfRange, QStringLiteral("%1=%2").arg(QLatin1String(option), value), detail};
}

} // namespace

bool JobTiming::isHeld() const
{
    return !holdUntil.isEmpty() && holdUntil != noHold;
}

JobTiming jobTimingFrom(const Ticket &printSettings)
{
    JobTiming timing;
    if (const auto found = printSettings.entries.find(kJobPriorityKey);
        found != printSettings.entries.end()) {
        const auto number = integer32(found->second.value);
        if (number && *number >= JobTiming::minPriority && *number <= JobTiming::maxPriority)
            timing.priority = *number;
    }
    if (const auto found = printSettings.entries.find(kJobHoldUntilKey);
        found != printSettings.entries.end()) {
        if (const auto hold = holdUntilFrom(string(found->second.value).value_or(QString())))
            timing.holdUntil = hold.value();
    }
    return timing;
}

void writeJobTiming(const JobTiming &timing, PrintSession &session)
{
    const PMTicketRef print = session.printSettingsTicket();
    if (timing.priority)
        PMTicketSetCFNumber(print, client, kJobPriorityKey, *timing.priority);
    else
        PMTicketReleaseItem(print, kJobPriorityKey);
    if (timing.holdUntil.isEmpty())
        PMTicketReleaseItem(print, kJobHoldUntilKey);
    else
        PMTicketSetCFString(print, client, kJobHoldUntilKey, timing.holdUntil);
}

QStringList holdWords()
{
    QStringList words;
    for (const HoldRow &row : holdRows)
        words << QLatin1String(row.word);
    return words;
}

Result<int> priorityFrom(const QString &value)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,3}$"));
    const int priority = digits.match(value).hasMatch() ? value.toInt() : 0;
    if (priority < JobTiming::minPriority || priority > JobTiming::maxPriority)
        return notInRange(kJobPriorityOption, value,
                          translate("Job",
                                    "a priority is a number from %1 to %2, the higher the "
                                    "sooner")
                              .arg(QString::number(JobTiming::minPriority),
                                   QString::number(JobTiming::maxPriority)));
    return priority;
}

Result<QString> holdUntilFrom(const QString &value)
{
    if (const HoldRow *row = findHold(value))
        return QString::fromLatin1(row->word);
    if (const QTime time = timeFrom(value); time.isValid())
        return textOf(time);
    return notInRange(
        kJobHoldUntilOption, value,
        joined({nearestOrAll(translate("Job", "there is no such value"), value, holdWords()),
                translate("Job", "a time is written HH:MM, in UTC")}));
}

Result<QString> holdUntilOfHandling(const QString &handling)
{
    if (handling == QLatin1String("immediate"))
        return noHold;
    if (handling == QLatin1String("hold"))
        return QStringLiteral("indefinite");
    const Error noHandling{Code::OutOfRange, handling,
                           translate("Job",
                                     "it takes immediate, hold, a time HH:MM in UTC, or a word of "
                                     "job-hold-until: %1")
                               .arg(holdWords().join(QStringLiteral(", ")))};
    if (handling == QLatin1String("resume") || handling == QLatin1String("restart"))
        return Error{
            Code::Refused, handling,
            translate("Job", "that is for a job that is there already; use “lp -i JOB -H %1”")
                .arg(handling)};
    const auto hold = holdUntilFrom(handling);
    return hold ? hold : noHandling;
}

std::optional<QTime> localHoldTime(const QString &holdUntil)
{
    const QTime time = timeFrom(holdUntil);
    if (!time.isValid())
        return std::nullopt;
    return next(time, Qt::UTC).toLocalTime().time();
}

QString holdUntilLocal(const QTime &time)
{
    return textOf(next(time, Qt::LocalTime).toUTC().time());
}

QString holdInWords(const QString &holdUntil)
{
    if (const auto time = localHoldTime(holdUntil)) {
        const QLocale locale = withDigitsOfTexts(QLocale());
        // Where there is no locale, the short form has seconds.
        return translate("Job", "until %1")
            .arg(locale == QLocale::c() ? textOf(*time)
                                        : locale.toString(*time, QLocale::ShortFormat));
    }
    const HoldRow *row = findHold(holdUntil);
    return row && *row->text ? translate("Job", row->text) : QString();
}

} // namespace kelvo
