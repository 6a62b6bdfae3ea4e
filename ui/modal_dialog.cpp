#include "modal_dialog.h"

#include "help_window.h"
#include "spin_field.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <vector>

namespace kelvo {

namespace {

// The modal dialogs that run, the front one last.
std::vector<QPointer<QWidget>> &runningDialogs()
{
    static std::vector<QPointer<QWidget>> dialogs;
    return dialogs;
}

QPointer<QWidget> &printWindow()
{
    static QPointer<QWidget> window;
    return window;
}

QPointer<QWidget> &activatedWindow()
{
    static QPointer<QWidget> window;
    return window;
}

QPushButton *buttonWithCommand(const QWidget *window, OSType command)
{
    const auto buttons = window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (commandOf(button) == command)
            return button;
    }
    return nullptr;
}

} // namespace

ModalDialog::ModalDialog(QWidget *content, QWidget *parent)
    : QDialog(parent ? parent->window() : frontWindow())
    , m_okButton(buttonWithCommand(content, kCommandOK))
{
    setWindowTitle(content->windowTitle());
    setObjectName(content->objectName());
    setWindowModality(parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);

    if (m_okButton)
        m_okButton->setDefault(true);
    setWindowButtons(this, m_okButton, buttonWithCommand(content, kCommandCancel));

    auto *help = new QShortcut(QKeySequence::HelpContents, this);
    connect(help, &QShortcut::activated, this, [this] { sendCommand(this, kCommandHelp); });

    // Installed first, so asked last: whoever runs the dialog may take any of these.
    m_handler = installEventHandler(this, [this, content](const Event &event) -> OSStatus {
        if (event.kind != EventKind::Command)
            return eventNotHandledErr;
        switch (event.command) {
        case kCommandOK:
            accept();
            return noErr;
        case kCommandCancel:
            reject();
            return noErr;
        case kCommandHelp:
            return showHelp(helpPageOf(content), this);
        }
        return eventNotHandledErr;
    });
}

// Lines that wrap need more height the less width they have, and a size hint knows no width.
int ModalDialog::neededHeight(int width) const
{
    return layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width) : 0;
}

// A small screen, or a large font: every button can still be reached. Returns the
// width of the scroll bar.
int ModalDialog::scrollContent()
{
    const std::unique_ptr<QLayoutItem> item(layout()->takeAt(0));
    QWidget *content = item->widget();
    QWidget *focus = focusWidget(); // does not come along
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    const int bar = area->verticalScrollBar()->sizeHint().width();
    area->setMinimumWidth(content->minimumSizeHint().width() + bar);
    area->setWidget(content);
    layout()->addWidget(area);
    if (focus)
        focus->setFocus();
    return bar;
}

DialogResult ModalDialog::runModal()
{
    const QSize available = screen()->availableSize();
    QSize wanted = sizeHint();
    wanted.setHeight(std::max(wanted.height(), neededHeight(wanted.width())));
    if (wanted.height() > available.height())
        wanted.rwidth() += scrollContent();
    // Left alone, Qt squeezes a dialog into two thirds of the screen.
    if (!testAttribute(Qt::WA_Resized))
        resize(wanted.boundedTo(available));
    runningDialogs().emplace_back(this);
    const QPointer<QWidget> self = this;
    const QPointer<QWidget> behind = parentWidget();
    const int result = exec();
    std::erase_if(runningDialogs(),
                  [&self](const QPointer<QWidget> &dialog) { return !dialog || dialog == self; });
    activateAgain(behind);
    return result == Accepted ? DialogResult::OK : DialogResult::Cancel;
}

bool ModalDialog::event(QEvent *event)
{
    const bool isDone = QDialog::event(event);
    // A text that has changed may have more lines now.
    if (event->type() == QEvent::LayoutRequest && isVisible()) {
        const int height = std::min(neededHeight(width()), screen()->availableSize().height());
        if (height > this->height())
            resize(width(), height);
    }
    return isDone;
}

void ModalDialog::accept()
{
    // What was typed last counts, and it may be what makes OK impossible.
    commitTypedValues(this);
    if (m_okButton && !m_okButton->isEnabled())
        return;
    if (m_mayAccept && !m_mayAccept())
        return;
    QDialog::accept();
}

void ModalDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && pressFocusedButton(this))
        return; // and not the default one
    if (isReturn && !(m_okButton && m_okButton->isEnabled()))
        event->ignore(); // Qt would take it for a button that does nothing
    else
        QDialog::keyPressEvent(event);
}

void ModalDialog::reject()
{
    QDialog::reject();
}

bool pressFocusedButton(QWidget *window)
{
    auto *button = qobject_cast<QAbstractButton *>(window->focusWidget());
    if (!button || button->isCheckable())
        return false;
    button->click();
    return true;
}

QWidget *frontWindow()
{
    const auto &dialogs = runningDialogs();
    for (auto dialog = dialogs.rbegin(); dialog != dialogs.rend(); ++dialog) {
        if (*dialog && (*dialog)->isVisible())
            return *dialog;
    }
    return printWindow();
}

void activate(QWidget *window)
{
    activatedWindow() = window;
    window->activateWindow();
}

QWidget *lastActivated()
{
    return activatedWindow();
}

void activateAgain(QWidget *window)
{
    // The closed dialog may be called the active one until the event loop runs again, and the
    // help that stood before it comes back in front. Another modal dialog stays where it is.
    const QWidget *active = QApplication::activeWindow();
    const bool isBlocked = active && active->isVisible() && active->isModal();
    if (window && window->isVisible() && !isBlocked)
        activate(window);
}

int runChooser(QDialog &chooser)
{
    const QPointer<QWidget> behind = chooser.parentWidget();
    const int result = chooser.exec();
    activateAgain(behind);
    return result;
}

void setPrintWindow(QWidget *window)
{
    printWindow() = window;
}

} // namespace kelvo
