#include "child_process.h"

#include "sanitizers.h"
#include "texts.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace kelvo {

namespace {

constexpr int pollMs = 100;
constexpr qsizetype messageBytes = 4096;
constexpr qsizetype outputBytes = 256 * limits::MiB; // the sizes of 16 million pages

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
    environment.insert(QStringLiteral("TMPDIR"), folder);
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

void end(QProcess &process)
{
    process.kill();
    process.waitForFinished(-1);
}

// What is too much is read all the same, and dropped: a full pipe would hold the
// child up, a full buffer us.
void readInto(QByteArray &bytes, const QByteArray &more, qsizetype most)
{
    bytes += more.left(most - bytes.size());
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

Result<ChildEnd> runChild(const ChildProgram &child, const QString &where,
                          const std::atomic_bool &cancelled)
{
    QProcess process;
    prepareChild(process, child);
    if (!child.input) {
        process.setStandardInputFile(QProcess::nullDevice());
        process.setStandardOutputFile(QProcess::nullDevice());
    }
    process.start();
    if (!process.waitForStarted(-1)) {
        return Error{Error::Code::NotReadable, where,
                     translate("Document", "%1 does not start: %2")
                         .arg(QFileInfo(child.program).fileName(), process.errorString())};
    }
    if (child.input) {
        process.write(*child.input);
        process.closeWriteChannel();
    }

    QElapsedTimer timer;
    timer.start();
    QByteArray message;
    QByteArray output;
    const auto read = [&] {
        readInto(message, process.readAllStandardError(), messageBytes);
        readInto(output, process.readAllStandardOutput(), outputBytes);
    };
    while (!process.waitForFinished(pollMs) && process.state() != QProcess::NotRunning) {
        read();
        if (cancelled) {
            end(process);
            return Error{Error::Code::Cancelled, where, {}};
        }
        if (child.seconds > 0 && timer.hasExpired(child.seconds * 1000)) {
            end(process);
            return timedOut(child, where);
        }
    }
    read();

    // After a crash, Qt's exit code on Unix is the signal.
    if (process.exitStatus() == QProcess::CrashExit)
        return crashed(child, where, process.exitCode());
    return ChildEnd{process.exitCode(), output, QString::fromUtf8(message).trimmed()};
}

} // namespace kelvo
