#include "child_process.h"

#include "helper_messages.h"
#include "sanitizers.h"
#include "texts.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace kelvo {

namespace {

constexpr int pollMs = 100;
const QString temporaryFolderKey = QStringLiteral("TMPDIR");
constexpr qsizetype messageBytes = 4096;
constexpr qsizetype outputBytes = kMostAnswered + sizeof(MessageSize);

// At most `value`, or less where less was set before.
void limit(__rlimit_resource_t resource, qint64 value)
{
    rlimit before = {};
    ::getrlimit(resource, &before);
    const rlim_t most = std::min(static_cast<rlim_t>(value), before.rlim_cur);
    const rlimit both{most, most};
    ::setrlimit(resource, &both);
}

// Between fork and exec: only what is safe there.
void enterLimits(qint64 memory, int seconds, int file)
{
    if (file >= 0)
        ::fcntl(file, F_SETFD, 0); // here alone: not in what other threads start meanwhile
    if (!kHasSanitizer)
        limit(RLIMIT_AS, memory);
    if (seconds > 0)
        limit(RLIMIT_CPU, seconds);
    // The program ignores the signal, and so does a child that has a smaller limit
    // than ours from the user: to it, that is a full disk.
    rlimit files = {};
    ::getrlimit(RLIMIT_FSIZE, &files);
    if (files.rlim_cur > static_cast<rlim_t>(limits::documentBytes))
        ::signal(SIGXFSZ, SIG_DFL);
    limit(RLIMIT_FSIZE, limits::documentBytes);
    limit(RLIMIT_CORE, 0); // a core file would hold the user's document
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
}

QProcessEnvironment childEnvironment(const QString &folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("GS_OPTIONS")); // could take -dSAFER back
    environment.insert(temporaryFolderKey, folder);
    return environment;
}

Error timedOut(const ChildProgram &child, const QString &where)
{
    return Error{Error::Code::TimedOut, where,
                 translate("Document", "reading it took longer than %1 seconds; it may be damaged")
                     .arg(child.seconds > 0 ? child.seconds : limits::converterSeconds)};
}

Error crashed(const ChildProgram &child, const QString &where, int signal)
{
    if (signal == SIGXCPU || signal == SIGKILL) // the kernel's two ways to end the CPU time
        return timedOut(child, where);
    if (signal == SIGXFSZ) {
        return Error{Error::Code::TooLarge, where,
                     translate("Document", "as PDF it would be larger than %1 MB")
                         .arg(limits::documentBytes / limits::MiB)};
    }
    return Error{Error::Code::Damaged, where,
                 translate("Document",
                           "the program that reads it crashed; the file is damaged, or needs "
                           "more memory than it may have")};
}

// ---- starting

// An end of a pipe or socket, or another file, that is closed with its owner.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int fd)
        : m_fd(fd)
    {
    }
    Descriptor(Descriptor &&other) noexcept
        : m_fd(std::exchange(other.m_fd, -1))
    {
    }
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~Descriptor() { close(); }

    int get() const { return m_fd; }
    void close()
    {
        if (m_fd >= 0)
            ::close(std::exchange(m_fd, -1));
    }

private:
    int m_fd = -1;
};

// All that the child needs, made before it: it may not ask for memory.
struct Launch
{
    QByteArray program, folder;
    std::vector<QByteArray> arguments, environment;
    std::vector<char *> argumentList, environmentList; // of those, with a null at the end
    Descriptor standard[3];
    qint64 memory = 0;
    int seconds = 0;
    int file = -1;
    sigset_t mask = {}; // of the thread that starts it
};

// childEnvironment() as bytes, which need not be text.
std::vector<QByteArray> environmentOf(const QString &folder)
{
    const QProcessEnvironment environment = childEnvironment(folder);
    const QStringList keys = environment.keys();
    std::vector<QByteArray> entries;
    entries.reserve(static_cast<std::size_t>(keys.size()));
    for (const QString &key : keys) {
        const QByteArray name = QFile::encodeName(key);
        const QByteArray own =
            key == temporaryFolderKey ? QFile::encodeName(folder) : qgetenv(name.constData());
        entries.push_back(name + '=' + own);
    }
    return entries;
}

std::vector<char *> listOf(std::vector<QByteArray> &texts)
{
    std::vector<char *> list;
    list.reserve(texts.size() + 1);
    for (QByteArray &text : texts)
        list.push_back(text.data());
    list.push_back(nullptr);
    return list;
}

