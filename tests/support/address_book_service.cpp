#include "address_book_service.h"

#include "files.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

#include <csignal>

namespace {

const QString connectionName = QStringLiteral("address book");
const QString namesPrefix = QStringLiteral("org.gnome.evolution.dataserver.");
const QString systemServices = QStringLiteral("/usr/share/dbus-1/services");

QDBusConnection connection()
{
    return QDBusConnection(connectionName);
}

// Those on the bus, or those that it could start, too.
QStringList services(const char *method)
{
    const QDBusReply<QStringList> names = connection().interface()->call(QLatin1String(method));
    return names.value().filter(namesPrefix);
}

QDBusMessage call(const QString &service, const QString &path, const QString &interface,
                  const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return connection().call(message);
}

// Asks the user's book.
QDBusMessage ask(const QString &method, const QVariantList &arguments)
{
    const QString own = namesPrefix + QStringLiteral("AddressBook");
    const QVariantList place =
        call(services("ListActivatableNames").filter(own).value(0),
             QStringLiteral("/org/gnome/evolution/dataserver/AddressBookFactory"),
             own + QStringLiteral("Factory"), QStringLiteral("OpenAddressBook"),
             {QStringLiteral("system-address-book")})
            .arguments();
    if (place.size() != 2)
        qFatal("no address book: %s", qPrintable(place.value(0).toString()));
    const QString path = place[0].toString(), service = place[1].toString();
    call(service, path, own, QStringLiteral("Open"), {});
    return call(service, path, own, method, arguments);
}

} // namespace

AddressBookService::~AddressBookService()
{
    // They take seconds to end by themselves, and what they have to save is the test's.
    for (const qint64 process : processes())
        ::kill(pid_t(process), SIGKILL);
    QDBusConnection::disconnectFromBus(connectionName);
}

QString AddressBookService::start()
{
    // Settings in a file below XDG_CONFIG_HOME, and no services for files of other computers.
    qputenv("GSETTINGS_BACKEND", "keyfile");
    qputenv("GIO_USE_VFS", "local");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment.insert(QLatin1String(name), m_folder.filePath(QLatin1String(name)));

    // Of the system's services these alone.
    const QString services = m_folder.filePath(QStringLiteral("services"));
    const QFileInfoList found = QDir(systemServices)
                                    .entryInfoList({namesPrefix + QStringLiteral("Sources*"),
                                                    namesPrefix + QStringLiteral("AddressBook*")});
    if (found.size() != 2)
        return QStringLiteral("no address book in %1: install evolution-data-server")
            .arg(systemServices);
    for (const QFileInfo &service : found)
        putFile(services + u'/' + service.fileName(), bytesOf(service.filePath()));
    if (const QString problem = m_bus.start(services, environment); !problem.isEmpty())
        return problem;
    const auto connected = QDBusConnection::connectToBus(m_bus.address(), connectionName);
    return connected.isConnected() ? QString() : connected.lastError().message();
}

QStringList AddressBookService::cards() const
{
    const QDBusReply<QStringList> cards =
        ask(QStringLiteral("GetContactList"),
            {QStringLiteral(R"((contains "x-evolution-any-field" ""))")});
    QStringList unfolded = cards.value();
    return unfolded.replaceInStrings(QStringLiteral("\r\n "), QString());
}

QStringList AddressBookService::addCards(const QStringList &cards) const
{
    const QDBusReply<QStringList> uids = ask(QStringLiteral("CreateContacts"), {cards, uint(0)});
    return uids.value();
}

void AddressBookService::setOwnCard(const QString &uid, const QString &configFolder)
{
    putFile(configFolder + QStringLiteral("/glib-2.0/settings/keyfile"),
            "[org/gnome/evolution-data-server/addressbook]\nself-contact-uid='" + uid.toUtf8()
                + "'\n");
}

QList<qint64> AddressBookService::processes() const
{
    QList<qint64> processes;
    for (const QString &service : services("ListNames"))
        processes << qint64(connection().interface()->servicePid(service).value());
    return processes;
}
