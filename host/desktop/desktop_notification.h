#pragma once

#include <QString>

#include <memory>
#include <vector>

struct sd_bus;
struct sd_bus_message;

namespace kelvo {

// A message that the desktop's notification service shows (org.freedesktop.Notifications on the
// session bus): one at a time, each in the place of the one before. All calls block for as long as
// the bus does, which may be for ever; so this is for threads and programs that nobody waits for.
// A desktop may take a message away when the program that showed it ends.
class DesktopNotification
{
public:
    // Null where there is no bus, or nobody on it that shows any.
    static std::unique_ptr<DesktopNotification> open();
    ~DesktopNotification();
    Q_DISABLE_COPY_MOVE(DesktopNotification)

    // Whether it shows buttons.
    bool hasActions() const { return m_hasActions; }

    struct Action
    {
        QString key, label; // the label is what the button says
    };
    // Texts are plain; `body` may be empty. Actions are left out where the service has none. False:
    // it was not taken.
    bool show(const QString &summary, const QString &body, const std::vector<Action> &actions = {});

    struct Event
    {
        enum class Kind {
            None,    // nothing in that time
            Pressed, // `key` of an action
            Closed,  // by the user
            Gone,    // the bus
        };
        Kind kind = Kind::None;
        QString key = {};
    };
    // What happens with the message within `milliseconds`.
    Event wait(int milliseconds);

private:
    DesktopNotification() = default;
    static int take(sd_bus_message *message, void *self, void *error);
    bool readCapabilities();
    void listen();

    struct CloseBus
    {
        void operator()(sd_bus *bus) const;
    };
    std::unique_ptr<sd_bus, CloseBus> m_bus;
    bool m_hasActions = false, m_readsMarkup = false;
    unsigned int m_id = 0; // of the message that is shown; 0: none yet
    std::vector<Event> m_events;
};

} // namespace kelvo
