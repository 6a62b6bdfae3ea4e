#include "qt_controls.h"

#include "control_support.h"
#include "input_limits.h"
#include "mnemonics.h"

#include <QAbstractSlider>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

namespace kelvo {

namespace {

// Tells when a field is left.
class LeaveWatcher : public QObject
{
public:
    explicit LeaveWatcher(QWidget *field)
        : QObject(field)
        , m_field(field)
    {
        field->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Its own context menu does not take the user out of a field.
        if (watched == m_field && event->type() == QEvent::FocusOut
            && static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
            const QPointer<QWidget> alive = m_field;
            sendFrom(m_field, EventKind::FocusChanged);
            if (!alive)
                return true; // and this object with it
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget *m_field;
};

// What is put into a field at a time, as if `text` were typed. Each letter may be refused on its
// own, as the keyboard gives them. Where none is, what follows the first comes at once: a field
// lays out and tells all that stands in it for each letter, which of thousands is millions.
QStringList typedPieces(const QString &text, bool isTaken)
{
    QStringList pieces;
    for (const char32_t letter : text.toUcs4())
        pieces << QString::fromUcs4(&letter, 1);
    if (isTaken && pieces.size() > 2)
        pieces = {pieces.first(), text.mid(pieces.first().size())};
    return pieces;
}

bool typeInto(QLineEdit *line, const std::optional<InputLimits> &limits, const QString &text)
{
    if (line->isReadOnly())
        return false;
    QString typed = text;
    typed.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
    // A validator is that of the limits, or one that only says yes or no.
    const bool isTaken = typed.size() <= line->maxLength() && line->inputMask().isEmpty()
        && (limits ? withinLimits(typed, *limits) == typed : !line->validator());
    const QPointer<QLineEdit> alive = line;
    line->selectAll();
    line->del();
    for (const QString &piece : typedPieces(typed, isTaken)) {
        if (!alive)
            return false;
        line->insert(piece);
    }
    return alive && line->text() == text;
}

} // namespace

// ---- QAbstractButton

QString ButtonInterface::text() const
{
    return withoutMnemonic(widget()->text());
}

std::optional<int> ButtonInterface::value() const
{
    return widget()->isCheckable() ? std::optional(widget()->isChecked() ? 1 : 0) : std::nullopt;
}

std::optional<bool> ButtonInterface::isChecked() const
{
    return widget()->isCheckable() ? std::optional(widget()->isChecked()) : std::nullopt;
}

QString ButtonInterface::commands() const
{
    return widget()->isCheckable() ? QStringLiteral("check, click") : QStringLiteral("click");
}

Result<void> ButtonInterface::click()
{
    if (focusAsClicked(widget()))
        widget()->click();
    return {};
}

Result<void> ButtonInterface::check(bool on)
{
    if (!widget()->isCheckable())
        return InterfaceOf::check(on);
    if (widget()->isChecked() != on)
        widget()->click();
    return {};
}

void ButtonInterface::localize(const Localizer &localized)
{
    InterfaceOf::localize(localized);
    setTitle(localized(widget()->text()));
}

void ButtonInterface::sendEvents()
{
    QObject::connect(widget(), &QAbstractButton::clicked, widget(),
                     [button = widget()] { sendHit(button); });
}

std::unique_ptr<ControlInterface> interfaceOf(QAbstractButton *button)
{
    return std::make_unique<ButtonInterface>(button);
}

// ---- QComboBox

const Menu *ComboBoxInterface::menu()
{
    m_menu.items.clear();
    for (int i = 0; i < widget()->count(); ++i)
        m_menu.items.push_back({.text = widget()->itemText(i)});
    return &m_menu;
}

bool ComboBoxInterface::choose(const MenuItem &item)
{
    const int row = chosenRow(item) - 1;
    if (row < 0 || !focusAsClicked(widget()))
        return false;
    widget()->setCurrentIndex(row);
    emit widget()->activated(row);
    emit widget()->textActivated(widget()->itemText(row));
    return true;
}

void ComboBoxInterface::sendEvents()
{
    guardWheel(widget());
    QObject::connect(widget(), &QComboBox::activated, widget(),
                     [box = widget()] { sendFrom(box, EventKind::ControlHit); });
}

void ComboBoxInterface::keepWithin(const InputLimits &limits)
{
    keepTypedWithin(limits, widget()->lineEdit(), widget());
}

bool ComboBoxInterface::enter(const QString &text)
{
    return widget()->isEditable() && typeInto(widget()->lineEdit(), inputLimits(widget()), text);
}

std::unique_ptr<ControlInterface> interfaceOf(QComboBox *box)
{
    return std::make_unique<ComboBoxInterface>(box);
}

// ---- QPlainTextEdit

void PlainTextInterface::localize(const Localizer &localized)
{
    InterfaceOf::localize(localized);
    widget()->setPlaceholderText(localized(widget()->placeholderText()));
}

void PlainTextInterface::sendEvents()
{
    QObject::connect(widget(), &QPlainTextEdit::textChanged, widget(), [edit = widget()] {
        // There is no textEdited here, but setPlainText() clears the undo
        // history and an edit adds to it.
        const QTextDocument *document = edit->document();
        if (!document->isUndoAvailable() && !document->isRedoAvailable())
            return;
        if (keepWithinLimits(edit))
            return; // the correction was a change, and has been sent
        sendFrom(edit, EventKind::TextChanged);
    });
    new LeaveWatcher(widget());
}

void PlainTextInterface::keepWithin(const InputLimits &limits)
{
    keepTypedWithin(limits, widget());
}

bool PlainTextInterface::enter(const QString &text)
{
    QPlainTextEdit *edit = widget();
    if (edit->isReadOnly())
        return false;
    const std::optional<InputLimits> limits = inputLimits(edit);
    // One by one the two halves of a line's end are two.
    const bool isTaken = !text.contains(u'\r') && (!limits || withinLimits(text, *limits) == text);
    const QPointer<QPlainTextEdit> alive = edit;
    edit->selectAll();
    edit->textCursor().removeSelectedText();
    for (const QString &piece : typedPieces(text, isTaken)) {
        if (!alive)
            return false;
        edit->insertPlainText(piece);
    }
    return alive && edit->toPlainText() == text;
}

std::unique_ptr<ControlInterface> interfaceOf(QPlainTextEdit *edit)
{
    return std::make_unique<PlainTextInterface>(edit);
}

// ---- QAbstractSpinBox

std::unique_ptr<ControlInterface> interfaceOf(QAbstractSpinBox *box)
{
    return std::make_unique<SpinBoxInterface>(box);
}

namespace {

class SliderInterface : public InterfaceOf<QAbstractSlider>
{
public:
    using InterfaceOf::InterfaceOf;

