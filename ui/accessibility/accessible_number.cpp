#include "accessible_number.h"

#include "spin_field.h"
#include "time_field.h"

#include <QAbstractSlider>
#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelvo {

namespace {

constexpr int lastSecond = 24 * 60 * 60 - 1; // of a day

} // namespace

void *AccessibleNumber::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                               : AccessibleWidget::interface_cast(type);
}

void AccessibleNumber::setCurrentValue(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber && std::isfinite(number))
        change(number);
}

// ---- AccessibleTypedNumber

AccessibleTypedNumber::AccessibleTypedNumber(QAbstractSpinBox *box)
    : AccessibleNumber(box, QAccessible::SpinBox)
    , AccessibleTypedText(box->findChild<QLineEdit *>())
{
}

QAbstractSpinBox *AccessibleTypedNumber::box() const
{
    return static_cast<QAbstractSpinBox *>(object());
}

void *AccessibleTypedNumber::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return AccessibleNumber::interface_cast(type);
}

QString AccessibleTypedNumber::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? box()->text() : AccessibleNumber::text(kind);
}

QAccessible::State AccessibleTypedNumber::state() const
{
    QAccessible::State state = AccessibleNumber::state();
    state.editable = !box()->isReadOnly();
    state.readOnly = box()->isReadOnly();
    return state;
}

// ---- AccessibleSpinField

AccessibleSpinField::AccessibleSpinField(SpinField *field)
    : AccessibleTypedNumber(field)
{
}

SpinField *AccessibleSpinField::field() const
{
    return static_cast<SpinField *>(object());
}

QVariant AccessibleSpinField::currentValue() const
{
    return field()->value() / std::pow(10.0, field()->decimals());
}

void AccessibleSpinField::change(double value)
{
    const double number = value * std::pow(10.0, field()->decimals());
    if (std::abs(number) <= std::numeric_limits<int>::max())
        later([field = field(), to = int(std::lround(number))] { field->choose(to); });
}

QVariant AccessibleSpinField::maximumValue() const
{
    return field()->maximum() / std::pow(10.0, field()->decimals());
}

QVariant AccessibleSpinField::minimumValue() const
{
    return field()->minimum() / std::pow(10.0, field()->decimals());
}

QVariant AccessibleSpinField::minimumStepSize() const
{
    return field()->singleStep() / std::pow(10.0, field()->decimals());
}

// ---- AccessibleTimeField

AccessibleTimeField::AccessibleTimeField(TimeField *field)
    : AccessibleTypedNumber(field)
{
}

TimeField *AccessibleTimeField::field() const
{
    return static_cast<TimeField *>(object());
}

QVariant AccessibleTimeField::currentValue() const
{
    return field()->value().msecsSinceStartOfDay() / 1000;
}

void AccessibleTimeField::change(double value)
{
    const int second = int(std::clamp(value, 0.0, double(lastSecond)));
    later([field = field(), time = QTime::fromMSecsSinceStartOfDay(second * 1000)] {
        field->choose(time);
    });
}

QVariant AccessibleTimeField::maximumValue() const
{
    return lastSecond;
}

// ---- AccessibleSlider

AccessibleSlider::AccessibleSlider(QAbstractSlider *slider, QAccessible::Role role)
    : AccessibleNumber(slider, role)
{
}

QAbstractSlider *AccessibleSlider::slider() const
{
    return static_cast<QAbstractSlider *>(object());
}

QVariant AccessibleSlider::currentValue() const
{
    return slider()->value();
}

void AccessibleSlider::change(double value)
{
    const double within =
        std::clamp(value, double(slider()->minimum()), double(slider()->maximum()));
    later([slider = slider(), to = int(std::lround(within))] {
        if (slider->isEnabled())
            slider->setSliderPosition(to);
    });
}

QVariant AccessibleSlider::maximumValue() const
{
    return slider()->maximum();
}

QVariant AccessibleSlider::minimumValue() const
{
    return slider()->minimum();
}

QVariant AccessibleSlider::minimumStepSize() const
{
    return slider()->singleStep();
}

} // namespace kelvo
