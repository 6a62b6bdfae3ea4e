#include "history_field.h"

#include "accessible_role.h"
#include "control_support.h"
#include "qt_controls.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QPointer>

namespace kelvo {

HistoryField::HistoryField(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    // Else Return would replace a typed text by an item that differs in case.
    setDuplicatesEnabled(true);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(8);
    guardWheel(this);
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this] { sendFrom(this, EventKind::TextChanged); });
    connect(this, &QComboBox::activated, this, [this] { sendFrom(this, EventKind::ControlHit); });
}

// Readers are told of the line that has the focus, in it.
void HistoryField::showEvent(QShowEvent *event)
{
    lineEdit()->setAccessibleName(accessibleName());
    QComboBox::showEvent(event);
}

QString HistoryField::text() const
{
    return currentText();
}

void HistoryField::setText(const QString &text)
{
    const QSignalBlocker silence(this);
    setCurrentIndex(findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    setEditText(text);
}

QStringList HistoryField::items() const
{
    QStringList texts;
    for (int i = 0; i < count(); ++i)
        texts.append(itemText(i));
    return texts;
}

bool HistoryField::appendItem(const QString &text)
{
    // The first item of an empty list would become the text.
    const QSignalBlocker silence(this);
    const QString typed = currentText();
    const int before = count();
    addItem(text);
    setText(typed);
    return count() == before + 1;
}

bool HistoryField::chooseItem(int row)
{
    if (!isEnabled() || row < 0 || row >= count())
        return false;
    {
        const QSignalBlocker silence(this);
        setCurrentIndex(row);
        setEditText(itemText(row));
    }
    sendFrom(this, EventKind::ControlHit);
    return true;
}

// What code gives the focus to is replaced by what one types, as where Tab does.
void HistoryField::focusInEvent(QFocusEvent *event)
{
    QComboBox::focusInEvent(event);
    tellOfFocusWithin(this);
    if (event->reason() == Qt::OtherFocusReason)
        lineEdit()->selectAll();
}

void HistoryField::focusOutEvent(QFocusEvent *event)
{
    const QPointer<HistoryField> alive = this;
    const bool isLeft = event->reason() != Qt::PopupFocusReason;
    QComboBox::focusOutEvent(event);
    if (alive && isLeft)
        sendFrom(this, EventKind::FocusChanged);
}

namespace {

class HistoryFieldInterface : public InterfaceOf<HistoryField, ComboBoxInterface>
{
public:
    using InterfaceOf::InterfaceOf;

    QString commands() const override { return QStringLiteral("choose, type"); }
    bool choose(const MenuItem &item) override { return widget()->chooseItem(chosenRow(item) - 1); }
    void sendEvents() override { }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(HistoryField *field)
{
    return std::make_unique<HistoryFieldInterface>(field);
}

} // namespace kelvo