    std::optional<int> value() const override { return widget()->value(); }
    std::optional<int> maximum() const override { return widget()->maximum(); }
    QString commands() const override { return QStringLiteral("set"); }

    Result<void> set(int value) override
    {
        if (value < widget()->minimum() || value > widget()->maximum())
            return outsideRange(value, widget()->minimum(), widget()->maximum());
        if (focusAsClicked(widget()))
            widget()->setSliderPosition(value); // as dragging does: an action, then the value
        return {};
    }

    void sendEvents() override
    {
        QAbstractSlider *slider = widget();
        guardWheel(slider);
        // valueChanged comes for code's changes too; an action is the user's, and
        // comes just before its change.
        auto isUsers = std::make_shared<bool>(false);
        QObject::connect(slider, &QAbstractSlider::actionTriggered, slider, [slider, isUsers] {
            *isUsers = slider->sliderPosition() != slider->value();
        });
        QObject::connect(slider, &QAbstractSlider::valueChanged, slider, [slider, isUsers] {
            if (std::exchange(*isUsers, false))
                sendFrom(slider, EventKind::ControlHit);
        });
    }
};

class LineEditInterface : public InterfaceOf<QLineEdit>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override { return widget()->text(); }
    bool hidesText() const override { return widget()->echoMode() != QLineEdit::Normal; }
    QString commands() const override { return QStringLiteral("type"); }

    void localize(const Localizer &localized) override
    {
        InterfaceOf::localize(localized);
        widget()->setPlaceholderText(localized(widget()->placeholderText()));
    }

    void sendEvents() override
    {
        QObject::connect(widget(), &QLineEdit::textEdited, widget(),
                         [line = widget()] { sendFrom(line, EventKind::TextChanged); });
        new LeaveWatcher(widget());
    }

    bool takesText() const override { return true; }
    void keepWithin(const InputLimits &limits) override
    {
        keepTypedWithin(limits, widget(), widget());
    }
    bool enter(const QString &text) override
    {
        return typeInto(widget(), inputLimits(widget()), text);
    }

protected:
    InputLimits limits() const override
    {
        InputLimits limits = InterfaceOf::limits();
        if (limits.maximumLength < 0)
            limits.maximumLength = widget()->maxLength();
        return limits;
    }
};

class TextEditInterface : public InterfaceOf<QTextEdit>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override { return widget()->toPlainText(); }
};

class LabelInterface : public InterfaceOf<QLabel>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override
    {
        return showsMnemonics() ? withoutMnemonic(widget()->text()) : widget()->text();
    }

    void localize(const Localizer &localized) override
    {
        InterfaceOf::localize(localized);
        // A text of the tables that looks like markup is still a text.
        if (widget()->textFormat() == Qt::AutoText)
            widget()->setTextFormat(Qt::PlainText);
        widget()->setText(localized(widget()->text()));
    }

    void setTitle(const QString &title) override
    {
        widget()->setTextFormat(Qt::PlainText);
        widget()->setText(title);
    }

    // Only while it stands for another control.
    bool showsMnemonics() const override { return widget()->buddy(); }
};

class GroupBoxInterface : public InterfaceOf<QGroupBox>
{
public:
    using InterfaceOf::InterfaceOf;

    void localize(const Localizer &localized) override
    {
        InterfaceOf::localize(localized);
        setTitle(localized(widget()->title()));
    }

    void setTitle(const QString &title) override { widget()->setTitle(title); }
    bool showsMnemonics() const override { return true; }

    void sendEvents() override
    {
        QObject::connect(widget(), &QGroupBox::clicked, widget(),
                         [group = widget()] { sendFrom(group, EventKind::ControlHit); });
    }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(QAbstractSlider *slider)
{
    return std::make_unique<SliderInterface>(slider);
}

std::unique_ptr<ControlInterface> interfaceOf(QGroupBox *group)
{
    return std::make_unique<GroupBoxInterface>(group);
}

std::unique_ptr<ControlInterface> interfaceOf(QLabel *label)
{
    return std::make_unique<LabelInterface>(label);
}

std::unique_ptr<ControlInterface> interfaceOf(QLineEdit *line)
{
    return std::make_unique<LineEditInterface>(line);
}

std::unique_ptr<ControlInterface> interfaceOf(QTextEdit *edit)
{
    return std::make_unique<TextEditInterface>(edit);
}

} // namespace kelvo
