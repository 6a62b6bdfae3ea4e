#include "inspector.h"

#include "event.h"
#include "history_field.h"
#include "input_limits.h"
#include "list_view.h"
#include "menu_button.h"
#include "nearest_name.h"
#include "picture_view.h"
#include "popup_button.h"
#include "radio_group.h"
#include "secrets.h"
#include "spin_field.h"
#include "summary_view.h"
#include "tab_control.h"
#include "time_field.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSlider>
#include <QTextEdit>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

// What Qt's own test library presses keys with: it asks the shortcuts first. Qt
// exports it, but only the test library's header declares it.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject *receiver, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers,
                                               const QString &text = QString(),
                                               bool autoRepeat = false, ushort count = 1);
QT_END_NAMESPACE

namespace kelvo::inspector {

namespace {

// Qt gives names of its own to the insides of its widgets; they are not ours.
bool hasSpeakingName(const QWidget *widget)
{
    return !widget->objectName().isEmpty()
        && !widget->objectName().startsWith(QLatin1String("qt_"));
}

// A control's name as its user writes it: the one that speaks, else the ID.
QString nameOf(const QWidget *control)
{
    const auto id = controlIDOf(control);
    return hasSpeakingName(control) || !id ? QStringLiteral("@%1").arg(control->objectName())
                                           : textOf(*id);
}

Done notOffered(const QWidget *control, const QString &why)
{
    return Problem{Failure::NotOffered, QStringLiteral("%1 %2").arg(nameOf(control), why)};
}

template <typename Kind>
bool is(const QWidget *control)
{
    return qobject_cast<const Kind *>(control) != nullptr;
}

bool isCheckable(const QWidget *control)
{
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    return button && button->isCheckable();
}

// What a script can do with a kind of control. The first row that fits counts.
struct KindRow
{
    bool (*fits)(const QWidget *control);
    const char *commands;
};
constexpr KindRow kindRows[] = {
    {is<PopupButton>, "choose, item"},
    {is<MenuButton>, "item, choose"},
    {is<HistoryField>, "choose, type"},
    {is<QComboBox>, "choose"},
    {is<SpinField>, "set, type"},
    {is<TimeField>, "time"},
    {is<QAbstractSlider>, "set"},
    {is<RadioGroup>, "set"},
    {is<TabControl>, "set"},
    {is<ListView>, "select, double-click"},
    {is<QLineEdit>, "type"},
    {is<QPlainTextEdit>, "type"},
    {isCheckable, "check, click"},
    {is<QAbstractButton>, "click"},
};

// "; it takes set, type": the end of a sentence about what cannot be done with it.
QString whatItTakes(const QWidget *control)
{
    const auto row = std::ranges::find_if(
        kindRows, [control](const KindRow &each) { return each.fits(control); });
    return row == std::end(kindRows)
        ? QString()
        : QStringLiteral("; it takes %1").arg(QLatin1String(row->commands));
}

Done wrongKind(const QWidget *control, const QString &what)
{
    return Problem{Failure::WrongKind,
                   QStringLiteral("%1 is a %2 and %3%4")
                       .arg(nameOf(control),
                            QString::fromLatin1(control->metaObject()->className())
                                .section(QStringLiteral("::"), -1),
                            what, whatItTakes(control))};
}

// Why the user could not use the control now; none when it can be used.
Done unusable(const QWidget *control)
{
    if (!control->isVisible())
        return notOffered(control, QStringLiteral("is not shown"));
    if (!control->isEnabled())
        return notOffered(control, QStringLiteral("is disabled"));
    return {};
}

// The menu behind a control of ours; null for others.
const Menu *menuOf(QWidget *control)
{
    if (auto *popup = qobject_cast<PopupButton *>(control))
        return &popup->menu();
    if (auto *button = qobject_cast<MenuButton *>(control))
        return &button->updatedMenu();
    return nullptr;
}

void collect(const std::vector<MenuItem> &items, std::vector<const MenuItem *> &out)
{
    for (const MenuItem &item : items) {
        out.push_back(&item);
        collect(item.submenu, out);
    }
}

bool isNamed(const MenuItem &item, const ItemName &name)
{
    switch (name.by) {
    case ItemName::By::Reference:
        return !item.divider && item.reference == name.reference;
    case ItemName::By::Key:
        return !item.divider && item.key == name.text;
    case ItemName::By::Text:
        return !item.divider && item.text == name.text;
    case ItemName::By::Row:
        return false; // rows are counted by the caller
    }
    return false;
}

QString charactersOf(OSType code)
{
    QString characters;
    for (int shift = 24; shift >= 0; shift -= 8)
        characters += QChar(static_cast<char16_t>(code >> shift & 0xff));
    return characters;
}

QString quoted(const QString &text)
{
    return QStringLiteral("\"%1\"").arg(text);
}

QStringList textsOf(const std::vector<const MenuItem *> &items)
{
    QStringList texts;
    for (const MenuItem *item : items) {
        if (!item->divider)
            texts << item->text;
    }
    return texts;
}

// As a script names them; numbers and codes with the text that tells what they are.
QStringList namesOf(const std::vector<const MenuItem *> &items, ItemName::By by)
{
    QStringList names;
    for (const MenuItem *item : items) {
        if (item->divider || (by == ItemName::By::Key && item->key.isEmpty()))
            continue;
        names << (by == ItemName::By::Reference ? ItemName{by, item->reference, {}, 0}.description()
                          + u' ' + quoted(item->text)
                      : by == ItemName::By::Key ? item->key
                                                : quoted(item->text));
    }
    return names;
}

// Each command once, with the first item that carries it.
QStringList commandsOf(const std::vector<const MenuItem *> &items)
{
    QStringList commands;
    std::map<OSType, qsizetype> places;
    for (const MenuItem *item : items) {
        if (item->divider || item->command == kNoCommand)
            continue;
        const auto [place, isNew] = places.insert({item->command, commands.size()});
        if (isNew)
            commands << QStringLiteral("'%1' %2").arg(charactersOf(item->command),
                                                      quoted(item->text));
        else if (!commands[place->second].endsWith(u'…'))
            commands[place->second] += QStringLiteral(" …");
    }
    return commands;
}

// "; it has A, B, …", and where a script sees the rest.
QString whatItHas(const QWidget *control, const QStringList &names)
{
    if (names.isEmpty())
        return {};
    return QStringLiteral("; it has ") + shortList(names)
        + (names.size() > kShortListLength
               ? QStringLiteral(" (\"show %1\" lists them all)").arg(nameOf(control))
               : QString());
}

// `items` are all that carry the same.
Done severalItems(const QWidget *control, const QString &what,
                  const std::vector<const MenuItem *> &items)
{
    return Problem{
        Failure::BadValue,
        QStringLiteral("several items of %1 carry %2; name one of them by key, text or row: %3")
            .arg(nameOf(control), what, shortList(namesOf(items, ItemName::By::Text)))};
}

// The one item that `name` means among `items`; the problem says what there is.
struct FoundItem
{
    const MenuItem *item = nullptr;
    Done problem;
};
FoundItem findItem(const QWidget *control, const std::vector<const MenuItem *> &items,
                   const ItemName &name)
{
    if (name.by == ItemName::By::Row) {
        if (name.row > static_cast<int>(items.size()))
            return {
                nullptr,
                notOffered(control,
                           QStringLiteral("has %1 rows, not %2").arg(items.size()).arg(name.row))};
        return {items[name.row - 1], {}};
    }
    std::vector<const MenuItem *> found;
    std::ranges::copy_if(items, std::back_inserter(found),
                         [&name](const MenuItem *item) { return isNamed(*item, name); });
    if (found.size() > 1)
        return {nullptr, severalItems(control, name.description(), found)};
    if (!found.empty())
        return {found.front(), {}};
    // A number that looks like another one is none the nearer.
    QString nearest;
    if (name.by == ItemName::By::Key)
        nearest = nearestName(name.text, namesOf(items, name.by));
    else if (name.by == ItemName::By::Text)
        nearest = nearestName(name.text, textsOf(items));
    return {
        nullptr,
        notOffered(control,
                   QStringLiteral("has no item %1").arg(name.description())
                       + (nearest.isEmpty() ? whatItHas(control, namesOf(items, name.by))
                                            : QStringLiteral(", the nearest is %1").arg(nearest)))};
}

Done chooseMenuItem(QWidget *control, const MenuItem &item)
{
    if (item.divider)
        return notOffered(control, QStringLiteral("has a divider there, which cannot be chosen"));
    if (!item.submenu.empty())
        return notOffered(
            control,
            QStringLiteral("opens a submenu with \"%1\"; choose an item in it").arg(item.text));
    if (!item.enabled)
        return notOffered(control, QStringLiteral("offers \"%1\" only disabled").arg(item.text));
    bool chosen = false;
    if (auto *popup = qobject_cast<PopupButton *>(control)) {
        const auto &items = popup->menu().items;
        const auto at = std::find_if(items.begin(), items.end(),
                                     [&item](const MenuItem &one) { return &one == &item; });
        chosen = at != items.end() && popup->choose(static_cast<int>(at - items.begin()) + 1);
    } else if (auto *button = qobject_cast<MenuButton *>(control)) {
        chosen = button->choose(item);
    }
    return chosen ? Done()
                  : notOffered(control, QStringLiteral("does not take \"%1\"").arg(item.text));
}

// An ordinary combo box: only texts and rows name its items.
Done chooseText(QComboBox *box, const ItemName &name)
{
    std::vector<MenuItem> rows;
    rows.reserve(static_cast<std::size_t>(box->count()));
    for (int i = 0; i < box->count(); ++i)
        rows.push_back({.text = box->itemText(i), .reference = i + 1});
    if (name.by == ItemName::By::Key || name.by == ItemName::By::Reference)
        return Problem{Failure::WrongKind,
                       QStringLiteral("the items of %1 have no values; name one by text or row")
                           .arg(nameOf(box))};
    std::vector<const MenuItem *> items;
    collect(rows, items);
    const FoundItem found = findItem(box, items, name);
    if (!found.item)
        return found.problem;
    const int row = found.item->reference - 1;
    if (auto *history = qobject_cast<HistoryField *>(box))
        return history->chooseItem(row)
            ? Done()
            : notOffered(box, QStringLiteral("does not take that item"));
    box->setFocus();
    box->setCurrentIndex(row);
    emit box->activated(row);
    emit box->textActivated(box->itemText(row));
    return {};
}

QString openTextOfControl(const QWidget *control)
{
    if (const auto *popup = qobject_cast<const PopupButton *>(control))
        return popup->shownText();
    if (const auto *box = qobject_cast<const QComboBox *>(control))
        return box->currentText();
    if (const auto *button = qobject_cast<const QAbstractButton *>(control))
        return QString(button->text()).remove(u'&');
    if (const auto *label = qobject_cast<const QLabel *>(control))
        return QString(label->text()).remove(label->buddy() ? QStringLiteral("&") : QString());
    if (const auto *field = qobject_cast<const QLineEdit *>(control))
        return field->text();
    if (const auto *view = qobject_cast<const QPlainTextEdit *>(control))
        return view->toPlainText();
    if (const auto *view = qobject_cast<const QTextEdit *>(control))
        return view->toPlainText();
    if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(control))
        return spin->text();
    if (const auto *radios = qobject_cast<const RadioGroup *>(control)) {
        const auto *button = radios->button(radios->value());
        return button ? QString(button->text()).remove(u'&') : QString();
    }
    if (const auto *picture = qobject_cast<const PictureView *>(control)) {
        QStringList names;
        for (const QString &file : picture->pictures())
            names << QFileInfo(file).completeBaseName();
        return names.join(u',');
    }
    return control->accessibleName();
}

QString textOfControl(const QWidget *control)
{
    const QString text = openTextOfControl(control);
    return isSecret(control) && !text.isEmpty() ? kMask : text;
}

std::optional<int> valueOfControl(const QWidget *control)
{
    if (isSecret(control))
        return {};
    if (const auto *popup = qobject_cast<const PopupButton *>(control))
        return popup->chosenReference();
    if (const auto *spin = qobject_cast<const SpinField *>(control))
        return spin->value();
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(control))
        return slider->value();
    if (const auto *radios = qobject_cast<const RadioGroup *>(control))
        return radios->value();
    if (const auto *tabs = qobject_cast<const TabControl *>(control))
        return tabs->value();
    if (const auto *button = qobject_cast<const QAbstractButton *>(control);
        button && button->isCheckable())
        return button->isChecked() ? 1 : 0;
    return {};
}

