#include "private_cups.h"

#include "unreliable_server.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>

namespace {

QString textOf(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).trimmed();
}

// A job's options as a filter gets them: "name=value", "name" or "noname". Values
// with blanks stand in quotes; none of ours is among them.
QMap<QString, QStringList> optionsFrom(const QString &text)
{
    QMap<QString, QStringList> options;
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const qsizetype equals = word.indexOf(u'=');
        if (equals >= 0)
            options[word.left(equals)] << word.mid(equals + 1);
        else if (word.startsWith(QLatin1String("no")))
            options[word.mid(2)] << QStringLiteral("false");
        else
            options[word] << QStringLiteral("true");
    }
    return options;
}

} // namespace

PrivateCups::~PrivateCups()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(3000)) {
        m_process.kill();
        m_process.waitForFinished(3000);
    }
}

QString PrivateCups::write(const QString &name, const QString &text) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        return file.fileName() + QStringLiteral(": ") + file.errorString();
    return {};
}

bool PrivateCups::answers() const
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(m_port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const bool isThere =
        ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(fd);
    return isThere;
}

// In the server's own form.
QString PrivateCups::writeQueues() const
{
    QString text;
    const QDir etc(m_folder.filePath(QStringLiteral("etc")));
    if (!etc.mkpath(QStringLiteral("ppd")))
        return QStringLiteral("cannot make the folder of PPDs");
    for (const Queue &queue : m_queues) {
        const QString tag =
            text.isEmpty() ? QStringLiteral("DefaultPrinter") : QStringLiteral("Printer");
        text += QStringLiteral("<%1 %2>\n").arg(tag, queue.name);
        for (const auto &[key, value] : {std::pair("Info", queue.info),
                                         {"Location", queue.location},
                                         {"DeviceURI", QStringLiteral("kvtest://test")},
                                         {"State", queue.state},
                                         {"StateMessage", queue.stateMessage},
                                         {"Reason", queue.reason},
                                         {"Accepting", QStringLiteral("Yes")},
                                         {"ErrorPolicy", QStringLiteral("stop-printer")},
                                         {"OpPolicy", QStringLiteral("default")}}) {
            if (!value.isEmpty())
                text += QLatin1String(key) + u' ' + value + u'\n';
        }
        text += QStringLiteral("</%1>\n").arg(tag);
        if (!queue.ppd.isEmpty()
            && !QFile::copy(queue.ppd, etc.filePath(QStringLiteral("ppd/%1.ppd").arg(queue.name))))
            return QStringLiteral("cannot copy ") + queue.ppd;
    }
    return m_queues.isEmpty() ? QString() : write(QStringLiteral("etc/printers.conf"), text);
}

