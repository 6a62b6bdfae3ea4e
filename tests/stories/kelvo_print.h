#pragma once

#include "files.h"
#include "ticket_file.h"

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

// How a run of kelvo-print ended.
struct Run
{
    int status = -1; // of the exit; -1 for a crash or a run that was ended from here
    QString out, err;
    qint64 ms = 0;

    QStringList messages() const; // what was said on standard error, line by line
};

// A user's place: a home, a folder of an administrator's presets and a working
// folder of its own, in which the program is run.
class Desk
{
public:
    Desk();

    QString path(const QString &name) const
    {
        return m_folder.filePath(QStringLiteral("work/") + name);
    }
    QString presetFolder() const;     // the user's own
    QString sitePresetFolder() const; // the administrator's

    // Sets a variable of the environment that the program runs in.
    void set(const QString &name, const QString &value) { m_environment.insert(name, value); }
    // Takes a variable out of that environment.
    void unset(const QString &name) { m_environment.remove(name); }
    // A sanitizer that looks for leaks needs a thread, and to trace the program itself.
    void leaveLeaksAlone()
    {
        set(QStringLiteral("ASAN_OPTIONS"),
            QStringLiteral("detect_odr_violation=0:detect_leaks=0"));
    }
    // The program's path and arguments become the last ones of `command`.
    void under(const QStringList &command) { m_command = command; }
    // Runs in the program's process before it begins.
    void atStart(std::function<void()> modifier) { m_atStart = std::move(modifier); }

    // The program, ready to be started: for what happens while it runs.
    void prepare(QProcess &process, const QStringList &arguments) const;
    // Runs the program to its end, at most 30 s.
    Run run(const QStringList &arguments, const QByteArray &input = {}) const;
    // The same, with an interrupt after `afterMs`.
    Run interrupt(const QStringList &arguments, int afterMs) const;
    // The same, as soon as `sign` stands on standard error.
    Run interrupt(const QStringList &arguments, const QByteArray &sign) const;

private:
    using Interrupt = std::function<bool(QProcess &process)>; // waits; false: none any more
    Run run(const QStringList &arguments, const QByteArray &input, const Interrupt &isToEnd) const;

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QStringList m_command;
    std::function<void()> m_atStart;
};

// The file's name and contents of everything in a folder.
QMap<QString, QByteArray> filesIn(const QString &folder);
// `lines` of "name=value"; a name that stands twice has two values.
QMultiMap<QString, QString> optionsIn(const QString &path);

inline const QString documentPath = QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf");
inline const QString nonceKey = QStringLiteral("com.kelvo.print.TicketNonce"); // of one job

// The path of a script beside the stories.
QString script(const char *name);

// The ticket in a folder that a job went to; an empty one where there is none.
kelvo::TicketFile ticketIn(const QString &folder);

// The run ended with `status`; else what it said.
#define QENDED(run, wanted)                                                                        \
    do {                                                                                           \
        const Run &ended = (run);                                                                  \
        QVERIFY2(ended.status == (wanted),                                                         \
                 qPrintable(QStringLiteral("ended with %1\n%2%3")                                  \
                                .arg(QString::number(ended.status), ended.out, ended.err)));       \
    } while (false)
