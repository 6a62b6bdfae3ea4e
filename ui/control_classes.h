#pragma once

#include <QStringList>

class QWidget;

// The one list of control classes. A new class adds a row here; all else that is
// particular to it is in its own file (control_interface.h).
namespace kelvo {

// A control of this library, by the name that window descriptions have for its class
// ("PopupButton"); null for any other name.
QWidget *makeControl(const QString &className, QWidget *parent);
QStringList controlClassNames();

} // namespace kelvo
