#pragma once

#include "result.h"

#include "size_limits.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <atomic>
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

// Makes `process` ready to be started as runChild() would start it, for a child that
// is talked to. It ends with the thread that starts it.
void prepareChild(QProcess &process, const ChildProgram &child);

} // namespace kelvo
