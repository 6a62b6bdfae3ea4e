#include "notification_service.h"

#include <QDBusError>
#include <QFile>

#include <csignal>
#include <sys/prctl.h>

namespace {

const QString connectionName = QStringLiteral("notifications");

const char *const configuration =
    "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
    " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
    "<busconfig><type>session</type><listen>unix:dir=%1</listen><auth>EXTERNAL</auth>\n"
    "<policy context=\"default\"><allow send_destination=\"*\"/><allow receive_sender=\"*\"/>\n"
    "<allow own=\"*\"/></policy></busconfig>\n";

} // namespace

NotificationService::~NotificationService()
{
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    QDBusConnection::disconnectFromBus(connectionName);
    m_daemon.terminate();
    m_daemon.waitForFinished(3000);
}

QString NotificationService::start()
{
    const QString path = m_folder.filePath(QStringLiteral("bus.conf"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)
        || file.write(QString::fromLatin1(configuration).arg(m_folder.path()).toUtf8()) < 0)
        return file.errorString();
    file.close();
    m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_daemon.start(QStringLiteral(DBUS_DAEMON),
                   {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                    QStringLiteral("--print-address"), QStringLiteral("--config-file=") + path});
    if (!m_daemon.waitForReadyRead(5000))
        return QStringLiteral("dbus-daemon does not start: ")
            + QString::fromUtf8(m_daemon.readAllStandardError());
    const QByteArray address = m_daemon.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QDBusConnection bus = QDBusConnection::connectToBus(QString::fromUtf8(address), connectionName);
    const bool isThere = bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                            QDBusConnection::ExportAllSlots)
        && bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
    return isThere ? QString() : bus.lastError().message();
}

QStringList NotificationService::GetCapabilities() const
{
    return {QStringLiteral("body"), QStringLiteral("body-markup")};
}

uint NotificationService::Notify(const QString &, uint, const QString &, const QString &summary,
                                 const QString &body, const QStringList &, const QVariantMap &, int)
{
    m_shown << summary + u'|' + body;
    return 1;
}
