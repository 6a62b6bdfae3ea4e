#pragma once

#include "tab_control.h"

namespace kelvo {

// The device's panels as one flat row of segments, the chosen one filled. It is
// a tab control in everything but looks.
class PanelSwitch : public TabControl
{
    Q_OBJECT

public:
    explicit PanelSwitch(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
};

} // namespace kelvo