// Between vfork and exec, in the memory of the program, whose thread waits meanwhile: system
// calls and nothing else. Comes back where the program cannot be run; `errno` says why.
void becomeChild(const Launch &launch)
{
    // What the program catches would be caught here.
    for (int number = 1; number < NSIG; ++number) {
        struct sigaction action = {};
        if (::sigaction(number, nullptr, &action) == 0 && action.sa_handler != SIG_DFL
            && (action.sa_handler != SIG_IGN || number == SIGPIPE)) {
            action = {};
            action.sa_handler = SIG_DFL;
            ::sigaction(number, &action, nullptr);
        }
    }
    for (int number = 0; number < 3; ++number) {
        if (::dup2(launch.standard[number].get(), number) < 0)
            return;
    }
    if (::chdir(launch.folder.constData()) != 0)
        return;
    enterLimits(launch.memory, launch.seconds, launch.file);
    ::sigprocmask(SIG_SETMASK, &launch.mask, nullptr);
    ::execve(launch.program.constData(), launch.argumentList.data(), launch.environmentList.data());
}

// The child's number; negative, with `errno`, where it could not be made or run.
//
// Not by QProcess, which belongs to a thread and is done when the child has ended: a helper is
// started by one thread and asked by another, and its answer is taken before it gives its memory
// back. vfork, as there: nothing of a program with a hundred libraries is copied.
pid_t launchChild(Launch &launch)
{
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &launch.mask);
    int volatile problem = 0;
    // The thread waits for as long as system calls take, and becomeChild() makes nothing else.
    // NOLINTNEXTLINE(clang-analyzer-security.insecureAPI.vfork)
    const pid_t pid = ::vfork();
    if (pid == 0) {
        becomeChild(launch); // NOLINT(clang-analyzer-unix.Vfork)
        problem = errno;
        ::_exit(127);
    }
    const int reason = pid < 0 ? errno : problem;
    ::pthread_sigmask(SIG_SETMASK, &launch.mask, nullptr);
    if (pid > 0 && reason != 0)
        ::waitpid(pid, nullptr, 0);
    errno = reason;
    return reason == 0 ? pid : -1;
}

// ---- leaving

// Ends it. Giving much memory back takes a while, for which nobody waits but a thread that knows
// nothing else; where the system has none to give, the child's entry stays until the program ends.
void leave(pid_t child)
{
    ::kill(child, SIGKILL);
    try {
        std::thread([child] { ::waitpid(child, nullptr, 0); }).detach();
    } catch (const std::system_error &) {
    }
}

// ---- talking

// What is too much is read all the same, and dropped: a full pipe would hold the
// child up, a full buffer us. Closed at its end.
void readInto(QByteArray &bytes, Descriptor &from, qsizetype most)
{
    std::array<char, 64 * 1024> block;
    while (from.get() >= 0) {
        const ssize_t count = ::read(from.get(), block.data(), block.size());
        if (count > 0)
            bytes.append(block.data(), std::min<qsizetype>(count, most - bytes.size()));
        else if (count == 0 || errno != EINTR)
            return count < 0 && errno == EAGAIN ? void() : from.close();
    }
}

} // namespace

void prepareChild(QProcess &process, const ChildProgram &child)
{
    process.setProgram(child.program);
    process.setArguments(child.arguments);
    process.setWorkingDirectory(child.folder);
    process.setProcessEnvironment(childEnvironment(child.folder));
    process.setChildProcessModifier([memory = child.memory, seconds = child.seconds,
                                     file = child.file] { enterLimits(memory, seconds, file); });
}

struct RunningChild::Private
{
    ChildProgram program;
    pid_t pid = -1; // -1: it has ended
    Descriptor end; // can be read when it has ended; none where the system has no such thing
    Descriptor input, output, message;

    Private() = default;
    Private(Private &&) = delete;
    Private &operator=(Private &&) = delete;
    ~Private() { leaveIt(); }

    bool hasEnded(int *status);
    void write(QByteArrayView &rest);
    void wait(bool isWriting);
    void leaveIt()
    {
        if (pid > 0)
            leave(std::exchange(pid, -1));
    }
};

bool RunningChild::Private::hasEnded(int *status)
{
    const pid_t ended = ::waitpid(pid, status, WNOHANG);
    if (ended == 0)
        return false;
    if (ended < 0)
        *status = SIGKILL; // how it has ended is not known: nothing of it counts
    pid = -1;
    return true;
}

// As much as it takes now. What a child does not want that has closed its input is dropped.
void RunningChild::Private::write(QByteArrayView &rest)
{
    while (!rest.isEmpty()) {
        const ssize_t count =
            ::send(input.get(), rest.data(), static_cast<std::size_t>(rest.size()),
                   MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && errno != EAGAIN)
            rest = {};
        if (count < 0)
            return;
        rest = rest.sliced(count);
    }
}

