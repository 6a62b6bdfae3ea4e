#include "layout_check.h"

#include "control.h"
#include "modal_dialog.h"
#include "outline_style.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBoundaryFinder>
#include <QTextDocument>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int slack = 1; // pixels; sizes are rounded

QString nameOf(const QWidget *widget)
{
    const QString name = widget->objectName();
    return name.isEmpty() ? QString::fromLatin1(widget->metaObject()->className()) : name;
}

QString sizeText(QSize size)
{
    return QStringLiteral("%1×%2").arg(size.width()).arg(size.height());
}

QSize textSize(const QWidget *widget, const QString &text)
{
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text);
}

// A text that stands in `room`, and what it needs. Empty: it fits.
QString cutText(const QString &text, QSize needed, QSize room)
{
    if (needed.width() <= room.width() + slack && needed.height() <= room.height() + slack)
        return {};
    return QStringLiteral("“%1” needs %2 and has %3").arg(text, sizeText(needed), sizeText(room));
}

QString cutLabel(const QLabel *label)
{
    const QString text = label->text();
    if (text.isEmpty())
        return {};
    const QSize room = label->contentsRect().size();
    if (!label->wordWrap())
        return cutText(text, label->sizeHint(), label->size());
    int widest = 0; // of what stays on one line
    QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, text);
    for (qsizetype from = 0, to = breaks.toNextBoundary(); to >= 0; to = breaks.toNextBoundary()) {
        const QString piece = text.mid(from, to - from).trimmed();
        widest = std::max(widest, textSize(label, piece).width());
        from = to;
    }
    const bool isRich = Qt::mightBeRichText(text) && label->textFormat() != Qt::PlainText;
    return cutText(text, {isRich ? 0 : widest, label->heightForWidth(label->width())},
                   {room.width(), label->height()});
}

QString cutButton(const QAbstractButton *button)
{
    const auto *tool = qobject_cast<const QToolButton *>(button);
    if (button->text().isEmpty() || (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly))
        return {};
    QStyleOptionButton option;
    option.initFrom(button);
    QRect room = button->rect();
    if (qobject_cast<const QPushButton *>(button))
        room = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    else if (qobject_cast<const QCheckBox *>(button))
        room = button->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, button);
    else if (qobject_cast<const QRadioButton *>(button))
        room = button->style()->subElementRect(QStyle::SE_RadioButtonContents, &option, button);
    // A letter that another font has may be higher than the line that it stands in.
    const QSize needed(textSize(button, button->text()).width(), button->fontMetrics().height());
    return cutText(button->text(), needed, room.size());
}

QString cutChoice(const QComboBox *box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.editable = box->isEditable();
    const QRect room = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, box);
    const QString text = box->currentIndex() < 0 ? box->placeholderText() : box->currentText();
    return cutText(text, {textSize(box, text).width(), 0}, room.size());
}

QString cutTabs(QTabBar *bar)
{
    for (int i = 0; i < bar->count(); ++i) {
        const QRect at = bar->tabRect(i);
        if (!bar->rect().contains(at))
            return QStringLiteral("“%1” is out of sight").arg(bar->tabText(i));
        const QString cut = cutText(bar->tabText(i), textSize(bar, bar->tabText(i)), at.size());
        if (!cut.isEmpty())
            return cut;
    }
    return {};
}

QString cutHeader(const QHeaderView *header)
{
    const QAbstractItemModel *model = header->model();
    for (int i = 0; model && header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
        const QString text = model->headerData(i, Qt::Horizontal).toString();
        const QString cut =
            cutText(text, {textSize(header, text).width(), 0}, {header->sectionSize(i), 0});
        if (!header->isSectionHidden(i) && !cut.isEmpty())
            return cut;
    }
    return {};
}

QString cutField(const QLineEdit *field)
{
    const bool isSpin = qobject_cast<const QAbstractSpinBox *>(field->parentWidget());
    // What users type may be longer than any field.
    const QString text = isSpin ? field->text() : field->placeholderText();
    if (!isSpin && !field->text().isEmpty())
        return {};
    return cutText(text, {textSize(field, text).width(), 0}, field->contentsRect().size());
}

