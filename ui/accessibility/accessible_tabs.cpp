#include "accessible_tabs.h"

#include "mnemonics.h"
#include "tab_control.h"

#include <QKeySequence>
#include <QPointer>

namespace kelvo {

namespace {

class AccessibleTab : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleTab(TabControl *tabs, int index)
        : m_tabs(tabs)
        , m_index(index)
    {
    }

    bool isValid() const override { return m_tabs && m_index < m_tabs->count(); }
    QObject *object() const override { return nullptr; } // the row's would stand for the row
    QWindow *window() const override
    {
        const QAccessibleInterface *row = parent();
        return row ? row->window() : nullptr;
    }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_tabs);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QString text(QAccessible::Text kind) const override
    {
        const QString title = isValid() ? m_tabs->tabText(m_index) : QString();
        switch (kind) {
        case QAccessible::Name:
            return withoutMnemonic(title);
        case QAccessible::Accelerator:
            return QKeySequence::mnemonic(title).toString(QKeySequence::NativeText);
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect inRow = m_tabs->tabRect(m_index);
        return {m_tabs->mapToGlobal(inRow.topLeft()), inRow.size()};
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool isShown = m_index == m_tabs->currentIndex();
        state.disabled = !m_tabs->isEnabled() || !m_tabs->isTabEnabled(m_index);
        state.invisible = !m_tabs->isVisible();
        state.selectable = true;
        state.selected = isShown;
        state.focusable = isShown && m_tabs->focusPolicy() != Qt::NoFocus;
        state.focused = isShown && m_tabs->hasFocus();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
            ? static_cast<QAccessibleActionInterface *>(this)
            : nullptr;
    }
    QStringList actionNames() const override
    {
        const QAccessible::State now = state();
        QStringList names;
        if (!now.invalid && !now.disabled)
            names << pressAction();
        if (now.focusable && !now.disabled)
            names << setFocusAction();
        return names;
    }
    // Done when the reader has its answer, as accessible_widget.h says.
    void doAction(const QString &action) override
    {
        if (!actionNames().contains(action))
            return;
        const auto act = [tabs = m_tabs.get(), index = m_index, action] {
            if (action == pressAction())
                tabs->choose(index + 1);
            else
                tabs->setFocus();
        };
        QMetaObject::invokeMethod(m_tabs, act, Qt::QueuedConnection);
    }
    QStringList keyBindingsForAction(const QString &action) const override
    {
        const QString keys = text(QAccessible::Accelerator);
        return action == pressAction() && !keys.isEmpty() ? QStringList(keys) : QStringList();
    }

private:
    QPointer<TabControl> m_tabs;
    int m_index;
};

} // namespace

AccessibleTabs::AccessibleTabs(TabControl *tabs)
    : AccessibleWidget(tabs, QAccessible::PageTabList)
{
}

AccessibleTabs::~AccessibleTabs()
{
    for (const QAccessible::Id id : m_children)
        QAccessible::deleteAccessibleInterface(id);
}

TabControl *AccessibleTabs::tabs() const
{
    return static_cast<TabControl *>(object());
}

int AccessibleTabs::childCount() const
{
    return tabs()->count();
}

QAccessibleInterface *AccessibleTabs::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    while (m_children.size() <= std::size_t(index))
        m_children.push_back(QAccessible::registerAccessibleInterface(
            new AccessibleTab(tabs(), int(m_children.size()))));
    return QAccessible::accessibleInterface(m_children[std::size_t(index)]);
}

QAccessibleInterface *AccessibleTabs::childAt(int x, int y) const
{
    return child(tabs()->tabAt(tabs()->mapFromGlobal(QPoint(x, y))));
}

int AccessibleTabs::indexOfChild(const QAccessibleInterface *child) const
{
    for (int i = 0; i < childCount(); ++i) {
        if (this->child(i) == child)
            return i;
    }
    return -1;
}

QAccessibleInterface *AccessibleTabs::focusChild() const
{
    return tabs()->hasFocus() ? child(tabs()->currentIndex()) : nullptr;
}

QAccessible::State AccessibleTabs::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    state.focusable = false;
    state.focused = false;
    return state;
}

} // namespace kelvo
