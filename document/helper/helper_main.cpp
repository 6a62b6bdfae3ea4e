#include "helper_main.h"

#include "sanitizers.h"

#include <QByteArrayView>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <new>
#include <sys/mman.h>
#include <unistd.h>

namespace kelvo::documents {

namespace {

// What a process that has memory left can be given at any time: more than a library asks for
// at once while it reads or draws what is small.
constexpr std::size_t spareBytes = 16 * 1024 * 1024;

// On a stack of its own: the one that cannot grow any more is one of the reasons.
alignas(16) char handlerStack[64 * 1024];

// Not every library looks whether it was given the memory that it asked for, and some abort.
void sayWhetherMemoryIsOut(int signal)
{
    if (::mmap(nullptr, spareBytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) == MAP_FAILED)
        ::_exit(kOutOfMemoryStatus);
    ::raise(signal); // by then without this handler
}

} // namespace

bool isOwnCaller(int argc, char **argv)
{
    if (argc >= 2 && std::strcmp(argv[1], KELVO_VERSION) == 0)
        return true;
    // Not by terminal.h, for which the platform's libraries would be loaded with each start.
    constexpr QByteArrayView words("This is a part of kelvo-print " KELVO_VERSION
                                   ", which starts it.\n");
    [[maybe_unused]] const ssize_t written =
        ::write(STDERR_FILENO, words.data(), static_cast<std::size_t>(words.size()));
    return false;
}

void endWithoutMemory()
{
    std::set_new_handler([] { ::_exit(kOutOfMemoryStatus); });
    if (kHasSanitizer)
        return; // there is no limit then, and crashes are the sanitizer's to tell
    stack_t stack = {};
    stack.ss_sp = handlerStack;
    stack.ss_size = sizeof handlerStack;
    ::sigaltstack(&stack, nullptr);
    struct sigaction action = {};
    action.sa_handler = sayWhetherMemoryIsOut;
    action.sa_flags = SA_ONSTACK | static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGTRAP})
        ::sigaction(signal, &action, nullptr);
}

} // namespace kelvo::documents
