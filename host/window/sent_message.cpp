#include "sent_message.h"

#include "desktop_notification.h"

namespace kelvo {

namespace {

constexpr int momentMs = 1500; // to read one short line

} // namespace

SentMessage::SentMessage(QObject *parent)
    : QObject(parent)
{
    m_moment.setSingleShot(true);
    m_moment.setInterval(momentMs);
    connect(&m_moment, &QTimer::timeout, this, [this] {
        m_notification.drop();
        emit told();
    });
}

void SentMessage::tell(const QString &text, const QString &title)
{
    m_moment.start();
    // Without a thread to be had, and wherever nobody shows it, the window's line stays.
    static_cast<void>(
        m_notification.start([text, title] { return showDesktopNotification(text, title); },
                             [this](bool isShown) {
                                 if (!isShown || !m_moment.isActive())
                                     return;
                                 m_moment.stop();
                                 emit told();
                             }));
}

} // namespace kelvo
