#pragma once

class QColor;

namespace kelvo {

// Qt's own style shows the focus of a button, a check box or a list only after a key was pressed,
// and hardly then; and it draws the outlines of fields, boxes and buttons darker than the window.
// On a dark desktop they are not to be seen, and on a black one, of high contrast, nobody sees
// where a field is. From now on whatever has the focus has a ring around it, and outlines are
// lighter than a dark window; those on light ones, and the style of a desktop, stay as they are.
// Call it with an application object, after all else that sets its style, and before there is a
// window.
void showFocusAndOutlines();

// How well one color is seen on the other, 1 (not at all) to 21: the contrast ratio of the Web
// Content Accessibility Guidelines, which ask for 3 between a control and what is around it, and
// for 4.5 of a text.
double contrastOf(const QColor &one, const QColor &other);

} // namespace kelvo
