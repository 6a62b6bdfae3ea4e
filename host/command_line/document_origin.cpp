#include "document_origin.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace kelvo {

StandardInput standardInput()
{
    if (::isatty(STDIN_FILENO))
        return StandardInput::Terminal;
    const dev_t nullDevice = makedev(1, 3); // /dev/null, everywhere on Linux
    struct stat status = {};
    const bool isNull = ::fstat(STDIN_FILENO, &status) == 0 && S_ISCHR(status.st_mode)
        && status.st_rdev == nullDevice;
    return isNull ? StandardInput::Nothing : StandardInput::Data;
}

DocumentOrigin documentOrigin(const CommandLine &line, StandardInput input)
{
    if (!line.files.isEmpty() && !readsStandardInput(line))
        return DocumentOrigin::Files;
    if (line.files.isEmpty() && line.demo)
        return DocumentOrigin::Sample;
    const bool isUserThere = !line.noWindow && !line.script && !line.listControls;
    if (isUserThere && line.files.isEmpty() && input != StandardInput::Data)
        return DocumentOrigin::Chooser;
    return input == StandardInput::Terminal ? DocumentOrigin::Missing
                                            : DocumentOrigin::StandardInput;
}

} // namespace kelvo
