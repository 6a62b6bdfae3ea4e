#pragma once

namespace kelvo {

// What kelvo-print ends with. Administrators' scripts compare these.
enum class ExitStatus : int {
    Printed = 0, // or the script ended as it said
    Failed = 1,
    WrongUsage = 2,    // command line or script
    NotOffered = 3,    // settings in conflict or not offered by the device
    NoDestination = 4, // unknown or unreachable
    InvalidTicket = 6,
    Cancelled = 130, // by the user
};

} // namespace kelvo
