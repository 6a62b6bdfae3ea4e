#pragma once

#include "fax_recipient_list.h"

#include <vector>

// Those whom the user sent faxes to last, in a file of the preferences folder that only the
// user can read (preferences.h). What cannot be read or written is said on standard error.
namespace kelvo {

inline constexpr int mostRecentRecipients = 20;

// The last one first; people, not people with numbers as they were typed: the same recipient
// (isSameRecipient()) stands there once.
std::vector<FaxRecipient> recentRecipients();
// Puts them first, in their order.
void rememberRecipients(const FaxRecipientList &recipients);
void forgetRecipients();

} // namespace kelvo
