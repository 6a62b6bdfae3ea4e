#include "inspector.h"

#include "button_row.h"
#include "control_interface.h"
#include "event.h"
#include "nearest_name.h"
#include "secrets.h"
#include "texts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
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

Done notOffered(const QString &sentence)
{
    return Problem{Failure::NotOffered, sentence};
}

Done wrongKind(const ControlInterface &shown, const char *sentence)
{
    return Problem{Failure::WrongKind, shown.unsupported(sentence).detail};
}

// Why the user could not use the control now; none when it can be used.
Done unusable(const QWidget *control)
{
    if (!control->isVisible())
        return notOffered(translate("Controls", "%1 is not shown").arg(scriptName(control)));
    if (!control->isEnabled())
        return notOffered(translate("Controls", "%1 is disabled").arg(scriptName(control)));
    return {};
}

// What the user's `action` on `control` came to.
Done act(QWidget *control, const std::function<Result<void>(ControlInterface &)> &action)
{
    if (Done problem = unusable(control))
        return problem;
    const Result<void> done = action(*controlInterface(control));
    if (done)
        return {};
    const Error &error = done.error();
    return Problem{error.code == Error::Code::Unsupported ? Failure::WrongKind
                                                          : Failure::NotOffered,
                   error.detail};
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

// "it has A, B, …", and where a script sees the rest.
QString whatItHas(const QWidget *control, const QStringList &names)
{
    if (names.isEmpty())
        return {};
    return names.size() > kShortListLength
        ? translate("Controls", "it has %1 (“show %2” lists them all)")
              .arg(shortList(names), scriptName(control))
        : translate("Controls", "it has %1").arg(shortList(names));
}

// `items` are all that carry the same.
Done severalItems(const QWidget *control, const QString &what,
                  const std::vector<const MenuItem *> &items)
{
    return Problem{
        Failure::BadValue,
        translate("Controls",
                  "several items of %1 carry %2; name one of them by key, text or row: %3")
            .arg(scriptName(control), what, shortList(namesOf(items, ItemName::By::Text)))};
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
            return {nullptr, notOffered(noSuchRow(control, name.row, std::ssize(items)))};
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
    const QString problem = nearest.isEmpty()
        ? translate("Controls", "%1 has no item %2").arg(scriptName(control), name.description())
        : translate("Controls", "%1 has no item %2, the nearest is %3")
              .arg(scriptName(control), name.description(), nearest);
    return {nullptr,
            notOffered(nearest.isEmpty()
                           ? joined({problem, whatItHas(control, namesOf(items, name.by))})
                           : problem)};
}

// `item` is one of the menu of `shown`.
Done chooseItem(QWidget *control, ControlInterface &shown, const MenuItem &item)
{
    // Taken before it is chosen, which may end both.
    const QString name = scriptName(control);
    const QString text = item.text;
    if (item.divider)
        return notOffered(
            translate("Controls", "%1 has a divider there, which cannot be chosen").arg(name));
    if (!item.submenu.empty())
        return notOffered(
            translate("Controls", "%1 opens a submenu with “%2”; choose an item in it")
                .arg(name, text));
    if (!item.enabled)
        return notOffered(translate("Controls", "%1 offers “%2” only disabled").arg(name, text));
    return shown.choose(item)
        ? Done()
        : notOffered(translate("Controls", "%1 does not take “%2”").arg(name, text));
}

QString textOfControl(QWidget *control)
{
    const QString text = controlInterface(control)->text();
    return isSecret(control) && !text.isEmpty() ? kMask : text;
}

std::optional<int> valueOfControl(QWidget *control)
{
    return isSecret(control) ? std::nullopt : controlInterface(control)->value();
}

std::optional<QString> words(std::optional<bool> value)
{
    if (!value)
        return std::nullopt;
    return *value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

bool isSecret(QWidget *control)
{
    return control->property(kSecretProperty).toBool() || controlInterface(control)->hidesText();
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
    return Error{Error::Code::Damaged, text,
                 translate("Controls", "write KPDE 102 or @objectName")};
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
    const auto shown = controlInterface(control);
    const Menu *menu = shown->menu();
    if (!menu)
        return wrongKind(*shown,
                         QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and has no items to choose"));
    if (shown->hasPlainItems()
        && (name.by == ItemName::By::Key || name.by == ItemName::By::Reference))
        return Problem{
            Failure::WrongKind,
            translate("Controls", "the items of %1 have no values; name one by text or row")
                .arg(scriptName(control))};
    std::vector<const MenuItem *> items;
    collect(menu->items, items);
    const FoundItem found = findItem(control, items, name);
    return found.item ? chooseItem(control, *shown, *found.item) : found.problem;
}

namespace {

// The item of `shown`'s menu that carries `command`, the one that `name` means where given.
FoundItem findCommand(QWidget *control, ControlInterface &shown, OSType command,
                      const std::optional<ItemName> &name)
{
    const Menu *menu = shown.menu();
    if (!menu || shown.hasPlainItems())
        return {nullptr,
                wrongKind(shown, QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and has no menu"))};
    std::vector<const MenuItem *> all, items;
    collect(menu->items, all);
    std::copy_if(all.begin(), all.end(), std::back_inserter(items),
                 [command](const MenuItem *item) { return item->command == command; });
    const QString code = QStringLiteral("'%1'").arg(charactersOf(command));
    if (items.empty()) {
        const QStringList commands = commandsOf(all);
        const QString others = commands.isEmpty()
            ? translate("Controls", "its items have none, choose picks them")
            : whatItHas(control, commands);
        return {nullptr,
                notOffered(joined({translate("Controls", "%1 has no item with the command %2")
                                       .arg(scriptName(control), code),
                                   others}))};
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
    const auto shown = controlInterface(control);
    const FoundItem found = findCommand(control, *shown, command, name);
    return found.item ? chooseItem(control, *shown, *found.item) : found.problem;
}

Done click(QWidget *control)
{
    return act(control, [](ControlInterface &button) { return button.click(); });
}

Done check(QWidget *control, bool on)
{
    return act(control, [on](ControlInterface &button) { return button.check(on); });
}

Done type(QWidget *control, const QString &text)
{
    return act(control, [control, &text](ControlInterface &field) -> Result<void> {
        if (control->property("readOnly").toBool())
            return field.readOnlyError();
        return field.type(text);
    });
}

Done typeSecret(QWidget *control, const QString &text)
{
    control->setProperty(kSecretProperty, true);
    return type(control, text);
}

Done set(QWidget *control, int value)
{
    return act(control, [value](ControlInterface &shown) { return shown.set(value); });
}

Done setTime(QWidget *control, const QTime &time)
{
    return act(control, [&time](ControlInterface &field) { return field.setTime(time); });
}

Done select(QWidget *control, const std::vector<int> &rows)
{
    return act(control, [&rows](ControlInterface &list) { return list.select(rows); });
}

Done doubleClick(QWidget *control, int row)
{
    return act(control, [row](ControlInterface &list) { return list.activate(row); });
}

Done drag(QWidget *control, double dx, double dy)
{
    if (Done problem = unusable(control))
        return problem;
    const auto shown = controlInterface(control);
    // The press would stay in its menu, and each move open that again.
    if (shown->menu())
        return wrongKind(*shown, QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and cannot be dragged"));
    const QPointF from = QRectF(control->rect()).center();
    const QPointF to = from + QPointF(dx, dy) * shown->pixelsPerPoint();
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

namespace {

// Whether `test` holds for something that is shown in `shown`. Most of a window is in hidden tabs,
// and each line of a script asks.
bool isAnyShown(const QWidget *shown, bool (*test)(QWidget *control))
{
    return std::ranges::any_of(shown->children(), [test](QObject *child) {
        auto *control = qobject_cast<QWidget *>(child);
        return control && control->isVisible() && (test(control) || isAnyShown(control, test));
    });
}

} // namespace

bool isUnfinished(const QWidget *window)
{
    return isAnyShown(window,
                      [](QWidget *control) { return controlInterface(control)->isUnfinished(); });
}

bool isAwaited(const QWidget *window)
{
    return isAnyShown(window, [](QWidget *control) { return kelvo::isAwaited(control); });
}

Done command(QWidget *window, OSType code)
{
    // Taking it may close the window.
    const QString title = window->windowTitle();
    if (sendCommand(window, code) != eventNotHandledErr)
        return {};
    return Problem{Failure::NotOffered,
                   translate("Controls",
                             "nothing in the window “%1” takes the command '%2'; “controls” "
                             "lists the commands of its buttons, and those of menus, which "
                             "“item” picks")
                       .arg(title, charactersOf(code))};
}

namespace {

// Where a key goes, as Qt's own windows decide it for the real keyboard.
QWidget *keyReceiver(QWidget *window)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup->focusWidget() ? popup->focusWidget() : popup;
    return window->focusWidget() ? window->focusWidget() : window;
}

// The text that comes with `key` from a real keyboard: with Alt as without it, with Ctrl the
// control character.
QString textOfKey(QKeyCombination key)
{
    const char32_t character = key.key();
    if (character > QChar::LastValidCodePoint)
        return {}; // a key without a character, such as F6
    if (key.keyboardModifiers() & Qt::ControlModifier)
        return character >= U'@' && character <= U'~' ? QString(QChar(character & 0x1f))
                                                      : QString();
    const QString text = QString::fromUcs4(&character, 1);
    return key.keyboardModifiers() & Qt::ShiftModifier ? text : text.toLower();
}

// Whether somebody took it.
bool pressOne(QWidget *receiver, QKeyCombination key)
{
    const QString text = textOfKey(key);
    // A shortcut comes before the focus, as with the real keyboard.
    const QPointer<QWidget> alive = receiver;
    const QWidget *popup = QApplication::activePopupWidget();
    if (qt_sendShortcutOverrideEvent(receiver, 0, key.key(), key.keyboardModifiers(), text)
        || !alive)
        return true;
    // The list of a combo box takes Return before it is pressed.
    if (popup && QApplication::activePopupWidget() != popup)
        return true;
    QKeyEvent press(QEvent::KeyPress, key.key(), key.keyboardModifiers(), text);
    // A disabled control leaves the event as it came, accepted.
    const bool isTaken = QApplication::sendEvent(receiver, &press) && press.isAccepted();
    if (!alive)
        return true; // it has closed its window
    // Fields take the release of keys that they did not take.
    QKeyEvent release(QEvent::KeyRelease, key.key(), key.keyboardModifiers(), text);
    QApplication::sendEvent(receiver, &release);
    return isTaken;
}

// The button that `key` would press, were it enabled: by its mnemonic, or as the default one.
const QWidget *disabledButtonFor(const QWidget *window, QKeyCombination key)
{
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const auto buttons = window->findChildren<QAbstractButton *>();
    const auto found = std::ranges::find_if(buttons, [key, isReturn](QAbstractButton *button) {
        const auto *push = qobject_cast<QPushButton *>(button);
        return button->isVisible() && !button->isEnabled()
            && (button->shortcut() == QKeySequence(key) || (isReturn && push && push->isDefault()));
    });
    return found == buttons.end() ? nullptr : *found;
}

// `window` had the keyboard when `key` was pressed, and `focus` got it first.
Done nobodyTakes(const QWidget *window, const QWidget *focus, QKeyCombination key)
{
    QStringList clauses{
        translate("Controls", "nothing in the window “%1” takes the key “%2”")
            .arg(window->windowTitle(), QKeySequence(key).toString(QKeySequence::PortableText))};
    if (const QWidget *button = disabledButtonFor(window, key))
        clauses << translate("Controls", "%1 is disabled").arg(scriptName(button));
    else if (focus && focus != window && hasSpeakingName(focus))
        clauses << translate("Controls", "the focus is on %1").arg(scriptName(focus));
    clauses << translate("Controls", "“click” and “type” name their control and need no focus");
    return notOffered(joined(clauses));
}

} // namespace

Done pressKey(QWidget *window, const QString &keys)
{
    const QKeySequence sequence(keys, QKeySequence::PortableText);
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        return Problem{
            Failure::BadValue,
            translate("Controls", "“%1” is no key; write Ctrl+P, Return, F6, Alt+1").arg(keys)};
    // Only an active window hears shortcuts. The window manager may be about to make it one, or
    // never do, while the user works elsewhere.
    QApplication::setActiveWindow(window);
    const QPointer<QWidget> alive = window;
    for (int i = 0; i < sequence.count(); ++i) {
        if (!alive || !alive->isVisible())
            return notOffered(translate("Controls",
                                        "the window is closed before the key “%1”; write it "
                                        "into a line of its own")
                                  .arg(QKeySequence(sequence[i]).toString()));
        const QPointer<QWidget> receiver = keyReceiver(window);
        if (!pressOne(receiver, sequence[i]))
            return nobodyTakes(window, receiver, sequence[i]);
    }
    return {};
}

Done answerFileChooser(QWidget *window, const QString &path)
{
    auto *chooser = qobject_cast<QFileDialog *>(window);
    if (!chooser)
        return Problem{Failure::NotOffered, translate("Controls", "no file chooser is open")};
    if (chooser->acceptMode() == QFileDialog::AcceptOpen && !QFileInfo::exists(path))
        return Problem{Failure::BadValue, translate("Controls", "there is no file “%1”").arg(path)};
    const QFileInfo file(path);
    chooser->setDirectory(file.absolutePath());
    chooser->selectFile(file.absoluteFilePath());
    // A chooser whose field has the focus leaves it to the user.
    if (auto *name = chooser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
        name->setText(file.fileName());
    QMetaObject::invokeMethod(chooser, "accept", Qt::QueuedConnection);
    return {};
}

namespace {

std::optional<QString> numeral(std::optional<int> number)
{
    return number ? std::optional(QString::number(*number)) : std::nullopt;
}

std::optional<QString> selectionOf(const ControlInterface &list)
{
    const auto selected = list.selection();
    if (!selected)
        return std::nullopt;
    QStringList rows;
    for (const int row : *selected)
        rows << QString::number(row);
    return rows.join(u',');
}

// What expect asks for, but for cells; none where the control has nothing of the kind.
struct PropertyRow
{
    const char *name;
    std::optional<QString> (*read)(QWidget *control, ControlInterface &shown);
    const char *lacking = nullptr; // instead of "it has no NAME"
};
using Shown = ControlInterface;
constexpr PropertyRow propertyRows[] = {
    {"value", [](QWidget *control, Shown &) { return numeral(valueOfControl(control)); }},
    {"index", [](QWidget *, Shown &shown) { return numeral(shown.index()); }},
    {"text", [](QWidget *control, Shown &) { return std::optional(textOfControl(control)); }},
    {"enabled", [](QWidget *control, Shown &) { return words(control->isEnabled()); }},
    {"visible", [](QWidget *control, Shown &) { return words(control->isVisible()); }},
    {"checked", [](QWidget *, Shown &shown) { return words(shown.isChecked()); },
     QT_TRANSLATE_NOOP("Controls", "it cannot be checked")},
    {"focus",
     [](QWidget *control, Shown &) { return words(control->window()->focusWidget() == control); }},
    {"items", [](QWidget *, Shown &shown) { return numeral(shown.items()); }},
    {"maximum", [](QWidget *, Shown &shown) { return numeral(shown.maximum()); }},
    {"selection", [](QWidget *, Shown &shown) { return selectionOf(shown); }},
};

Result<QString> propertyOf(QWidget *control, const QString &name)
{
    const auto shown = controlInterface(control);
    const auto lacks = [control](const QString &what) {
        return Error{Error::Code::Unsupported, scriptName(control), what};
    };
    if (name.startsWith(QLatin1String("cell "))) {
        const QStringList parts = name.split(u' ');
        const auto cell = shown->cell(parts.value(1).toInt(), parts.value(2).toInt());
        if (cell)
            return cell;
        if (cell.error().code == Error::Code::Unsupported)
            return lacks(translate("Controls", "it has no %1").arg(name));
        return Error{cell.error().code, scriptName(control), cell.error().detail};
    }
    const auto row = std::ranges::find(
        propertyRows, name, [](const PropertyRow &each) { return QLatin1String(each.name); });
    if (row == std::end(propertyRows))
        return lacks(translate("Controls", "it has no %1").arg(name));
    if (const auto value = row->read(control, *shown))
        return *value;
    return lacks(row->lacking ? translate("Controls", row->lacking)
                              : translate("Controls", "it has no %1").arg(name));
}

} // namespace

QStringList propertyNames()
{
    QStringList names;
    for (const PropertyRow &row : propertyRows)
        names << QString::fromLatin1(row.name);
    return names << QStringLiteral("cell");
}

Result<QString> property(QWidget *control, const QString &name)
{
    auto found = propertyOf(control, name);
    if (found || found.error().code != Error::Code::Unsupported)
        return found;
    QStringList has;
    const auto shown = controlInterface(control);
    for (const PropertyRow &row : propertyRows) {
        if (row.read(control, *shown))
            has << QString::fromLatin1(row.name);
    }
    if (const auto cell = shown->cell(1, 1); cell || cell.error().code != Error::Code::Unsupported)
        has << QStringLiteral("cell");
    Error error = found.error();
    error.detail = joined(
        {error.detail, translate("Controls", "it has %1").arg(has.join(QStringLiteral(", ")))});
    return error;
}

Done expectItem(QWidget *control, OSType command, const std::optional<ItemName> &name,
                const QString &state)
{
    const auto shown = controlInterface(control);
    const FoundItem found = findCommand(control, *shown, command, name);
    const bool isAbsent =
        !found.item && found.problem && found.problem->failure == Failure::NotOffered;
    const QString problem = found.problem ? found.problem->text : QString();
    if (!found.item && !isAbsent)
        return found.problem;
    if (state == QLatin1String("absent"))
        return isAbsent ? Done()
                        : Problem{Failure::BadValue,
                                  translate("Controls", "%1 has that item: “%2”")
                                      .arg(scriptName(control), found.item->text)};
    if (isAbsent)
        return Problem{Failure::BadValue, problem};
    const bool holds = state == QLatin1String("present")
        || (state == QLatin1String("enabled") && found.item->enabled)
        || (state == QLatin1String("disabled") && !found.item->enabled)
        || (state == QLatin1String("checked") && found.item->checked)
        || (state == QLatin1String("unchecked") && !found.item->checked);
    if (holds)
        return {};
    return Problem{Failure::BadValue,
                   translate("Controls", "“%1” of %2 is not %3")
                       .arg(found.item->text, scriptName(control), state)};
}

QJsonObject describe(QWidget *control)
{
    const auto shown = controlInterface(control);
    QJsonObject object;
    if (const auto id = controlIDOf(control))
        object[QStringLiteral("id")] = textOf(*id);
    if (hasSpeakingName(control))
        object[QStringLiteral("name")] = control->objectName();
    object[QStringLiteral("kind")] = kindOf(control);
    if (!control->accessibleName().isEmpty())
        object[QStringLiteral("label")] = control->accessibleName();
    object[QStringLiteral("text")] = textOfControl(control);
    if (const auto sent = commandOf(control))
        object[QStringLiteral("command")] = charactersOf(*sent);
    object[QStringLiteral("enabled")] = control->isEnabled();
    object[QStringLiteral("visible")] = control->isVisible();
    if (const auto value = valueOfControl(control))
        object[QStringLiteral("value")] = *value;
    if (const auto maximum = shown->maximum())
        object[QStringLiteral("maximum")] = *maximum;
    if (!isSecret(control)) // also of those that were typed before
        shown->describe(object);
    return object;
}

QJsonArray describeControls(QWidget *window)
{
    QJsonArray controls;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isContainer =
            widget->metaObject() == &QWidget::staticMetaObject || qobject_cast<ButtonRow *>(widget);
        if (controlIDOf(widget) || (hasSpeakingName(widget) && !isContainer))
            controls.append(describe(widget));
    }
    return controls;
}

} // namespace kelvo::inspector
