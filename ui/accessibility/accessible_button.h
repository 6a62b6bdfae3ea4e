#pragma once

#include "accessible_widget.h"

class QAbstractButton;

namespace kelvo {

// A button, a check box or a radio button. To press or to toggle it is to click on it: that is
// what its owner hears.
class AccessibleButton : public AccessibleWidget
{
public:
    explicit AccessibleButton(QAbstractButton *button);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &action) const override;

protected:
    QString ownText() const override;

private:
    QAbstractButton *button() const;
};

} // namespace kelvo
