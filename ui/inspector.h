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
// the user's own: a disabled control or item is not offered.
namespace kelvo::inspector {

// `KPDE 102` or `@objectName`.
struct ControlName
{
    std::optional<ControlID> id;
    QString objectName; // without the @
    QString text() const;
};
Result<ControlName> controlNameFrom(const QString &text);

// Where an action failed: scripts end with another status for each.
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

// The control in `window`: a visible one before a hidden one. The problem names
// the nearest ID or name, or where the control is when it is hidden.
QWidget *findControl(QWidget *window, const ControlName &name, Problem *problem);

// How an item of a pop-up or menu is named.
struct ItemName
{
    enum class By { Reference, Unset, Key, Text, Row } by = By::Reference;
    std::int32_t reference = 0; // By::Reference
    QString text;               // By::Key: MenuItem::key; By::Text: as shown
    int row = 0;                // By::Row, from 1
};
// "12", "'code'" (as its number), "unset", "key NAME", "text \"…\"", "row 3".

Done choose(QWidget *control, const ItemName &item);
Done chooseCommand(QWidget *control, OSType command, const std::optional<ItemName> &item);
Done click(QWidget *control);
Done check(QWidget *control, bool on);
Done type(QWidget *control, const QString &text);
Done set(QWidget *control, int value);
Done setTime(QWidget *control, const QTime &time);
Done select(QWidget *control, const std::vector<int> &rows); // from 1; {0}: the empty area
Done doubleClick(QWidget *control, int row);                 // from 1; 0: the empty area
Done drag(QWidget *control, double dx, double dy);           // points
Done pressKey(QWidget *window, const QString &keys);         // "Ctrl+P"

// A property as a script writes it: value, index, text, enabled, visible,
// checked, focus, items, maximum, selection, "cell ROW COLUMN". Masked fields
// give bullets for their text.
Result<QString> property(QWidget *control, const QString &name);

// state: present, absent, enabled, disabled, checked, unchecked.
Done expectItem(QWidget *control, OSType command, const std::optional<ItemName> &item,
                const QString &state);

QJsonObject describe(QWidget *control);      // with items or rows
QJsonArray describeControls(QWidget *window); // every control that has an ID or a speaking name

} // namespace kelvo::inspector
