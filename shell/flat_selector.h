#pragma once

class QComboBox;

namespace kelvo {

// Draws a pop-up that is not editable without a frame: its text in bold and an
// arrow, centred; under the pointer it looks like a flat tool button.
void makeFlat(QComboBox *popup);

} // namespace kelvo
