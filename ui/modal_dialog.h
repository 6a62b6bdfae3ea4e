#pragma once

#include "bundle.h"
#include "event.h"
#include "result.h"
#include "status.h"

#include <QDialog>

#include <functional>

namespace kelvo {

inline constexpr OSType kCommandOK = fourCharCode("ok  ");
inline constexpr OSType kCommandCancel = fourCharCode("not!");
inline constexpr OSType kCommandHelp = fourCharCode("Khlp");

// A modal dialog around a loaded window. A button's command is its dynamic
// property "command" ("ok  "). Return presses OK when it is the default button,
// Escape Cancel.
class ModalDialog : public QDialog
{
    Q_OBJECT

public:
    // Takes ownership of `content`, whose window title it takes.
    ModalDialog(QWidget *content, QWidget *parent);

    // Asked when OK is pressed; false keeps the dialog open (say why first).
    void setAcceptRule(std::function<bool()> mayAccept) { m_mayAccept = std::move(mayAccept); }

    // Runs until OK or Cancel. Nested dialogs are fine.
    DialogResult runModal();

    void accept() override;
    void reject() override;

private:
    std::function<bool()> m_mayAccept;
    EventHandlerRef m_handler;
};

// The window that the user is working in: the front modal dialog, else the
// print dialog; null before there is one. What scripts act on.
QWidget *frontWindow();

} // namespace kelvo
