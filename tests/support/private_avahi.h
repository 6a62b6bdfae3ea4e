#pragma once

#include "private_bus.h"

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// DNS-SD as most desktops have it: avahi-daemon on a system bus of the test's own, which is
// this process's and its children's (DBUS_SYSTEM_BUS_ADDRESS). It looks at the loopback
// interface alone, needs no rights, and ends with this object.
class PrivateAvahi
{
public:
    PrivateAvahi() = default;
    ~PrivateAvahi();

    // Empty, or what went wrong.
    QString start();
    QString busAddress() const { return m_bus.address(); }

private:
    PrivateBus m_bus{PrivateBus::Kind::System};
    QTemporaryDir m_folder;
    QProcess m_daemon;
};
