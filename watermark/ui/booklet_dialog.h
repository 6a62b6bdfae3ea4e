#pragma once

#include "bundle.h"
#include "status.h"

#include <cstdint>

class QWidget;

namespace kelvo {

// What the booklet dialog edits; ticket values.
struct _BookletCreationParams // NOLINT(bugprone-reserved-identifier): the dialog's own name
{
    CFBundleRef bundle = nullptr;
    std::int32_t fold = 0;        // "KVFold"
    std::int32_t booklet = 0;     // EnabledDisabledMap
    std::int32_t pageBorders = 0; // PageBordersMap
    std::int32_t newSize = 0;     // "PageSize", or kUnset
    std::int32_t gutter = 0;      // points
    std::int32_t creep = 0;       // tenths
};

inline constexpr OSStatus kBookletCancelled = -1;

// noErr after OK, with the parameters updated; kBookletCancelled otherwise. There
// is no booklet window yet: a notice says so, and the answer is kBookletCancelled.
OSStatus RunModalBookletCreationDialog(_BookletCreationParams *params, QWidget *parent = nullptr);

} // namespace kelvo
