#include "helper_main.h"

#include "texts.h"

#include <QFile>

#include <cstdlib>
#include <unistd.h>

namespace kelvo::documents {

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
    const QString folder = take<QString>(in);
    loadTexts(folder, take<QStringList>(in));
    const Task task = take<Task>(in);
    answer(task, in, out);
    QFile output;
    if (output.open(answers, QIODevice::WriteOnly, QFile::AutoCloseHandle))
        output.write(written);
    output.close();
    std::_Exit(0); // nothing is left to be torn down
}

} // namespace kelvo::documents
