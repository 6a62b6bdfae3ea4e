#include "menu_button.h"

#include "control_support.h"
#include "qt_controls.h"
#include "tool_tip.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int choiceCharacters = 16;

// Whether `wanted` is one of `items`, and it and every menu around it is enabled.
bool isOffered(const std::vector<MenuItem> &items, const MenuItem *wanted)
{
    for (const MenuItem &item : items) {
        if (&item == wanted)
            return item.enabled && !item.divider && item.submenu.empty();
        if (item.enabled && isOffered(item.submenu, wanted))
            return true;
    }
    return false;
}

// The item of `items` that is what `picked` was; null when there is none left.
const MenuItem *findAgain(const std::vector<MenuItem> &items, const MenuItem &picked)
{
    for (const MenuItem &item : items) {
        if (!item.divider && item.submenu.empty() && item.text == picked.text
            && item.key == picked.key && item.command == picked.command
            && item.reference == picked.reference)
            return &item;
        if (const MenuItem *inner = findAgain(item.submenu, picked))
            return inner;
    }
    return nullptr;
}

// A menu shows an ampersand as a mnemonic and a tab as a short cut; the texts
// come from PPDs and users and mean neither.
QString asMenuText(const QString &text)
{
    return oneLine(text).replace(u'&', QStringLiteral("&&"));
}

// Of lines without mnemonics, any number: what is typed goes to the line that begins so, and one
// that the screen cannot show whole opens at what is chosen.
class LongMenu : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void showEvent(QShowEvent *event) override
    {
        QMenu::showEvent(event);
        const QList<QAction *> lines = actions();
        const auto chosen = std::ranges::find_if(lines, &QAction::isChecked);
        // Who opened it by a key goes to its first line now.
        if (chosen != lines.end() && sizeHint().height() > height())
            QMetaObject::invokeMethod(
                this, [this, line = *chosen] { goTo(line); }, Qt::QueuedConnection);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (!m_lastTyped.isValid() || m_lastTyped.hasExpired(QApplication::keyboardInputInterval()))
            m_typed.clear();
        const QString text = event->text();
        if (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier) || text.isEmpty()
            || !text.front().isPrint() || (text == u" " && m_typed.isEmpty())) {
            QMenu::keyPressEvent(event);
            return;
        }
        m_lastTyped.start();
        if (m_typed != text) // a letter again is the next line
            m_typed += text;
        if (QAction *line = findTyped())
            goTo(line);
    }

private:
    // As by arrow keys, which scroll no further than they must: setActiveAction() leaves blank room
    // below the last lines.
    void goTo(QAction *line)
    {
        const QList<QAction *> lines = actions();
        const bool isAbove = lines.indexOf(line) < lines.indexOf(activeAction());
        for (qsizetype i = 0; i < lines.size() && activeAction() != line; ++i) {
            QKeyEvent step(QEvent::KeyPress, isAbove ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier);
            QMenu::keyPressEvent(&step);
        }
    }

    // The next line that begins with what was typed; the active one only while it is typed on.
    QAction *findTyped() const
    {
        const QList<QAction *> lines = actions();
        const qsizetype first = lines.indexOf(activeAction()) + (m_typed.size() == 1 ? 1 : 0);
        for (qsizetype i = 0; i < lines.size(); ++i) {
            QAction *line = lines[(std::max<qsizetype>(first, 0) + i) % lines.size()];
            if (line->isEnabled() && !line->menu()
                && line->text().startsWith(m_typed, Qt::CaseInsensitive))
                return line;
        }
        return nullptr;
    }

    QString m_typed;
    QElapsedTimer m_lastTyped;
};

