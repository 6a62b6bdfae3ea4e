#pragma once

#include "print_session.h"
#include "result.h"
#include "ticket_file.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

// When the print server prints a job: how urgent it is, and until when it is held there. It
// lives in the ticket like everything else, but only the server reads it: devices that hold
// jobs by themselves have settings of their own for that.
namespace kelvo {

// Entries of the print settings; text and number as below.
inline const QString kJobPriorityKey = QStringLiteral("com.kelvo.print.PrintSettings.JobPriority");
inline const QString kJobHoldUntilKey =
    QStringLiteral("com.kelvo.print.PrintSettings.JobHoldUntil");

// The server's names for the same, and of the options that it is told by.
inline constexpr char kJobPriorityOption[] = "job-priority";
inline constexpr char kJobHoldUntilOption[] = "job-hold-until";

struct JobTiming
{
    // Of RFC 8011, section 5.2.1; the middle is what a job has that says nothing.
    static constexpr int minPriority = 1, maxPriority = 100, usualPriority = 50;

    std::optional<int> priority; // none: the queue's own
    // A word of holdWords(), or a time "HH:MM" or "HH:MM:SS" in UTC; empty: the queue's own.
    QString holdUntil;

    bool isHeld() const; // sure to be held, for whatever time
    friend bool operator==(const JobTiming &, const JobTiming &) = default;
};

// What the ticket says. What is no priority or no such word or time counts as absent.
JobTiming jobTimingFrom(const Ticket &printSettings);
void writeJobTiming(const JobTiming &timing, PrintSession &session);

QStringList holdWords(); // "no-hold", "indefinite", …, in the order of menus

// job-priority and job-hold-until as an option's value has them. OutOfRange, with what there is.
Result<int> priorityFrom(const QString &value);
Result<QString> holdUntilFrom(const QString &value);
// The value of -H, as lp has it: immediate, hold, or what job-hold-until takes. Refused for
// resume and restart, which are for jobs that are there already.
Result<QString> holdUntilOfHandling(const QString &handling);

// Local times, at which a job of now would be printed, and back: the server's are in UTC, and
// it takes the next one that comes.
std::optional<QTime> localHoldTime(const QString &holdUntil); // none for a word
QString holdUntilLocal(const QTime &time);                    // "HH:MM", in UTC

// "until 18:30", "until somebody releases it": what follows "held". Empty where it is not held.
QString holdInWords(const QString &holdUntil);

} // namespace kelvo
