#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPointer>
#include <QTimer>

class QStackedWidget;
class QWidget;

namespace kelvo {

class CautionBar;
class DialogFoot;
class DocumentBar;
class DocumentPreview;
class OptionsPane;
class PaneScroll;
class PanelSwitch;
class PrinterPane;
class WaitingPane;
class WindowColumns;

// The parts of the print dialog, and where they stand: their places and sizes, the tab
// order, and where the keyboard begins. What they show is the dialog's.
class DialogParts
{
    Q_DECLARE_TR_FUNCTIONS(DialogParts)

public:
    // All but what stands in the left column, as children of `window`.
    explicit DialogParts(QWidget *window);
    // The left column, which completes the window: these and the preview below them.
    void place(PrinterPane *printerPane, DocumentBar *documentBar);

    WindowColumns *const columns;
    PanelSwitch *const panelSwitch;
    PaneScroll *const scroll;
    QStackedWidget *const stack; // the waiting pane, the panels, or the host's own
    WaitingPane *const waiting;
    QWidget *const panes; // parent of the device's panels
    OptionsPane *const options;
    CautionBar *const cautionBar;
    DialogFoot *const foot;
    PrinterPane *printer = nullptr;
    DocumentBar *documents = nullptr;
    DocumentPreview *preview = nullptr;

    void setEnabled(bool enabled); // all but the foot

    // Sizes that a layout cannot know.
    void fitToFont();
    void fitToPanels();

    // Panels make their controls when they are first shown: later than the buttons
    // below them, which come after them all the same.
    void arrangeTabOrder();
    // The keyboard begins at the printers; while there are none to choose from, at
    // what can be pressed.
    void giveFirstFocus();
    void goToRegion(bool forward);

    void noteShown(); // the window
    void noteReady(); // the printer, or that there is none
    // Whether keys and clicks do by now what they are for: scripts wait for that, but
    // not for ever.
    bool isAtRest() const;

private:
    bool arePanelsBuilt() const; // those of hidden tabs, too

    QWidget *m_window;
    QList<QWidget *> m_panelStops;  // those of the documents too; the tab order is made for these;
                                    // compared, never followed
    QPointer<QWidget> m_firstFocus; // has the focus from us, not from the user
    QTimer m_activation;            // runs while the window may still become the active one
    mutable QTimer m_panelsWait;    // runs while panels are not built, or not laid out
};

} // namespace kelvo
