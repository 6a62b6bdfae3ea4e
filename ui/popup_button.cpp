#include "popup_button.h"

#include "control_interface.h"
#include "control_support.h"
#include "popup_list.h"
#include "tool_tip.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QtMath>
#include <QToolTip>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <utility>

namespace kelvo {

namespace {

constexpr int leastCharacters = 8; // what a narrow panel may squeeze a pop-up to
constexpr int mostCharacters = 26; // what a long text may ask for; it is elided beyond

bool canBeChosen(const MenuItem &item)
{
    return item.enabled && !item.divider && item.submenu.empty();
}

// Lighter than an item, and about 6:1 over the button: the palette's own has 4:1,
// where what counts as readable begins at 4.5:1.
constexpr float placeholderOpacity = 0.72F;

QStandardItem *lineFor(const MenuItem &item)
{
    auto *line = new QStandardItem(oneLine(item.text));
    if (item.divider) {
        line->setText({});
        line->setData(QStringLiteral("separator"), Qt::AccessibleDescriptionRole);
    }
    if (!canBeChosen(item))
        line->setFlags(line->flags() & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable));
    return line;
}

} // namespace

PopupButton::PopupButton(QWidget *parent)
    : QComboBox(parent)
{
    guardWheel(this);
    // Its own sizes are said below: with a policy for them Qt would make the list at once.
    setMinimumContentsLength(leastCharacters);
    connect(this, &QComboBox::activated, this, &PopupButton::send);
}

// The lines are in the model that Qt has made: giving it one of our own costs more than all lines
// of a panel.
void PopupButton::setMenu(Menu menu)
{
    m_menu = std::move(menu);
    m_maximum = static_cast<int>(m_menu.items.size());
    m_widest = m_measured = 0;

    const QSignalBlocker silence(this);
    clear();
    QList<QStandardItem *> lines;
    lines.reserve(m_maximum);
    for (const MenuItem &item : m_menu.items)
        lines.append(lineFor(item));
    if (!lines.isEmpty())
        static_cast<QStandardItemModel *>(model())->invisibleRootItem()->appendRows(lines);
    const auto first = std::ranges::find_if(m_menu.items, canBeChosen);
    setCurrentIndex(first == m_menu.items.end() ? -1
                                                : static_cast<int>(first - m_menu.items.begin()));
    updateGeometry();
}

int PopupButton::value() const
{
    return currentIndex() + 1;
}

void PopupButton::setValue(int value)
{
    const QSignalBlocker silence(this);
    setCurrentIndex(value >= 1 && value <= count() ? value - 1 : -1);
}

const MenuItem *PopupButton::chosenItem() const
{
    const int shown = value();
    return shown > 0 && shown <= int(m_menu.items.size()) ? &m_menu.items[shown - 1] : nullptr;
}

std::int32_t PopupButton::chosenReference() const
{
    const MenuItem *item = chosenItem();
    return item ? item->reference : std::numeric_limits<std::int32_t>::min();
}

bool PopupButton::setValueByReference(std::int32_t reference)
{
    const auto found = std::ranges::find(m_menu.items, reference, &MenuItem::reference);
    if (found == m_menu.items.end())
        return false;
    setValue(static_cast<int>(found - m_menu.items.begin()) + 1);
    return true;
}

QString PopupButton::shownText() const
{
    return currentIndex() < 0 ? placeholderText() : currentText();
}

bool PopupButton::choose(int value)
{
    if (!isEnabled() || value < 1 || value > count()
        || !canBeChosen(m_menu.items[static_cast<std::size_t>(value - 1)]))
        return false;
    setValue(value);
    send(value - 1);
    return true;
}

// Unlike choose(), it tells readers and whoever else listens to Qt, as Qt's own list does.
bool PopupButton::chooseFromList(int value)
{
    if (!isEnabled() || value < 1 || value > count()
        || !canBeChosen(m_menu.items[static_cast<std::size_t>(value - 1)]))
        return false;
    m_isChosenFromList = true;
    setCurrentIndex(value - 1);
    emit activated(value - 1);
    return true;
}

void PopupButton::send(int index)
{
    if (index < 0 || index >= count())
        return;
    // Handlers may fill the menu anew, or close the window.
    const MenuItem item = m_menu.items[static_cast<std::size_t>(index)];
    const QPointer<PopupButton> alive = this;
    sendFrom(this, EventKind::Menu, item.command, item.reference);
    if (alive && item.command != kNoCommand)
        sendFrom(this, EventKind::Command, item.command, item.reference);
    if (alive)
        sendFrom(this, EventKind::ControlHit);
}

