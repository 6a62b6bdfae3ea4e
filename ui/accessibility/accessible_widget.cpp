#include "accessible_widget.h"

#include "control.h"
#include "mnemonics.h"

#include <QKeySequence>
#include <QLabel>
#include <QTextDocumentFragment>
#include <QWidget>

namespace kelvo {

QAccessible::Role AccessibleWidget::role() const
{
    const QAccessible::Role role = QAccessibleWidget::role();
    const bool adorns = role == QAccessible::Graphic && widget()->accessibleName().isEmpty();
    return adorns ? QAccessible::Client : role;
}

QString AccessibleWidget::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Accelerator) {
        const QLabel *label = labelOf(widget());
        return label ? QKeySequence::mnemonic(label->text()).toString(QKeySequence::NativeText)
                     : QString();
    }
    if (kind == QAccessible::Description) {
        QString description = widget()->accessibleDescription();
        if (description.isEmpty()) // a tool tip is markup
            description = QTextDocumentFragment::fromHtml(widget()->toolTip()).toPlainText();
        return description == text(QAccessible::Name) ? QString() : description;
    }
    if (kind != QAccessible::Name || widget()->isWindow())
        return QAccessibleWidget::text(kind);
    if (const QString name = widget()->accessibleName(); !name.isEmpty())
        return name;
    if (const QString own = ownText(); !own.isEmpty())
        return own;
    const QLabel *label = labelOf(widget());
    return label ? nameInLabel(label->text()) : QString();
}

QAccessible::State AccessibleWidget::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (widget()->focusProxy()) {
        state.focusable = false;
        state.focused = false;
    }
    state.modal = widget()->isWindow() && widget()->isModal();
    return state;
}

QList<QPair<QAccessibleInterface *, QAccessible::Relation>>
AccessibleWidget::relations(QAccessible::Relation match) const
{
    QLabel *label = match & QAccessible::Label && ownText().isEmpty() ? labelOf(widget()) : nullptr;
    if (!label || !label->isVisible())
        return {};
    return {{QAccessible::queryAccessibleInterface(label), QAccessible::Label}};
}

void AccessibleWidget::doAction(const QString &action)
{
    if (action != setFocusAction())
        return;
    later([focused = widget()] {
        if (!focused->isEnabled())
            return;
        if (focused->isWindow())
            focused->activateWindow();
        focused->setFocus();
    });
}

QString AccessibleWidget::ownText() const
{
    const auto *label = qobject_cast<const QLabel *>(widget());
    return label ? label->text() : QString();
}

void AccessibleWidget::later(std::function<void()> act) const
{
    QMetaObject::invokeMethod(widget(), std::move(act), Qt::QueuedConnection);
}

} // namespace kelvo
