#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A session bus of the test's own, which is this process's (DBUS_SESSION_BUS_ADDRESS) and its
// children's. It ends with this object, with what runs on it, and with the test program
// however that ends.
class PrivateBus
{
public:
    PrivateBus() = default;
    ~PrivateBus();

    // Starts it, with the services in that folder, if any, in that environment. Empty, or what
    // went wrong.
    QString
    start(const QString &serviceFolder = {},
          const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    QString address() const { return m_address; }
    qint64 processId() const { return m_daemon.processId(); }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
};
