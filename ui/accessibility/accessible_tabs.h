#pragma once

#include "accessible_widget.h"

#include <vector>

namespace kelvo {

class TabControl;

// A row of tabs. The one that is shown is selected, and has the focus while the row has it; Qt
// says that it has it all the time.
class AccessibleTabs : public AccessibleWidget
{
public:
    explicit AccessibleTabs(TabControl *tabs);
    ~AccessibleTabs() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;
    QAccessible::State state() const override;

private:
    TabControl *tabs() const;

    mutable std::vector<QAccessible::Id> m_children;
};

} // namespace kelvo
