#include "program_end.h"

#include "background_work.h"
#include "temporary_folder.h"
#include "terminal.h"
#include "texts.h"

#include <cstdio>
#include <cstdlib>

namespace kelvo {

namespace {

constexpr int endWaitMs = 1000; // for threads that were told to stop

} // namespace

int toInt(ExitStatus status)
{
    return static_cast<int>(status);
}

int fail(ExitStatus status, const QString &text)
{
    printLine(stderr, QStringLiteral("kelvo-print: ") + text);
    return toInt(status);
}

int endWith(int status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    fail(ExitStatus::Failed,
         translate("Main", "standard output cannot be written; what was done before stays done"));
    return status == 0 ? toInt(ExitStatus::Failed) : status;
}

int endAfterBackgroundWork(int status)
{
    status = endWith(status);
    if (!waitForBackgroundWork(endWaitMs))
        leave(status); // a thread hangs in a server's answer
    return status;
}

void leave(int status)
{
    removeTemporaryFolders();
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace kelvo
