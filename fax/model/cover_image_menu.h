#pragma once

#include "cover_sheet.h"
#include "device.h"
#include "menu.h"

#include <QStringList>

// The menu of cover images: none, the user's, the sheet's paper, and what can be done with the
// chosen one. Commands that it shares with watermarks are those of watermark_menu.h.
namespace kelvo {

inline constexpr OSType kCommandNewCoverImage = fourCharCode("LFin");
inline constexpr OSType kCommandEditCoverImage = fourCharCode("LFie");
inline constexpr OSType kCommandDeleteCoverImage = fourCharCode("LFid");

// `names` are those of the store. A chosen one that is not among them is kept, and has no item.
Menu coverImageMenu(const Device &device, const CoverSheetSettings &settings,
                    const QStringList &names);

// What an item of the sizes' submenu does; false for any other command.
bool applyCoverSize(CoverSheetSettings &settings, OSType command);

} // namespace kelvo
