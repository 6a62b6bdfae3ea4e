#pragma once

#include "result.h"

#include "size_limits.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class QProcess;

// Programs that read what users choose, kept on a short lead: their input is made
// by anybody, and their readers crash, hang and eat memory.
namespace kelvo {

struct ChildProgram
{
    QString program;       // absolute path
    QStringList arguments; // reach the program as they are, no shell in between
    QString folder;        // current and temporary folder
    // Its standard input. With none it has an empty one, and what it writes to
    // standard output is dropped.
    std::optional<QByteArray> input;
    // An open file that it has too, under the same number; -1: none.
    int file = -1;
    qint64 memory = limits::converterMemory; // bytes of address space
    int seconds = limits::converterSeconds;  // 0: as long as it is not cancelled
};

// Runs it to its end, within its limits and with files of limits::documentBytes at
// most, and looks at `cancelled` ten times a second. The value is its exit status
// and what it wrote to standard output and error (the first 4 KiB); crashes and
// limits are errors about `where`. It ends with the calling thread.
struct ChildEnd
{
    int status = 0;
    QByteArray output;
    QString message;
};
Result<ChildEnd> runChild(const ChildProgram &child, const QString &where,
                          const std::atomic_bool &cancelled);

// A child that is started as runChild() starts it, before it is known what it will be
// asked, or that is asked more than once. It ends with the thread that starts it.
class RunningChild
{
public:
    // Its standard input is a stream that ask() writes to; `child.input` does not count.
    static Result<RunningChild> start(const ChildProgram &child, const QString &where);
    RunningChild(RunningChild &&) noexcept;
    RunningChild &operator=(RunningChild &&) noexcept;
    ~RunningChild(); // ends it; does not wait

    enum class Input { GoesOn, Ends };
    // Whether what the child has written to standard output is the whole answer.
    using IsAnswer = std::function<bool(const QByteArray &output)>;

    // Writes `input` and waits for the answer, or for the end of the child, in any thread. The
    // errors are those of runChild(), and the child has ended then; `seconds` count from here on.
    // The status is 0 for an answer.
    Result<ChildEnd> ask(const QByteArray &input, Input then, const IsAnswer &isAnswer,
                         const QString &where, const std::atomic_bool &cancelled);

private:
    struct Private;
    explicit RunningChild(std::unique_ptr<Private> started);
    std::unique_ptr<Private> d;
};

// Makes `process` ready to be started as runChild() would start it, for a child that
// is talked to. It ends with the thread that starts it.
void prepareChild(QProcess &process, const ChildProgram &child);

} // namespace kelvo