std::optional<int> indexOfControl(const QWidget *control)
{
    if (const auto *popup = qobject_cast<const PopupButton *>(control))
        return popup->value();
    if (const auto *box = qobject_cast<const QComboBox *>(control))
        return box->currentIndex() + 1;
    if (const auto *radios = qobject_cast<const RadioGroup *>(control))
        return radios->value();
    if (const auto *tabs = qobject_cast<const TabControl *>(control))
        return tabs->value();
    return {};
}

std::optional<int> itemsOfControl(QWidget *control)
{
    if (const Menu *menu = menuOf(control))
        return static_cast<int>(menu->items.size());
    if (const auto *box = qobject_cast<const QComboBox *>(control))
        return box->count();
    if (const auto *list = qobject_cast<const ListView *>(control))
        return list->rowCount();
    if (const auto *radios = qobject_cast<const RadioGroup *>(control))
        return radios->count();
    if (const auto *tabs = qobject_cast<const TabControl *>(control))
        return tabs->count();
    return {};
}

QString words(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QJsonArray describeItems(const std::vector<MenuItem> &items)
{
    QJsonArray array;
    for (const MenuItem &item : items) {
        QJsonObject object;
        if (item.divider) {
            object[QStringLiteral("divider")] = true;
        } else {
            object[QStringLiteral("text")] = item.text;
            object[QStringLiteral("value")] = item.reference;
            if (!item.key.isEmpty())
                object[QStringLiteral("key")] = item.key;
            if (item.command != kNoCommand) {
                object[QStringLiteral("command")] = charactersOf(item.command);
            }
            if (!item.enabled)
                object[QStringLiteral("enabled")] = false;
            if (item.checked)
                object[QStringLiteral("checked")] = true;
            if (!item.submenu.empty())
                object[QStringLiteral("items")] = describeItems(item.submenu);
        }
        array.append(object);
    }
    return array;
}

// The rows of a list that JSON shows; more would only be a wall of text.
constexpr int describedRows = 100;

} // namespace

