#include "desktop_notification.h"

#include <systemd/sd-bus.h>

#include <cstring>
#include <memory>

namespace kelvo {

namespace {

constexpr const char *service = "org.freedesktop.Notifications";
constexpr const char *path = "/org/freedesktop/Notifications";
constexpr std::uint64_t timeoutUs = 3'000'000; // for one call

struct CloseBus
{
    // Without flushing: a bus that answers nobody would be waited for.
    void operator()(sd_bus *bus) const
    {
        sd_bus_close(bus);
        sd_bus_unref(bus);
    }
};

struct Unref
{
    void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, Unref>;

// Services that know markup take plain text for it.
bool readsMarkup(sd_bus *bus)
{
    sd_bus_message *answer = nullptr;
    if (sd_bus_call_method(bus, service, path, service, "GetCapabilities", nullptr, &answer, "")
        < 0)
        return false;
    const Message owner(answer);
    bool reads = false;
    const char *capability = nullptr;
    if (sd_bus_message_enter_container(answer, 'a', "s") >= 0) {
        while (sd_bus_message_read_basic(answer, 's', &capability) > 0)
            reads |= std::strcmp(capability, "body-markup") == 0;
    }
    return reads;
}

} // namespace

bool showDesktopNotification(const QString &summary, const QString &body)
{
    sd_bus *opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        return false;
    const std::unique_ptr<sd_bus, CloseBus> bus(opened);
    sd_bus_set_method_call_timeout(bus.get(), timeoutUs);
    const QString text = readsMarkup(bus.get()) ? body.toHtmlEscaped() : body;
    const int status = sd_bus_call_method(
        bus.get(), service, path, service, "Notify", nullptr, nullptr, "susssasa{sv}i",
        "kelvo-print", 0U, "kelvo-print", summary.toUtf8().constData(), text.toUtf8().constData(),
        0, 1, "desktop-entry", "s", "kelvo-print", -1);
    return status >= 0;
}

} // namespace kelvo
