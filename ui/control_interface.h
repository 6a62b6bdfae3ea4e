#pragma once

#include "menu.h"
#include "result.h"

#include <QString>
#include <QtGlobal>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QJsonObject;
class QTime;

namespace kelvo {

struct InputLimits;

// A control's name, as messages have it and scripts write it: the one that speaks, else the ID.
QString scriptName(const QWidget *control);
// Qt gives names of its own to the insides of its widgets; they are not ours.
bool hasSpeakingName(const QWidget *widget);
// A control's class, as messages and lists have it.
QString kindOf(const QWidget *control);

// Why an action was not done: one that the control takes, but not so, or not now. The detail
// is a sentence with the control's name in it.
Error refused(const QString &sentence);
// A menu or list of `count` rows has not that many.
QString noSuchRow(const QWidget *control, int row, qsizetype count);

// What a control answers for itself: what it shows, what a user can do with it, and
// how a window prepares it. Each class of controls has an interface in its own file,
// Qt's own in qt_controls; controlInterface() finds that of a widget. The defaults
// are those of a widget that shows nothing and takes nothing, so that a class says
// only what it has.
//
// An action that fails says so in a sentence: Refused, or Unsupported where the control takes
// no such action at all.
//
// An interface is made for one question or action and thrown away. The handlers of an
// action may destroy the control, so nothing is asked afterwards.
class ControlInterface
{
public:
    explicit ControlInterface(QWidget *control)
        : m_control(control)
    {
    }
    virtual ~ControlInterface() = default;
    ControlInterface(const ControlInterface &) = delete;
    ControlInterface &operator=(const ControlInterface &) = delete;

    // ---- What it shows; none, or null, where it has nothing of the kind.
    // Without mnemonics; the accessible name where it shows no text.
    virtual QString text() const { return m_control->accessibleName(); }
    // A pop-up's is the reference value, a check box's 0 or 1.
    virtual std::optional<int> value() const { return {}; }
    // The item, button or tab that is shown or on, from 1; 0: none is.
    virtual std::optional<int> index() const { return {}; }
    virtual std::optional<int> maximum() const { return {}; }
    // How many items, rows, buttons or tabs there are.
    virtual std::optional<int> items();
    virtual std::optional<bool> isChecked() const { return {}; }
    // Bullets stand for what is typed.
    virtual bool hidesText() const { return false; }
    // Its menu as it would open now; good until it is asked for again.
    virtual const Menu *menu() { return nullptr; }
    // The items of menu() are texts alone: they have no values, keys or commands.
    virtual bool hasPlainItems() const { return false; }
    // The selected rows, from 1, ascending.
    virtual std::optional<std::vector<int>> selection() const { return {}; }
    // Both from 1. Unsupported when it has no cells, OutOfRange when not that one.
    virtual Result<QString> cell(int /*row*/, int /*column*/) const
    {
        return Error{Error::Code::Unsupported, {}, {}};
    }
    // Something of what it shows is on its way still; pictures of the window wait for it.
    virtual bool isUnfinished() const { return false; }
    // Logical pixels of a point of what it shows, for distances; 1 where that has no size.
    virtual double pixelsPerPoint() const { return 1; }
    // Adds to `object` what else it holds: by default "items", those of menu().
    virtual void describe(QJsonObject &object);

    // ---- What the user does, on a control that is shown and enabled.
    // Which of these a script can have done, as its commands: "set, type".
    virtual QString commands() const { return {}; }
    // `item` is an element of menu() itself, at any level; false: it is not taken.
    virtual bool choose(const MenuItem & /*item*/) { return false; }
    virtual Result<void> click() { return notClickable(); }
    virtual Result<void> check(bool /*on*/)
    {
        return unsupported(QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and cannot be checked"));
    }
    // Replaces what stands there, as a user types it.
    virtual Result<void> type(const QString &text);
    virtual Result<void> set(int /*value*/)
    {
        return unsupported(QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and has no number to set"));
    }
    virtual Result<void> setTime(const QTime & /*time*/)
    {
        return unsupported(QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and is no time field"));
    }
    // Rows from 1; 0: the empty area.
    virtual Result<void> select(const std::vector<int> & /*rows*/) { return notAList(); }
    virtual Result<void> activate(int /*row*/) { return notAList(); }
    // Unsupported, and what the control takes instead. `sentence` is one of the table
    // "Controls", with %1 for the control's name and %2 for its kind.
    Error unsupported(const char *sentence) const;
    Error readOnlyError() const;

    // ---- How a window prepares it.
    using Localizer = std::function<QString(const QString &key)>;
    // Puts the localized text in place of every key that the user reads or hears. What
    // stands in a field is the user's.
    virtual void localize(const Localizer &localized);
    // A control without a text of its own is still called so for screen readers.
    virtual void setTitle(const QString &title) { m_control->setAccessibleName(title); }
    // An "&" in its title marks one.
    virtual bool showsMnemonics() const { return false; }
    // Has it tell of the user's changes as events; called once. The controls of this
    // library do so by themselves.
    virtual void sendEvents() { }

    // ---- A field that text is typed into, for input_limits.h.
    virtual bool takesText() const { return false; }
    // Called once.
    virtual void keepWithin(const InputLimits &limits);
    // As typeText(): false when some of it was refused.
    virtual bool enter(const QString & /*text*/) { return false; }
    // Makes what was typed its value, as leaving it does.
    virtual void takeTypedText() { }

protected:
    QWidget *control() const { return m_control; }
    QString name() const { return scriptName(m_control); }
    // Of what is typed; told where something is refused.
    virtual InputLimits limits() const;

    Error outsideRange(int value, int minimum, int maximum) const;
    Error notClickable() const;

private:
    Error notAList() const;

    QWidget *m_control;
};

// The interface of a class of widgets; `Base` is that of the class it comes from, where
// that has one.
template <typename Widget, typename Base = ControlInterface>
class InterfaceOf : public Base
{
public:
    explicit InterfaceOf(Widget *widget)
        : Base(widget)
    {
    }

protected:
    Widget *widget() const { return static_cast<Widget *>(this->control()); }
};

// That of `control`'s class, or of the nearest class it comes from. Never null.
std::unique_ptr<ControlInterface> controlInterface(QWidget *control);

// The row of `item`, an element of the first level of `menu` itself, from 1; 0: it is none.
int rowOf(const Menu &menu, const MenuItem &item);

} // namespace kelvo