QString cutTextOf(QWidget *widget)
{
    if (const auto *label = qobject_cast<QLabel *>(widget))
        return cutLabel(label);
    if (const auto *button = qobject_cast<QAbstractButton *>(widget))
        return cutButton(button);
    if (const auto *box = qobject_cast<QComboBox *>(widget))
        return cutChoice(box);
    if (auto *bar = qobject_cast<QTabBar *>(widget))
        return cutTabs(bar);
    if (const auto *header = qobject_cast<QHeaderView *>(widget))
        return cutHeader(header);
    if (const auto *field = qobject_cast<QLineEdit *>(widget))
        return cutField(field);
    if (const auto *group = qobject_cast<QGroupBox *>(widget))
        return cutText(group->title(), {textSize(group, group->title()).width(), 0}, group->size());
    return {};
}

// What the guidelines ask of a text; one that is disabled has to stand back.
constexpr double readableContrast = 4.5;

QString paleText(const QWidget *widget)
{
    const bool hasText =
        qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget);
    const double contrast = kelvo::contrastOf(widget->palette().color(widget->foregroundRole()),
                                              widget->palette().color(widget->backgroundRole()));
    if (!hasText || !widget->isEnabled() || contrast >= readableContrast)
        return {};
    return QStringLiteral("its text has a contrast of %1").arg(contrast);
}

// Its parts are placed by Qt itself, some of them on one another.
bool isWhole(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget)
        || qobject_cast<const QTabBar *>(widget) || qobject_cast<const QTabWidget *>(widget)
        || qobject_cast<const QStackedWidget *>(widget) || qobject_cast<const QHeaderView *>(widget)
        || qobject_cast<const QLineEdit *>(widget);
}

// A label that says nothing lies where the next message will.
bool isEmptyLabel(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label && label->text().isEmpty() && label->pixmap(Qt::ReturnByValue).isNull();
}

bool isViewport(const QWidget *widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget->parentWidget());
    return area && area->viewport() == widget;
}

QStringList misplacedIn(const QWidget *parent)
{
    QStringList problems;
    // Qt lays the parts of a splitter one pixel aside where windows run to the left.
    if (isWhole(parent) || isViewport(parent) || qobject_cast<const QAbstractScrollArea *>(parent)
        || qobject_cast<const QSplitter *>(parent))
        return problems;
    const QRect inside = parent->rect().adjusted(-slack, -slack, slack, slack);
    QList<QWidget *> shown;
    for (QWidget *child : parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && !child->isWindow() && !child->size().isEmpty()
            && !isEmptyLabel(child))
            shown << child;
    }
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if (!inside.contains(shown[i]->geometry()))
            problems << QStringLiteral("%1: stands at %2, %3 out of %4")
                            .arg(nameOf(shown[i]))
                            .arg(shown[i]->x())
                            .arg(shown[i]->y())
                            .arg(nameOf(parent));
        for (qsizetype other = i + 1; other < shown.size(); ++other) {
            if (shown[i]->geometry().intersects(shown[other]->geometry()))
                problems
                    << QStringLiteral("%1: lies on %2").arg(nameOf(shown[i]), nameOf(shown[other]));
        }
    }
    return problems;
}

// The texts of a control whose underlined letters lead to it.
QStringList textsWithMnemonics(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->buddy() ? QStringList(label->text()) : QStringList();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return {button->text()};
    if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        return {group->title()};
    QStringList texts;
    const auto *bar = qobject_cast<const QTabBar *>(widget);
    for (int i = 0; bar && i < bar->count(); ++i)
        texts << bar->tabText(i);
    return texts;
}

// In which order the buttons at the foot of a window stand, from the leading edge on.
enum class FootPart { Help, Revert, Own, Cancel, Default };

FootPart footPartOf(const QWidget *button, const QWidget *defaultButton)
{
    const auto command = kelvo::commandOf(button);
    if (button == defaultButton)
        return FootPart::Default;
    if (button == kelvo::windowCancelButton(button) || command == kelvo::kCommandCancel)
        return FootPart::Cancel;
    if (command == kelvo::kCommandHelp)
        return FootPart::Help;
    return command == kelvo::kCommandRevert ? FootPart::Revert : FootPart::Own;
}

// The window, or what of it scrolls.
const QWidget *roomOf(const QWidget *widget)
{
    while (!widget->isWindow() && !isViewport(widget))
        widget = widget->parentWidget();
    return widget;
}

// As in a window that runs to the right.
QRect placeIn(const QWidget *room, const QWidget *widget)
{
    QRect place(widget->mapTo(room, QPoint()), widget->size());
    if (room->layoutDirection() == Qt::RightToLeft)
        place.moveLeft(room->width() - place.x() - place.width());
    return place;
}

