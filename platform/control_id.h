#pragma once

#include "four_char_code.h"

#include <QHashFunctions>

#include <cstdint>

namespace kelvo {

// A control's ID: a signature and a number, unique in its window, written `KPDE 102`.
struct ControlID
{
    OSType signature = 0;
    std::int32_t number = 0;

    friend bool operator==(const ControlID &, const ControlID &) = default;
    friend std::size_t qHash(const ControlID &id, std::size_t seed = 0)
    {
        return qHashMulti(seed, id.signature, id.number);
    }
};

inline constexpr OSType kPanelSignature = fourCharCode("KPDE");
inline constexpr OSType kShellSignature = fourCharCode("Kshl");
inline constexpr OSType kUserPaneSignature = fourCharCode("KSgb"); // number = tab index

} // namespace kelvo