QString PrivateCups::start(Encryption encryption)
{
    const QString root = m_folder.path();
    const bool withTls = encryption == Encryption::IfRequested;
    for (const char *name :
         {"etc/ssl", "bin/backend", "bin/filter", "spool/tmp", "cache", "run", "log", "received"}) {
        if (!QDir(root).mkpath(QLatin1String(name)))
            return QStringLiteral("cannot make %1/%2").arg(root, QLatin1String(name));
    }
    // PDF becomes whatever a PPD wants, unchanged: what is tried is what jobs are told.
    const QString conversions = QStringLiteral("application/pdf application/vnd.cups-pdf 0 kvpass\n"
                                               "application/pdf application/vnd.cups-postscript 0 "
                                               "kvpass\n");
    if (const QString problem = write(QStringLiteral("etc/test.convs"), conversions);
        !problem.isEmpty())
        return problem;
    if (!QFile::copy(QStringLiteral(KVPASS_FILTER), root + QStringLiteral("/bin/filter/kvpass"))
        || !QFile::link(QStringLiteral(CUPS_SERVER_BIN "/backend/ipp"),
                        root + QStringLiteral("/bin/backend/ipp")))
        return QStringLiteral("cannot set up the filter in ") + root;
    // The server starts its programs through one of its own.
    if (!QFile::link(QStringLiteral(CUPS_SERVER_BIN "/daemon"),
                     root + QStringLiteral("/bin/daemon"))
        || !QFile::copy(QStringLiteral(KVTEST_BACKEND),
                        root + QStringLiteral("/bin/backend/kvtest"))
        || !QFile::setPermissions(root + QStringLiteral("/bin/backend/kvtest"),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                      | QFile::ReadOther | QFile::ExeOther))
        return QStringLiteral("cannot set up the back end in ") + root;

    const QString files = QStringLiteral("ServerRoot %1/etc\n"
                                         "ServerBin %1/bin\n"
                                         "DataDir " CUPS_DATA_DIR "\n"
                                         "RequestRoot %1/spool\n"
                                         "CacheDir %1/cache\n"
                                         "StateDir %1/run\n"
                                         "TempDir %1/spool/tmp\n"
                                         "ErrorLog %1/log/error_log\n"
                                         "AccessLog %1/log/access_log\n"
                                         "PageLog %1/log/page_log\n"
                                         "SystemGroup root\n"
                                         "FileDevice Yes\n"
                                         "ServerKeychain %1/etc/ssl\n"
                                         "CreateSelfSignedCerts %2\n"
                                         "SetEnv KVTEST_FOLDER %1/received\n");
    const QString daemon = QStringLiteral("Listen 127.0.0.1:%1\n"
                                          "LogLevel debug\n"
                                          "Browsing No\n"
                                          "BrowseLocalProtocols none\n"
                                          "DefaultAuthType None\n"
                                          "DefaultEncryption %2\n"
                                          "WebInterface No\n"
                                          "MaxJobs 0\n"
                                          "<Location />\n"
                                          "  Order allow,deny\n"
                                          "  Allow all\n"
                                          "</Location>\n"
                                          "<Policy default>\n"
                                          "  <Limit All>\n"
                                          "    Order allow,deny\n"
                                          "    Allow all\n"
                                          "  </Limit>\n"
                                          "</Policy>\n");
    if (const QString problem = writeQueues(); !problem.isEmpty())
        return problem;
    // Somebody else may take the port between asking for it and using it.
    for (int attempt = 0; attempt < 5; ++attempt) {
        m_port = freePort();
        QString problem =
            write(QStringLiteral("etc/cups-files.conf"),
                  files.arg(root, withTls ? QStringLiteral("yes") : QStringLiteral("no")));
        if (problem.isEmpty())
            problem = write(
                QStringLiteral("etc/cupsd.conf"),
                daemon.arg(QString::number(m_port),
                           withTls ? QStringLiteral("IfRequested") : QStringLiteral("Never")));
        if (!problem.isEmpty())
            return problem;
        m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral(CUPSD),
                        {QStringLiteral("-f"), QStringLiteral("-c"),
                         root + QStringLiteral("/etc/cupsd.conf"), QStringLiteral("-s"),
                         root + QStringLiteral("/etc/cups-files.conf")});
        QElapsedTimer timer;
        timer.start();
        while (m_process.state() != QProcess::NotRunning && timer.elapsed() < 5000) {
            m_process.waitForFinished(20);
            if (m_process.state() == QProcess::Running && answers()) {
                m_server = QStringLiteral("127.0.0.1:%1").arg(m_port);
                qputenv("CUPS_SERVER", m_server.toUtf8());
                return {};
            }
        }
    }
    return QStringLiteral("cupsd does not start: ") + textOf(m_process.readAll()) + u'\n' + log();
}

QString PrivateCups::administer(const QStringList &arguments, const QString &program)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(CUPS_ADMIN_BIN "/") + program, arguments);
    if (process.waitForFinished(10000) && process.exitCode() == 0)
        return {};
    return program + QStringLiteral(": ") + textOf(process.readAll()) + u'\n' + log();
}

QString PrivateCups::addQueue(const QString &name, const QString &ppdPath,
                              const QStringList &options)
{
    QStringList arguments{QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                          QStringLiteral("kvtest://test")};
    if (!ppdPath.isEmpty())
        arguments << QStringLiteral("-P") << ppdPath;
    return administer(arguments + options);
}

bool PrivateCups::damagePpd(const QString &queue, const QByteArray &bytes) const
{
    QFile file(m_folder.filePath(QStringLiteral("etc/ppd/%1.ppd").arg(queue)));
    return file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Truncate)
        && file.write(bytes) == bytes.size();
}

std::list<PrivateCups::Job> PrivateCups::jobs(int count)
{
    QDir received(m_folder.filePath(QStringLiteral("received")));
    const auto numbers = [&received] {
        QList<int> list;
        for (const QString &name : received.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            bool isWhole = false; // "3.part" is still being written
            const int number = name.toInt(&isWhole);
            if (isWhole)
                list << number;
        }
        std::sort(list.begin(), list.end());
        return list;
    };
    QElapsedTimer timer;
    timer.start();
    while (numbers().size() < count && timer.elapsed() < 10000)
        QThread::msleep(10);

    std::list<Job> jobs;
    for (const int number : numbers()) {
        const QString folder = received.filePath(QString::number(number));
        QFile argumentFile(folder + QStringLiteral("/arguments"));
        QFile document(folder + QStringLiteral("/document"));
        if (!argumentFile.open(QIODevice::ReadOnly) || !document.open(QIODevice::ReadOnly))
            continue;
        const QList<QByteArray> arguments = argumentFile.readAll().split('\0');
        if (arguments.size() < 5)
            continue;
        jobs.push_back({textOf(arguments[0]), textOf(arguments[1]), textOf(arguments[2]),
                        textOf(arguments[3]), optionsFrom(textOf(arguments[4])),
                        document.readAll()});
    }
    return jobs;
}

QString PrivateCups::log() const
{
    QFile file(m_folder.filePath(QStringLiteral("log/error_log")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    file.seek(std::max<qint64>(0, file.size() - 3000));
    return QString::fromUtf8(file.readAll());
}
