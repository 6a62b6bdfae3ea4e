#pragma once

#include "control.h"

#include <QLabel>
#include <QList>
#include <QWidget>

#include <algorithm>

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

// The labels of `fields` have one width, in whatever layouts they stand. A field may be null
// and may have no label.
inline void shareLabelWidth(const QList<QWidget *> &fields)
{
    QList<QLabel *> labels;
    int width = 0;
    for (const QWidget *field : fields) {
        if (QLabel *label = field ? labelOf(field) : nullptr) {
            labels << label;
            width = std::max(width, label->sizeHint().width());
        }
    }
    for (QLabel *label : labels)
        label->setMinimumWidth(width);
}

} // namespace kelvo