void fill(QMenu *shown, const std::vector<MenuItem> &items, MenuButton *button)
{
    for (const MenuItem &item : items) {
        if (item.divider) {
            shown->addSeparator();
            continue;
        }
        if (!item.submenu.empty()) {
            auto *submenu = new LongMenu(asMenuText(item.text), shown);
            shown->addMenu(submenu);
            submenu->setEnabled(item.enabled);
            fill(submenu, item.submenu, button);
            continue;
        }
        QAction *action = shown->addAction(asMenuText(item.text));
        action->setEnabled(item.enabled);
        action->setCheckable(item.checked);
        action->setChecked(item.checked);
        // Once the menu is closed, and whoever triggered it has the answer: a screen reader waits
        // for that, and a choice may open a dialog. Till then the menu may be filled anew.
        QObject::connect(
            action, &QAction::triggered, button,
            [button, picked = item] {
                static_cast<QPushButton *>(button)->menu()->close();
                if (const MenuItem *found = findAgain(button->menu().items, picked))
                    button->choose(*found);
            },
            Qt::QueuedConnection);
    }
}

} // namespace

MenuButton::MenuButton(QWidget *parent)
    : QPushButton(parent)
    , m_shown(new LongMenu(this))
{
    setAutoDefault(false);
    QPushButton::setMenu(m_shown);
    connect(m_shown, &QMenu::aboutToShow, this, &MenuButton::fillShownMenu);
}

void MenuButton::setMenu(Menu menu)
{
    m_menu = std::move(menu);
    m_maximum = static_cast<int>(m_menu.items.size());
}

const Menu &MenuButton::updatedMenu()
{
    if (m_update)
        m_update(m_menu);
    return m_menu;
}

bool MenuButton::choose(const MenuItem &item)
{
    if (!isEnabled() || !isOffered(m_menu.items, &item))
        return false;
    // Handlers may fill the menu anew, or close the window.
    const OSType command = item.command;
    const std::int32_t reference = item.reference;
    const QPointer<MenuButton> alive = this;
    sendFrom(this, EventKind::Menu, command, reference);
    if (alive && command != kNoCommand)
        sendFrom(this, EventKind::Command, command, reference);
    return true;
}

void MenuButton::setShownChoice(const QString &text)
{
    m_choice = text;
    setText(asMenuText(text)); // for screen readers
    update();
}

// As wide as a pop-up button (popup_button.h) would ask for: a long name does not make its
// panel wider.
QSize MenuButton::sizeHint() const
{
    if (m_choice.isNull())
        return QPushButton::sizeHint();
    QStyleOptionComboBox option;
    option.initFrom(this);
    const QFontMetrics metrics = fontMetrics();
    const QSize text(choiceCharacters * metrics.horizontalAdvance(u'X'), metrics.height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}

QStyleOptionComboBox MenuButton::choiceOption() const
{
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.state.setFlag(QStyle::State_Sunken, isDown());
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText =
        option.fontMetrics.elidedText(oneLine(m_choice), Qt::ElideRight, field.width() - 4);
    return option;
}

bool MenuButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && !m_choice.isNull()
        && choiceOption().currentText != oneLine(m_choice)) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(m_choice),
                           this);
        return true;
    }
    return QPushButton::event(event);
}

void MenuButton::keyPressEvent(QKeyEvent *event)
{
    // It looks like a pop-up, and Qt would go to the next button with them.
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up)
        showMenu();
    else
        QPushButton::keyPressEvent(event);
}

void MenuButton::paintEvent(QPaintEvent *event)
{
    if (m_choice.isNull()) {
        QPushButton::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    const QStyleOptionComboBox option = choiceOption();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void MenuButton::fillShownMenu()
{
    m_shown->clear();
    // Submenus are children of their menu, and clear() takes the actions alone.
    qDeleteAll(m_shown->findChildren<QMenu *>(Qt::FindDirectChildrenOnly));
    fill(m_shown, updatedMenu().items, this);
}

namespace {

class MenuButtonInterface : public InterfaceOf<MenuButton, ButtonInterface>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override
    {
        const QString &choice = widget()->shownChoice();
        return choice.isNull() ? ButtonInterface::text() : choice;
    }
    std::optional<int> maximum() const override { return widget()->maximum(); }
    const Menu *menu() override { return &widget()->updatedMenu(); }
    QString commands() const override { return QStringLiteral("item, choose"); }
    bool choose(const MenuItem &item) override { return widget()->choose(item); }
    // A click would stay in the menu until somebody picks an item.
    Result<void> click() override { return notClickable(); }
    void sendEvents() override { }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(MenuButton *button)
{
    return std::make_unique<MenuButtonInterface>(button);
}

} // namespace kelvo
