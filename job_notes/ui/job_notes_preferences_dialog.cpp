#include "job_notes_preferences_dialog.h"

#include "dialog_window.h"
#include "event.h"
#include "notice.h"
#include "string_table.h"
#include "ticket_values.h"

#include <QCheckBox>

namespace kelvo {

namespace {

constexpr OSType kPreferencesSignature = fourCharCode("Kjnp");

struct CheckBoxRow
{
    std::int32_t number; // Kjnp
    std::int32_t JobNotesPreferencesOptions::*flag;
};

constexpr CheckBoxRow checkBoxes[] = {
    {9000, &JobNotesPreferencesOptions::useDocumentNameAsJobName},
    {9001, &JobNotesPreferencesOptions::useLoginNameAsSenderName},
    {9002, &JobNotesPreferencesOptions::useLoginNameAsRecipientName},
};

void takeClick(const Event &event, JobNotesPreferencesOptions &options)
{
    const auto *checkBox = qobject_cast<const QCheckBox *>(event.source);
    if (event.kind != EventKind::ControlHit || event.control.signature != kPreferencesSignature
        || !checkBox)
        return;
    for (const CheckBoxRow &row : checkBoxes) {
        if (event.control.number == row.number)
            options.*row.flag = checkBox->isChecked() ? 1 : 0;
    }
}

} // namespace

OSStatus RunModalJobNotesPreferencesDialog(CFBundleRef bundle, DialogMode, JobContext,
                                           JobNotesPreferencesOptions *options,
                                           std::int32_t *itemHit, QWidget *parent)
{
    if (!bundle || !options || !itemHit)
        return paramErr;
    JobNotesPreferencesOptions edited = *options;
    RetrieveJobNotesPreferences(&edited);
    const auto window = createModalDialog(
        bundle, QStringLiteral("JobNotes"), QStringLiteral("JobNotesPrefs"), parent,
        [&edited](NeededControls &needed) {
            for (const CheckBoxRow &row : checkBoxes) {
                if (auto *box = needed.find<QCheckBox>({kPreferencesSignature, row.number}))
                    box->setChecked(edited.*row.flag != 0);
            }
        });
    if (!window)
        return kWindowNotMade;
    const EventHandlerRef handler =
        installEventHandler(window.get(), [&edited](const Event &event) {
            takeClick(event, edited);
            return eventNotHandledErr;
        });
    const DialogResult result = window->runModal();
    *itemHit = static_cast<std::int32_t>(result);
    if (result != DialogResult::OK)
        return noErr;
    *options = edited;
    QString notWritten;
    const OSStatus status = StoreJobNotesPreferences(edited, &notWritten);
    if (!notWritten.isEmpty())
        CFUserNotificationDisplayNotice(
            NoticeLevel::Caution,
            localizedText(bundle, QStringLiteral("Job Notes Preferences Not Kept Headline")),
            formatted(localizedText(bundle, QStringLiteral("Job Notes Preferences Not Kept")),
                      {notWritten}),
            {}, parent);
    return status;
}

} // namespace kelvo
