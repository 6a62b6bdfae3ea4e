#pragma once

#include "delivery.h"
#include "exit_status.h"

#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace kelvo {

// What becomes of one press of Print.
struct PrintOutcome
{
    ExitStatus status = ExitStatus::Failed;
    QString place;                   // printed: "Hall-123", or the folder
    QString problem;                 // not printed: what, where and what to do
    std::optional<SentJob> job = {}; // printed to a queue
};

// Where a prepared job goes: a printer, a folder, or whoever asked for it. It knows all
// that it needs and changes nothing of itself: words are asked for on the GUI thread
// while a worker thread delivers.
class Destination
{
public:
    virtual ~Destination() = default;

    // Blocks. `cancelled` stops it where that is still possible.
    virtual PrintOutcome deliver(const PreparedJob &job,
                                 const std::atomic_bool &cancelled) const = 0;

    virtual bool isForPeople() const { return false; } // JobRequest::isForPeople
    // Of several jobs, where the one `number`, from 1, goes; null: there as well.
    virtual std::shared_ptr<const Destination> ofOne(int number, const QString &title) const;

    virtual QString onTheWay() const = 0;                    // "Sending to Hall-3…"
    virtual QString arrived(const QString &place) const = 0; // "Hall-3-17 sent"
};

std::shared_ptr<const Destination> queueDestination(const QString &queue, const QString &title,
                                                    int timeoutMs);
std::shared_ptr<const Destination> folderDestination(const QString &folder);
// A PDF of what is printed, never over one of `documents`, the files that it is made of. Several
// jobs are files beside one another, "all-1.pdf".
std::shared_ptr<const Destination> pdfDestination(const QString &path,
                                                  const QStringList &documents);

} // namespace kelvo
