#pragma once

#include "private_bus.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// The desktop's address book (evolution-data-server) on a session bus of the test's own, with
// files of its own: what a program finds there that is started with address() as its
// DBUS_SESSION_BUS_ADDRESS. It is started by whoever asks it first, and ends with this object.
// What it has is asked for past the program's own code.
class AddressBookService
{
public:
    AddressBookService() = default;
    ~AddressBookService();

    // Makes the bus this process's. To be called before anything of GLib is. Empty, or what
    // went wrong.
    QString start();
    QString address() const { return m_bus.address(); }
    const PrivateBus &bus() const { return m_bus; }

    // The cards of the user's book, as they are stored, without folded lines.
    QStringList cards() const;
    // Adds them, and says their uids; empty where one was refused.
    QStringList addCards(const QStringList &cards) const;
    // The user's own card has that uid: for processes with that XDG_CONFIG_HOME that have not
    // asked for it yet.
    static void setOwnCard(const QString &uid,
                           const QString &configFolder = qEnvironmentVariable("XDG_CONFIG_HOME"));

    // All processes of it that run.
    QList<qint64> processes() const;

private:
    QTemporaryDir m_folder;
    PrivateBus m_bus;
};
