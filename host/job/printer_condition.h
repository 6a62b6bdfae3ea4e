#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

// What a queue is doing, and why it is not.
struct PrinterCondition
{
    enum class State { Idle, Busy, Stopped };

    State state = State::Idle;
    bool acceptsJobs = true;
    QString stateMessage; // what it reports, see stateWords(); may be empty

    friend bool operator==(const PrinterCondition &, const PrinterCondition &) = default;
};

// What a queue reports, on one line and without a full stop: its message
// (printer-state-message, which whoever stops a queue may write) and what its reasons
// (printer-state-reasons, "media-empty-error") mean. What says no more than the state
// does is left out.
QString stateWords(const QString &message, const QStringList &reasons);

} // namespace kelvo
