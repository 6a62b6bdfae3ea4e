#include "exceptions_dialog.h"

#include "control.h"
#include "dialog_window.h"
#include "embed_control.h"
#include "exception_options.h"
#include "hint_text.h"
#include "popups.h"
#include "print_session.h"
#include "special_page_dialogs.h"
#include "special_page_edits.h"
#include "special_pages_summary.h"
#include "stock_menus.h"
#include "system_information.h"
#include "tab_control.h"
#include "tab_stock_dialogs.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace kelvo {

namespace {

constexpr OSType kCommandSides = fourCharCode("Eplx");
constexpr OSType kCommandTabs = fourCharCode("Etab");

constexpr ControlID kPages{kPanelSignature, 8750};
constexpr ControlID kPagesHint{kPanelSignature, 8751};
constexpr ControlID kTabs{kPanelSignature, 8752};
constexpr std::array kPanes = {ControlID{kPanelSignature, 8753}, ControlID{kPanelSignature, 8754}};
constexpr std::int32_t kStockControls = 8760;
constexpr ControlID kJobPaper{kPanelSignature, 8763};
constexpr ControlID kTabShift{kPanelSignature, 8764};
constexpr ControlID kTabShiftButton{kPanelSignature, 8765};
constexpr ControlID kSides{kPanelSignature, 8770};
constexpr ControlID kSidesHint{kPanelSignature, 8771};
constexpr ControlID kLightness{kPanelSignature, 8780};
constexpr ControlID kLightnessHint{kPanelSignature, 8781};

struct ExceptionsContext
{
    Device device;
    std::unique_ptr<ModalDialog> window;
    Ticket job;                              // its print settings
    ExceptionPageList *exceptions = nullptr; // the caller's
    const ExceptionPage *edited = nullptr;   // of the list; null to add
    ExceptionEdit edit;
    QPointer<QLineEdit> pages;
    QPointer<QLabel> pagesHint;
    QPointer<TabControl> tabs;
    std::array<QWidget *, kPanes.size()> panes{};
    QPointer<QLabel> tabShift;
    QPointer<QPushButton> tabShiftButton;
    QPointer<PopupButton> sides, lightness;
    QPointer<QLabel> sidesHint, lightnessHint;
    _StockMenuCommandEventHandlerData stock;
    EventHandlerRef stockHandler, handler;
};

// The hint says what the job does where the pop-up leaves it to the job.
void showSetting(const ExceptionsContext &context, PopupButton *popup, QLabel *hint,
                 const QString &option, std::int32_t value)
{
    const Device &device = context.device;
    const bool isOnDevice = popup->count() > 1; // more than the job's setting
    setOnDevice(device, popup, isOnDevice, hint);
    showChoice(device.bundle, popup, value, hint,
               isOnDevice ? jobSettingHint(device, context.job, option) : hint->text());
}

// From the context to the controls, but for the pages, which stay as typed.
void syncToUI(const ExceptionsContext &context)
{
    const ExceptionPage &page = context.edit.page;
    ShowStockSummary(context.device, context.stock.summary, &page.stock(), kJobContextExceptions);
    StockIconEventHandler(context.stock);
    context.window->setAccessibleDescription(
        CreateExceptionAttributesDescription(context.device, page));
    const QString tabShift = tabShiftWords(context.device, page, measurementSystem());
    context.tabShift->setText(tabShift);
    context.tabShiftButton->setAccessibleDescription(tabShift);
    setEnabledWithLabel(context.tabShiftButton, isTabStock(page.stock()));
    showSetting(context, context.sides, context.sidesHint, kExceptionSidesOption, page.plex());
    showSetting(context, context.lightness, context.lightnessHint, kExceptionLightnessOption,
                page.lightenDarken());
}

void DefaultExceptions(ExceptionsContext &context)
{
    context.edit = exceptionEdit(nullptr);
    context.pages->setText(context.edit.pages);
    syncToUI(context);
}

void setUpTabShift(ExceptionsContext &context)
{
    ExceptionPage &page = context.edit.page;
    DialogResult result = DialogResult::Cancel;
    RunModalTabStockSetupDialog(context.device, &page.stock(), page.imageShift(), &result,
                                context.window.get());
    syncToUI(context);
}

// Of the stock menu. Tab stock that is chosen there is set up at once; the shift
// that its last set-up left is shown, and Cancel keeps it.
OSStatus handleStockEvent(ExceptionsContext &context, const Event &event)
{
    ExceptionPage &page = context.edit.page;
    const bool wasTabStock = isTabStock(page.stock());
    const OSStatus status = StockMenuCommandEventHandler(event, &context.stock);
    if (status == eventNotHandledErr)
        return status;
    settleImageShift(page, wasTabStock);
    if (event.command == kCommandStockType && isTabStock(page.stock()))
        setUpTabShift(context);
    else
        syncToUI(context);
    return status;
}

void showPane(const ExceptionsContext &context)
{
    UpdateTabControl(context.tabs, static_cast<int>(context.panes.size()), context.panes.data());
}

OSStatus handleCommand(ExceptionsContext &context, const Event &event)
{
    switch (event.command) {
    case kCommandSides:
        context.edit.page.setPlex(event.reference);
        syncToUI(context);
        return noErr;
    case kCommandTabs:
        showPane(context);
        return noErr;
    case kCommandRevert:
        DefaultExceptions(context);
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

OSStatus handleEvent(ExceptionsContext &context, const Event &event)
{
    if (event.kind == EventKind::Command)
        return handleCommand(context, event);
    if (event.kind != EventKind::ControlHit)
        return eventNotHandledErr;
    if (event.control == kLightness) {
        context.edit.page.setLightenDarken(context.lightness->chosenReference());
        syncToUI(context);
    } else if (event.control == kTabShiftButton) {
        setUpTabShift(context);
    } else {
        return eventNotHandledErr;
    }
    return noErr;
}

// OK: false when the pages cannot be taken, which the user has then been told.
bool takeExceptions(ExceptionsContext &context)
{
    context.edit.pages = context.pages->text();
    std::vector<ExceptionPage> exceptions;
    OSStatus status = exceptionsFrom(context.edit, &exceptions);
    if (status == noErr)
        status = putIntoList(*context.exceptions, context.edited, exceptions);
    if (status != noErr)
        refusePages(status, context.device.bundle, context.pages);
    return status == noErr;
}

void initializePanes(const ExceptionsContext &context)
{
    for (QWidget *pane : context.panes)
        keepPlaceWhenHidden(pane);
    showPane(context);
}

void findControls(ExceptionsContext &context, NeededControls &needed)
{
    context.pages = needed.find<QLineEdit>(kPages);
    context.pagesHint = needed.find<QLabel>(kPagesHint);
    context.tabs = needed.find<TabControl>(kTabs);
    for (std::size_t i = 0; i < kPanes.size(); ++i)
        context.panes[i] = needed.find(kPanes[i]);
    context.tabShift = needed.find<QLabel>(kTabShift);
    context.tabShiftButton = needed.find<QPushButton>(kTabShiftButton);
    context.sides = needed.find<PopupButton>(kSides);
    context.sidesHint = needed.find<QLabel>(kSidesHint);
    context.lightness = needed.find<PopupButton>(kLightness);
    context.lightnessHint = needed.find<QLabel>(kLightnessHint);
    findStockControls(context.stock, needed, kStockControls);
}

OSStatus initializeExceptions(ExceptionsContext &context, const Stock *jobStock, QWidget *parent)
{
    const Device &device = context.device;
    context.window = createModalDialog(
        device.bundle, QStringLiteral("SpecialPages"), QStringLiteral("Basic Exceptions"), parent,
        [&context](NeededControls &needed) { findControls(context, needed); });
    if (!context.window)
        return kWindowNotMade;
    const QWidget *window = context.window.get();
    context.stock.device = device;
    context.stock.stock = &context.edit.page.stock();
    context.stock.jobContext = kJobContextExceptions;
    InitializeStockMenuButton(context.stock.button, &context.stock);
    // Asked before the button's own, which knows nothing of the image shift.
    context.stockHandler =
        installEventHandler(context.stock.button, [&context](const Event &event) {
            return handleStockEvent(context, event);
        });

    initializePagesField(context.pages, context.pagesHint);
    context.pages->setText(context.edit.pages);
    initializePanes(context);
    showJobPaper(device, findControl<QLabel>(window, kJobPaper), jobStock);
    context.sides->setMenu(exceptionSidesMenu(device, kCommandSides));
    context.lightness->setMenu(exceptionLightnessMenu(device));
    for (QLabel *hint : {context.sidesHint.data(), context.lightnessHint.data()})
        makeHintText(hint);
    context.handler = installEventHandler(context.window.get(), [&context](const Event &event) {
        return handleEvent(context, event);
    });
    context.window->setAcceptRule([&context] { return takeExceptions(context); });
    syncToUI(context);
    return noErr;
}

} // namespace

OSStatus RunModalExceptionsDialog(const Device &device, DialogMode mode, const Stock *jobStock,
                                  PMTicketRef ticket, ExceptionPageList *exceptions,
                                  const ExceptionPage *edited, DialogResult *outcome,
                                  QWidget *parent)
{
    const bool isEdit = mode == kDialogModeEdit;
    if (!device.bundle || !exceptions || !outcome || (isEdit && !edited))
        return paramErr;
    ExceptionsContext context;
    context.device = device;
    if (const Ticket *job = findTicket(ticket))
        context.job = *job;
    context.exceptions = exceptions;
    context.edited = isEdit ? edited : nullptr;
    context.edit = exceptionEdit(context.edited);
    const OSStatus status = initializeExceptions(context, jobStock, parent);
    if (status != noErr)
        return status;
    *outcome = context.window->runModal();
    FinalizeStockMenuButton(&context.stock);
    return noErr;
}

} // namespace kelvo
