#include "advanced_description.h"

namespace kelvo {

namespace {

// KPDE numbers of the panel's pop-ups.
constexpr std::int32_t bannerPopup = 614;
constexpr std::int32_t offsetPopup = 616;
constexpr std::int32_t feedEdgePopup = 702;

} // namespace

void describeAdvanced(const DescribedJob &job, JobDescription &description)
{
    PanelDescription panel(job, "Advanced", description);
    // Both orders have one value: the ticket does not say which was chosen.
    panel.leaveUnspoken("AdvancedBookletLayoutOrderStr");
    panel.addChoice("JCLBanner", bannerPopup);
    panel.addChoice("Jog", offsetPopup);
    panel.addChoice("KVFeedEdge", feedEdgePopup);
}

} // namespace kelvo
