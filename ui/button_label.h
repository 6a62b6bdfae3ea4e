#pragma once

class QLabel;

namespace kelvo {

// The label of a button that has no words of its own, its buddy, becomes a part of it: a click on
// the words is one on the button, both look hovered and pressed together, and the words are
// disabled with it. A label beside any other control, or before a menu button, stays one. Call it
// once, when buddy and texts are known; it ends with the label.
void makePartOfButton(QLabel *label);

} // namespace kelvo
