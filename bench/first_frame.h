#pragma once

#include <cstdint>

namespace kelvo::bench {

// What first_frame.so tells of the program that it ended.
struct FrameReport
{
    std::int64_t moment;    // ns of CLOCK_MONOTONIC, when the frame was there
    std::int64_t processor; // ns, of all threads until then
    std::int64_t memory;    // bytes, the most that was resident at once until then
};

} // namespace kelvo::bench
