#include "advanced_description.h"

#include "advanced_settings.h"

namespace kelvo {

void describeAdvanced(const DescribedJob &job, JobDescription &description)
{
    PanelDescription panel(job, "Advanced", description);
    // Both orders have one value: the ticket does not say which was chosen.
    panel.leaveUnspoken("AdvancedBookletLayoutOrderStr");
    for (const AdvancedChoice &choice : {kBannerChoice, kOffsetChoice, kFeedEdgeChoice})
        panel.addChoice(choice.option, choice.control);
}

} // namespace kelvo
