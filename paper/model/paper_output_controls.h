#pragma once

#include <cstdint>

// KPDE numbers of the panel's controls that set something: the panel finds them by these,
// and a description of the job says which one set what.
namespace kelvo {

inline constexpr std::int32_t kJobTypePopup = 102;
inline constexpr std::int32_t kJobTypeSetupButton = 103;
inline constexpr std::int32_t kStockButton = 106;
inline constexpr std::int32_t kTwoSidedPopup = 110;
inline constexpr std::int32_t kStaplingPopup = 113;
inline constexpr std::int32_t kHolePunchPopup = 116;
inline constexpr std::int32_t kOutputColorPopup = 119;
inline constexpr std::int32_t kFinishingButton = 123;
inline constexpr std::int32_t kOutputDestinationPopup = 126;
inline constexpr std::int32_t kMoreFinishingButton = 128;
inline constexpr std::int32_t kCoversButton = 129;
inline constexpr std::int32_t kSeparatorsButton = 130;

} // namespace kelvo
