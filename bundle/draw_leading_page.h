#pragma once

#include "job_description.h"
#include "plugin_abi.h"

namespace kelvo {

// What the bundle exports under kDrawLeadingPageName: the cover sheet of a fax. An image that
// cannot be read is left out.
KELVO_PLUGIN_EXPORT OSStatus KelvoDrawLeadingPage(const LeadingPageToDraw *page, QByteArray *pdf);

} // namespace kelvo
