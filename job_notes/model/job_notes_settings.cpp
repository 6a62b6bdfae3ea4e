#include "job_notes_settings.h"

#include "ticket_values.h"

namespace kelvo {

namespace {

const QString client = QStringLiteral("com.kelvo.printingmanager");

struct NameRow
{
    JobNotesField field;
    JobNotesName JobNotesSettings::*name;
    std::int32_t JobNotesPreferencesOptions::*isFixedBefore;
};

constexpr NameRow names[] = {
    {kJobNameField, &JobNotesSettings::job, &JobNotesPreferencesOptions::useDocumentNameAsJobName},
    {kSenderNameField, &JobNotesSettings::sender,
     &JobNotesPreferencesOptions::useLoginNameAsSenderName},
    {kRecipientNameField, &JobNotesSettings::recipient,
     &JobNotesPreferencesOptions::useLoginNameAsRecipientName},
};

struct MessageRow
{
    JobNotesField field;
    QString JobNotesSettings::*text;
};

constexpr MessageRow messages[] = {
    {kBannerMessageField, &JobNotesSettings::bannerMessage},
    {kStartMessageField, &JobNotesSettings::startMessage},
};

QString textAt(const Ticket &ticket, const char *name)
{
    return string(valueIn(ticket, ticketKey(name))).value_or(QString());
}

} // namespace

TicketPlaces placesOf(const JobNotesField &field)
{
    TicketPlaces places{{kPMPrintSettingsTicket, ticketKey(field.text)}};
    if (field.flag)
        places.insert({kPMPrintSettingsTicket, ticketKey(field.flag)});
    return places;
}

void readJobNotes(JobNotesSettings &settings, const Ticket &printSettings,
                  const JobNotesPreferencesOptions &preferences)
{
    settings = {};
    for (const NameRow &row : names) {
        JobNotesName &name = settings.*row.name;
        name.isFixed = boolean(valueIn(printSettings, ticketKey(row.field.flag)))
                           .value_or(preferences.*row.isFixedBefore != 0);
        if (!name.isFixed)
            name.typed = textAt(printSettings, row.field.text);
    }
    for (const MessageRow &row : messages)
        settings.*row.text = textAt(printSettings, row.field.text);
}

OSStatus writeJobNotes(const JobNotesSettings &settings, const QString &loginName,
                       Ticket &printSettings)
{
    OSStatus first = noErr;
    const auto note = [&first](OSStatus status) {
        if (first == noErr)
            first = status;
    };
    const auto set = [&](const char *name, const QVariant &value) {
        note(setValue(printSettings, client, ticketKey(name), value));
    };
    const auto remove = [&](const char *name) {
        note(removeValue(printSettings, ticketKey(name)));
    };
    for (const MessageRow &row : messages) {
        if ((settings.*row.text).isEmpty())
            remove(row.field.text);
        else
            set(row.field.text, settings.*row.text);
    }
    remove("JobNotesAdditionalInfo");
    // All three look at the job's name, not each at its own.
    const bool isJobNamed = settings.job.isTyped();
    for (const NameRow &row : names) {
        const JobNotesName &name = settings.*row.name;
        set(row.field.flag, name.isFixed);
        set(row.field.text, isJobNamed ? name.typed : loginName);
    }
    return first;
}

} // namespace kelvo
