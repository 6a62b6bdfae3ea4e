#pragma once

class QLabel;

namespace kelvo {

// Makes `label` an explanation beside a control: quieter than the control's own
// text, readable on any theme, and plain text. It follows the theme when that
// changes. Nothing happens for null.
void makeHintText(QLabel *label);

} // namespace kelvo
