#pragma once

#include "command_line.h"
#include "early_work.h"

namespace kelvo {

// The program from its command line on, where that is about the dialog: the application object,
// the document that nobody has named, the panels, and the dialog's run. The status that the
// program ends with.
int runApplication(char *programName, CommandLine line, EarlyWork early);

} // namespace kelvo