QRect PopupButton::textRect(const QStyleOptionComboBox &option) const
{
    return style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
        .adjusted(2, 0, -2, 0);
}

QString PopupButton::elidedText(const QStyleOptionComboBox &option) const
{
    return option.fontMetrics.elidedText(shownText(), Qt::ElideRight, textRect(option).width());
}

void PopupButton::setHasIconRoom(bool hasRoom)
{
    m_hasIconRoom = hasRoom;
    m_least = QSize();
    updateGeometry();
}

// As Qt's combo box with AdjustToMinimumContentsLengthWithIcon has it.
QSize PopupButton::minimumSizeHint() const
{
    if (m_least.isValid())
        return m_least;
    constexpr int besideIcon = 4, aroundText = 2, leastText = 14;
    const QFontMetrics metrics = fontMetrics();
    const int icon = m_hasIconRoom ? iconSize().width() + besideIcon : 0;
    const int height = std::max({qCeil(QFontMetricsF(metrics).height()), leastText,
                                 m_hasIconRoom ? iconSize().height() : 0});
    const int width =
        std::max(minimumContentsLength() * metrics.horizontalAdvance(u'X') + icon,
                 placeholderText().isEmpty() ? 0 : metrics.boundingRect(placeholderText()).width());
    const QSize contents(width, height + aroundText);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    m_least = style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
    return m_least;
}

QSize PopupButton::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int character = metrics.horizontalAdvance(u'X');
    const int least = minimumContentsLength() * character;
    const int most = std::max(minimumContentsLength(), mostCharacters) * character;
    while (m_measured < count() && m_widest + character < most)
        m_widest = std::max(m_widest, metrics.horizontalAdvance(itemText(m_measured++)));
    const int widest = std::max(m_widest, metrics.horizontalAdvance(placeholderText()));
    QSize hint = minimumSizeHint();
    hint.rwidth() += std::clamp(widest + character, least, most) - least;
    return hint;
}

// The sizes do not change with the first show, as Qt's do, and the window is not laid out again.
void PopupButton::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void PopupButton::setOwnList(MakeList make)
{
    delete std::exchange(m_ownList, nullptr);
    m_makeList = std::move(make);
}

bool PopupButton::isListOpen() const
{
    if (hasOwnList())
        return m_ownList && m_ownList->isVisible();
    const auto *list = findChild<QAbstractItemView *>(); // view() would make it
    return list && list->isVisible();
}

void PopupButton::openOwnList(const QString &typed)
{
    if (!m_ownList) {
        m_ownList = m_makeList(this);
        // A pop-up window is not the one that input methods see: what they make comes to this.
        const auto note = [this](bool isOpen) {
            setAttribute(Qt::WA_InputMethodEnabled, isOpen);
            updateMicroFocus();
            update();
        };
        connect(m_ownList, &PopupList::opened, this, [note] { note(true); });
        connect(m_ownList, &PopupList::closed, this, [note] { note(false); });
    }
    m_ownList->open(typed);
}

void PopupButton::showPopup()
{
    if (hasOwnList()) {
        openOwnList({});
        return;
    }
    m_isChosenFromList = true;
    view()->parentWidget()->setFont(font());
    // The list shows whole texts where the screen has room for them.
    const int frame = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth)
        + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * fontMetrics().averageCharWidth();
    const int wanted = view()->sizeHintForColumn(0) + frame;
    // Made with the list, when it is opened first; most never are.
    for (QObject *part : std::initializer_list<QObject *>{view(), view()->viewport()}) {
        part->removeEventFilter(this);
        part->installEventFilter(this);
    }
    view()->setMinimumWidth(std::min(wanted, screen()->availableGeometry().width() / 2));
    QComboBox::showPopup();
}

void PopupButton::hidePopup()
{
    if (hasOwnList() && m_ownList)
        m_ownList->close();
    else
        QComboBox::hidePopup();
}

// Of the open list of its own, what has the keyboard there.
QWidget *PopupButton::fieldOfList() const
{
    return m_ownList && m_ownList->isVisible() ? m_ownList->focusWidget() : nullptr;
}

QVariant PopupButton::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const QWidget *field = fieldOfList();
    return field ? field->inputMethodQuery(query) : QComboBox::inputMethodQuery(query);
}

void PopupButton::inputMethodEvent(QInputMethodEvent *event)
{
    if (QWidget *field = fieldOfList())
        QCoreApplication::sendEvent(field, event);
    else
        QComboBox::inputMethodEvent(event);
}

void PopupButton::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    if (m_ownList && m_ownList->isVisible())
        option->state |= QStyle::State_On;
}

