#include "desktop_notification.h"

#include <systemd/sd-bus.h>

#include <chrono>
#include <cstring>

namespace kelvo {

namespace {

constexpr const char *service = "org.freedesktop.Notifications";
constexpr const char *path = "/org/freedesktop/Notifications";
constexpr std::uint64_t timeoutUs = 3'000'000; // for one call

struct Unref
{
    void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, Unref>;

} // namespace

// Without flushing: a bus that answers nobody would be waited for.
void DesktopNotification::CloseBus::operator()(sd_bus *bus) const
{
    sd_bus_close(bus);
    sd_bus_unref(bus);
}

std::unique_ptr<DesktopNotification> DesktopNotification::open()
{
    sd_bus *opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        return nullptr;
    std::unique_ptr<DesktopNotification> notification(new DesktopNotification);
    notification->m_bus.reset(opened);
    sd_bus_set_method_call_timeout(opened, timeoutUs);
    if (!notification->readCapabilities())
        return nullptr;
    notification->listen();
    return notification;
}

DesktopNotification::~DesktopNotification() = default;

bool DesktopNotification::readCapabilities()
{
    sd_bus_message *answer = nullptr;
    if (sd_bus_call_method(m_bus.get(), service, path, service, "GetCapabilities", nullptr, &answer,
                           "")
        < 0)
        return false;
    const Message owner(answer);
    const char *capability = nullptr;
    if (sd_bus_message_enter_container(answer, 'a', "s") >= 0) {
        while (sd_bus_message_read_basic(answer, 's', &capability) > 0) {
            m_readsMarkup |= std::strcmp(capability, "body-markup") == 0;
            m_hasActions |= std::strcmp(capability, "actions") == 0;
        }
    }
    return true;
}

// Where nobody can be listened to, a button would do nothing.
void DesktopNotification::listen()
{
    const auto callBack = [](sd_bus_message *message, void *self, sd_bus_error *error) {
        return take(message, self, error);
    };
    for (const char *signal : {"ActionInvoked", "NotificationClosed"}) {
        if (sd_bus_match_signal(m_bus.get(), nullptr, service, path, service, signal, callBack,
                                this)
            < 0)
            m_hasActions = false;
    }
}

int DesktopNotification::take(sd_bus_message *message, void *self, void *)
{
    auto *notification = static_cast<DesktopNotification *>(self);
    unsigned int id = 0;
    if (sd_bus_message_read_basic(message, 'u', &id) < 0 || id != notification->m_id)
        return 0;
    if (std::strcmp(sd_bus_message_get_member(message), "NotificationClosed") == 0) {
        constexpr unsigned int byUser = 2; // else its time is over: the next one is shown anew
        unsigned int reason = 0;
        if (sd_bus_message_read_basic(message, 'u', &reason) >= 0 && reason == byUser)
            notification->m_events.push_back({Event::Kind::Closed});
        return 0;
    }
    const char *key = nullptr;
    if (sd_bus_message_read_basic(message, 's', &key) >= 0)
        notification->m_events.push_back({Event::Kind::Pressed, QString::fromUtf8(key)});
    return 0;
}

bool DesktopNotification::show(const QString &summary, const QString &body,
                               const std::vector<Action> &actions)
{
    // Services that know markup take plain text for it.
    const QByteArray text = (m_readsMarkup ? body.toHtmlEscaped() : body).toUtf8();
    sd_bus_message *made = nullptr;
    if (sd_bus_message_new_method_call(m_bus.get(), &made, service, path, service, "Notify") < 0)
        return false;
    const Message call(made);
    if (sd_bus_message_append(made, "susss", "kelvo-print", m_id, "kelvo-print",
                              summary.toUtf8().constData(), text.constData())
            < 0
        || sd_bus_message_open_container(made, 'a', "s") < 0)
        return false;
    for (const Action &action : actions) {
        if (m_hasActions
            && sd_bus_message_append(made, "ss", action.key.toUtf8().constData(),
                                     action.label.toUtf8().constData())
                < 0)
            return false;
    }
    if (sd_bus_message_close_container(made) < 0
        || sd_bus_message_append(made, "a{sv}i", 1, "desktop-entry", "s", "kelvo-print", -1) < 0)
        return false;
    sd_bus_message *answer = nullptr;
    if (sd_bus_call(m_bus.get(), made, 0, nullptr, &answer) < 0)
        return false;
    const Message owner(answer);
    sd_bus_message_read_basic(answer, 'u', &m_id);
    return true;
}

DesktopNotification::Event DesktopNotification::wait(int milliseconds)
{
    using namespace std::chrono;
    const auto end = steady_clock::now() + std::chrono::milliseconds(milliseconds);
    for (;;) {
        if (!m_events.empty()) {
            const Event first = m_events.front();
            m_events.erase(m_events.begin());
            return first;
        }
        const int done = sd_bus_process(m_bus.get(), nullptr);
        if (done < 0)
            return {Event::Kind::Gone};
        if (done > 0)
            continue;
        const auto left = duration_cast<microseconds>(end - steady_clock::now()).count();
        if (left <= 0)
            return {};
        if (sd_bus_wait(m_bus.get(), static_cast<std::uint64_t>(left)) < 0)
            return {Event::Kind::Gone};
    }
}

} // namespace kelvo
