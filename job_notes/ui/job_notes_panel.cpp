#include "job_notes_panel.h"

#include "bundle_picture.h"
#include "control.h"
#include "dialog_window.h"
#include "embed_control.h"
#include "event.h"
#include "hint_text.h"
#include "input_limits.h"
#include "job_notes_preferences_dialog.h"
#include "k_combo_box.h"
#include "localized_controls.h"
#include "panel_content.h"
#include "picture_view.h"
#include "setting_maps.h"
#include "system_information.h"
#include "ticket_places.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

constexpr ControlID kNameHint{kPanelSignature, 9131};
constexpr ControlID kPreferencesButton{kPanelSignature, 9160};
constexpr ControlID kMessagesPane{kPanelSignature, 9170};
constexpr ControlID kBannerPicture{kPanelSignature, 9142};
constexpr ControlID kStartPicture{kPanelSignature, 9152};
constexpr int kHistoryLength = 10;
// The printing protocol's own limits of names and texts (RFC 8011, 5.1.3 and 5.1.2).
constexpr int kLongestName = 255, kLongestMessage = 1023;
constexpr int kHintLines = 3;
constexpr int kMessageLines = 3; // that are seen at once

struct NameRow
{
    JobNotesField field;
    QPointer<HistoryField> JobNotesContext::*comboBox;
    JobNotesName JobNotesSettings::*name;
    const SettingMap *map; // of one item, the fixed one
    const char *historyKey;
};

const NameRow names[] = {
    {kJobNameField, &JobNotesContext::jobName, &JobNotesSettings::job, JobNameMap,
     "jobNotesJobName"},
    {kSenderNameField, &JobNotesContext::senderName, &JobNotesSettings::sender, LoginNameMap,
     "jobNotesSenderName"},
    {kRecipientNameField, &JobNotesContext::recipientName, &JobNotesSettings::recipient,
     LoginNameMap, "jobNotesRecipientName"},
};

struct MessageRow
{
    JobNotesField field;
    QPointer<QPlainTextEdit> JobNotesContext::*edit;
    QString JobNotesSettings::*text;
};

constexpr MessageRow messages[] = {
    {kBannerMessageField, &JobNotesContext::bannerMessage, &JobNotesSettings::bannerMessage},
    {kStartMessageField, &JobNotesContext::startMessage, &JobNotesSettings::startMessage},
};

QString loginName()
{
    return consoleUser().value_or(QString());
}

// What becomes of the names, which is not what one would think: they hang on the job's.
void showNameHint(const JobNotesContext &context)
{
    const JobNotesSettings &settings = context.settings;
    const bool areLost = settings.sender.isTyped() || settings.recipient.isTyped();
    const char *key = settings.job.isTyped() ? "Job Notes Names Typed Hint"
        : areLost                            ? "Job Notes Names Lost Hint"
                                             : "Job Notes Login Name Hint";
    SetLocalizedStaticText(context.bundle, QString::fromLatin1(key), context.nameHint,
                           {loginName()});
    for (const NameRow &row : names)
        (context.*row.comboBox)->setAccessibleDescription(context.nameHint->text());
}

// What was typed here is offered for the next job.
void keepNewNames(JobNotesContext &context)
{
    for (const NameRow &row : names) {
        const JobNotesName &name = context.settings.*row.name;
        if (name.isTyped() && name != context.known.*row.name)
            saveHistory(QString::fromLatin1(row.historyKey), name.typed, kHistoryLength);
    }
    context.known = context.settings;
}

OSStatus jobNotesEventHandler(JobNotesContext &context, const Event &event)
{
    if (event.control.signature != kPanelSignature)
        return eventNotHandledErr;
    if (event.kind == EventKind::ControlHit && event.control == kPreferencesButton) {
        std::int32_t itemHit = 0;
        RunModalJobNotesPreferencesDialog(context.bundle, kDialogModeEdit, kJobContextJob,
                                          &context.preferences, &itemHit, context.parentUserPane);
    } else {
        UpdateJobNotesContext(&context);
        showNameHint(context);
    }
    return eventNotHandledErr;
}

void findControls(JobNotesContext &context, NeededControls &needed)
{
    for (const NameRow &row : names)
        context.*row.comboBox = needed.find<HistoryField>({kPanelSignature, row.field.control});
    context.nameHint = needed.find<QLabel>(kNameHint);
    needed.find(kPreferencesButton);
    needed.find(kMessagesPane);
}

void findMessages(JobNotesContext &context, NeededControls &needed)
{
    for (const MessageRow &row : messages)
        context.*row.edit = needed.find<QPlainTextEdit>({kPanelSignature, row.field.control});
    needed.find<PictureView>(kBannerPicture);
    needed.find<PictureView>(kStartPicture);
}

void fillNames(const JobNotesContext &context)
{
    for (const NameRow &row : names) {
        HistoryField *comboBox = context.*row.comboBox;
        KComboBoxInitializeWithMapAndHistory(comboBox,
                                             {.bundle = context.bundle,
                                              .map = row.map,
                                              .historyKey = QString::fromLatin1(row.historyKey),
                                              .historyLimit = kHistoryLength,
                                              .maximumLength = kLongestName});
        setTicketPlaces(comboBox, placesOf(row.field));
    }
    makeHintText(context.nameHint);
    // What is below stays where it is while the hint changes.
    context.nameHint->setMinimumHeight(context.nameHint->fontMetrics().lineSpacing() * kHintLines);
}

