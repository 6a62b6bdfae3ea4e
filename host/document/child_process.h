#pragma once

#include "result.h"

#include <QString>
#include <QStringList>

#include <atomic>

// Programs that turn what users choose into PDF, kept on a short lead: their
// input is made by anybody, and their readers crash, hang and eat memory.
namespace kelvo {

// Where the environment of a child names itself; a child starts none.
inline constexpr const char *kConverterVariable = "KELVO_CONVERTER";

struct ChildProgram
{
    QString program;       // absolute path
    QStringList arguments; // reach the program as they are, no shell in between
    QString folder;        // current and temporary folder
};

// Runs it to its end, at most limits::converterSeconds, with
// limits::converterMemory and files of limits::documentBytes, and looks at
// `cancelled` ten times a second. The value is its exit status and what it
// wrote to standard error (the first 4 KiB); crashes and limits are errors
// about `where`.
struct ChildEnd
{
    int status = 0;
    QString message;
};
Result<ChildEnd> runChild(const ChildProgram &child, const QString &where,
                          const std::atomic_bool &cancelled);

} // namespace kelvo
