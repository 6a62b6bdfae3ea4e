#pragma once

namespace kelvo {

// Whether this is a build with the address or the thread sanitizer. They reserve terabytes
// that they never touch, and open pipes to find out which memory is there: limits on
// either end them.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool kHasSanitizer = true;
#elif defined(__has_feature)
inline constexpr bool kHasSanitizer =
    __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
inline constexpr bool kHasSanitizer = false;
#endif

} // namespace kelvo
