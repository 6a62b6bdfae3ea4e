#pragma once

#include <QString>

namespace kelvo {

// What a print server says of a job that it has taken.
struct JobCondition
{
    enum class State {
        Waiting,   // behind others, or for its printer
        Held,      // until a time, or until somebody releases it
        Printing,  // it is on its way to the printer
        Stopped,   // its printer is stopped
        Completed, // the printer has all of it
        Cancelled,
        Aborted,   // by the server
        Forgotten, // it was there; this server keeps no record of how jobs ended
    };
    State state = State::Waiting;
    int pages = 0;     // printed so far, as far as the printer tells
    QString holdUntil; // Held: as job_timing.h has it
    QString reason;    // why it is so, in words; may be empty

    bool isOver() const { return state >= State::Completed; }
    friend bool operator==(const JobCondition &, const JobCondition &) = default;
};

// A clause: "waiting", "held until 18:30", "printing, 3 pages so far", "waiting, the printer is
// stopped: paper is jammed".
QString conditionInWords(const JobCondition &condition);
// The same without what changes from page to page.
QString stateInWords(const JobCondition &condition);

// A job, "Hall-3-17", and such a clause. And that it could not be cancelled, and why.
QString jobLine(const QString &job, const QString &words);
QString notCancelledLine(const QString &job, const QString &problem);

} // namespace kelvo
