#pragma once

#include "fax_recipient_list.h"

#include <QString>

#include <vector>

// Those whom the user sent faxes to last, in a file of the preferences folder that only the
// user can read: a dictionary with an array "Recipients" of what tickets hold of one. What
// cannot be read counts as not there, what cannot be written is said on standard error.
namespace kelvo {

inline const QString kRecentRecipientsFile =
    QStringLiteral("com.kelvo.print.recentrecipients.plist");
inline constexpr int mostRecentRecipients = 20;

// The last one first; the same recipient (isSameRecipient()) stands there once.
std::vector<FaxRecipient> recentRecipients();
// Puts them first, in their order; those without a number that can be dialed are left out.
void rememberRecipients(const FaxRecipientList &recipients);
// The file is gone afterwards; false where it could not be removed.
bool forgetRecipients();

} // namespace kelvo
