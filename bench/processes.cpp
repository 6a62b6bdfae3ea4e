#include "processes.h"

#include "first_frame.h"
#include "private_cups.h"

#include <QFile>
#include <QStandardPaths>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <utility>

using namespace Qt::StringLiterals;

namespace kelvo::bench {

namespace {

constexpr int longestRunMs = 120'000;

std::int64_t monotonicNow()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec;
}

double seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

// A file descriptor that is closed in the end.
class Descriptor
{
public:
    explicit Descriptor(int fd = -1)
        : m_fd(fd)
    {
    }
    ~Descriptor() { close(); }
    Q_DISABLE_COPY_MOVE(Descriptor)

    void close()
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = -1;
    }
    operator int() const { return m_fd; }

private:
    int m_fd;
};

class Process
{
public:
    Process(const QStringList &words, int stderrFd)
        : m_begin(monotonicNow())
        , m_stderr(stderrFd)
    {
        for (const QString &word : words)
            m_words.push_back(QFile::encodeName(word));
    }

    // In the child, only calls that may stand between fork and exec.
    template <typename Prepare>
    bool start(const Prepare &prepareChild)
    {
        std::vector<char *> arguments;
        for (QByteArray &word : m_words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        m_begin = monotonicNow();
        m_id = ::fork();
        if (m_id == 0) {
            ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDOUT_FILENO);
            ::dup2(m_stderr, STDERR_FILENO);
            prepareChild();
            ::execv(arguments[0], arguments.data());
            _exit(127);
        }
        return m_id > 0;
    }

    // Its status as waitpid() has it, and what it used. Killed when it takes too long.
    int wait(rusage *used) const
    {
        const Descriptor handle(static_cast<int>(::syscall(SYS_pidfd_open, m_id, 0)));
        pollfd ended{handle, POLLIN, 0};
        if (::poll(&ended, 1, longestRunMs) == 0)
            ::kill(m_id, SIGKILL);
        int status = -1;
        while (::wait4(m_id, &status, 0, used) < 0 && errno == EINTR) { }
        return status;
    }

    void end() const { ::kill(m_id, SIGKILL); }
    std::int64_t begin() const { return m_begin; }

private:
    std::vector<QByteArray> m_words;
    std::int64_t m_begin;
    int m_stderr;
    pid_t m_id = -1;
};

// What a program wrote to standard error, for the one who looks why it failed.
void passOn(int stderrFd)
{
    char bytes[4096];
    ::lseek(stderrFd, 0, SEEK_SET);
    for (ssize_t count = 0; (count = ::read(stderrFd, bytes, sizeof bytes)) > 0;)
        std::fwrite(bytes, 1, static_cast<std::size_t>(count), stderr);
}

std::optional<Taken> toItsEnd(const Command &command)
{
    const Descriptor errors(::memfd_create("stderr", MFD_CLOEXEC));
    if (command.prepare)
        command.prepare();
    Process process(command.words, errors);
    if (!process.start([] {}))
        return std::nullopt;
    rusage used{};
    const int status = process.wait(&used);
    const double elapsed = static_cast<double>(monotonicNow() - process.begin()) / 1e9;
    if (status != 0 || (command.isDone && !command.isDone())) {
        passOn(errors);
        std::fprintf(stderr, "%s ended with status %d%s\n",
                     qUtf8Printable(command.words.join(u' ')),
                     WIFEXITED(status) ? WEXITSTATUS(status) : -1,
                     status == 0 ? ", but did not do its work" : "");
        return std::nullopt;
    }
    return Taken{elapsed, seconds(used.ru_utime) + seconds(used.ru_stime), 0};
}

std::optional<Taken> toItsFrame(const Command &command, const QByteArray &shows)
{
    const Descriptor errors(::memfd_create("stderr", MFD_CLOEXEC));
    if (command.prepare)
        command.prepare();
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return std::nullopt;
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    Process process(command.words, errors);
    const QByteArray preload(KELVO_BUILD_DIR "/bench/first_frame.so");
    const bool isStarted = process.start([&] {
        ::fcntl(writing, F_SETFD, 0);
        ::setenv("LD_PRELOAD", preload.constData(), 1);
        ::setenv("KELVO_FRAME_SHOWS", shows.constData(), 1);
        ::setenv("KELVO_FRAME_FD", QByteArray::number(writing).constData(), 1);
    });
    if (!isStarted)
        return std::nullopt;
    writing.close();
    FrameReport report{};
    pollfd waiting{reading, POLLIN, 0};
    const bool isReported = ::poll(&waiting, 1, longestRunMs) > 0
        && ::read(reading, &report, sizeof report) == sizeof report;
    if (!isReported)
        process.end();
    process.wait(nullptr);
    if (!isReported || (command.isDone && !command.isDone())) {
        passOn(errors);
        std::fprintf(stderr, "%s showed no frame with %s…\n",
                     qUtf8Printable(command.words.join(u' ')), shows.constData());
        return std::nullopt;
    }
    return Taken{static_cast<double>(report.moment - process.begin()) / 1e9,
                 static_cast<double>(report.processor) / 1e9, static_cast<double>(report.memory)};
}

// A name becomes the path where PATH has it.
Command found(Command command)
{
    const QString path = QStandardPaths::findExecutable(command.words.first());
    if (!path.isEmpty())
        command.words.first() = path;
    return command;
}

} // namespace

Side wholeProcess(std::string name, Command command)
{
    return {std::move(name), [command = found(std::move(command))] { return toItsEnd(command); }};
}

Side firstFrame(std::string name, Command command, QByteArray shows)
{
    return {std::move(name), [command = found(std::move(command)), shows = std::move(shows)] {
                return toItsFrame(command, shows);
            }};
}

QString startPrintServer(PrivateCups &server)
{
    // avahi-daemon of the machine would have its say.
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent");
    QString problem = server.start();
    const QString queue = QString::fromLatin1(kQueue);
    if (problem.isEmpty())
        problem = server.addQueue(
            queue, QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd"));
    if (problem.isEmpty())
        problem = server.administer({u"-d"_s, queue});
    return problem;
}

} // namespace kelvo::bench