bool isSecret(const QWidget *control)
{
    const auto *field = qobject_cast<const QLineEdit *>(control);
    return control->property(kSecretProperty).toBool()
        || (field && field->echoMode() != QLineEdit::Normal);
}

QString ControlName::text() const
{
    return id ? textOf(*id) : QStringLiteral("@%1").arg(objectName);
}

Result<ControlName> controlNameFrom(const QString &text)
{
    if (text.size() > 1 && text.startsWith(u'@'))
        return ControlName{{}, text.mid(1)};
    if (const auto id = controlIDFromText(text))
        return ControlName{id, {}};
    return Error{Error::Code::Damaged, text, QStringLiteral("write KPDE 102 or @objectName")};
}

QString ItemName::description() const
{
    switch (by) {
    case By::Reference:
        return reference == std::numeric_limits<std::int32_t>::min() ? QStringLiteral("unset")
                                                                     : QString::number(reference);
    case By::Key:
        return QStringLiteral("key %1").arg(text);
    case By::Text:
        return QStringLiteral("\"%1\"").arg(text);
    case By::Row:
        return QStringLiteral("row %1").arg(row);
    }
    return {};
}

Found find(QWidget *window, const ControlName &name)
{
    Found found;
    const QList<QWidget *> widgets =
        window->findChildren<QWidget *>(name.id ? QString() : name.objectName);
    for (QWidget *widget : widgets) {
        if (name.id && controlIDOf(widget) != name.id)
            continue;
        if (widget->isVisible())
            return {widget, true};
        if (!found.control)
            found.control = widget;
    }
    return found;
}