void fillMessages(const JobNotesContext &context)
{
    for (const MessageRow &row : messages) {
        QPlainTextEdit *edit = context.*row.edit;
        const QFontMetrics metrics = edit->fontMetrics();
        edit->setFixedHeight(metrics.lineSpacing() * kMessageLines + 2 * edit->frameWidth()
                             + qRound(2 * edit->document()->documentMargin()));
        setInputLimits(edit, {.maximumLength = kLongestMessage});
        setTicketPlaces(edit, placesOf(row.field));
    }
    const auto show = [&context](ControlID view, const char *name, const char *descriptionKey) {
        showBundlePicture(findControl<PictureView>(context.content, view), context.bundle,
                          QString::fromLatin1(name),
                          localizedText(context.bundle, QString::fromLatin1(descriptionKey)));
    };
    show(kBannerPicture, "JobNotes_BannerMessage.gif", "Job Notes Banner Picture");
    show(kStartPicture, "JobNotes_SpecialInstructions.gif", "Job Notes Start Picture");
}

// As they are read, from one window to the other.
void orderTabStops(const JobNotesContext &context)
{
    QWidget *before = context.recipientName;
    for (QWidget *next : {static_cast<QWidget *>(context.bannerMessage.data()),
                          static_cast<QWidget *>(context.startMessage.data()),
                          findControl<QWidget>(context.content, kPreferencesButton)}) {
        QWidget::setTabOrder(before, next);
        before = next;
    }
}

} // namespace

void JobNotesContext::begin(const Ticket &)
{
    RetrieveJobNotesPreferences(&preferences);
}

OSStatus JobNotesContext::read(Ticket &printSettings, const Ticket &)
{
    readJobNotes(settings, printSettings, preferences);
    known = settings;
    if (!content)
        return noErr;
    UpdateJobNotesEditFields(this);
    if (jobName->isVisible())
        jobName->setFocus();
    return noErr;
}

OSStatus JobNotesContext::write(Ticket &printSettings, const Ticket &)
{
    UpdateJobNotesContext(this);
    return writeJobNotes(settings, loginName(), printSettings);
}

// Not where it writes, which is while one types, too.
void JobNotesContext::close()
{
    UpdateJobNotesContext(this);
    keepNewNames(*this);
}

OSStatus JobNotesContext::build()
{
    const OSStatus status = buildContent(
        "JobNotes", "JobNotes", [this](NeededControls &needed) { findControls(*this, needed); },
        [this] { fillNames(*this); },
        [this](const Event &event) { return jobNotesEventHandler(*this, event); });
    if (status != noErr)
        return status;
    QWidget *pane = findControl<QWidget>(content, kMessagesPane);
    QWidget *inPane =
        createPanelContent(bundle, QStringLiteral("JobNotes"), QStringLiteral("JobNotesEnhanced"),
                           pane, [this](NeededControls &needed) { findMessages(*this, needed); });
    if (!inPane)
        return kWindowNotMade;
    EmbedAndShowControl(inPane, pane);
    orderTabStops(*this);
    fillMessages(*this);
    shareLabelWidth({jobName, senderName, recipientName, bannerMessage, startMessage});
    UpdateJobNotesEditFields(this);
    return noErr;
}

void UpdateJobNotesContext(JobNotesContext *context)
{
    for (const NameRow &row : names) {
        if (!(context->*row.comboBox))
            continue;
        QVariant value;
        const OSStatus status = KComboBoxCopyValue(context->*row.comboBox, &value);
        const auto text = status == noErr ? string(value) : std::nullopt;
        const QString typed = text.value_or(QString());
        const bool isFixed = typed.trimmed().isEmpty(); // blanks are no name
        context->settings.*row.name = {isFixed, isFixed ? QString() : typed};
    }
    for (const MessageRow &row : messages) {
        if (context->*row.edit)
            context->settings.*row.text = (context->*row.edit)->toPlainText();
    }
}

void UpdateJobNotesEditFields(JobNotesContext *context)
{
    const JobNotesSettings settings = context->settings; // setting a text may be an event
    for (const NameRow &row : names) {
        const JobNotesName &name = settings.*row.name;
        if (context->*row.comboBox)
            KComboBoxSetValue(context->*row.comboBox,
                              name.isFixed ? QVariant(qint64(row.map->ticketValue))
                                           : QVariant(name.typed));
    }
    for (const MessageRow &row : messages) {
        QPlainTextEdit *edit = context->*row.edit;
        if (edit && edit->toPlainText() != settings.*row.text) // else it keeps its undo
            edit->setPlainText(settings.*row.text);
    }
    context->settings = settings;
    showNameHint(*context);
}

OSStatus GetJobNotesPanelInterface(PanelInterface **interface)
{
    return givePanel<JobNotesContext>(interface);
}

} // namespace kelvo
