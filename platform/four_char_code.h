#pragma once

#include <cstdint>

namespace kelvo {

// A four-character code such as 'KPDE': commands, signatures, creators. The
// first character is the most significant byte, so the number is the same on
// every machine and in every ticket.
using OSType = std::uint32_t;

constexpr OSType fourCharCode(const char (&text)[5])
{
    OSType code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8 | static_cast<unsigned char>(text[i]);
    return code;
}

inline constexpr OSType kNoCommand = 0;

} // namespace kelvo
