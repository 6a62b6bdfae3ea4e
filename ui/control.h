#pragma once

#include "control_id.h"
#include "status.h"

#include <QString>
#include <QVariant>
#include <QWidget>

#include <cstdint>
#include <optional>

class QLabel;

// Controls by ID. A control ID is a signature and a number, unique in its
// window, written `KPDE 102`; in a window description it is the dynamic
// property "controlID" (notr). Any widget can have one.
namespace kelvo {

// "KPDE 102" and back: four printable ASCII characters, one blank, a decimal
// 32-bit number without plus sign or leading zeros. None when it is malformed.
std::optional<ControlID> controlIDFromText(const QString &text);
QString textOf(ControlID id);
QString charactersOf(OSType code); // "KPDE"

void setControlID(QWidget *control, ControlID id);
std::optional<ControlID> controlIDOf(const QWidget *control);

// The dynamic property, in a window description, of a field whose text is a secret
// also while the user has it shown: true.
inline constexpr const char *kSecretProperty = "secret";

// The control with that ID in the window of `anyWidget`, or below the topmost
// parent when it is in no window yet; null when there is none. Where an ID
// stands more than once (panels of several bundles in one window), the control
// nearest to `anyWidget` is found. Windows that this window owns are not searched.
QWidget *findControl(const QWidget *anyWidget, ControlID id);
// The same, and of class T; null also when it is of another class.
template <typename T>
T *findControl(const QWidget *anyWidget, ControlID id)
{
    return qobject_cast<T *>(findControl(anyWidget, id));
}

// Values that code hangs onto a control under a creator and a tag.
void setControlProperty(QWidget *control, OSType creator, OSType tag, const QVariant &value);
std::optional<QVariant> controlProperty(const QWidget *control, OSType creator, OSType tag);
void removeControlProperty(QWidget *control, OSType creator, OSType tag);

// Puts `control` into `parent`'s layout; a vertical one without margins is made
// when it has none. A hidden control stays hidden. paramErr for a null argument.
OSStatus embedControl(QWidget *control, QWidget *parent);

// The dialog window's buttons: set by whoever makes the dialog, found by the
// panels from any widget in that window. Null when the window has none.
void setWindowButtons(QWidget *window, QWidget *defaultButton, QWidget *cancelButton);
QWidget *windowDefaultButton(const QWidget *anyWidget);
QWidget *windowCancelButton(const QWidget *anyWidget);

// The QLabel whose buddy `control` is; null when it has none.
QLabel *labelOf(const QWidget *control);

// A control with its label: both are enabled, or shown, together.
void setEnabledWithLabel(QWidget *control, bool enabled);
void setVisibleWithLabel(QWidget *control, bool visible);

// What `control` shows is on its way, and nothing can be done without it: scripts go on when it
// is there.
void setAwaited(QWidget *control, bool isAwaited);
bool isAwaited(const QWidget *control);

} // namespace kelvo
