#pragma once

#include "command_line.h"
#include "inputs.h"

#include <QString>

namespace kelvo {

// Reads what the command line names, shows the dialog or drives it unseen, and comes back when it
// has ended. The status that the program ends with.
int runDialog(const CommandLine &line, Inputs inputs);

// The display has gone, or was never there: the program ends, and says what has become of the job
// of the dialog that is running. For any thread while there is none, else for the main one.
[[noreturn]] void leaveWithoutDisplay(const QString &problem);

} // namespace kelvo
