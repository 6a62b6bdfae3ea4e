#include "audience.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

namespace kelvo {

namespace {

Audience current = Audience::People;

// Keeps from windows that they are on a screen, and what would have them painted there. A picture
// asks widgets, not their window.
class PaintStopper : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::UpdateRequest:
            return true;
        case QEvent::Expose:
        case QEvent::Paint:
            return watched->isWindowType();
        default:
            return false;
        }
    }
};

} // namespace

void setAudience(Audience audience)
{
    static PaintStopper *stopper = nullptr;
    current = audience;
    delete stopper;
    stopper = nullptr;
    if (audience == Audience::People)
        return;
    stopper = new PaintStopper(QCoreApplication::instance());
    QCoreApplication::instance()->installEventFilter(stopper);
}

Audience audience()
{
    return current;
}

} // namespace kelvo
