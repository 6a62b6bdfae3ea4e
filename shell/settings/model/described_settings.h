#pragma once

#include "device.h"
#include "job_description.h"
#include "ticket.h"

#include <QString>

#include <cstdint>

// What the panels' descriptions of a job are made with (job_description.h).
namespace kelvo {

// What a description is made from.
struct DescribedJob
{
    const Ticket &printSettings;
    const Ticket &pageFormat;
    Device device;
};

// Adds the lines of one panel.
class PanelDescription
{
public:
    // `panel` is the middle of its getter's name. Both are borrowed.
    PanelDescription(const DescribedJob &job, const char *panel, JobDescription &description);

    // What stands at `name` below "com.kelvo.print." in the print settings, "JobType/JobType"
    // for a key of a dictionary; with a text of the bundle as label. Words that are empty
    // say nothing, and the place is unspoken then. The line may be completed.
    DescribedSetting *add(const char *name, const char *labelKey, const QString &words,
                          std::int32_t control, bool isDefault = false);
    // The same with the label itself (nameInLabel()).
    DescribedSetting *addLabelled(const char *name, const QString &label, const QString &words,
                                  std::int32_t control, bool isDefault = false);
    // The choice of a PPD option in the PPD's words: `choice`, else what the ticket says, else
    // the PPD's default. Nothing where the device lacks the option or the choice, or where
    // it is unspoken.
    DescribedSetting *addChoice(const char *option, std::int32_t control,
                                const std::optional<QString> &choice = {});
    // The same with a text of the job's own in place of the choice's. `labelKey` is for a
    // device that lacks the option.
    DescribedSetting *addOwnChoice(const char *option, const char *labelKey, const QString &words,
                                   std::int32_t control);

    // Nothing is to be said of it.
    void leaveUnspoken(const char *name);
    void leaveChoiceUnspoken(const char *option);

    const DescribedJob &job() const { return m_job; }

private:
    DescribedSetting *push(DescribedSetting setting);

    const DescribedJob &m_job;
    const QString m_panel;
    JobDescription &m_description;
};

// nameInLabel() of a text that stands on a control too, a label's or an item's.
QString labelText(const Device &device, const char *key);

} // namespace kelvo
