#include "kelvo_print.h"

#include <QDir>
#include <QElapsedTimer>
#include <QMap>

#include <csignal>

namespace {

constexpr int patienceMs = 30'000;
constexpr int endMs = 5000; // for a process that was told to go

} // namespace

QStringList Run::messages() const
{
    return err.split(u'\n', Qt::SkipEmptyParts);
}

Desk::Desk()
{
    const auto folder = [this](const char *variable, const char *name) {
        const QString path = m_folder.filePath(QLatin1String(name));
        QDir().mkpath(path);
        m_environment.insert(QLatin1String(variable), path);
    };
    folder("HOME", "home");
    folder("XDG_CONFIG_HOME", "home/config");
    folder("XDG_DATA_HOME", "home/data");
    folder("XDG_CACHE_HOME", "home/cache");
    folder("KELVO_SUPPORT_DIR", "support");
    folder("KELVO_SITE_DIR", "site");
    QDir().mkpath(path({}));
    QDir().mkpath(presetFolder());
    QDir().mkpath(sitePresetFolder());
}

QString Desk::presetFolder() const
{
    return m_folder.filePath(QStringLiteral("home/config/kelvo/presets"));
}

QString Desk::sitePresetFolder() const
{
    return m_folder.filePath(QStringLiteral("site/presets"));
}

Run Desk::run(const QStringList &arguments, const QByteArray &input) const
{
    return run(arguments, input, Interrupt());
}

Run Desk::interrupt(const QStringList &arguments, int afterMs) const
{
    return run(arguments, {},
               [afterMs](QProcess &process) { return !process.waitForFinished(afterMs); });
}

Run Desk::interrupt(const QStringList &arguments, const QByteArray &sign) const
{
    return run(arguments, {}, [&sign](QProcess &process) {
        process.setReadChannel(QProcess::StandardError);
        while (process.waitForReadyRead(patienceMs)) {
            if (process.peek(process.bytesAvailable()).contains(sign))
                return true;
        }
        return false;
    });
}

void Desk::prepare(QProcess &process, const QStringList &arguments) const
{
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(path({}));
    if (m_atStart)
        process.setChildProcessModifier(m_atStart);
    QStringList words = m_command + QStringList(QStringLiteral(KELVO_PRINT)) + arguments;
    process.setProgram(words.takeFirst());
    process.setArguments(words);
}

Run Desk::run(const QStringList &arguments, const QByteArray &input, const Interrupt &isToEnd) const
{
    QProcess process;
    prepare(process, arguments);
    QElapsedTimer timer;
    timer.start();
    process.start();
    process.write(input);
    process.closeWriteChannel();
    if (isToEnd && isToEnd(process))
        ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    const bool hasEnded =
        process.state() == QProcess::NotRunning || process.waitForFinished(patienceMs);
    Run run;
    run.ms = timer.elapsed();
    if (!hasEnded) {
        process.kill();
        process.waitForFinished(endMs);
    } else if (process.exitStatus() == QProcess::NormalExit) {
        run.status = process.exitCode();
    }
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QMap<QString, QByteArray> filesIn(const QString &folder)
{
    QMap<QString, QByteArray> files;
    const auto entries = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo &entry : entries)
        files.insert(entry.fileName(), bytesOf(entry.filePath()));
    return files;
}

QMultiMap<QString, QString> optionsIn(const QString &path)
{
    QMultiMap<QString, QString> options;
    const QStringList lines = QString::fromUtf8(bytesOf(path)).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        options.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    return options;
}

QString script(const char *name)
{
    return QStringLiteral(KELVO_SCRIPTS "/") + QLatin1String(name);
}

kelvo::TicketFile ticketIn(const QString &folder)
{
    const auto ticket = kelvo::readTicketFile(folder + QStringLiteral("/ticket.plist"));
    return ticket ? ticket.value() : kelvo::TicketFile();
}
