#pragma once

#include <cstdint>

namespace kelvo {

// The set-up button is enabled for these job types; two of them open nothing.
bool hasJobTypeSetup(std::int32_t jobType);

} // namespace kelvo