QString nearestControl(QWidget *window, const ControlName &name)
{
    QStringList names;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (name.id && controlIDOf(widget))
            names << textOf(*controlIDOf(widget));
        else if (!name.id && hasSpeakingName(widget))
            names << QStringLiteral("@%1").arg(widget->objectName());
    }
    return nearestName(name.text(), names);
}

Done choose(QWidget *control, const ItemName &name)
{
    if (Done problem = unusable(control))
        return problem;
    if (const Menu *menu = menuOf(control)) {
        std::vector<const MenuItem *> items;
        collect(menu->items, items);
        const FoundItem found = findItem(control, items, name);
        return found.item ? chooseMenuItem(control, *found.item) : found.problem;
    }
    if (auto *box = qobject_cast<QComboBox *>(control))
        return chooseText(box, name);
    return wrongKind(control, QStringLiteral("has no items to choose"));
}

namespace {

// The items of `control` that carry `command`, those that `name` means where given.
FoundItem findCommand(QWidget *control, OSType command, const std::optional<ItemName> &name)
{
    const Menu *menu = menuOf(control);
    if (!menu)
        return {nullptr, wrongKind(control, QStringLiteral("has no menu"))};
    std::vector<const MenuItem *> all, items;
    collect(menu->items, all);
    std::copy_if(all.begin(), all.end(), std::back_inserter(items),
                 [command](const MenuItem *item) { return item->command == command; });
    const QString code = QStringLiteral("'%1'").arg(charactersOf(command));
    if (items.empty()) {
        const QStringList commands = commandsOf(all);
        return {nullptr,
                notOffered(control,
                           QStringLiteral("has no item with the command %1").arg(code)
                               + (commands.isEmpty()
                                      ? QStringLiteral("; its items have none, choose picks them")
                                      : whatItHas(control, commands)))};
    }
    if (name)
        return findItem(control, items, *name);
    if (items.size() > 1)
        return {nullptr, severalItems(control, code, items)};
    return {items.front(), {}};
}

} // namespace

