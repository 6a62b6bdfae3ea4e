#pragma once

namespace kelvo {

// Whether this is a build with the address sanitizer. It reserves terabytes that it never
// touches, and opens pipes to find out which memory is there: limits on either end it.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kHasAddressSanitizer = true;
#elif defined(__has_feature)
inline constexpr bool kHasAddressSanitizer = __has_feature(address_sanitizer);
#else
inline constexpr bool kHasAddressSanitizer = false;
#endif

} // namespace kelvo
