// The program's first step, which links nothing but the C library: its libraries are opened, so
// that they are no part of what the dynamic loader searches for every name. Linked, the print
// server's and the desktop's, some forty, would be looked through before Qt's for each of the
// 12,000 names that Qt's libraries for windows look up.
#include "program.h"

#include <dlfcn.h>
#include <string.h>
#include <unistd.h>

namespace {

// As the loader itself where a library is missing; no texts can be had without it.
int endWithoutLibrary()
{
    const char *reason = ::dlerror();
    const char *const line[] = {"kelvo-print: ", reason ? reason : "libkelvo_program.so", "\n"};
    for (const char *text : line)
        static_cast<void>(!::write(STDERR_FILENO, text, ::strlen(text)));
    return 127;
}

} // namespace

int main(int argc, char **argv)
{
    void *library = ::dlopen("libkelvo_program.so", RTLD_LAZY);
    auto *program = library
        ? reinterpret_cast<decltype(&kelvoProgram)>(::dlsym(library, "kelvoProgram"))
        : nullptr;
    return program ? program(argc, argv) : endWithoutLibrary();
}
