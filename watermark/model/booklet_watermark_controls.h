#pragma once

#include <cstdint>

// The panel's controls that set something, of signature KPDE.
namespace kelvo {

inline constexpr std::int32_t kBookletLayoutPopup = 6002;
inline constexpr std::int32_t kPageBordersPopup = 6003;
inline constexpr std::int32_t kBookletOptionsButton = 6005;
inline constexpr std::int32_t kWatermarkPopup = 6007;

} // namespace kelvo
