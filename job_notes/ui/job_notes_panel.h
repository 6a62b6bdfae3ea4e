#pragma once

#include "history_field.h"
#include "job_notes_settings.h"
#include "panel_context.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>

// The Job Notes panel: the names and the message of the banner sheet, and a message for
// when the job begins.
namespace kelvo {

// A panel of its own beside the shell: PanelInterfaces does not name it, the bundle's
// Info.plist does.
KELVO_PLUGIN_EXPORT OSStatus GetJobNotesPanelInterface(PanelInterface **interface);

struct JobNotesContext final : PanelContext
{
    static constexpr PanelTraits traits{.titleKey = "JobNotes", .signature = kPanelSignature};
    JobNotesContext()
        : PanelContext(traits)
    {
    }

    void begin(const Ticket &printSettings) override; // the preferences
    OSStatus read(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus write(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus build() override;
    void close() override; // names that were typed go into the histories

    JobNotesSettings settings;
    JobNotesSettings known; // as last read or closed: the histories need none of these names
    JobNotesPreferencesOptions preferences;

    // Null until it is built.
    QPointer<HistoryField> jobName, senderName, recipientName; // kJobNameField …
    QPointer<QPlainTextEdit> bannerMessage, startMessage;      // kBannerMessageField …
    QPointer<QLabel> nameHint;                                 // KPDE 9131
};

// From the controls, once they are there, to the settings.
void UpdateJobNotesContext(JobNotesContext *context);
// And back; a number of the map for a name that is fixed.
void UpdateJobNotesEditFields(JobNotesContext *context);

} // namespace kelvo
