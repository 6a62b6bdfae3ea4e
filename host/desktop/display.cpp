#include "display.h"

#include "terminal.h"
#include "texts.h"

#include <algorithm>
#include <mutex>
#include <span>
#include <utility>

namespace kelvo {

namespace {

// Without a display Qt has nothing to do with a window's size, place or keys, and it does without
// a run-time folder that is somebody else's, as after su. It says so each time, and nobody wants
// to read it among a script's own messages.
constexpr const char *unwantedMessages[] = {"This plugin does not support ", "QStandardPaths: "};

// What Qt says before it calls exit(), in the middle of whatever is being done: threads would use
// what exit() destroys.
constexpr const char *lastMessages[] = {"The X11 connection broke", "The Wayland connection "};

// What Qt says when all platforms have failed, each of which has told why.
constexpr const char *endsWithoutReason[] = {"This application failed to start "};

bool beginsWithOneOf(std::span<const char *const> beginnings, const QString &message)
{
    return std::any_of(beginnings.begin(), beginnings.end(), [&](const char *beginning) {
        return message.startsWith(QLatin1String(beginning));
    });
}

void (*leaveWith)(const QString &problem) = nullptr;

std::mutex openingLock; // messages come from any thread
DisplayOpening *opening = nullptr;

bool isOpening()
{
    const std::lock_guard lock(openingLock);
    return opening;
}

// Whether the message waits for the display to be open.
bool isKept(QtMsgType type, const QString &message)
{
    const std::lock_guard lock(openingLock);
    // Whoever asks Qt for its debug messages wants them as they come.
    if (!opening || type == QtDebugMsg)
        return false;
    opening->keep(message);
    return true;
}

// What Qt has said so far, in one line. The last message alone is the same for a display that is
// not there and for a library that is missing.
QString keptReasons()
{
    const std::lock_guard lock(openingLock);
    QStringList reasons;
    for (const QString &message : opening ? opening->messages() : QStringList()) {
        const QString line = message.simplified();
        reasons << (line.endsWith(u'.') ? line.chopped(1) : line);
    }
    return reasons.join(QStringLiteral("; "));
}

void passMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (beginsWithOneOf(unwantedMessages, message))
        return;
    if (beginsWithOneOf(lastMessages, message))
        leaveWith(translate("Display", "the display has gone away, and the dialog with it"));
    const bool isEnd = type == QtFatalMsg && isOpening();
    if (isEnd && beginsWithOneOf(endsWithoutReason, message))
        leaveWith(noDisplayText());
    if (!isKept(type, message))
        printLine(stderr, message);
    if (isEnd)
        leaveWith(noDisplayText());
}

} // namespace

void passMessages(void (*leave)(const QString &problem))
{
    leaveWith = leave;
    qInstallMessageHandler(passMessage);
}

DisplayOpening::DisplayOpening()
{
    const std::lock_guard lock(openingLock);
    opening = this;
}

DisplayOpening::~DisplayOpening()
{
    const std::lock_guard lock(openingLock);
    opening = nullptr;
    for (const QString &message : std::as_const(m_messages))
        printLine(stderr, message);
}

bool isDisplayUsed()
{
    // NAME, NAME:PARAMETERS, or several to be tried, separated by semicolons
    const QString platform =
        qEnvironmentVariable("QT_QPA_PLATFORM").section(u';', 0, 0).section(u':', 0, 0);
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

QString noDisplayText()
{
    const QString reasons = keptReasons();
    if (!isDisplayUsed())
        return translate("Display", "Qt does not start without a display either (%1); reinstall it")
            .arg(reasons);
    QStringList settings;
    for (const char *name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(name))
            settings << QLatin1String(name) + u'=' + qEnvironmentVariable(name);
    }
    if (settings.isEmpty())
        return translate(
            "Display", "there is no display to show the dialog on; --no-window prints without one");
    const QString advice = translate("Display",
                                     "no window can be shown with %1; correct that, or print "
                                     "without one: --no-window")
                               .arg(settings.join(QStringLiteral(", ")));
    return reasons.isEmpty() ? advice : QStringLiteral("%1 (%2)").arg(advice, reasons);
}

} // namespace kelvo
