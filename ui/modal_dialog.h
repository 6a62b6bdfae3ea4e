#pragma once

#include "event.h"
#include "status.h"

#include <QDialog>
#include <QPointer>

#include <functional>

class QPushButton;

namespace kelvo {

inline constexpr OSType kCommandOK = fourCharCode("ok  ");
inline constexpr OSType kCommandCancel = fourCharCode("not!");
inline constexpr OSType kCommandHelp = fourCharCode("Khlp");
inline constexpr OSType kCommandRevert =
    fourCharCode("rvrt"); // to its defaults; each takes it itself

// A modal dialog around a loaded window. A button's command is its dynamic
// property "command" ("ok  "). The OK button becomes the default one, which
// Return presses unless another button has the focus; Escape is Cancel. F1 sends the help command.
// Help that no handler takes opens the help page named by the content's dynamic property
// "helpPage". A content that is higher than the screen scrolls.
class ModalDialog : public QDialog
{
    Q_OBJECT

public:
    // Takes ownership of `content`, and its window title and objectName. Modal to
    // the window of `parent`, or to the front window when that is null.
    ModalDialog(QWidget *content, QWidget *parent);

    // Asked when OK is pressed, after typed values have been taken; false keeps
    // the dialog open (say why first).
    void setAcceptRule(std::function<bool()> mayAccept) { m_mayAccept = std::move(mayAccept); }

    // Runs until OK or Cancel. Nested dialogs are fine.
    DialogResult runModal();

    void accept() override;
    void reject() override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int neededHeight(int width) const;
    int scrollContent();

    std::function<bool()> m_mayAccept;
    QPointer<QPushButton> m_okButton; // null when the content has none
    EventHandlerRef m_handler;
};

// What Return does before it presses the default button: presses the button that has the focus
// in `window`. False where none has; a box that is ticked is no such button.
bool pressFocusedButton(QWidget *window);

// The window that the user is working in: the front modal dialog, else the
// print dialog; null before there is one. What scripts act on.
QWidget *frontWindow();
// Asks that `window` has the keyboard; a window manager takes a while, or may refuse.
void activate(QWidget *window);
// The window for which that was asked last; null when it is gone.
QWidget *lastActivated();
// Activates `window` when a modal dialog before it has closed, which not every window manager
// does: only an active window hears shortcuts. Null, or not shown: nothing.
void activateAgain(QWidget *window);
// Runs one of Qt's own dialogs, which choose files and colors: what its exec() says. The
// window that it belongs to is active again then.
int runChooser(QDialog &chooser);
// Tells which window the print dialog is; the host does, once.
void setPrintWindow(QWidget *window);

} // namespace kelvo
