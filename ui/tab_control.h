#pragma once

#include <QTabBar>

namespace kelvo {

// The tabs alone; the panes are shown by whoever hears the hit. The value is
// the 1-based tab. Sends ControlHit when the user changes it.
class TabControl : public QTabBar
{
    Q_OBJECT

public:
    explicit TabControl(QWidget *parent = nullptr);

    int value() const { return currentIndex() + 1; }
    void setValue(int value); // silent
    bool choose(int value);   // as the user
};

} // namespace kelvo
