#pragma once

#include "command_line.h"
#include "early_work.h"
#include "folders.h"
#include "result.h"

// The dialog, with all that Qt needs for windows, is a library of its own, libkelvo_dialog.so: what
// the program says without a window loads none of it.
namespace kelvo {

class DialogProgram
{
public:
    // Shows the dialog that `line` asks for, or drives it unseen, and comes back when it has ended.
    // The status that the program ends with. Called once, on the main thread, before there is an
    // application object; `programName` (argv[0]) stays.
    virtual int run(char *programName, const CommandLine &line, EarlyWork early) const = 0;
    // For --help-scripts: what a script can reach is known where the controls are.
    virtual QString scriptCommands() const = 0;

protected:
    ~DialogProgram() = default; // lives in its library
};

// The library in `folder`, opened and never closed. Errors as of openPartLibrary().
Result<const DialogProgram *> dialogProgram(const QString &folder = libraryFolder());

// The library's entry is a PartEntry (part_library.h).
inline constexpr char dialogProgramEntry[] = "kelvoDialogProgram";

} // namespace kelvo
