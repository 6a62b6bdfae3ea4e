#pragma once

#include "device.h"
#include "ppd_choices.h"
#include "ticket.h"
#include "ticket_file.h"

#include <cstdint>

// What the Advanced panel sets, and how tickets say it:
//
//   com.kelvo.print.AdvancedBookletLayoutOrderStr   integer, client
//                                                   "com.kelvo.printingmanager"
//   PPD choices JCLBanner, Jog, KVFeedEdge          a choice that the keyword map
//                                                   does not have stays in the ticket
namespace kelvo {

struct AdvancedSettings
{
    std::int32_t bookletOrder = 2; // BookletLayoutOrderMap; 2 where the ticket says nothing
    // Ticket values of the PPD options below.
    std::int32_t banner = kNoPpdChoice;
    std::int32_t offset = kNoPpdChoice;
    std::int32_t feedEdge = kNoPpdChoice;

    friend bool operator==(const AdvancedSettings &, const AdvancedSettings &) = default;
};

struct AdvancedChoice
{
    const char *option; // of the PPD
    std::int32_t AdvancedSettings::*value;
    std::int32_t control; // KPDE, its pop-up
};
inline constexpr AdvancedChoice kBannerChoice{"JCLBanner", &AdvancedSettings::banner, 614};
inline constexpr AdvancedChoice kOffsetChoice{"Jog", &AdvancedSettings::offset, 616};
inline constexpr AdvancedChoice kFeedEdgeChoice{"KVFeedEdge", &AdvancedSettings::feedEdge, 702};

// The settings become what the ticket says, else the PPD's defaults: nothing of an
// earlier ticket stays.
void readAdvanced(AdvancedSettings &settings, const Ticket &printSettings, const Device &device);
void writeAdvanced(const AdvancedSettings &settings, Ticket &printSettings);

// Where the ticket says in which order the pages of a booklet come.
TicketPlaces bookletOrderPlaces();

} // namespace kelvo
