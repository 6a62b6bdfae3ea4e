#pragma once

#include <cstdint>

// The job types, values of JobTypeMap, and what is common to their passcodes.
namespace kelvo {

inline constexpr std::int32_t kJobTypeNormal = 1;
inline constexpr std::int32_t kJobTypeHold = 2;
inline constexpr std::int32_t kJobTypeSaved = 3;
inline constexpr std::int32_t kJobTypeProof = 4; // set-up button enabled, no dialog
inline constexpr std::int32_t kJobTypeFax = 5;
inline constexpr std::int32_t kJobTypeSecurePrint = 6;
inline constexpr std::int32_t kJobTypeDelayedPrint = 7;
inline constexpr std::int32_t kJobTypeSampleSet = 8;
inline constexpr std::int32_t kJobTypeBackgroundForm = 9; // as kJobTypeProof

// A passcode's length in digits, as the notices say it.
inline constexpr int kShortestPasscode = 1;
inline constexpr int kLongestPasscode = 12;

} // namespace kelvo