Done chooseCommand(QWidget *control, OSType command, const std::optional<ItemName> &name)
{
    if (Done problem = unusable(control))
        return problem;
    const FoundItem found = findCommand(control, command, name);
    return found.item ? chooseMenuItem(control, *found.item) : found.problem;
}

Done click(QWidget *control)
{
    if (Done problem = unusable(control))
        return problem;
    auto *button = qobject_cast<QAbstractButton *>(control);
    // A click on a menu's button would stay in the menu until somebody picks an item.
    if (!button || is<MenuButton>(control))
        return wrongKind(control, QStringLiteral("cannot be clicked"));
    if (button->focusPolicy() & Qt::ClickFocus)
        button->setFocus();
    button->click();
    return {};
}

Done check(QWidget *control, bool on)
{
    if (Done problem = unusable(control))
        return problem;
    auto *button = qobject_cast<QAbstractButton *>(control);
    if (!isCheckable(control))
        return wrongKind(control, QStringLiteral("cannot be checked"));
    if (button->isChecked() != on)
        button->click();
    return {};
}

namespace {

bool isReadOnly(const QWidget *control)
{
    const QVariant readOnly = control->property("readOnly");
    return readOnly.isValid() && readOnly.toBool();
}

// What can be typed into a field, in words; empty when that is anything.
QString typedInto(const QWidget *control)
{
    if (const auto *spin = qobject_cast<const SpinField *>(control)) {
        const auto number = [spin](int value) {
            return QString::number(value / std::pow(10.0, spin->decimals()), 'f', spin->decimals());
        };
        return QStringLiteral("numbers from %1 to %2")
            .arg(number(spin->minimum()), number(spin->maximum()));
    }
    InputLimits limits = inputLimits(control).value_or(InputLimits());
    const auto *line = qobject_cast<const QLineEdit *>(control);
    if (line && limits.maximumLength < 0)
        limits.maximumLength = line->maxLength();
    return inWords(limits);
}

} // namespace

Done type(QWidget *control, const QString &text)
{
    if (Done problem = unusable(control))
        return problem;
    if (isReadOnly(control))
        return notOffered(control, QStringLiteral("is read-only"));
    bool taken = false;
    if (auto *spin = qobject_cast<SpinField *>(control)) {
        // Nobody would see another number than the typed one appear when it is left.
        taken = spin->typeText(text) && spin->willTakeTypedText();
        if (!taken)
            spin->setValue(spin->value());
    } else if (qobject_cast<QLineEdit *>(control) || qobject_cast<QPlainTextEdit *>(control)
               || (qobject_cast<QComboBox *>(control)
                   && qobject_cast<QComboBox *>(control)->isEditable())) {
        taken = typeText(control, text);
    } else {
        return wrongKind(control, QStringLiteral("takes no text"));
    }
    if (taken)
        return {};
    // A refused text may be a secret: it is not repeated.
    const QString takes = typedInto(control);
    return notOffered(control,
                      (is<SpinField>(control) ? QStringLiteral("does not take what was typed")
                                              : QStringLiteral("does not take the whole text"))
                          + (takes.isEmpty() ? QString() : QStringLiteral("; it takes ") + takes));
}

