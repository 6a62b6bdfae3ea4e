#include "radio_group.h"

#include "accessible_role.h"
#include "control_support.h"
#include "qt_controls.h"
#include "texts.h"

#include <QButtonGroup>
#include <QChildEvent>
#include <QLayout>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kelvo {

namespace {

void collect(const QLayout *layout, QList<QRadioButton *> &buttons)
{
    for (int i = 0; i < layout->count(); ++i) {
        const QLayoutItem *item = layout->itemAt(i);
        if (auto *button = qobject_cast<QRadioButton *>(item->widget()))
            buttons.append(button);
        else if (const QLayout *inner = const_cast<QLayoutItem *>(item)->layout())
            collect(inner, buttons);
    }
}

} // namespace

RadioGroup::RadioGroup(QWidget *parent)
    : QWidget(parent)
    , m_group(new QButtonGroup(this))
{
    setAccessibleRole(this, QAccessible::Grouping);
    // So that the mnemonic of the group's label leads to the chosen button; the
    // Tab key skips a widget that has a focus proxy.
    setFocusPolicy(Qt::TabFocus);
    connect(m_group, &QButtonGroup::buttonClicked, this, [this](QAbstractButton *button) {
        setFocusProxy(button);
        sendFrom(this, EventKind::ControlHit);
    });
}

QList<QRadioButton *> RadioGroup::buttons() const
{
    QList<QRadioButton *> found;
    if (layout())
        collect(layout(), found);
    const auto children = findChildren<QRadioButton *>(Qt::FindDirectChildrenOnly);
    for (QRadioButton *child : children) {
        if (!found.contains(child))
            found.append(child);
    }
    // A child becomes known only when it is shown first; a value may be set before.
    for (QRadioButton *button : found) {
        if (!m_group->buttons().contains(button))
            m_group->addButton(button);
    }
    return found;
}

int RadioGroup::value() const
{
    const QList<QRadioButton *> all = buttons();
    for (int i = 0; i < all.size(); ++i) {
        if (all[i]->isChecked())
            return i + 1;
    }
    return 0;
}

void RadioGroup::setValue(int value)
{
    if (QRadioButton *chosen = button(value)) {
        chosen->setChecked(true);
        setFocusProxy(chosen);
        return;
    }
    m_group->setExclusive(false); // an exclusive group keeps one on
    const QList<QRadioButton *> all = buttons();
    for (QRadioButton *button : all)
        button->setChecked(false);
    m_group->setExclusive(true);
}

int RadioGroup::count() const
{
    return static_cast<int>(buttons().size());
}

QRadioButton *RadioGroup::button(int value) const
{
    return buttons().value(value - 1);
}

QRadioButton *RadioGroup::addButton(const QString &text)
{
    if (!layout()) {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
    }
    auto *button = new QRadioButton(text, this);
    layout()->addWidget(button);
    m_group->addButton(button);
    if (!focusProxy())
        setFocusProxy(button);
    return button;
}

bool RadioGroup::choose(int value)
{
    QRadioButton *chosen = button(value);
    if (!chosen || !chosen->isEnabled())
        return false;
    chosen->click();
    return true;
}

void RadioGroup::childEvent(QChildEvent *event)
{
    QWidget::childEvent(event);
    // When it is added, a child is no radio button yet, just an object.
    auto *button = event->type() == QEvent::ChildPolished
        ? qobject_cast<QRadioButton *>(event->child())
        : nullptr;
    if (!button)
        return;
    m_group->addButton(button);
    if (!focusProxy())
        setFocusProxy(button);
}

namespace {

class RadioGroupInterface : public InterfaceOf<RadioGroup>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override
    {
        QRadioButton *chosen = widget()->button(widget()->value());
        return chosen ? controlInterface(chosen)->text() : QString();
    }
    std::optional<int> value() const override { return widget()->value(); }
    std::optional<int> index() const override { return widget()->value(); }
    std::optional<int> items() override { return widget()->count(); }
    QString commands() const override { return QStringLiteral("set"); }
    Result<void> set(int value) override
    {
        if (widget()->choose(value))
            return {};
        const QString number = QString::number(value);
        const int count = widget()->count();
        return refused(
            value < 1 || value > count
                ? translate("Controls", "%1 has buttons 1 to %2, not %3")
                      .arg(name(), QString::number(count), number)
                : translate("Controls", "%1 offers button %2 only disabled").arg(name(), number));
    }
};

// One in a group leaves its events to the group.
class RadioButtonInterface : public InterfaceOf<QRadioButton, ButtonInterface>
{
public:
    using InterfaceOf::InterfaceOf;

    void sendEvents() override
    {
        if (!qobject_cast<RadioGroup *>(widget()->parentWidget()))
            InterfaceOf::sendEvents();
    }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(RadioGroup *group)
{
    return std::make_unique<RadioGroupInterface>(group);
}

std::unique_ptr<ControlInterface> interfaceOf(QRadioButton *button)
{
    return std::make_unique<RadioButtonInterface>(button);
}

} // namespace kelvo
