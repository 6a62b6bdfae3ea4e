#include "notification_service.h"

#include <QDBusConnection>
#include <QDBusError>

namespace {

const QString connectionName = QStringLiteral("notifications");

} // namespace

NotificationService::~NotificationService()
{
    QDBusConnection::disconnectFromBus(connectionName);
}

QString NotificationService::start()
{
    if (const QString problem = m_bus.start(); !problem.isEmpty())
        return problem;
    QDBusConnection bus = QDBusConnection::connectToBus(m_bus.address(), connectionName);
    const bool isThere =
        bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
        && bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
    return isThere ? QString() : bus.lastError().message();
}

QStringList NotificationService::GetCapabilities() const
{
    return {QStringLiteral("actions"), QStringLiteral("body"), QStringLiteral("body-markup")};
}

uint NotificationService::Notify(const QString &, uint replaces, const QString &,
                                 const QString &summary, const QString &body,
                                 const QStringList &actions, const QVariantMap &, int)
{
    QStringList parts{summary, body};
    for (qsizetype i = 1; i < actions.size(); i += 2)
        parts << actions[i];
    m_shown << parts.join(u'|');
    return m_last = replaces ? replaces : ++m_given;
}

void NotificationService::press(const QString &key)
{
    constexpr uint byUser = 2;
    emit ActionInvoked(m_last, key);
    emit NotificationClosed(m_last, byUser);
}