Done typeSecret(QWidget *control, const QString &text)
{
    control->setProperty(kSecretProperty, true);
    return type(control, text);
}

Done set(QWidget *control, int value)
{
    if (Done problem = unusable(control))
        return problem;
    const auto outside = [control, value](int from, int to) {
        return notOffered(
            control, QStringLiteral("goes from %1 to %2, not to %3").arg(from).arg(to).arg(value));
    };
    const auto notOfferedOf = [control, value](const QString &part, int count) {
        return notOffered(
            control,
            value < 1 || value > count
                ? QStringLiteral("has %1s 1 to %2, not %3").arg(part).arg(count).arg(value)
                : QStringLiteral("offers %1 %2 only disabled").arg(part).arg(value));
    };
    if (auto *spin = qobject_cast<SpinField *>(control)) {
        if (value < spin->minimum() || value > spin->maximum())
            return outside(spin->minimum(), spin->maximum());
        spin->choose(value);
    } else if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
        if (value < slider->minimum() || value > slider->maximum())
            return outside(slider->minimum(), slider->maximum());
        slider->setFocus();
        slider->setSliderPosition(value); // as dragging does: an action, then the value
    } else if (auto *radios = qobject_cast<RadioGroup *>(control)) {
        if (!radios->choose(value))
            return notOfferedOf(QStringLiteral("button"), radios->count());
    } else if (auto *tabs = qobject_cast<TabControl *>(control)) {
        if (!tabs->choose(value))
            return notOfferedOf(QStringLiteral("tab"), tabs->count());
    } else {
        return wrongKind(control, QStringLiteral("has no number to set"));
    }
    return {};
}

Done setTime(QWidget *control, const QTime &time)
{
    if (Done problem = unusable(control))
        return problem;
    auto *field = qobject_cast<TimeField *>(control);
    if (!field)
        return wrongKind(control, QStringLiteral("is no time field"));
    return field->choose(time) ? Done() : notOffered(control, QStringLiteral("is read-only"));
}

Done select(QWidget *control, const std::vector<int> &rows)
{
    if (Done problem = unusable(control))
        return problem;
    auto *list = qobject_cast<ListView *>(control);
    if (!list)
        return wrongKind(control, QStringLiteral("is no list"));
    std::vector<int> fromZero;
    for (const int row : rows) {
        if (row == 0)
            continue;
        if (row > list->rowCount())
            return notOffered(control,
                              QStringLiteral("has %1 rows, not %2").arg(list->rowCount()).arg(row));
        fromZero.push_back(row - 1);
    }
    list->selectRows(fromZero, true);
    return {};
}

Done doubleClick(QWidget *control, int row)
{
    if (Done problem = unusable(control))
        return problem;
    auto *list = qobject_cast<ListView *>(control);
    if (!list)
        return wrongKind(control, QStringLiteral("is no list"));
    if (row < 0 || row > list->rowCount())
        return notOffered(control,
                          QStringLiteral("has %1 rows, not %2").arg(list->rowCount()).arg(row));
    list->activateRow(row - 1);
    return {};
}

