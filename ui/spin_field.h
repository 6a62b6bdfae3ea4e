#pragma once

#include <QAbstractSpinBox>

#include <cstdint>
#include <functional>
#include <memory>

namespace kelvo {

class ControlInterface;

// A number with two arrows. The value is an integer of `decimals` decimal
// places: 1234 with 2 decimals shows 12.34 in the user's locale. Typed text
// becomes a value when the field is left or Return is pressed; what is outside
// the range becomes the nearest limit (but see setClamping), what is no number leaves
// the value as it was; Return that makes it another number than the typed one presses no
// button. Thousands separators are neither shown nor taken. Sends TextChanged while
// typing, ControlHit when the value changes by the user and FocusChanged when it
// is left. Page Up and Page Down take ten steps.
class SpinField : public QAbstractSpinBox
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(bool clamping READ isClamping WRITE setClamping)

public:
    explicit SpinField(QWidget *parent = nullptr);

    int value() const { return m_value; }
    void setValue(int value); // silent, clamped
    // Without clamping (it begins with it) a value may lie outside the range and is shown
    // as it is, for an owner that would rather say so than change what was typed. Only
    // the arrows keep to the range then.
    bool isClamping() const { return m_isClamping; }
    void setClamping(bool isClamping);
    bool isInRange() const { return m_value >= m_minimum && m_value <= m_maximum; }
    int minimum() const { return m_minimum; }
    void setMinimum(int minimum);
    int maximum() const { return m_maximum; }
    void setMaximum(int maximum);
    int decimals() const { return m_decimals; } // 0 to 6
    void setDecimals(int decimals);
    int singleStep() const { return m_singleStep; }
    void setSingleStep(int step);
    QString suffix() const { return m_suffix; } // a unit, such as " mm"
    void setSuffix(const QString &suffix);

    bool choose(int value);             // as the user, clamped; false when disabled
    bool typeText(const QString &text); // replaces the text as a user types it; false when refused

    // Whether leaving the field would make what stands in it the value: not so for what
    // is no number, or one that would become another.
    bool willTakeTypedText() const;
    // Makes the typed text the value, as leaving the field does.
    void takeTypedText();

    void stepBy(int steps) override;
    QValidator::State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    StepEnabled stepEnabled() const override;
    void changeEvent(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString textFor(int value) const;
    bool valueFrom(const QString &text, int *value) const; // the unclamped number
    int allowed(int value) const;                          // clamped, unless it is not clamping
    void changeTo(int value);
    void showValue(int value);

    int m_value = 0, m_minimum = 0, m_maximum = 99, m_decimals = 0, m_singleStep = 1;
    bool m_isClamping = true;
    QString m_suffix;
};

// Makes what was typed into the spin and time fields of `window` their values,
// as if each field were left: what OK and Print do first.
void commitTypedValues(QWidget *window);

std::unique_ptr<ControlInterface> interfaceOf(SpinField *field);

} // namespace kelvo