QPushButton *defaultButtonOf(const QWidget *window)
{
    if (auto *button = qobject_cast<QPushButton *>(kelvo::windowDefaultButton(window)))
        return button;
    const auto buttons = window->findChildren<QPushButton *>();
    const auto found = std::ranges::find_if(buttons, &QPushButton::isDefault);
    return found == buttons.end() ? nullptr : *found;
}

// Help and Revert at the leading edge, Cancel and the default button at the trailing one: wherever
// the hand goes, it finds the same button.
QStringList misplacedAtFoot(const QWidget *window)
{
    const QPushButton *last = defaultButtonOf(window);
    if (!last)
        return {};
    const QWidget *room = roomOf(last);
    const QRect lastPlace = placeIn(room, last);
    QList<QPushButton *> foot = room->findChildren<QPushButton *>();
    foot.removeIf([&](const QPushButton *button) {
        return !button->isVisible() || button->window() != window
            || std::abs(placeIn(room, button).center().y() - lastPlace.center().y()) > slack;
    });
    std::ranges::sort(foot, {},
                      [room](const QPushButton *button) { return placeIn(room, button).x(); });
    QStringList problems;
    FootPart before = FootPart::Help;
    for (const QPushButton *button : std::as_const(foot)) {
        const FootPart part = footPartOf(button, last);
        if (part < before)
            problems << QStringLiteral("%1: has a button before it that comes after it elsewhere")
                            .arg(nameOf(button));
        before = std::max(before, part);
        if (part != FootPart::Own && std::abs(button->width() - lastPlace.width()) > slack)
            problems << QStringLiteral("%1: is %2 wide, and the default button %3")
                            .arg(nameOf(button))
                            .arg(button->width())
                            .arg(lastPlace.width());
    }
    const int leading = placeIn(room, foot.front()).x();
    const int trailing = room->width() - lastPlace.x() - lastPlace.width();
    const bool beginsAtEdge = footPartOf(foot.front(), last) <= FootPart::Revert;
    if (beginsAtEdge ? std::abs(leading - trailing) > slack : trailing > leading)
        problems << QStringLiteral("%1: begins %2 from the edge, and %3 ends %4 from it")
                        .arg(nameOf(foot.front()))
                        .arg(leading)
                        .arg(nameOf(last))
                        .arg(trailing);
    return problems;
}

// What is typed into says beside it what for: its label does, or the check box that it belongs to,
// and a search within it.
bool lacksLabel(const QWidget *widget)
{
    const auto *field = qobject_cast<const QLineEdit *>(widget);
    const auto *text = qobject_cast<const QPlainTextEdit *>(widget);
    const bool isTypedInto =
        (field && field->placeholderText().isEmpty()) || (text && !text->isReadOnly());
    if (!isTypedInto || !widget->isEnabled())
        return false;
    if (const QLabel *label = kelvo::labelOf(widget))
        return !label->isVisible();
    const auto boxes =
        widget->parentWidget()->findChildren<QCheckBox *>(Qt::FindDirectChildrenOnly);
    return std::ranges::none_of(boxes, [widget](const QCheckBox *box) {
        return std::abs(box->geometry().center().y() - widget->geometry().center().y()) <= slack;
    });
}

} // namespace

QStringList layoutProblems(QWidget *window)
{
    QStringList problems = misplacedIn(window) + misplacedAtFoot(window);
    QMap<QString, QString> mnemonics; // letter with Alt → text
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        problems += misplacedIn(widget);
        for (const QString &found : {cutTextOf(widget), paleText(widget)}) {
            if (!found.isEmpty())
                problems << nameOf(widget) + QStringLiteral(": ") + found;
        }
        const bool isPart = isWhole(widget->parentWidget()) || isViewport(widget);
        if (!isPart && lacksLabel(widget))
            problems << nameOf(widget) + QStringLiteral(": has no label");
        for (const QString &text : textsWithMnemonics(widget)) {
            const QString letter = QKeySequence::mnemonic(text).toString();
            if (letter.isEmpty())
                continue;
            if (mnemonics.contains(letter))
                problems << QStringLiteral("%1: “%2” and “%3” have one mnemonic")
                                .arg(nameOf(widget), text, mnemonics.value(letter));
            mnemonics.insert(letter, text);
        }
    }
    return problems;
}
