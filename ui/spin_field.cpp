#include "spin_field.h"

#include "control_support.h"
#include "qt_controls.h"
#include "texts.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelvo {

namespace {

constexpr int mostDecimals = 6;
constexpr int mostDigits = 10; // of a 32-bit number

enum class Typed { Wrong, Unfinished, Number };

struct TypedNumber
{
    Typed state = Typed::Wrong;
    std::int64_t value = 0; // with the field's decimals
};

// Reads `text` as a number of `decimals` places in the notation of `locale`.
// Thousands separators are not accepted: in one locale they are what in the next
// one is the decimal point, and a wrong guess is wrong by a factor of 1000.
TypedNumber readNumber(QString text, const QLocale &locale, int decimals, const QString &suffix)
{
    const QString unit = suffix.trimmed();
    text = text.trimmed();
    bool isNegative = false;
    bool hasPoint = false;
    int digits = 0;
    int places = 0;
    std::int64_t value = 0;
    qsizetype at = 0;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'\u2212')) {
        isNegative = true;
        ++at;
    } else if (at < text.size() && text[at] == u'+') {
        ++at;
    }
    for (; at < text.size(); ++at) {
        const QChar c = text[at];
        if (c.isDigit()) {
            if (hasPoint ? ++places > decimals : ++digits > mostDigits)
                return {};
            value = value * 10 + c.digitValue();
        } else if (!hasPoint && decimals > 0 && locale.decimalPoint() == c) {
            hasPoint = true;
        } else {
            break;
        }
    }
    // The unit may stand there whole, or as far as it has been deleted.
    const QString rest = text.mid(at).trimmed();
    if (!rest.isEmpty() && !unit.startsWith(rest))
        return {};
    if (digits + places == 0)
        return {Typed::Unfinished, 0};
    for (; places < decimals; ++places)
        value *= 10;
    return {Typed::Number, isNegative ? -value : value};
}

} // namespace

SpinField::SpinField(QWidget *parent)
    : QAbstractSpinBox(parent)
{
    guardWheel(this);
    setSizePolicy({QSizePolicy::Minimum, QSizePolicy::Fixed, QSizePolicy::SpinBox});
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    showValue(m_value);
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this] { sendFrom(this, EventKind::TextChanged); });
}

void SpinField::setValue(int value)
{
    m_value = allowed(value);
    showValue(m_value);
}

void SpinField::setClamping(bool isClamping)
{
    m_isClamping = isClamping;
    setValue(m_value);
}

void SpinField::setMinimum(int minimum)
{
    m_minimum = minimum;
    m_maximum = std::max(m_maximum, minimum);
    setValue(m_value);
    updateGeometry();
}

void SpinField::setMaximum(int maximum)
{
    m_maximum = maximum;
    m_minimum = std::min(m_minimum, maximum);
    setValue(m_value);
    updateGeometry();
}

void SpinField::setDecimals(int decimals)
{
    m_decimals = std::clamp(decimals, 0, mostDecimals);
    showValue(m_value);
    updateGeometry();
}

void SpinField::setSingleStep(int step)
{
    m_singleStep = std::max(step, 1);
}

void SpinField::setSuffix(const QString &suffix)
{
    m_suffix = suffix;
    showValue(m_value);
    updateGeometry();
}

bool SpinField::choose(int value)
{
    if (!isEnabled() || isReadOnly())
        return false;
    changeTo(value);
    return true;
}

bool SpinField::typeText(const QString &text)
{
    if (!isEnabled() || isReadOnly())
        return false;
    QLineEdit *edit = lineEdit();
    edit->selectAll();
    edit->del();
    // One by one, as the keyboard gives them: each is refused on its own.
    for (const QChar c : text)
        edit->insert(c);
    return edit->text() == text;
}

bool SpinField::willTakeTypedText() const
{
    int typed = 0;
    return valueFrom(lineEdit()->text(), &typed) && allowed(typed) == typed;
}

void SpinField::takeTypedText()
{
    if (lineEdit()->text() == textFor(m_value))
        return;
    int typed = m_value;
    // What is no number leaves the value as it was.
    valueFrom(lineEdit()->text(), &typed);
    const int before = m_value;
    setValue(typed);
    if (m_value != before)
        sendFrom(this, EventKind::ControlHit);
}

void SpinField::stepBy(int steps)
{
    int from = m_value;
    valueFrom(lineEdit()->text(), &from);
    const std::int64_t to = from + static_cast<std::int64_t>(steps) * m_singleStep;
    const QPointer<SpinField> alive = this;
    changeTo(static_cast<int>(std::clamp<std::int64_t>(to, m_minimum, m_maximum)));
    if (alive)
        selectAll();
}

QValidator::State SpinField::validate(QString &input, int &) const
{
    const TypedNumber typed = readNumber(input, locale(), m_decimals, m_suffix);
    const QString trimmed = input.trimmed();
    const bool hasSign =
        trimmed.startsWith(u'-') || trimmed.startsWith(u'\u2212') || trimmed.startsWith(u'+');
    if (typed.state == Typed::Wrong || (hasSign && m_minimum >= 0))
        return QValidator::Invalid;
    if (typed.state == Typed::Unfinished || typed.value < m_minimum || typed.value > m_maximum)
        return QValidator::Intermediate;
    return QValidator::Acceptable;
}

