#pragma once

#include <QList>
#include <QMap>
#include <QString>

// What was set for printers beside the server: by the user with `lpoptions`, and for all
// users of this machine.
namespace kelvo {

struct UserDestination
{
    QString name; // "Hall-3"; instances as "Hall-3/draft", right after their printer
    QMap<QString, QString> options; // an instance has those of its printer, too
};

struct UserDestinations
{
    QList<UserDestination> destinations; // whether there is such a printer or not
    // The one that the user wants where nobody names a printer; empty: the server's.
    QString defaultName;
    // By the environment (LPDEST, PRINTER), which beats files and server, also where it
    // names a printer that there is not, or an empty one.
    bool isDefaultForced = false;
};

// Reads CUPS_SERVERROOT/lpoptions (/etc/cups) and after it ~/.cups/lpoptions, as libcups
// does: what cannot be read says nothing. Asks no server; libcups has no call for these
// files that does not.
UserDestinations readUserDestinations();

// Names of printers are the same in any case; so are instances.
bool isSamePrinter(const QString &name, const QString &other);

} // namespace kelvo
