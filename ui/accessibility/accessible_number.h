#pragma once

#include "accessible_text.h"
#include "accessible_widget.h"

class QAbstractSlider;
class QAbstractSpinBox;

namespace kelvo {

class SpinField;
class TimeField;

// What holds a number between two limits. To change it is the user's change, which its owner
// hears.
class AccessibleNumber : public AccessibleWidget, public QAccessibleValueInterface
{
public:
    using AccessibleWidget::AccessibleWidget;

    void *interface_cast(QAccessible::InterfaceType type) override;
    // Nothing where `value` is no number.
    void setCurrentValue(const QVariant &value) final;

protected:
    // To what the reader writes, any finite number: as the user, and once the reader has its
    // answer.
    virtual void change(double value) = 0;
};

// A number that is typed, too: its text is that of the line in it.
class AccessibleTypedNumber : public AccessibleNumber, public AccessibleTypedText
{
public:
    explicit AccessibleTypedNumber(QAbstractSpinBox *box);

    void *interface_cast(QAccessible::InterfaceType type) override;
    using AccessibleTypedText::text;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

private:
    QAbstractSpinBox *box() const;
};

// As it is shown: 21.5 of 2150 with two decimals.
class AccessibleSpinField : public AccessibleTypedNumber
{
public:
    explicit AccessibleSpinField(SpinField *field);

    QVariant currentValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    void change(double value) override;

private:
    SpinField *field() const;
};

// Seconds since midnight.
class AccessibleTimeField : public AccessibleTypedNumber
{
public:
    explicit AccessibleTimeField(TimeField *field);

    QVariant currentValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

protected:
    void change(double value) override;

private:
    TimeField *field() const;
};

// A slider or a dial.
class AccessibleSlider : public AccessibleNumber
{
public:
    AccessibleSlider(QAbstractSlider *slider, QAccessible::Role role);

    QVariant currentValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    void change(double value) override;

private:
    QAbstractSlider *slider() const;
};

} // namespace kelvo
