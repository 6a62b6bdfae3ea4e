#include "exceptions_dialog.h"

#include "control.h"
#include "dialog_window.h"
#include "embed_control.h"
#include "hint_text.h"
#include "lighten_darken.h"
#include "offered_choices.h"
#include "popups.h"
#include "ppd_choices.h"
#include "setting_maps.h"
#include "special_page_dialogs.h"
#include "special_page_edits.h"
#include "special_pages_summary.h"
#include "stock_menus.h"
#include "string_table.h"
#include "system_information.h"
#include "tab_control.h"
#include "tab_shift.h"
#include "tab_stock_dialogs.h"
#include "ticket_values.h"

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

const QString sidesOption = QStringLiteral("Duplex");
const QString lightnessOption = QStringLiteral("KVImageQuality");

struct ExceptionsContext
{
    CFBundleRef bundle = nullptr;
    std::unique_ptr<ModalDialog> window;
    PMTicketRef ticket = 0;                  // the job's
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

// "12.7 mm (A4 template)", "0.4 in": as the tab stock set-up shows it.
QString tabShiftWords(CFBundleRef bundle, const ExceptionPage &page)
{
    const TabShift shift = tabShiftOf(*page.imageShift(), measurementSystem(), kTabUnitMillimetres);
    if (shift.choice == kTabShiftNone && !isTabStock(page.stock()))
        return localizedText(bundle, QStringLiteral("Tab Shift Not Needed"));
    if (shift.choice != kTabShiftCustom)
        return localizedText(
            bundle, QString::fromUtf8(LocalizedKeyForTicketValue(TabStockSetupMap, shift.choice)));
    return formatted(localizedText(bundle,
                                   shift.unit == kTabUnitInches
                                       ? QStringLiteral("Tab Shift Words Inches")
                                       : QStringLiteral("Tab Shift Words Millimeters")),
                     {CreateLocalizedCFStringFromNumberWithDecimals(shift.value, shift.decimals)
                          .value_or(QString())});
}

// What the job has of a setting, in the device's words; empty where that is unknown.
QString jobChoiceText(const Device &device, PMTicketRef ticket, const QString &option)
{
    const std::optional<QString> choice = PPDCopyChoiceOrDefault(device.ppd, ticket, option);
    return choice ? PPDCopyChoiceText(device.ppd, option, *choice).value_or(QString()) : QString();
}

// The hint says what the job does where the pop-up leaves it to the job.
void showSetting(const ExceptionsContext &context, PopupButton *popup, QLabel *hint,
                 const QString &option, std::int32_t value)
{
    const Device device = currentDevice(context.bundle);
    const bool isOnDevice = popup->count() > 1; // more than the job's setting
    setOnDevice(device, popup, isOnDevice, hint);
    const QString job = jobChoiceText(device, context.ticket, option);
    showChoice(context.bundle, popup, value, hint,
               !isOnDevice         ? hint->text()
                   : job.isEmpty() ? QString()
                                   : formatted(device.text("Job Setting Hint"), {job}));
}

// From the context to the controls, but for the pages, which stay as typed.
void syncToUI(const ExceptionsContext &context)
{
    const ExceptionPage &page = context.edit.page;
    ShowStockSummary(context.bundle, context.stock.summary, &page.stock(), kJobContextExceptions);
    StockIconEventHandler(context.stock);
    context.window->setAccessibleDescription(
        CreateExceptionAttributesDescription(context.bundle, page));
    const QString tabShift = tabShiftWords(context.bundle, page);
    context.tabShift->setText(tabShift);
    context.tabShiftButton->setAccessibleDescription(tabShift);
    setEnabledWithLabel(context.tabShiftButton, isTabStock(page.stock()));
    showSetting(context, context.sides, context.sidesHint, sidesOption, page.plex());
    showSetting(context, context.lightness, context.lightnessHint, lightnessOption,
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
    RunModalTabStockSetupDialog(context.bundle, &page.stock(), page.imageShift(), &result,
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
        refusePages(status, context.bundle, context.pages);
    return status == noErr;
}

// What the device offers of `menu`, and before it what leaves the setting to the job.
void fillSetting(CFBundleRef bundle, PopupButton *popup, Menu menu, const QString &option,
                 OSType command)
{
    removeWhatIsNotOffered(menu, currentDevice(bundle).ppd, option);
    MenuItem job;
    job.key = QStringLiteral("UseJobSetting");
    job.text = localizedText(bundle, job.key);
    job.command = command;
    job.reference = kUnset;
    menu.items.insert(menu.items.begin(), std::move(job));
    popup->setMenu(std::move(menu));
}

Menu lightnessMenu(CFBundleRef bundle)
{
    Menu menu;
    for (const LightenDarkenStep *step = LightenDarkenMap; step->localizedKey; ++step) {
        MenuItem item;
        item.key = QString::fromLatin1(step->localizedKey);
        item.text = localizedText(bundle, item.key);
        item.reference = step->value;
        menu.items.push_back(std::move(item));
    }
    return menu;
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
    const CFBundleRef bundle = context.bundle;
    context.window = createModalDialog(
        bundle, QStringLiteral("SpecialPages"), QStringLiteral("Basic Exceptions"), parent,
        [&context](NeededControls &needed) { findControls(context, needed); });
    if (!context.window)
        return kWindowNotMade;
    const QWidget *window = context.window.get();
    context.stock.bundle = bundle;
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
    showJobPaper(bundle, findControl<QLabel>(window, kJobPaper), jobStock);
    Menu sides;
    PopulateMenuFromMap(bundle, sides, PlexMap, kJobContextExceptions, kCommandSides);
    fillSetting(bundle, context.sides, std::move(sides), sidesOption, kCommandSides);
    fillSetting(bundle, context.lightness, lightnessMenu(bundle), lightnessOption, kNoCommand);
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

OSStatus RunModalExceptionsDialog(CFBundleRef bundle, DialogMode mode, const Stock *jobStock,
                                  PMTicketRef ticket, ExceptionPageList *exceptions,
                                  const ExceptionPage *edited, DialogResult *outcome,
                                  QWidget *parent)
{
    const bool isEdit = mode == kDialogModeEdit;
    if (!bundle || !exceptions || !outcome || (isEdit && !edited))
        return paramErr;
    ExceptionsContext context;
    context.bundle = bundle;
    context.ticket = ticket;
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
