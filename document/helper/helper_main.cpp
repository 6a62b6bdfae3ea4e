#include "helper_main.h"

#include <QByteArrayView>

#include <cstdlib>
#include <cstring>
#include <new>
#include <unistd.h>

namespace kelvo::documents {

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
}

} // namespace kelvo::documents
