#pragma once

#include "helper_messages.h"

// What the programs of all helpers have in common.
namespace kelvo::documents {

// Whether `argv` begins as ours do: with the program's version. Says it on standard
// error if not; main() ends with kOtherVersionStatus then.
bool isOwnCaller(int argc, char **argv);

// From now on a process that is out of memory ends with kOutOfMemoryStatus, also where a library
// crashes or aborts for it.
void endWithoutMemory();

// Answers the requests on standard input, in the language of whoever asks, until there are no
// more, and ends the process; `answer` reads the arguments of the task and writes the result.
// `meanwhile` is called after each answer: what can be done before the next request. What
// libraries print goes to standard error.
[[noreturn]] void answerRequests(void (*answer)(Task task, QDataStream &in, QDataStream &out),
                                 void (*meanwhile)() = nullptr);

// The next argument of a request.
template <typename Value>
Value take(QDataStream &in)
{
    Value value{};
    in >> value;
    return value;
}

} // namespace kelvo::documents
