#pragma once

#include "private_bus.h"

#include <QObject>
#include <QStringList>
#include <QVariantMap>

// A session bus of the test's own with a desktop on it that shows notifications: it
// keeps what it is asked to show. It ends with this object.
class NotificationService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    NotificationService() = default;
    ~NotificationService() override;

    // Starts it. Empty, or what went wrong.
    QString start();
    QStringList shown() const { return m_shown; } // "SUMMARY|BODY"

public slots:
    // NOLINTBEGIN(readability-identifier-naming): the service's own names
    QStringList GetCapabilities() const;
    uint Notify(const QString &application, uint replaces, const QString &icon,
                const QString &summary, const QString &body, const QStringList &actions,
                const QVariantMap &hints, int timeoutMs);
    // NOLINTEND(readability-identifier-naming)

private:
    PrivateBus m_bus;
    QStringList m_shown;
};
