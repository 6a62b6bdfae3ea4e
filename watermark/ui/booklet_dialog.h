#pragma once

#include "booklet_creation.h"
#include "status.h"

class QWidget;

namespace kelvo {

inline constexpr OSStatus kBookletCancelled = -1;

// The booklet dialog, which asks for the fold where the device folds booklets. noErr after OK,
// with the parameters updated; kBookletCancelled, with nothing changed; paramErr for null
// parameters or a device without bundle; kWindowNotMade. A fold that is no booklet's stays
// unless another one is picked.
OSStatus RunModalBookletOptionsDialog(const Device &device, _BookletCreationParams *params,
                                      QWidget *parent = nullptr);
// The same, as it is opened from the finishing menu.
OSStatus RunModalBookletCreationDialog(const Device &device, _BookletCreationParams *params,
                                       QWidget *parent = nullptr);

} // namespace kelvo
