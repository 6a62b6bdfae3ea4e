#pragma once

#include "control.h"
#include "menu.h"
#include "result.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QTime>

#include <optional>
#include <vector>

class QWidget;

// What scripts see of a window and do to it: controls by ID or objectName, their
// state as JSON, and the user's actions on them. An action behaves exactly as
// the user's own: a control or item that is disabled or hidden is not offered.
namespace kelvo::inspector {

// `KPDE 102` or `@objectName`.
struct ControlName
{
    std::optional<ControlID> id;
    QString objectName; // without the @; empty when there is an ID

    QString text() const;
    friend bool operator==(const ControlName &, const ControlName &) = default;
};
Result<ControlName> controlNameFrom(const QString &text);

// How an item of a pop-up or menu is named.
struct ItemName
{
    enum class By { Reference, Key, Text, Row } by = By::Reference;
    std::int32_t reference = 0; // By::Reference
    QString text;               // By::Key: MenuItem::key; By::Text: as shown
    int row = 0;                // By::Row, from 1; dividers count

    QString description() const; // for messages
    friend bool operator==(const ItemName &, const ItemName &) = default;
};

// Why an action or a question failed: scripts end with another status for each.
enum class Failure {
    NoSuchControl,
    NotOffered, // disabled, hidden, or the item is not there
    WrongKind,  // the control has no such action or property
    BadValue,   // malformed, or several rows carry it
};
struct Problem
{
    Failure failure;
    QString text; // a sentence, with the nearest thing that exists
};
using Done = std::optional<Problem>; // none: it was done

// A control of `window`: one that is shown before one that is not. Null when
// there is none of that name.
struct Found
{
    QWidget *control = nullptr;
    bool shown = false;
};
Found find(QWidget *window, const ControlName &name);
// The name of the control in `window` that is most like `name`; empty when the
// window has none.
QString nearestControl(QWidget *window, const ControlName &name);

Done choose(QWidget *control, const ItemName &item);
// The item with that command, submenus included; `item` tells several apart.
Done chooseCommand(QWidget *control, OSType command, const std::optional<ItemName> &item);
Done click(QWidget *control);
Done check(QWidget *control, bool on);
Done type(QWidget *control, const QString &text);
// The same; from then on the control counts as one that holds a secret.
Done typeSecret(QWidget *control, const QString &text);
Done set(QWidget *control, int value);
Done setTime(QWidget *control, const QTime &time);
Done select(QWidget *control, const std::vector<int> &rows); // from 1; {0}: the empty area
Done doubleClick(QWidget *control, int row);                 // from 1; 0: the empty area
// From its middle, in points of what it shows (pixelsPerPoint()).
Done drag(QWidget *control, double dx, double dy);
// NotOffered when nobody takes it.
Done command(QWidget *window, OSType code);
// "Ctrl+P", to the focus of `window` and its shortcuts, or to the menu or list that is open.
// NotOffered when nobody takes it: the key was for nothing.
Done pressKey(QWidget *window, const QString &keys);
Done answerFileChooser(QWidget *window, const QString &path);

// Whether what the control holds is a secret: its window's description says so
// (kSecretProperty), it shows bullets, or a secret was typed into it.
bool isSecret(QWidget *control);

// Whether something that `window` shows is on its way still.
bool isUnfinished(const QWidget *window);
// Whether it is something without which nothing can be done there (control.h).
bool isAwaited(const QWidget *window);

// A property as a script writes it: value, index, text, enabled, visible,
// checked, focus, items, maximum, selection, "cell ROW COLUMN". For the text of a
// field with a secret kMask stands, or nothing when it is empty.
Result<QString> property(QWidget *control, const QString &name);
// Every name that property() knows.
QStringList propertyNames();

// `state`: present, absent, enabled, disabled, checked or unchecked.
Done expectItem(QWidget *control, OSType command, const std::optional<ItemName> &item,
                const QString &state);

QJsonObject describe(QWidget *control);       // with items or rows
QJsonArray describeControls(QWidget *window); // every control with an ID or a speaking name

} // namespace kelvo::inspector
