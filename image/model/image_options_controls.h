#pragma once

#include <cstdint>

// KPDE numbers of the panel's controls that set something: the panel finds them by these,
// and a description of the job says which one set what.
namespace kelvo {

inline constexpr std::int32_t kLightenDarkenSlider = 1102;
inline constexpr std::int32_t kLightenDarkenField = 1104;
inline constexpr std::int32_t kPrinterDefaultBox = 1109;
inline constexpr std::int32_t kImageQualityPopup = 1202;
inline constexpr std::int32_t kTonerSaverBox = 1302;
inline constexpr std::int32_t kCmykSourceColorPopup = 1902;
inline constexpr std::int32_t kOutputColorCorrectionPopup = 2002;
inline constexpr std::int32_t kMirrorBox = 2103;

} // namespace kelvo
