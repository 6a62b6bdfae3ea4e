#pragma once

#include "control.h"

namespace kelvo {

// Puts `control` into `parent`'s layout and shows it. The first status that is
// no success; paramErr for a null argument.
inline OSStatus EmbedAndShowControl(QWidget *control, QWidget *parent)
{
    const OSStatus status = embedControl(control, parent);
    if (status == noErr)
        control->show();
    return status;
}

} // namespace kelvo
