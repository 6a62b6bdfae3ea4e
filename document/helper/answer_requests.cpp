#include "helper_main.h"

#include "texts.h"

#include <QIODevice>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace kelvo::documents {

namespace {

// `size` bytes by read() or write(), which may do a part of them; false at the end of the input
// and where nobody listens any more.
template <typename Call, typename Bytes>
bool transfer(Call call, int fd, Bytes *bytes, std::size_t size)
{
    for (std::size_t done = 0; done < size;) {
        const ssize_t count = call(fd, bytes + done, size - done);
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            return false;
    }
    return true;
}

} // namespace

void answerRequests(void (*answer)(Task task, QDataStream &in, QDataStream &out),
                    void (*meanwhile)())
{
    const int answers = ::dup(STDOUT_FILENO);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    MessageSize size = 0;
    while (transfer(::read, STDIN_FILENO, reinterpret_cast<char *>(&size), sizeof size)) {
        QByteArray request(static_cast<qsizetype>(size), Qt::Uninitialized);
        if (!transfer(::read, STDIN_FILENO, request.data(), size))
            break;
        QDataStream in(request);
        QByteArray written(sizeof size, '\0');
        QDataStream out(&written, QIODevice::WriteOnly | QIODevice::Append);
        const QString folder = take<QString>(in);
        loadTexts(folder, take<QStringList>(in));
        const Task task = take<Task>(in);
        answer(task, in, out);
        size = static_cast<MessageSize>(written.size()) - sizeof size;
        std::memcpy(written.data(), &size, sizeof size);
        if (!transfer(::write, answers, written.constData(), sizeof size + size))
            break;
        if (meanwhile)
            meanwhile();
    }
    std::_Exit(0); // nothing is left to be torn down
}

} // namespace kelvo::documents
