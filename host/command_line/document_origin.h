#pragma once

#include "command_line.h"

namespace kelvo {

// What standard input is connected to.
enum class StandardInput {
    Terminal,
    Nothing, // /dev/null, as for what a desktop's menu starts
    Data,    // a file, a pipe, a socket
};

StandardInput standardInput();

// Where the documents come from.
enum class DocumentOrigin {
    Files,         // that were named
    Sample,        // of --demo
    StandardInput, // alone or beside files; also one that is empty, which its reader says
    Chooser,       // the user is asked, in a window
    Missing,       // nobody can be asked
};

DocumentOrigin documentOrigin(const CommandLine &line, StandardInput input);

} // namespace kelvo
