#include "saved_job_dialog.h"

#include "control.h"
#include "dialog_window.h"
#include "embed_control.h"
#include "event.h"
#include "hint_text.h"
#include "input_limits.h"
#include "job_type_dialog.h"
#include "job_types.h"
#include "k_combo_box.h"
#include "localized_controls.h"
#include "notice.h"
#include "popups.h"
#include "radio_group.h"
#include "string_table.h"
#include "terminal.h"
#include "ticket_values.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kelvo {

namespace {

constexpr int kPictureView = 8500;       // KPDE
constexpr int kFormatPictureView = 8548; // KPDE
constexpr ControlID kNameField{kPanelSignature, 8541};
constexpr ControlID kUseJobName{kPanelSignature, 8542};
constexpr ControlID kMailboxLabel{kPanelSignature, 8543};
constexpr ControlID kMailboxField{kPanelSignature, 8544};
constexpr ControlID kMailboxHint{kPanelSignature, 8545};
constexpr ControlID kDisposition{kPanelSignature, 8546};
constexpr ControlID kFormatPopup{kPanelSignature, 8547};
constexpr ControlID kSecure{kPanelSignature, 8549};
constexpr ControlID kPasscodeHint{kPanelSignature, 8506};

constexpr int kHistoryLength = 10;       // names, and mailboxes
constexpr int kLongestMailboxNumber = 3; // digits

struct SavedJobContext
{
    Device device;
    std::unique_ptr<ModalDialog> window;
    DialogResult result = DialogResult::Cancel;
    SavedJobData data;
    QString typedName; // while the document's name stands in the field
    QPointer<HistoryField> name;
    QPointer<QCheckBox> useJobName;
    QPointer<HistoryField> mailbox;
    QPointer<QLabel> mailboxHint;
    QPointer<RadioGroup> disposition;
    QPointer<PopupButton> format;
    QPointer<QCheckBox> secure;
    PasscodeFields fields;
    QPointer<QLabel> passcodeHint; // why OK is disabled
    EventHandlerRef handler;
};

void findControls(SavedJobContext &context, NeededControls &needed)
{
    context.name = needed.find<HistoryField>(kNameField);
    context.useJobName = needed.find<QCheckBox>(kUseJobName);
    context.mailbox = needed.find<HistoryField>(kMailboxField);
    context.mailboxHint = needed.find<QLabel>(kMailboxHint);
    context.disposition = needed.find<RadioGroup>(kDisposition);
    context.format = needed.find<PopupButton>(kFormatPopup);
    context.secure = needed.find<QCheckBox>(kSecure);
    context.passcodeHint = needed.find<QLabel>(kPasscodeHint);
    context.fields = findPasscodeFields(needed);
}

// A number that is too large must stand until OK says so, so the mailbox is a text
// of digits: a numeric field would turn it into 200.
void fillControls(const SavedJobContext &context)
{
    KComboBoxOptions names;
    names.bundle = context.device.bundle;
    names.historyKey = QStringLiteral("savedJobNames");
    names.historyLimit = kHistoryLength;
    names.maximumLength = kLongestSavedJobName;
    KComboBoxInitializeWithMapAndHistory(context.name, names);

    if (const std::optional<QString> elsewhere = locationElsewhere(context.data.job))
        context.mailbox->appendItem(nameOfLocation(*elsewhere));
    KComboBoxOptions mailboxes;
    mailboxes.bundle = context.device.bundle;
    mailboxes.historyKey = QStringLiteral("mailboxNumbers");
    mailboxes.historyLimit = kHistoryLength;
    mailboxes.maximumLength = kLongestMailboxNumber;
    mailboxes.allowed = InputLimits::decimalDigits();
    KComboBoxInitializeWithMapAndHistory(context.mailbox, mailboxes);
    const QStringList range = {QString::number(kFirstMailbox), QString::number(kLastMailbox)};
    SetLocalizedStaticText(context.device.bundle, QStringLiteral("Mailbox Number Label"),
                           findControl<QLabel>(context.window.get(), kMailboxLabel), range);
    context.mailbox->setAccessibleName(formatted(
        localizedText(context.device.bundle, QStringLiteral("Mailbox Number Spoken")), range));
    makeHintText(context.mailboxHint);

    SetLocalizedStaticText(
        context.device.bundle, QStringLiteral("Saved Job Passcode Hint"), context.passcodeHint,
        {QString::number(kShortestSavedJobPasscode), QString::number(kLongestPasscode)});
    keepPlaceWhenHidden(context.passcodeHint);

    PopulatePopupButtonFromMap(context.device, context.format, SavedJobFormatMap, kJobContextJob,
                               kNoCommand);
}

// The place that is no mailbox is named while it is shown, and while it can be chosen.
void showMailboxHint(const SavedJobContext &context)
{
    const QString elsewhere =
        nameOfLocation(locationElsewhere(context.data.job).value_or(QString()));
    QString key = QStringLiteral("Mailbox Hint");
    if (!elsewhere.isEmpty())
        key = context.mailbox->text() == elsewhere ? QStringLiteral("Mailbox Elsewhere Hint")
                                                   : QStringLiteral("Mailbox Not Elsewhere Hint");
    SetLocalizedStaticText(context.device.bundle, key, context.mailboxHint, {elsewhere});
    context.mailbox->setAccessibleDescription(context.mailboxHint->text());
}

// What is enabled and drawn, from what the controls hold.
void syncToUI(const SavedJobContext &context)
{
    const bool isSecure = context.secure->isChecked();
    setEnabledWithLabel(context.name, !context.useJobName->isChecked());
    showMailboxHint(context);
    syncPasscodeFields(context.fields, isSecure);
    // An empty field keeps OK: then the dialog makes a passcode, which nobody
    // could reach otherwise.
    const bool mayAccept = isSavedJobPasscodeAllowed(isSecure, context.fields.passcode->text());
    auto *okButton = windowDefaultButton(context.name);
    okButton->setEnabled(mayAccept);
    okButton->setAccessibleDescription(mayAccept ? QString() : context.passcodeHint->text());
    context.passcodeHint->setVisible(!mayAccept);
    // The pop-up beside it says which format it is.
    showJobTypePicture(context.device.bundle, context.window.get(), kFormatPictureView,
                       fileFormatPicture(GetPopupButtonTicketValue(context.format)),
                       QStringLiteral("File Format Picture"));
}

void showName(SavedJobContext &context)
{
    KComboBoxSetValue(context.name,
                      context.useJobName->isChecked() ? context.data.documentName
                                                      : context.typedName);
}

void RestoreUIValuesFromData(SavedJobContext &context)
{
    const SavedJob &job = context.data.job;
    context.typedName = job.name;
    context.useJobName->setChecked(job.usesJobName);
    showName(context);
    KComboBoxSetValue(context.mailbox, mailboxText(job));
    context.mailbox->lineEdit()->setCursorPosition(0);
    context.disposition->setValue(job.saveDisposition);
    showChoice(context.device.bundle, context.format, job.fileFormat);
    const QString passcode = context.data.passcode.value_or(QString());
    context.secure->setChecked(!passcode.isEmpty());
    setPasscode(context.fields, passcode);
    syncToUI(context);
    printLine(stderr, QStringLiteral("Values restored."));
}

void SaveUIValuesToData(SavedJobContext &context)
{
    SavedJob &job = context.data.job;
    const bool usesJobName = context.useJobName->isChecked();
    setSavedJobName(job, usesJobName, usesJobName ? context.typedName : context.name->text());
    job.location = locationOfText(context.mailbox->text(), job);
    // The histories get what is stored: "7", and not "007" beside it.
    if (!job.usesJobName)
        KComboBoxSetValue(context.name, job.name);
    KComboBoxSetValue(context.mailbox, mailboxText(job));
    // What the controls cannot show stays as it was.
    if (const int position = context.disposition->value())
        job.saveDisposition = position;
    takeChoice(context.format, job.fileFormat);
    context.data.passcode =
        context.secure->isChecked() ? std::optional(context.fields.passcode->text()) : std::nullopt;
}

bool mayClose(const SavedJobContext &context)
{
    if (!isMailboxAllowed(context.mailbox->text(), context.data.job)) {
        CFUserNotificationDisplayNotice(
            NoticeLevel::Stop,
            localizedText(context.device.bundle, QStringLiteral("Invalid Mailbox Headline")),
            formatted(localizedText(context.device.bundle,
                                    QStringLiteral("Invalid Mailbox Number Error")),
                      {QString::number(kFirstMailbox), QString::number(kLastMailbox)}),
            {}, context.window.get());
        context.mailbox->setFocus();
        context.mailbox->lineEdit()->selectAll();
        return false;
    }
    return !context.secure->isChecked()
        || takePasscode(context.device.bundle, context.fields, kLongestAnnouncedPasscode);
}

OSStatus handleEvent(SavedJobContext &context, const Event &event)
{
    if (event.kind != EventKind::TextChanged && event.kind != EventKind::ControlHit)
        return eventNotHandledErr;
    if (event.source == context.name)
        context.typedName = context.name->text();
    else if (event.source == context.useJobName)
        showName(context);
    syncToUI(context);
    return eventNotHandledErr;
}

OSStatus initializeSavedJob(SavedJobContext &context, QWidget *parent)
{
    context.window = createModalDialog(
        context.device.bundle, QStringLiteral("JobTypes"), QStringLiteral("SavedJob"), parent,
        [&context](NeededControls &needed) { findControls(context, needed); });
    if (!context.window)
        return kWindowNotMade;
    limitPasscodeFields(context.device.bundle, context.fields, kShortestSavedJobPasscode);
    showJobTypePicture(context.device.bundle, context.window.get(), kPictureView,
                       QStringLiteral("JobType_SavedJob.gif"),
                       QStringLiteral("Save to Mailbox Command"));
    fillControls(context);
    RestoreUIValuesFromData(context);
    context.handler = installEventHandler(context.window.get(), [&context](const Event &event) {
        return handleEvent(context, event);
    });
    context.window->setAcceptRule([&context] { return mayClose(context); });
    return noErr;
}

void finalizeSavedJob(const SavedJobContext &context)
{
    const bool isKept = context.result == DialogResult::OK;
    // The document's name was not typed.
    KComboBoxFinalize(context.name, isKept && !context.data.job.usesJobName);
    KComboBoxFinalize(context.mailbox, isKept);
}

} // namespace

OSStatus RunModalSavedJobDialog(const Device &device, SavedJobData *data, QWidget *parent)
{
    if (!device.bundle || !data)
        return paramErr;
    SavedJobContext context;
    context.device = device;
    context.data = *data;
    const OSStatus status = initializeSavedJob(context, parent);
    if (status != noErr)
        return status;
    context.result = context.window->runModal();
    if (context.result == DialogResult::OK) {
        SaveUIValuesToData(context);
        *data = context.data;
    }
    finalizeSavedJob(context);
    return noErr;
}

} // namespace kelvo
