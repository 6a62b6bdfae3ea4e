#pragma once

#include "ratios.h"

#include <QByteArray>
#include <QStringList>

class PrivateCups;

namespace kelvo::bench {

// A program as its users start it: a process of its own through the dynamic loader, offscreen,
// with the environment of this one. Its processor time is that of all its threads and, where it
// runs to its end, of the programs that it waits for.
struct Command
{
    QStringList words; // the program's path, or a name to look for, and its arguments
    // Before and after each run, and not measured. The second answers whether all was done: a
    // program that does nothing would be the fastest.
    std::function<void()> prepare;
    std::function<bool()> isDone;
};

// Such a program from its start to its end, with 0. Memory is not looked at: the system counts
// what the starting process had, too.
Side wholeProcess(std::string name, Command command);

// From its start to the first painted frame of a window with a visible widget whose object name
// begins with `shows`. It is ended there. Memory counts shared libraries as far as they are
// resident.
Side firstFrame(std::string name, Command command, QByteArray shows);

// The print server that all of them ask: on loopback, with one queue, the default, of the full
// sample device. No system bus is theirs. Empty, or what went wrong.
inline constexpr char kQueue[] = "bench";
QString startPrintServer(PrivateCups &server);

} // namespace kelvo::bench
