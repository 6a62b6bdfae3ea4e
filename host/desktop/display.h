#pragma once

#include <QString>
#include <QStringList>

// The display that windows are shown on, an X server or a Wayland compositor, and what Qt says of
// it: Qt has no return value for one that cannot be opened, only messages and abort().
namespace kelvo {

// From now on Qt's messages are lines on standard error, without those that nobody can do anything
// about. `leave` ends the program where Qt would; its text says why no window can be shown, or
// that the display has gone away. Call it before anything of Qt is used.
void passMessages(void (*leave)(const QString &problem));

// Lives while the application object is made, which opens the display. Qt's warnings wait until it
// goes; of a display that cannot be opened nobody sees them.
class DisplayOpening
{
public:
    DisplayOpening();
    ~DisplayOpening();
    DisplayOpening(const DisplayOpening &) = delete;
    DisplayOpening &operator=(const DisplayOpening &) = delete;

    void keep(const QString &message) { m_messages << message; }
    const QStringList &messages() const { return m_messages; }

private:
    QStringList m_messages;
};

// Whether windows are shown on a display: not where QT_QPA_PLATFORM names one of Qt's platforms
// that have none, offscreen and minimal.
bool isDisplayUsed();

// What to say when no window can be shown: what the environment says of a display, what to do, and
// what Qt has said of it by now.
QString noDisplayText();

} // namespace kelvo
