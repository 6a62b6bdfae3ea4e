#pragma once

#include "command_line.h"

namespace kelvo {

// Refused when what the command line has us write is what it has us read, or
// when --ticket-out or --preset-out would replace a file that is not a ticket. Before anything
// is opened: afterwards the user's file is gone.
Result<void> checkOutputTargets(const CommandLine &line);

} // namespace kelvo
