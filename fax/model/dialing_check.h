#pragma once

#include "fax_recipient_list.h"

#include <vector>

namespace kelvo {

inline constexpr int kMaxDialingString = 50; // characters that devices dial
inline constexpr int kMaxDialingPrefix = 4;

// Whether the number is longer than that with the prefix before it.
bool isTooLongToDial(const FaxRecipient &recipient, int prefixLength);

// Those who are, borrowed, in the list's order.
std::vector<FaxRecipient *> FindMaxCharacters(const FaxRecipientList &recipients, int prefixLength);

} // namespace kelvo
