#pragma once

#include <QList>
#include <QWidget>

#include <memory>

class QButtonGroup;
class QRadioButton;

namespace kelvo {

class ControlInterface;

// Radio buttons of which one is on; the value is the 1-based position, 0 for
// none. Its buttons are its child radio buttons in layout order. Sends
// ControlHit when the user chooses.
class RadioGroup : public QWidget
{
    Q_OBJECT

public:
    explicit RadioGroup(QWidget *parent = nullptr);

    int value() const;
    void setValue(int value); // silent; out of range: none is on
    int count() const;
    QRadioButton *button(int value) const; // null out of range
    QRadioButton *addButton(const QString &text);

    bool choose(int value); // as the user; false when it cannot be picked

protected:
    void childEvent(QChildEvent *event) override;

private:
    QList<QRadioButton *> buttons() const;

    QButtonGroup *m_group;
};

std::unique_ptr<ControlInterface> interfaceOf(RadioGroup *group);
std::unique_ptr<ControlInterface> interfaceOf(QRadioButton *button);

} // namespace kelvo
