#include "helper_main.h"

#include <QFile>

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

void answerRequest(void (*answer)(Task task, QDataStream &in, QDataStream &out))
{
    QFile input;
    QByteArray request;
    if (input.open(STDIN_FILENO, QIODevice::ReadOnly))
        request = input.readAll();

    const int answers = ::dup(STDOUT_FILENO);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    QDataStream in(request);
    QByteArray written;
    QDataStream out(&written, QIODevice::WriteOnly);
    const Task task = take<Task>(in);
    answer(task, in, out);
    QFile output;
    if (output.open(answers, QIODevice::WriteOnly, QFile::AutoCloseHandle))
        output.write(written);
    output.close();
    std::_Exit(0); // nothing is left to be torn down
}

} // namespace kelvo::documents
