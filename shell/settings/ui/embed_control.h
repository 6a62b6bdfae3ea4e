#pragma once

#include "control.h"

#include <QWidget>

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

// The window keeps its size while `widget` comes and goes.
inline void keepPlaceWhenHidden(QWidget *widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

} // namespace kelvo
