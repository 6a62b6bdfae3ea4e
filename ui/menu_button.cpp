#include "menu_button.h"

#include "control_support.h"
#include "qt_controls.h"
#include "tool_tip.h"

#include <QHelpEvent>
#include <QMenu>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

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

// A menu shows an ampersand as a mnemonic and a tab as a short cut; the texts
// come from PPDs and users and mean neither.
QString asMenuText(const QString &text)
{
    return oneLine(text).replace(u'&', QStringLiteral("&&"));
}

void fill(QMenu *shown, const std::vector<MenuItem> &items, MenuButton *button)
{
    for (const MenuItem &item : items) {
        if (item.divider) {
            shown->addSeparator();
            continue;
        }
        if (!item.submenu.empty()) {
            QMenu *submenu = shown->addMenu(asMenuText(item.text));
            submenu->setEnabled(item.enabled);
            fill(submenu, item.submenu, button);
            continue;
        }
        QAction *action = shown->addAction(asMenuText(item.text));
        action->setEnabled(item.enabled);
        action->setCheckable(item.checked);
        action->setChecked(item.checked);
        QObject::connect(action, &QAction::triggered, button,
                         [button, offered = &item] { button->choose(*offered); });
    }
}

} // namespace

MenuButton::MenuButton(QWidget *parent)
    : QPushButton(parent)
    , m_shown(new QMenu(this))
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
