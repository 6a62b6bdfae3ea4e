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
