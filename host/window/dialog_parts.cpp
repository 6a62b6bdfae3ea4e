#include "dialog_parts.h"

#include "audience.h"
#include "caution_bar.h"
#include "control.h"
#include "dialog_foot.h"
#include "document_bar.h"
#include "document_preview.h"
#include "focus_regions.h"
#include "options_pane.h"
#include "pane_scroll.h"
#include "panel_switch.h"
#include "printer_pane.h"
#include "waiting_pane.h"
#include "window_columns.h"

#include <QApplication>
#include <QFileDialog>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace kelvo {

namespace {

// Logical pixels at the usual font; they grow with a larger one.
constexpr QSize paneSize(540, 491);
constexpr QSize windowSize(900, 660);
constexpr int lowestWindow = 420;

constexpr int margin = 10;
constexpr int gap = 6; // between rows

// What a window may take of its screen. Without a screen that anybody sees the
// window is as large as it likes: scripts meet the same window everywhere.
QSize availableSize(const QWidget *window)
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen") || !window->screen())
        return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    // A window's frame is known only once it is shown.
    constexpr int usualFrame = 40;
    QMargins frame;
    if (const QWindow *shown = window->windowHandle())
        frame = shown->frameMargins();
    const int bars = std::max(frame.top() + frame.bottom(), usualFrame);
    return window->screen()->availableSize() - QSize(frame.left() + frame.right(), bars);
}

// So long scripts wait for panels of hidden tabs; one may fail to be built.
constexpr int panelsWaitMs = 1000;
constexpr int activationWaitMs = 1000; // a window manager takes less

} // namespace

DialogParts::DialogParts(QWidget *window)
    : columns(new WindowColumns(window))
    , panelSwitch(new PanelSwitch(columns->right()))
    , scroll(new PaneScroll(columns->right()))
    , stack(new QStackedWidget)
    , waiting(new WaitingPane(stack))
    , panes(new QWidget(stack))
    , options(new OptionsPane(stack))
    , cautionBar(new CautionBar(window))
    , foot(new DialogFoot(columns->toggle(), window))
    , m_window(window)
{
    m_activation.setSingleShot(true);
    m_activation.setInterval(activationWaitMs);
    m_panelsWait.setSingleShot(true);
    scroll->setObjectName(QStringLiteral("panels"));
    panelSwitch->setObjectName(QStringLiteral("panelSwitch"));
    panelSwitch->setAccessibleName(tr("Panels"));
    panelSwitch->hide();
    auto *panesLayout = new QVBoxLayout(panes);
    panesLayout->setContentsMargins(0, 0, 0, 0);
    stack->addWidget(waiting);
    stack->addWidget(panes);
    stack->addWidget(options);
    scroll->setWidget(stack);

    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(gap);
    layout->addWidget(columns, 1);
    layout->addWidget(cautionBar);
    layout->addWidget(foot);
}

void DialogParts::place(PrinterPane *printerPane, DocumentBar *documentBar)
{
    printer = printerPane;
    documents = documentBar;
    preview = new DocumentPreview(columns->left());
    preview->setObjectName(QStringLiteral("preview"));
    columns->setParts(printer, preview, panelSwitch, scroll);
    columns->addBelowFields(documents);
}

void DialogParts::setEnabled(bool enabled)
{
    columns->setEnabled(enabled);
    cautionBar->setEnabled(enabled);
}

void DialogParts::fitToFont()
{
    const double scale = fontScale(m_window);
    stack->setMinimumSize(paneSize * scale);
    foot->fitToFont();
    fitToPanels();
    m_window->resize((windowSize * scale).boundedTo(availableSize(m_window)));
}

void DialogParts::fitToPanels()
{
    const QSize smallest(columns->smallestWidth() + 2 * margin, lowestWindow);
    m_window->setMinimumSize(smallest.boundedTo(availableSize(m_window)));
}

// A pane has a layout from when its panel's content is put into it.
bool DialogParts::arePanelsBuilt() const
{
    if (!options->isBuilt())
        return false;
    const auto shown = scroll->findChildren<QWidget *>();
    return std::all_of(shown.cbegin(), shown.cend(), [](const QWidget *pane) {
        const auto id = controlIDOf(pane);
        return !id || id->signature != kUserPaneSignature || pane->layout();
    });
}

void DialogParts::arrangeTabOrder()
{
    const QList<QWidget *> panelStops = focusStopsIn(scroll);
    const QList<QWidget *> documentStops = focusStopsIn(documents);
    if (panelStops + documentStops == m_panelStops)
        return;
    m_panelStops = panelStops + documentStops;
    chainFocusStops(focusStopsIn(printer) + documentStops + focusStopsIn(preview)
                    + QList<QWidget *>{panelSwitch} + panelStops + focusStopsIn(cautionBar)
                    + QList<QWidget *>{columns->toggle(), foot->cancelJob(), foot->timing(),
                                       foot->details(), foot->help(), foot->savePdf(),
                                       foot->cancel(), foot->print()});
}

void DialogParts::giveFirstFocus()
{
    QWidget *holder = m_window->focusWidget();
    if (holder && holder->isEnabled() && holder != m_firstFocus)
        return; // where the user, or a pane, wants it
    QWidget *first = printer->firstControl();
    m_firstFocus = first->isEnabled() ? first : foot->cancel();
    if (holder != m_firstFocus)
        m_firstFocus->setFocus(Qt::OtherFocusReason);
}

void DialogParts::goToRegion(bool forward)
{
    focusNextRegion({printer, documents, preview, panelSwitch, scroll, cautionBar,
                     columns->toggle(), foot->print()},
                    forward);
}

void DialogParts::noteShown()
{
    m_activation.start();
}

void DialogParts::noteReady()
{
    if (audience() != Audience::Nobody)
        m_panelsWait.start(panelsWaitMs);
}

bool DialogParts::isAtRest() const
{
    // Shortcuts reach only an active window, and a window becomes active some
    // time after it was shown; without a window manager it may never.
    if (m_activation.isActive() && m_window->isVisible() && !QApplication::activeWindow())
        return false;
    // The panels of hidden tabs follow the first frame; then the window is laid out for the widest.
    if (m_panelsWait.isActive()) {
        if (arePanelsBuilt() && m_panelsWait.interval() > 0)
            m_panelsWait.start(0);
        return false;
    }
    // A button that its mnemonic pressed comes up again a moment later, and only
    // then does what it is for. Qt's file chooser keeps one down for as long as it is open.
    const auto buttons = m_window->findChildren<QAbstractButton *>();
    return std::none_of(buttons.cbegin(), buttons.cend(), [](const QAbstractButton *each) {
        return each->isDown() && !qobject_cast<QFileDialog *>(each->window());
    });
}

} // namespace kelvo
