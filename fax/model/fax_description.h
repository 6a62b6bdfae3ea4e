#pragma once

#include "described_settings.h"
#include "fax_recipient_list.h"

#include <cstdint>

namespace kelvo {

// Whom the job is faxed to, when, how, and its cover sheet, which is its leading page;
// `control` is the panel's that opens the set-up. Recipients are named in a job of another
// type, too, since they go along with it; the options are unspoken then.
void describeFax(const Dictionary &options, const FaxRecipientList &recipients, bool isFax,
                 PanelDescription &panel, std::int32_t control, JobDescription &description);

} // namespace kelvo
