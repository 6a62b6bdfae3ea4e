#pragma once

#include <QAccessibleWidget>

#include <functional>

namespace kelvo {

// What screen readers are told of a widget where Qt's own telling falls short:
// - It is called by its accessible name, else as the label whose buddy it is, wherever in the
//   window that stands; Qt looks beside the widget alone. A title around it is no label of it.
// - A description is no markup, and one that only repeats the name is none.
// - What hands the focus on never has it.
// - A dialog that holds up the windows behind it says that it is modal.
// - What it is asked to do is done when the reader has its answer, the focus moved too: what opens
//   a dialog or a menu returns only when that is closed, and the reader would wait as long. Text
//   alone is replaced and selected at once, as each letter is that somebody types.
class AccessibleWidget : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QList<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;
    void doAction(const QString &action) override;

protected:
    // What it is called where it has no accessible name, in place of a label's text; without
    // mnemonics. Empty: it shows none.
    virtual QString ownText() const;

    // Does `act` when the reader has its answer; never, once the widget is gone.
    void later(std::function<void()> act) const;
};

} // namespace kelvo
