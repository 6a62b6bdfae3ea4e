#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A bus of the test's own, which is this process's and its children's session or system bus
// (DBUS_SESSION_BUS_ADDRESS, DBUS_SYSTEM_BUS_ADDRESS). It ends with this object, with what runs
// on it, and with the test program however that ends.
class PrivateBus
{
public:
    enum class Kind { Session, System };

    explicit PrivateBus(Kind kind = Kind::Session)
        : m_variable(kind == Kind::Session ? "DBUS_SESSION_BUS_ADDRESS" : "DBUS_SYSTEM_BUS_ADDRESS")
    {
    }
    ~PrivateBus();

    // Starts it, with the services in that folder, if any, in that environment. Empty, or what
    // went wrong.
    QString
    start(const QString &serviceFolder = {},
          const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    QString address() const { return m_address; }
    qint64 processId() const { return m_daemon.processId(); }

private:
    const char *const m_variable;
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
};
