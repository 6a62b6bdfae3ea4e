#include "recipient_dialogs.h"

#include "dialing_check.h"
#include "dialog_window.h"
#include "fax_texts.h"
#include "hint_text.h"
#include "input_limits.h"
#include "notice.h"
#include "recipient_input.h"
#include "string_table.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>

namespace kelvo {

namespace {

// Characters; above what people, numbers and mail systems have.
constexpr int kLongestText = 255;

struct Field
{
    QString RecipientInput::*typed;
    std::int32_t control;
};

constexpr Field fields[] = {
    {&RecipientInput::firstName, 1402},   {&RecipientInput::lastName, 1404},
    {&RecipientInput::faxNumber, 1406},   {&RecipientInput::organization, 1410},
    {&RecipientInput::phoneNumber, 1412}, {&RecipientInput::emailAddress, 1414},
    {&RecipientInput::mailbox, 1416},
};
constexpr std::size_t kFaxNumberField = 2;

struct RecipientDialog
{
    RecipientEditing &editing;
    FaxRecipient before; // whom the fields begin with
    std::unique_ptr<ModalDialog> window;
    std::array<QLineEdit *, std::size(fields)> edits{};
    QLabel *dialed = nullptr;
    QLabel *label = nullptr;
    QLabel *mailboxHint = nullptr;

    QLineEdit *faxNumber() const { return edits[kFaxNumberField]; }
};

QString text(const RecipientDialog &dialog, const char *key)
{
    return faxText(dialog.editing.device.bundle, key);
}

RecipientInput typedInto(const RecipientDialog &dialog)
{
    RecipientInput input;
    for (std::size_t i = 0; i < std::size(fields); ++i)
        input.*fields[i].typed = dialog.edits[i]->text();
    return input;
}

QString dialedHint(const RecipientDialog &dialog, const QString &typed)
{
    const QString dialed = CopyDialingStringFromFaxNumber(typed);
    switch (numberState(typed)) {
    case NumberState::Missing:
        return text(dialog, "Fax Number Missing Hint");
    case NumberState::NotDialable:
        return text(dialog, "Fax Number Not Dialable Hint");
    case NumberState::Dialable:
        return formatted(text(dialog, "Fax Number Dialed Hint"), {dialed});
    case NumberState::TooLong:
        return formatted(
            text(dialog, "Fax Number Too Long Hint"),
            {QLocale().toString(dialed.size()), QLocale().toString(kMaxDialingString)});
    }
    return {};
}

// What becomes of the number as it stands in the field now.
void showNumber(const RecipientDialog &dialog)
{
    FaxRecipient recipient = dialog.before;
    take(typedInto(dialog), recipient);
    dialog.dialed->setText(dialedHint(dialog, dialog.faxNumber()->text()));
    dialog.faxNumber()->setAccessibleDescription(dialog.dialed->text());
    const FaxString &label = recipient.faxNumberLabel();
    dialog.label->setVisible(label && !label->isEmpty());
    dialog.label->setText(
        formatted(text(dialog, "Fax Number Label Hint"),
                  {shownFaxLabel(dialog.editing.device.bundle, label.value_or(QString()))}));
}

bool mayBeDialed(const RecipientDialog &dialog)
{
    const QString typed = dialog.faxNumber()->text();
    QString message;
    switch (numberState(typed)) {
    case NumberState::Missing:
        message = text(dialog, "Fax Number Missing Message");
        break;
    case NumberState::NotDialable:
        message = formatted(text(dialog, "Fax Number Not Dialable Message"), {typed});
        break;
    case NumberState::Dialable:
    case NumberState::TooLong: // the prefix counts, too: the list is checked as a whole
        return true;
    }
    CFUserNotificationDisplayNotice(NoticeLevel::Stop, text(dialog, "Fax Number Refused Header"),
                                    message, {}, dialog.window.get());
    dialog.faxNumber()->setFocus();
    dialog.faxNumber()->selectAll();
    return false;
}

bool makeWindow(RecipientDialog &dialog, const char *titleKey, QWidget *parent)
{
    dialog.window = createModalDialog(
        dialog.editing.device.bundle, QStringLiteral("LANFAX"), QStringLiteral("Recipient"), parent,
        [&dialog](NeededControls &needed) {
            for (std::size_t i = 0; i < std::size(fields); ++i)
                dialog.edits[i] = needed.find<QLineEdit>({kPanelSignature, fields[i].control});
            dialog.dialed = needed.find<QLabel>({kPanelSignature, 1407});
            dialog.label = needed.find<QLabel>({kPanelSignature, 1408});
            dialog.mailboxHint = needed.find<QLabel>({kPanelSignature, 1417});
        });
    if (!dialog.window)
        return false;
    dialog.window->setWindowTitle(text(dialog, titleKey));
    for (QLabel *hint : {dialog.dialed, dialog.label, dialog.mailboxHint})
        makeHintText(hint);
    // The longest number that is dialed, which has no place to be broken, is seen whole.
    dialog.faxNumber()->setMinimumWidth(
        dialog.faxNumber()->fontMetrics().horizontalAdvance(QString(kMaxDialingString + 2, u'0')));
    const RecipientInput input = inputOf(dialog.before);
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        setInputLimits(dialog.edits[i], {.maximumLength = kLongestText});
        dialog.edits[i]->setText(input.*fields[i].typed);
        dialog.edits[i]->setCursorPosition(0);
    }
    showNumber(dialog);
    dialog.edits.front()->setFocus();
    return true;
}

// `done` has what was typed and says whether the window may close.
DialogResult run(RecipientDialog &dialog, const std::function<bool(const FaxRecipient &)> &done)
{
    const EventHandlerRef handler =
        installEventHandler(dialog.window.get(), [&dialog](const Event &event) {
            if (event.kind == EventKind::TextChanged && event.source == dialog.faxNumber())
                showNumber(dialog);
            return eventNotHandledErr;
        });
    dialog.window->setAcceptRule([&dialog, &done] {
        if (!mayBeDialed(dialog))
            return false;
        FaxRecipient recipient = dialog.before;
        take(typedInto(dialog), recipient);
        return done(recipient);
    });
    return dialog.window->runModal();
}

} // namespace

DialogResult RunModalAddRecipientDialog(RecipientEditing &editing, QWidget *parent)
{
    RecipientDialog dialog{editing, {}};
    if (!makeWindow(dialog, "Add Recipient Title", parent))
        return DialogResult::Cancel;
    return run(dialog, [&](const FaxRecipient &recipient) {
        return AddRecipient(editing, recipient, dialog.window.get());
    });
}

DialogResult RunModalEditRecipientDialog(RecipientEditing &editing, FaxRecipient *recipient,
                                         QWidget *parent)
{
    if (!recipient)
        return DialogResult::Cancel;
    RecipientDialog dialog{editing, *recipient};
    if (!makeWindow(dialog, "Edit Recipient Title", parent))
        return DialogResult::Cancel;
    // Whoever edits a number that is too long comes for that.
    if (numberState(recipient->faxNumber().value_or(QString())) != NumberState::Dialable)
        dialog.faxNumber()->setFocus();
    return run(dialog, [&](const FaxRecipient &edited) {
        *recipient = edited;
        editing.needsDialingCheck = true;
        return true;
    });
}

} // namespace kelvo
