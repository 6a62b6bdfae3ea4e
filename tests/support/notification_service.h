#pragma once

#include "private_bus.h"

#include <QObject>
#include <QStringList>
#include <QVariantMap>

// A session bus of the test's own with a desktop on it that shows notifications, with buttons: it
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
    QStringList shown() const { return m_shown; } // "SUMMARY|BODY", and "|LABEL" of each button
    // A button of the last one, as a desktop does it: the message goes.
    void press(const QString &key);

public slots:
    // NOLINTBEGIN(readability-identifier-naming): the service's own names
    QStringList GetCapabilities() const;
    uint Notify(const QString &application, uint replaces, const QString &icon,
                const QString &summary, const QString &body, const QStringList &actions,
                const QVariantMap &hints, int timeoutMs);
    // NOLINTEND(readability-identifier-naming)

signals:
    // NOLINTBEGIN(readability-identifier-naming): the service's own names
    void ActionInvoked(uint id, const QString &key);
    void NotificationClosed(uint id, uint reason);
    // NOLINTEND(readability-identifier-naming)

private:
    PrivateBus m_bus;
    QStringList m_shown;
    uint m_given = 0, m_last = 0; // numbers of messages
};
