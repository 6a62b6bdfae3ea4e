// window_stops: opens the window of each script whose path comes on standard input, says "open",
// leaves it open until the next line comes, and says "closed"; or what went wrong, in a line. In
// the language of the environment, on its display.

#include "window_walk.h"

#include <QApplication>
#include <QDBusConnection>
#include <QEvent>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QWidget>

#include <iostream>
#include <string>
#include <unistd.h>

namespace {

// In place of a window manager: what is shown has the keyboard.
class Activation : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *window = event->type() == QEvent::Show ? qobject_cast<QWidget *>(watched) : nullptr;
        if (window && window->isWindow() && window->windowType() != Qt::Popup
            && window->windowType() != Qt::ToolTip)
            QMetaObject::invokeMethod(window, &QWidget::activateWindow, Qt::QueuedConnection);
        return false;
    }
};

void say(const QString &line)
{
    std::cout << line.simplified().toStdString() << std::endl;
}

void stayOpen(QWidget *window)
{
    window->activateWindow();
    QEventLoop loop;
    QSocketNotifier answer(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&answer, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
    say(QStringLiteral("open"));
    loop.exec();
    std::string line;
    std::getline(std::cin, line);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QDBusConnection::sessionBus(); // the desktop's: the walk has its address book on another
    Activation activation;
    application.installEventFilter(&activation);
    WindowWalk walk;
    for (std::string script; std::getline(std::cin, script);) {
        const QString problem = walk.visit(QString::fromStdString(script), stayOpen);
        say(problem.isEmpty() ? QStringLiteral("closed") : problem);
    }
}
