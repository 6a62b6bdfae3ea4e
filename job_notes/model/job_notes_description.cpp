#include "job_notes_description.h"

#include "job_notes_settings.h"
#include "setting_maps.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

// The name that the device is told, also where that is the fixed item's.
void addName(PanelDescription &panel, const JobNotesField &field, const char *labelKey,
             const JobNotesName &name, const SettingMap *fixedItem)
{
    panel.leaveUnspoken(field.flag);
    const QString told =
        string(valueIn(panel.job().printSettings, ticketKey(field.text))).value_or(QString());
    const QString fixed = labelText(panel.job().device, fixedItem->localizedKey);
    panel.add(field.text, labelKey, told.isEmpty() ? fixed : told, field.control, name.isFixed);
}

} // namespace

void describeJobNotes(const DescribedJob &job, JobDescription &description)
{
    PanelDescription panel(job, "JobNotes", description);
    JobNotesSettings settings;
    readJobNotes(settings, job.printSettings, {});
    addName(panel, kJobNameField, "Job Name:", settings.job, JobNameMap);
    addName(panel, kSenderNameField, "Sender Name:", settings.sender, LoginNameMap);
    addName(panel, kRecipientNameField, "Recipient Name:", settings.recipient, LoginNameMap);
    panel.add(kBannerMessageField.text, "Banner Message:", settings.bannerMessage,
              kBannerMessageField.control);
    panel.add(kStartMessageField.text, "Job Start Message:", settings.startMessage,
              kStartMessageField.control);
}

} // namespace kelvo
