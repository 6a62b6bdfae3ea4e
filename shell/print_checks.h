#pragma once

#include "pde_session.h"

// What is looked at when the user presses Print.
namespace kelvo {

enum class PrintCheck {
    Proceed,
    MissingPasscode,      // secure print that nobody could release at the device
    MissingFaxRecipients, // a fax to nobody
    NoFaxDevice,          // a fax, on a device that would print it
};

[[nodiscard]] PrintCheck checkBeforePrint(const JobTypeState &state);

} // namespace kelvo
