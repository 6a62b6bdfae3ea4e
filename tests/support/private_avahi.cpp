#include "private_avahi.h"

#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <sys/prctl.h>

PrivateAvahi::~PrivateAvahi()
{
    m_daemon.terminate();
    m_daemon.waitForFinished(3000);
}

QString PrivateAvahi::start()
{
    if (const QString problem = m_bus.start(); !problem.isEmpty())
        return problem;
    const QString path = m_folder.filePath(QStringLiteral("avahi.conf"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)
        || file.write("[server]\nhost-name=kelvo-test\nallow-interfaces=lo\nuse-ipv6=no\n"
                      "disallow-other-stacks=no\n[wide-area]\nenable-wide-area=no\n"
                      "[publish]\ndisable-publishing=yes\n")
            < 0)
        return file.errorString();
    file.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(AVAHI_WITHOUT_RIGHTS));
    m_daemon.setProcessEnvironment(environment);
    m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_daemon.setProcessChannelMode(QProcess::MergedChannels);
    m_daemon.start(QStringLiteral(AVAHI_DAEMON),
                   {QStringLiteral("--no-drop-root"), QStringLiteral("--no-chroot"),
                    QStringLiteral("--no-rlimits"), QStringLiteral("--file=") + path});
    QByteArray said;
    QElapsedTimer timer;
    timer.start();
    while (!said.contains("Server startup complete")) {
        if (!m_daemon.waitForReadyRead(static_cast<int>(10000 - timer.elapsed())))
            return QStringLiteral("avahi-daemon does not start: ") + QString::fromUtf8(said);
        said += m_daemon.readAll();
    }
    return {};
}
