#include "tab_control.h"

#include "accessible_role.h"
#include "control_interface.h"
#include "control_support.h"
#include "texts.h"

#include <QEvent>
#include <QPointer>

#include <algorithm>

namespace kelvo {

TabControl::TabControl(QWidget *parent)
    : QTabBar(parent)
{
    setDrawBase(true);
    setElideMode(Qt::ElideNone);
    setUsesScrollButtons(true);
}

QStringList TabControl::titles() const
{
    QStringList titles;
    for (int i = 0; i < count(); ++i)
        titles.append(tabText(i));
    return titles;
}

void TabControl::setTitles(const QStringList &titles)
{
    const QSignalBlocker silence(this);
    const int shown = currentIndex();
    while (count() > 0)
        removeTab(count() - 1);
    for (const QString &title : titles)
        addTab(title);
    setCurrentIndex(std::min(std::max(shown, 0), count() - 1));
}

void TabControl::setValue(int value)
{
    const QSignalBlocker silence(this);
    setCurrentIndex(value - 1);
    updateGeometry();
}

bool TabControl::choose(int value)
{
    if (!isEnabled() || value < 1 || value > count() || !isTabEnabled(value - 1))
        return false;
    if (value != this->value()) {
        setValue(value);
        sendHit(this);
    }
    return true;
}

bool TabControl::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        // Scrolling a panel must not leave it.
        event->ignore();
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
        break;
    default:
        return QTabBar::event(event);
    }
    // The hit is sent when the tab bar has done with the event: a handler may
    // destroy it.
    const QPointer<TabControl> alive = this;
    const int before = value();
    const bool done = QTabBar::event(event);
    if (alive && value() != before)
        sendHit(this);
    return done;
}

void TabControl::focusInEvent(QFocusEvent *event)
{
    QTabBar::focusInEvent(event);
    tellOfFocusWithin(this);
}

namespace {

class TabControlInterface : public InterfaceOf<TabControl>
{
public:
    using InterfaceOf::InterfaceOf;

    std::optional<int> value() const override { return widget()->value(); }
    std::optional<int> index() const override { return widget()->value(); }
    std::optional<int> items() override { return widget()->count(); }
    QString commands() const override { return QStringLiteral("set"); }
    Result<void> set(int value) override
    {
        const int count = widget()->count();
        if (widget()->choose(value))
            return {};
        const QString number = QString::number(value);
        return refused(
            value < 1 || value > count
                ? translate("Controls", "%1 has tabs 1 to %2, not %3")
                      .arg(name(), QString::number(count), number)
                : translate("Controls", "%1 offers tab %2 only disabled").arg(name(), number));
    }

    void localize(const Localizer &localized) override
    {
        InterfaceOf::localize(localized);
        QStringList titles;
        for (const QString &title : widget()->titles())
            titles.append(localized(title));
        widget()->setTitles(titles);
    }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(TabControl *tabs)
{
    return std::make_unique<TabControlInterface>(tabs);
}

} // namespace kelvo
