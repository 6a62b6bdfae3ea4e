#pragma once

#include "finishing_choices.h"
#include "menu.h"

#include <optional>

// The "more finishing" menu, as data: a dialog for each kind of finishing.
namespace kelvo {

// Its commands, in its order. An item whose device is not installed is left out; offset
// and custom finishing are always there.
inline constexpr OSType kCommandSingleStapleDialog = fourCharCode("Fst1");
inline constexpr OSType kCommandDualStapleDialog = fourCharCode("Fst2");
inline constexpr OSType kCommandHolePunchDialog = fourCharCode("Fhpn");
inline constexpr OSType kCommandFoldDialog = fourCharCode("Ffld");
inline constexpr OSType kCommandAdvancedFoldDialog = fourCharCode("Fadv");
inline constexpr OSType kCommandZFoldDialog = fourCharCode("Fzfd");
inline constexpr OSType kCommandBindDialog = fourCharCode("Fbnd");
inline constexpr OSType kCommandOffsetDialog = fourCharCode("Foff");
inline constexpr OSType kCommandCustomFinishingDialog = fourCharCode("Fcus");

void PopulateMoreFinishingMenu(Menu &menu, const Device &device);
// Checks the items whose dialog has something set.
void MarkMoreFinishingMenu(Menu &menu, const PaperOutputSettings &settings, const Device &device);
// Which choice a command asks for; none for the offset, custom finishing and any other.
std::optional<FinishingDialogKind> findFinishingDialog(OSType command);

// What is set of it that the finishing summary has no line for: "Bind, Offset".
QString moreFinishingText(const PaperOutputSettings &settings, const Device &device);

} // namespace kelvo