// Until something can be read or written, for pollMs at most.
void RunningChild::Private::wait(bool isWriting)
{
    pollfd files[] = {{isWriting ? input.get() : -1, POLLOUT, 0},
                      {output.get(), POLLIN, 0},
                      {message.get(), POLLIN, 0},
                      {end.get(), POLLIN, 0}};
    const bool isBlind = end.get() < 0 && output.get() < 0 && message.get() < 0;
    ::poll(files, std::size(files), isBlind ? 1 : pollMs);
}

RunningChild::RunningChild(std::unique_ptr<Private> started)
    : d(std::move(started))
{
}

RunningChild::RunningChild(RunningChild &&) noexcept = default;
RunningChild &RunningChild::operator=(RunningChild &&) noexcept = default;
RunningChild::~RunningChild() = default;

Result<RunningChild> RunningChild::start(const ChildProgram &child, const QString &where)
{
    const auto problem = [&](int number) {
        return Error{Error::Code::NotReadable, where,
                     translate("Document", "%1 does not start: %2")
                         .arg(QFileInfo(child.program).fileName(), qt_error_string(number))};
    };
    auto d = std::make_unique<Private>();
    d->program = child;
    Launch launch;
    int ends[2] = {-1, -1};
    // A socket, whose writer is told where a pipe's would be ended by a signal.
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return problem(errno);
    d->input = Descriptor(ends[0]);
    launch.standard[0] = Descriptor(ends[1]);
    for (const auto &[own, theirs] : {std::pair(&d->output, 1), {&d->message, 2}}) {
        if (::pipe2(ends, O_CLOEXEC) != 0)
            return problem(errno);
        *own = Descriptor(ends[0]);
        launch.standard[theirs] = Descriptor(ends[1]);
        ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    }
    launch.program = QFile::encodeName(child.program);
    launch.folder = QFile::encodeName(child.folder);
    launch.arguments.push_back(launch.program);
    for (const QString &argument : child.arguments)
        launch.arguments.push_back(QFile::encodeName(argument));
    launch.environment = environmentOf(child.folder);
    launch.argumentList = listOf(launch.arguments);
    launch.environmentList = listOf(launch.environment);
    launch.memory = child.memory;
    launch.seconds = child.seconds;
    launch.file = child.file;
    d->pid = launchChild(launch);
    if (d->pid < 0)
        return problem(errno);
    d->end = Descriptor(static_cast<int>(::syscall(SYS_pidfd_open, d->pid, 0)));
    return RunningChild(std::move(d));
}

Result<ChildEnd> RunningChild::ask(const QByteArray &input, Input then, const IsAnswer &isAnswer,
                                   const QString &where, const std::atomic_bool &cancelled)
{
    QElapsedTimer timer;
    timer.start();
    QByteArrayView rest(input);
    QByteArray message;
    QByteArray output;
    const auto read = [&] {
        readInto(message, d->message, messageBytes);
        readInto(output, d->output, outputBytes);
    };
    for (int status = 0;;) {
        d->write(rest);
        if (rest.isEmpty() && then == Input::Ends)
            d->input.close();
        read();
        if (isAnswer && isAnswer(output))
            return ChildEnd{0, output, {}};
        if (d->pid < 0 || d->hasEnded(&status)) {
            read();
            // What it wrote last: whole, though it ended afterwards.
            if (!WIFEXITED(status))
                return crashed(d->program, where, WTERMSIG(status));
            return ChildEnd{WEXITSTATUS(status), output, QString::fromUtf8(message).trimmed()};
        }
        if (cancelled) {
            d->leaveIt();
            return Error{Error::Code::Cancelled, where, {}};
        }
        const int seconds = d->program.seconds;
        if (seconds > 0 && timer.hasExpired(seconds * 1000)) {
            d->leaveIt();
            return timedOut(d->program, where);
        }
        d->wait(!rest.isEmpty());
    }
}

Result<ChildEnd> runChild(const ChildProgram &child, const QString &where,
                          const std::atomic_bool &cancelled)
{
    Result<RunningChild> started = RunningChild::start(child, where);
    if (!started)
        return started.error();
    Result<ChildEnd> end = started.value().ask(child.input.value_or(QByteArray()),
                                               RunningChild::Input::Ends, {}, where, cancelled);
    if (end && !child.input)
        end.value().output.clear();
    return end;
}

} // namespace kelvo
