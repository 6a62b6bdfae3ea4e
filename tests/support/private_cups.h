#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <list>
#include <memory>

// A print server of the test's own, on a free loopback port, started by an
// ordinary user. Its queues lead to a back end that keeps what it gets. It ends
// with this object, and with the test program however that ends.
class PrivateCups
{
public:
    PrivateCups() = default;
    ~PrivateCups();

    enum class Encryption { Never, IfRequested };

    // Queues that are there as soon as it starts: hundreds take lpadmin a while. The first is the
    // default.
    struct Queue
    {
        QString name, info = {}, location = {};
        QString ppd = {};                       // the path of its PPD; empty: none
        QString state = QStringLiteral("Idle"); // or "Stopped"
        QString stateMessage = {};
        QString reason = {}; // "media-jam-error"
    };
    void setQueues(QList<Queue> queues) { m_queues = std::move(queues); }

    // Starts it and makes it the server of this process and its children
    // (CUPS_SERVER). Empty, or what went wrong.
    QString start(Encryption encryption = Encryption::Never);
    QString server() const { return m_server; } // "127.0.0.1:PORT"
    int port() const { return m_port; }

    // A queue with the PPD at `ppdPath`, none (raw) where that is empty.
    // `options` are further arguments for lpadmin. Empty, or what went wrong.
    QString addQueue(const QString &name, const QString &ppdPath, const QStringList &options = {});
    // What stands in the place of that queue's PPD from now on, past lpadmin's checks.
    bool damagePpd(const QString &queue, const QByteArray &bytes) const;
    // lpadmin with any arguments, or another program of the administrator's.
    QString administer(const QStringList &arguments,
                       const QString &program = QStringLiteral("lpadmin"));

    struct Job
    {
        QString id, user, title, copies;
        QMap<QString, QStringList>
            options; // name → every value that came; booleans "true", "false"
        QByteArray document;
    };
    // The jobs that reached the back end, in order; waits until there are at
    // least `count`, at most ten seconds.
    std::list<Job> jobs(int count);

    // The end of the server's log, for the message of a failed test.
    QString log() const;

private:
    QString write(const QString &name, const QString &text) const;
    bool answers() const;

    QString writeQueues() const;

    QTemporaryDir m_folder;
    QList<Queue> m_queues;
    QProcess m_process;
    QString m_server;
    int m_port = 0;
};
