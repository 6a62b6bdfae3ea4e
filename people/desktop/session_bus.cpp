#include "session_bus.h"

#include "texts.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <string_view>

namespace kelvo {

namespace {

using Code = Error::Code;

// Their numbers are other ones with other versions.
constexpr std::string_view sourcesPrefix = "org.gnome.evolution.dataserver.Sources";
constexpr std::string_view booksPrefix = "org.gnome.evolution.dataserver.AddressBook";

// GLib would start a bus for a display that has none.
bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
        || (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")
            && QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QLatin1String("/bus")));
}

// Shared by all of the process that use GLib: one that has ended stays for as long as somebody
// holds it, and one whose beginning is cancelled is so for everybody.
GLibOwner<GDBusConnection> openBus(GLibError &error)
{
    GLibOwner<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, error));
    if (bus) // else its end would be this program's
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    return bus;
}

// Whether a name that `method` lists begins with each of the prefixes.
bool lists(GDBusConnection *bus, const char *method, std::array<bool, 2> &found,
           GCancellable *cancellable, GLibError &error)
{
    const GLibOwner<GVariant> answer(g_dbus_connection_call_sync(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
        nullptr, G_VARIANT_TYPE("(as)"), G_DBUS_CALL_FLAGS_NONE, -1, cancellable, error));
    if (!answer)
        return false;
    GVariantIter *names = nullptr;
    g_variant_get(answer.get(), "(as)", &names);
    const char *name = nullptr;
    while (g_variant_iter_next(names, "&s", &name)) {
        found[0] = found[0] || std::string_view(name).starts_with(sourcesPrefix);
        found[1] = found[1] || std::string_view(name).starts_with(booksPrefix);
    }
    g_variant_iter_free(names);
    return true;
}

} // namespace

Error doesNotAnswer(const GLibError &error, const QString &book)
{
    const QString where = book.isEmpty() ? translate("People", "address book") : book;
    if (error.isCancelled())
        return {Code::Cancelled, where, translate("People", "stopped before it had answered")};
    return {Code::Unreachable, where,
            translate("People", "it does not answer (%1); try again").arg(error.text())};
}

Result<GLibOwner<GDBusConnection>> busWithAddressBook(GCancellable *cancellable)
{
    const QString where = translate("People", "address book");
    if (!hasSessionBus()) {
        return Error{
            Code::NotFound, where,
            translate("People",
                      "there is no desktop session with an address book; log in to a desktop")};
    }
    GLibError error;
    auto bus = openBus(error);
    if (!bus)
        return doesNotAnswer(error);
    std::array<bool, 2> found{};
    for (const char *method : {"ListNames", "ListActivatableNames"}) {
        if (!lists(bus.get(), method, found, cancellable, error))
            return doesNotAnswer(error);
    }
    if (!found[0] || !found[1]) {
        return Error{
            Code::NotFound, where,
            translate(
                "People",
                "this desktop has no address book; install the package evolution-data-server")};
    }
    return bus;
}

} // namespace kelvo
