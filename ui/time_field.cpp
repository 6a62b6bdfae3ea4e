#include "time_field.h"

#include "control_support.h"
#include "qt_controls.h"

#include <QEvent>
#include <QLocale>

namespace kelvo {

namespace {

// The hour first in any language: in a window that runs to the left, Qt turns the parts of a
// time round, which bidirectional text needs no more.
void showAsWritten(TimeField *field)
{
    field->setLayoutDirection(Qt::LeftToRight);
    field->setDisplayFormat(field->locale().timeFormat(QLocale::ShortFormat));
    field->unsetLayoutDirection();
}

} // namespace

TimeField::TimeField(QWidget *parent)
    : QTimeEdit(parent)
{
    guardWheel(this);
    showAsWritten(this);
    setKeyboardTracking(false); // half a typed time is no time
    connect(this, &QTimeEdit::timeChanged, this, [this] { sendFrom(this, EventKind::ControlHit); });
}

void TimeField::setValue(const QTime &time)
{
    const QSignalBlocker silence(this);
    setTime(time);
}

QTime TimeField::value() const
{
    return time();
}

bool TimeField::choose(const QTime &time)
{
    if (!isEnabled() || isReadOnly() || !time.isValid())
        return false;
    if (time != value()) {
        setValue(time);
        sendFrom(this, EventKind::ControlHit);
    }
    return true;
}

void TimeField::changeEvent(QEvent *event)
{
    QTimeEdit::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        showAsWritten(this);
}

namespace {

class TimeFieldInterface : public InterfaceOf<TimeField, SpinBoxInterface>
{
public:
    using InterfaceOf::InterfaceOf;

    QString commands() const override { return QStringLiteral("time"); }
    Result<void> setTime(const QTime &time) override
    {
        if (widget()->choose(time))
            return {};
        return readOnlyError();
    }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(TimeField *field)
{
    return std::make_unique<TimeFieldInterface>(field);
}

} // namespace kelvo
