#include "child_process.h"

#include "size_limits.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace kelvo {

namespace {

constexpr int pollMs = 100;
constexpr qsizetype messageBytes = 4096;

void limit(int resource, qint64 value)
{
    const rlimit both{static_cast<rlim_t>(value), static_cast<rlim_t>(value)};
    ::setrlimit(static_cast<__rlimit_resource_t>(resource), &both);
}

// The address sanitizer reserves terabytes that it never touches.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool memoryIsLimited = false;
#elif defined(__has_feature)
constexpr bool memoryIsLimited = !__has_feature(address_sanitizer);
#else
constexpr bool memoryIsLimited = true;
#endif

// Between fork and exec: only what is safe there.
void enterLimits()
{
    if (memoryIsLimited)
        limit(RLIMIT_AS, limits::converterMemory);
    limit(RLIMIT_CPU, limits::converterSeconds);
    limit(RLIMIT_FSIZE, limits::documentBytes);
    ::signal(SIGXFSZ, SIG_DFL); // the program ignores it
    limit(RLIMIT_CORE, 0);      // a core file would hold the user's document
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
}

QProcessEnvironment childEnvironment(const QString &folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("GS_OPTIONS")); // could take -dSAFER back
    environment.insert(QStringLiteral("TMPDIR"), folder);
    environment.insert(QString::fromLatin1(kConverterVariable), QStringLiteral("1"));
    return environment;
}

Error timedOut(const QString &where)
{
    return Error{
        Error::Code::TimedOut, where,
        QStringLiteral("turning it into PDF took longer than %1 seconds; it may be damaged")
            .arg(limits::converterSeconds)};
}

Error crashed(const QString &where, int signal)
{
    if (signal == SIGXCPU || signal == SIGKILL) // the kernel's two ways to end the CPU time
        return timedOut(where);
    if (signal == SIGXFSZ) {
        return Error{Error::Code::TooLarge, where,
                     QStringLiteral("as PDF it would be larger than %1 MB")
                         .arg(limits::documentBytes / limits::MiB)};
    }
    return Error{Error::Code::Damaged, where,
                 QStringLiteral("the program that reads it crashed; the file is damaged, or needs "
                                "more memory than it may have")};
}

void end(QProcess &process)
{
    process.kill();
    process.waitForFinished(-1);
}

} // namespace

Result<ChildEnd> runChild(const ChildProgram &child, const QString &where,
                          const std::atomic_bool &cancelled)
{
    // A program that does not know the helper's option would start helpers
    // without end.
    if (qEnvironmentVariableIsSet(kConverterVariable)) {
        return Error{Error::Code::Refused, where,
                     QStringLiteral("a converter must not start another one")};
    }

    QProcess process;
    process.setProgram(child.program);
    process.setArguments(child.arguments);
    process.setWorkingDirectory(child.folder);
    process.setProcessEnvironment(childEnvironment(child.folder));
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setChildProcessModifier(enterLimits);
    process.start();
    if (!process.waitForStarted(-1)) {
        return Error{Error::Code::NotReadable, where,
                     QStringLiteral("%1 does not start: %2")
                         .arg(QFileInfo(child.program).fileName(), process.errorString())};
    }

    QElapsedTimer timer;
    timer.start();
    QByteArray message;
    while (!process.waitForFinished(pollMs) && process.state() != QProcess::NotRunning) {
        // Read all the time, and what is too much is dropped: a full pipe would
        // hold the child up, a full buffer us.
        message += process.readAllStandardError().left(messageBytes - message.size());
        if (cancelled) {
            end(process);
            return Error{Error::Code::Cancelled, where, {}};
        }
        if (timer.hasExpired(limits::converterSeconds * 1000)) {
            end(process);
            return timedOut(where);
        }
    }
    message += process.readAllStandardError().left(messageBytes - message.size());

    // After a crash, Qt's exit code on Unix is the signal.
    if (process.exitStatus() == QProcess::CrashExit)
        return crashed(where, process.exitCode());
    return ChildEnd{process.exitCode(), QString::fromUtf8(message).trimmed()};
}

} // namespace kelvo
