#include "private_bus.h"

#include <QFile>

#include <csignal>
#include <sys/prctl.h>

namespace {

const char *const configuration =
    "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
    " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
    "<busconfig><type>session</type><listen>unix:dir=%1</listen><auth>EXTERNAL</auth>\n"
    "<servicedir>%2</servicedir>\n"
    "<policy context=\"default\"><allow send_destination=\"*\"/><allow receive_sender=\"*\"/>\n"
    "<allow own=\"*\"/></policy></busconfig>\n";

} // namespace

PrivateBus::~PrivateBus()
{
    qunsetenv(m_variable);
    m_daemon.terminate();
    m_daemon.waitForFinished(3000);
}

QString PrivateBus::start(const QString &serviceFolder, const QProcessEnvironment &environment)
{
    const QString path = m_folder.filePath(QStringLiteral("bus.conf"));
    QFile file(path);
    const QString folder = serviceFolder.isEmpty() ? m_folder.path() : serviceFolder;
    if (!file.open(QIODevice::WriteOnly)
        || file.write(QString::fromLatin1(configuration).arg(m_folder.path(), folder).toUtf8()) < 0)
        return file.errorString();
    file.close();
    m_daemon.setProcessEnvironment(environment);
    m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_daemon.start(QStringLiteral(DBUS_DAEMON),
                   {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                    QStringLiteral("--print-address"), QStringLiteral("--config-file=") + path});
    if (!m_daemon.waitForReadyRead(5000))
        return QStringLiteral("dbus-daemon does not start: ")
            + QString::fromUtf8(m_daemon.readAllStandardError());
    m_address = QString::fromUtf8(m_daemon.readLine().trimmed());
    qputenv(m_variable, m_address.toUtf8());
    return {};
}
