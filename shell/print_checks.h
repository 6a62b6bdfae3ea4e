#pragma once

#include "pde_session.h"

// What is looked at when the user presses Print.
namespace kelvo {

// Job types (values of JobTypeMap) that cannot print without something more.
inline constexpr std::int32_t kJobTypeFax = 5;
inline constexpr std::int32_t kJobTypeSecurePrint = 6;

// A secure-print passcode's length in digits, as the notices say it.
inline constexpr int kShortestPasscode = 1;
inline constexpr int kLongestPasscode = 12;

enum class PrintCheck {
    Proceed,
    MissingPasscode,      // secure print that nobody could release at the device
    MissingFaxRecipients, // a fax to nobody
};

[[nodiscard]] PrintCheck checkBeforePrint(const JobTypeState &state);

} // namespace kelvo