Done drag(QWidget *control, double dx, double dy)
{
    if (Done problem = unusable(control))
        return problem;
    const QPointF from = QRectF(control->rect()).center();
    const QPointF to = from + QPointF(dx, dy);
    const QPointer<QWidget> alive = control;
    const auto send = [&alive](QEvent::Type kind, const QPointF &at, Qt::MouseButton button,
                               Qt::MouseButtons held) {
        if (!alive)
            return;
        QMouseEvent event(kind, at, alive->mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(alive, &event);
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    // Some steps in between: what follows the mouse looks at each of them.
    for (int step = 1; step <= 4; ++step)
        send(QEvent::MouseMove, from + (to - from) * step / 4, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    return {};
}

Done command(QWidget *window, OSType code)
{
    // Taking it may close the window.
    const QString title = window->windowTitle();
    if (sendCommand(window, code) != eventNotHandledErr)
        return {};
    return Problem{
        Failure::NotOffered,
        QStringLiteral("nothing in the window \"%1\" takes the command '%2'; \"controls\" "
                       "lists the commands of its buttons, and those of menus, which "
                       "\"item\" picks")
            .arg(title, charactersOf(code))};
}

Done pressKey(QWidget *window, const QString &keys)
{
    const QKeySequence sequence(keys, QKeySequence::PortableText);
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        return Problem{
            Failure::BadValue,
            QStringLiteral("\"%1\" is no key; write Ctrl+P, Return, F6, Alt+1").arg(keys)};
    QWidget *focus = window->focusWidget() ? window->focusWidget() : window;
    const QPointer<QWidget> alive = focus;
    for (int i = 0; i < sequence.count() && alive; ++i) {
        const QKeyCombination one = sequence[i];
        const bool plain = !(one.keyboardModifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
        const QString text =
            plain && one.key() < 0x1000000 ? QString(QChar(one.key())).toLower() : QString();
        // A shortcut comes before the focus, as with the real keyboard.
        if (qt_sendShortcutOverrideEvent(alive, 0, one.key(), one.keyboardModifiers(), text))
            continue;
        if (!alive)
            break;
        QKeyEvent press(QEvent::KeyPress, one.key(), one.keyboardModifiers(), text);
        QApplication::sendEvent(alive, &press);
        if (!alive)
            break;
        QKeyEvent release(QEvent::KeyRelease, one.key(), one.keyboardModifiers(), text);
        QApplication::sendEvent(alive, &release);
    }
    return {};
}

Done answerFileChooser(QWidget *window, const QString &path)
{
    auto *chooser = qobject_cast<QFileDialog *>(window);
    if (!chooser)
        return Problem{Failure::NotOffered, QStringLiteral("no file chooser is open")};
    if (chooser->acceptMode() == QFileDialog::AcceptOpen && !QFileInfo::exists(path))
        return Problem{Failure::BadValue, QStringLiteral("there is no file \"%1\"").arg(path)};
    const QFileInfo file(path);
    chooser->setDirectory(file.absolutePath());
    chooser->selectFile(file.absoluteFilePath());
    QMetaObject::invokeMethod(chooser, "accept", Qt::QueuedConnection);
    return {};
}

QStringList propertyNames()
{
    return {QStringLiteral("value"),     QStringLiteral("index"),   QStringLiteral("text"),
            QStringLiteral("enabled"),   QStringLiteral("visible"), QStringLiteral("checked"),
            QStringLiteral("focus"),     QStringLiteral("items"),   QStringLiteral("maximum"),
            QStringLiteral("selection"), QStringLiteral("cell")};
}

namespace {

Result<QString> propertyOf(QWidget *control, const QString &name)
{
    const auto number = [control, &name](std::optional<int> value) -> Result<QString> {
        if (value)
            return QString::number(*value);
        return Error{Error::Code::Unsupported, nameOf(control),
                     QStringLiteral("it has no %1").arg(name)};
    };
    if (name == QLatin1String("value"))
        return number(valueOfControl(control));
    if (name == QLatin1String("index"))
        return number(indexOfControl(control));
    if (name == QLatin1String("items"))
        return number(itemsOfControl(control));
    if (name == QLatin1String("maximum"))
        return number(controlMaximum(control));
    if (name == QLatin1String("text"))
        return textOfControl(control);
    if (name == QLatin1String("enabled"))
        return words(control->isEnabled());
    if (name == QLatin1String("visible"))
        return words(control->isVisible());
    if (name == QLatin1String("focus"))
        return words(control->window()->focusWidget() == control);
    if (name == QLatin1String("checked")) {
        if (isCheckable(control))
            return words(qobject_cast<const QAbstractButton *>(control)->isChecked());
        return Error{Error::Code::Unsupported, nameOf(control),
                     QStringLiteral("it cannot be checked")};
    }
    const auto *list = qobject_cast<const ListView *>(control);
    if (name == QLatin1String("selection") && list) {
        QStringList rows;
        for (const int row : list->selectedRows())
            rows << QString::number(row + 1);
        return rows.join(u',');
    }
    if (name.startsWith(QLatin1String("cell ")) && list) {
        const QStringList parts = name.split(u' ');
        const int row = parts.value(1).toInt(), column = parts.value(2).toInt();
        if (row < 1 || row > list->rowCount() || column < 1
            || column > list->model()->columnCount())
            return Error{Error::Code::OutOfRange, nameOf(control),
                         QStringLiteral("there is no cell %1 %2; it has %3 rows and %4 columns")
                             .arg(row)
                             .arg(column)
                             .arg(list->rowCount())
                             .arg(list->model()->columnCount())};
        return list->cellText(row - 1, column - 1);
    }
    return Error{Error::Code::Unsupported, nameOf(control),
                 QStringLiteral("it has no %1").arg(name)};
}

} // namespace

Result<QString> property(QWidget *control, const QString &name)
{
    auto found = propertyOf(control, name);
    if (found || found.error().code != Error::Code::Unsupported)
        return found;
    QStringList has;
    const QStringList names = propertyNames();
    for (const QString &each : names) {
        if (each == QLatin1String("cell") ? is<ListView>(control) : bool(propertyOf(control, each)))
            has << each;
    }
    Error error = found.error();
    error.detail += QStringLiteral("; it has ") + has.join(QStringLiteral(", "));
    return error;
}

Done expectItem(QWidget *control, OSType command, const std::optional<ItemName> &name,
                const QString &state)
{
    const FoundItem found = findCommand(control, command, name);
    const bool isAbsent =
        !found.item && found.problem && found.problem->failure == Failure::NotOffered;
    const QString problem = found.problem ? found.problem->text : QString();
    if (!found.item && !isAbsent)
        return found.problem;
    if (state == QLatin1String("absent"))
        return isAbsent
            ? Done()
            : Problem{
                Failure::BadValue,
                QStringLiteral("%1 has that item: \"%2\"").arg(nameOf(control), found.item->text)};
    if (isAbsent)
        return Problem{Failure::BadValue, problem};
    const bool holds = state == QLatin1String("present")
        || (state == QLatin1String("enabled") && found.item->enabled)
        || (state == QLatin1String("disabled") && !found.item->enabled)
        || (state == QLatin1String("checked") && found.item->checked)
        || (state == QLatin1String("unchecked") && !found.item->checked);
    if (holds)
        return {};
    return Problem{
        Failure::BadValue,
        QStringLiteral("\"%1\" of %2 is not %3").arg(found.item->text, nameOf(control), state)};
}

QJsonObject describe(QWidget *control)
{
    QJsonObject object;
    if (const auto id = controlIDOf(control))
        object[QStringLiteral("id")] = textOf(*id);
    if (hasSpeakingName(control))
        object[QStringLiteral("name")] = control->objectName();
    object[QStringLiteral("kind")] =
        QString::fromLatin1(control->metaObject()->className()).section(QStringLiteral("::"), -1);
    if (!control->accessibleName().isEmpty())
        object[QStringLiteral("label")] = control->accessibleName();
    object[QStringLiteral("text")] = textOfControl(control);
    if (const auto sent = commandOf(control))
        object[QStringLiteral("command")] = charactersOf(*sent);
    object[QStringLiteral("enabled")] = control->isEnabled();
    object[QStringLiteral("visible")] = control->isVisible();
    if (const auto value = valueOfControl(control))
        object[QStringLiteral("value")] = *value;
    if (const auto maximum = controlMaximum(control))
        object[QStringLiteral("maximum")] = *maximum;
    if (isSecret(control))
        return object; // also of those that were typed before
    if (const Menu *menu = menuOf(control)) {
        object[QStringLiteral("items")] = describeItems(menu->items);
    } else if (const auto *box = qobject_cast<const QComboBox *>(control)) {
        QJsonArray items;
        for (int i = 0; i < box->count(); ++i)
            items.append(box->itemText(i));
        object[QStringLiteral("items")] = items;
    } else if (const auto *list = qobject_cast<const ListView *>(control)) {
        QJsonArray rows;
        for (int row = 0; row < std::min(list->rowCount(), describedRows); ++row) {
            QJsonArray cells;
            for (int column = 0; column < list->model()->columnCount(); ++column)
                cells.append(list->cellText(row, column));
            rows.append(cells);
        }
        object[QStringLiteral("rows")] = rows;
        object[QStringLiteral("rowCount")] = list->rowCount();
    }
    return object;
}

QJsonArray describeControls(QWidget *window)
{
    QJsonArray controls;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isContainer = widget->metaObject() == &QWidget::staticMetaObject;
        if (controlIDOf(widget) || (hasSpeakingName(widget) && !isContainer))
            controls.append(describe(widget));
    }
    return controls;
}

} // namespace kelvo::inspector
