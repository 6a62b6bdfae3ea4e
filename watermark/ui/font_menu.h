#pragma once

#include <QString>

namespace kelvo {

class PopupButton;

// Gives the pop-up the fonts of the system by family and style, each name in its own face where
// that has Latin letters. An item's key is the PostScript name. Faces are laid out when their
// lines come into sight. Without the library that draws there are none.
void fillFontPopup(PopupButton *popup);

// Shows the font of that PostScript name; for one that is not installed `placeholder` (%1 is
// the name) stands in the place of an item.
void showFont(PopupButton *popup, const QString &postScriptName, const QString &placeholder);
// The PostScript name of the item that is shown; empty when none is.
QString chosenFont(const PopupButton *popup);

} // namespace kelvo