void SpinField::fixup(QString &input) const
{
    int value = m_value;
    valueFrom(input, &value);
    input = textFor(allowed(value));
}

QSize SpinField::sizeHint() const
{
    ensurePolished();
    const QFontMetrics metrics = fontMetrics();
    const int width = std::max(metrics.horizontalAdvance(textFor(m_minimum)),
                               metrics.horizontalAdvance(textFor(m_maximum)))
        + metrics.horizontalAdvance(u'0') + 2; // room for the cursor and one digit too many
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option,
                                     {width, lineEdit()->sizeHint().height()}, this);
}

QSize SpinField::minimumSizeHint() const
{
    return sizeHint();
}

QAbstractSpinBox::StepEnabled SpinField::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    int value = m_value;
    valueFrom(lineEdit()->text(), &value);
    StepEnabled steps = StepNone;
    if (value > m_minimum)
        steps |= StepDownEnabled;
    if (value < m_maximum)
        steps |= StepUpEnabled;
    return steps;
}

void SpinField::changeEvent(QEvent *event)
{
    QAbstractSpinBox::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        showValue(m_value);
    else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
}

void SpinField::focusOutEvent(QFocusEvent *event)
{
    const bool isLeft = event->reason() != Qt::PopupFocusReason;
    QAbstractSpinBox::focusOutEvent(event);
    if (!isLeft)
        return;
    const QPointer<SpinField> alive = this;
    takeTypedText();
    if (alive)
        sendFrom(this, EventKind::FocusChanged);
}

void SpinField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        const QPointer<SpinField> alive = this;
        const bool isAsTyped = willTakeTypedText();
        takeTypedText();
        if (!alive)
            return;
        if (!isAsTyped) {
            selectAll();
            return; // another number than the typed one is seen before any button is pressed
        }
    }
    QAbstractSpinBox::keyPressEvent(event);
}

QString SpinField::textFor(int value) const
{
    QLocale plain = locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    double number = value;
    for (int i = 0; i < m_decimals; ++i)
        number /= 10;
    const QString text =
        m_decimals == 0 ? plain.toString(value) : plain.toString(number, 'f', m_decimals);
    return text + m_suffix;
}

bool SpinField::valueFrom(const QString &text, int *value) const
{
    const TypedNumber typed = readNumber(text, locale(), m_decimals, m_suffix);
    if (typed.state != Typed::Number)
        return false;
    *value = static_cast<int>(std::clamp<std::int64_t>(typed.value, std::numeric_limits<int>::min(),
                                                       std::numeric_limits<int>::max()));
    return true;
}

int SpinField::allowed(int value) const
{
    return m_isClamping ? std::clamp(value, m_minimum, m_maximum) : value;
}

void SpinField::changeTo(int value)
{
    const int before = m_value;
    setValue(value);
    if (m_value != before)
        sendFrom(this, EventKind::ControlHit);
}

void SpinField::showValue(int value)
{
    const QString text = textFor(value);
    if (lineEdit()->text() != text) {
        lineEdit()->setText(text);
        if (isVisible() && QAccessible::isActive()) {
            QAccessibleValueChangeEvent change(this, text);
            QAccessible::updateAccessibility(&change);
        }
    }
    update();
}

void commitTypedValues(QWidget *window)
{
    // Handlers may destroy fields while the others wait.
    QList<QPointer<QAbstractSpinBox>> fields;
    const auto children = window->findChildren<QAbstractSpinBox *>();
    for (QAbstractSpinBox *child : children)
        fields.append(child);
    for (const QPointer<QAbstractSpinBox> &field : fields) {
        if (field)
            controlInterface(field)->takeTypedText();
    }
}

namespace {

class SpinFieldInterface : public InterfaceOf<SpinField, SpinBoxInterface>
{
public:
    using InterfaceOf::InterfaceOf;

    std::optional<int> value() const override { return widget()->value(); }
    std::optional<int> maximum() const override { return widget()->maximum(); }
    QString commands() const override { return QStringLiteral("set, type"); }

    Result<void> set(int value) override
    {
        if (value < widget()->minimum() || value > widget()->maximum())
            return outsideRange(value, widget()->minimum(), widget()->maximum());
        if (widget()->choose(value))
            return {};
        return readOnlyError();
    }

    Result<void> type(const QString &text) override
    {
        // Nobody would see another number than the typed one appear when it is left.
        if (enter(text) && widget()->willTakeTypedText())
            return {};
        widget()->setValue(widget()->value());
        return refused(
            joined({translate("Controls", "%1 does not take what was typed").arg(name()),
                    translate("Controls", "it takes numbers from %1 to %2")
                        .arg(inWords(widget()->minimum()), inWords(widget()->maximum()))}));
    }

    bool enter(const QString &text) override { return widget()->typeText(text); }
    void takeTypedText() override { widget()->takeTypedText(); }

    void localize(const Localizer &localized) override
    {
        InterfaceOf::localize(localized);
        widget()->setSuffix(localized(widget()->suffix()));
    }

private:
    // With a point in any locale, as scripts are written.
    QString inWords(int value) const
    {
        const int decimals = widget()->decimals();
        return QString::number(value / std::pow(10.0, decimals), 'f', decimals);
    }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(SpinField *field)
{
    return std::make_unique<SpinFieldInterface>(field);
}

} // namespace kelvo
