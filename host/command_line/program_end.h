#pragma once

#include "exit_status.h"

#include <QString>

// The ways out of the program, with what must not stay behind and must have been said by then.
namespace kelvo {

int toInt(ExitStatus status);

// "kelvo-print: " and `text`, a line on standard error. The status as a number.
int fail(ExitStatus status, const QString &text);

// `status`, once what was said on standard output has arrived; where it has not, that is said
// and the status tells it, for a script that reads it must not take the silence for an answer.
int endWith(int status);
// The same after background work has had a second to end; with work that has not, the program
// ends here.
int endAfterBackgroundWork(int status);

// Without ending threads and destroying what they use; nothing of the user's is left to do.
[[noreturn]] void leave(int status);

} // namespace kelvo