// Qt makes its list here before it opens any.
void PopupButton::mousePressEvent(QMouseEvent *event)
{
    if (hasOwnList() && event->button() == Qt::LeftButton)
        showPopup();
    else
        QComboBox::mousePressEvent(event);
}

// Whether a key that would choose without the list opens it.
bool PopupButton::opensBy(const QKeyEvent &event) const
{
    if (!m_choosesInListOnly || event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier))
        return false;
    const bool isWithAlt = event.modifiers() & Qt::AltModifier;
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return !isWithAlt;
    default:
        return !isWithAlt && !event.text().isEmpty() && event.text().front().isPrint();
    }
}

void PopupButton::keyPressEvent(QKeyEvent *event)
{
    if (opensBy(*event)) {
        const QString typed = event->text().trimmed();
        if (hasOwnList()) {
            openOwnList(typed);
            return;
        }
        showPopup();
        if (!typed.isEmpty())
            view()->keyboardSearch(typed);
        return;
    }
    // X gives a letter with Alt a text, and Qt would look it up among the items: it is a mnemonic,
    // of whatever it is one.
    const bool isMnemonic = event->modifiers() & Qt::AltModifier && !event->text().isEmpty()
        && event->text().front().isPrint();
    if (isMnemonic) {
        event->ignore();
        return;
    }
    m_isChosenFromList = false;
    QComboBox::keyPressEvent(event);
}

void PopupButton::wheelEvent(QWheelEvent *event)
{
    if (m_choosesInListOnly) {
        event->ignore();
        return;
    }
    m_isChosenFromList = false;
    QComboBox::wheelEvent(event);
}

// Qt would make the list to give it the font; it gets it when it is opened.
void PopupButton::changeEvent(QEvent *event)
{
    const bool hasQtsList = !hasOwnList() && findChild<QAbstractItemView *>();
    if (event->type() == QEvent::FontChange && !hasQtsList)
        QWidget::changeEvent(event); // NOLINT(bugprone-parent-virtual-call)
    else
        QComboBox::changeEvent(event);
}

bool PopupButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        if (elidedText(option) != shownText()) {
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                               plainToolTip(shownText()), this);
            return true;
        }
    }
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_widest = m_measured = 0;
        m_least = QSize();
    }
    return QComboBox::event(event);
}

// Qt closes the list as soon as it is asked whether Escape is a shortcut. Where the keyboard is
// still the window's, as with some Wayland compositors, the key itself would come to that and close
// it too.
bool PopupButton::closesList(QEvent *event)
{
    const auto type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress)
        return false;
    if (!static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel))
        return false;
    event->accept();
    if (type == QEvent::KeyPress)
        hidePopup();
    return true;
}

bool PopupButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == view() && closesList(event))
        return true;
    // A click on a line that cannot be chosen would count as one on the line that
    // is shown, and send it once more.
    if (event->type() == QEvent::MouseButtonRelease) {
        const QPoint at = static_cast<QMouseEvent *>(event)->position().toPoint();
        if (!(view()->indexAt(at).flags() & Qt::ItemIsEnabled))
            return true;
    }
    return QComboBox::eventFilter(watched, event);
}

void PopupButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (currentIndex() < 0) {
        QColor color = option.palette.color(QPalette::ButtonText);
        color.setAlphaF(placeholderOpacity);
        option.palette.setColor(QPalette::ButtonText, color);
    }
    option.currentText = elidedText(option);
    // Where nothing can ever be chosen it is said as plain text, under the label: a row of
    // frames in grey would look as if something were broken.
    if (count() <= 1 && !option.currentText.isEmpty() && !isEnabledTo(parentWidget())) {
        painter.drawItemText(option.rect,
                             QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)
                                 | Qt::AlignVCenter,
                             option.palette, false, option.currentText, QPalette::WindowText);
        return;
    }
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

namespace {

class PopupButtonInterface : public InterfaceOf<PopupButton>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override { return widget()->shownText(); }
    std::optional<int> value() const override { return widget()->chosenReference(); }
    std::optional<int> index() const override { return widget()->value(); }
    std::optional<int> maximum() const override { return widget()->maximum(); }
    const Menu *menu() override { return &widget()->menu(); }
    QString commands() const override { return QStringLiteral("choose, item"); }
    bool choose(const MenuItem &item) override
    {
        return widget()->choose(rowOf(widget()->menu(), item));
    }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(PopupButton *button)
{
    return std::make_unique<PopupButtonInterface>(button);
}

} // namespace kelvo
