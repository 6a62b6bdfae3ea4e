#pragma once

#include <cstdint>

namespace kelvo::bench {

// What first_frame.so tells compare_processes of the program that it ended.
struct FrameReport
{
    std::int64_t moment; // ns of CLOCK_MONOTONIC, when the frame was there
    std::int64_t cpu;    // ns, of all threads until then
    std::int64_t memory; // KiB, the peak until then
};

} // namespace kelvo::bench
