#pragma once

#include <QStringList>
#include <QTabBar>

#include <memory>

namespace kelvo {

class ControlInterface;

// The tabs alone; the panes are shown by whoever hears the hit. The value is
// the 1-based tab. Sends ControlHit when the user changes it.
class TabControl : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(QStringList titles READ titles WRITE setTitles)

public:
    explicit TabControl(QWidget *parent = nullptr);

    QStringList titles() const;
    void setTitles(const QStringList &titles); // silent; keeps the value where it can

    int value() const { return currentIndex() + 1; }
    void setValue(int value); // silent
    bool choose(int value);   // as the user; false when there is no such tab or it is disabled

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
};

std::unique_ptr<ControlInterface> interfaceOf(TabControl *tabs);

} // namespace kelvo
