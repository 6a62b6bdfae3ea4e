#pragma once

#include "device.h"

class QWidget;

namespace kelvo {

// Shows what this is: versions, the device that it prints to with what is fitted to it, and
// the libraries that it is made with; all of it can be selected and copied. Runs until it is
// closed. Nothing happens for a device without a bundle.
void RunModalAboutDialog(const Device &device, QWidget *parent);

} // namespace kelvo
