#include "inserts_dialog.h"

#include "control.h"
#include "dialog_window.h"
#include "popups.h"
#include "setting_maps.h"
#include "special_page_dialogs.h"
#include "special_page_edits.h"
#include "special_pages_summary.h"
#include "spin_field.h"

#include <QLabel>
#include <QLineEdit>

namespace kelvo {

namespace {

constexpr OSType kCommandInsertOption = fourCharCode("Iopt");

constexpr ControlID kPosition{kPanelSignature, 8700};
constexpr ControlID kPages{kPanelSignature, 8701};
constexpr ControlID kPagesHint{kPanelSignature, 8702};
constexpr ControlID kQuantity{kPanelSignature, 8703};
constexpr std::int32_t kStockControls = 8710;
constexpr ControlID kJobPaper{kPanelSignature, 8713};

struct InsertsContext
{
    Device device;
    std::unique_ptr<ModalDialog> window;
    InsertList *inserts = nullptr;  // the caller's
    const Insert *edited = nullptr; // of the list; null to add
    InsertEdit edit;
    QPointer<PopupButton> position;
    QPointer<QLineEdit> pages;
    QPointer<QLabel> pagesHint;
    QPointer<SpinField> quantity;
    _StockMenuCommandEventHandlerData stock;
    EventHandlerRef handler;
};

// From the context to the controls.
void syncToUI(const InsertsContext &context)
{
    const InsertEdit &edit = context.edit;
    const bool isAfterPages = edit.position == kInsertAfterPages;
    SetPopupButtonToTicketValue(context.position, edit.position);
    context.pages->setText(isAfterPages ? edit.pages : QString());
    setEnabledWithLabel(context.pages, isAfterPages);
    context.pagesHint->setEnabled(isAfterPages);
    context.quantity->setValue(edit.page.quantity());
    ShowStockSummary(context.device, context.stock.summary, &edit.page.stock(), kJobContextInserts);
    context.window->setAccessibleDescription(
        CreateInsertAttributesDescription(context.device, edit.page));
    StockIconEventHandler(context.stock);
}

// From the controls to the context: what has been typed.
void syncFromUI(InsertsContext &context)
{
    context.quantity->takeTypedText();
    context.edit.page.setQuantity(context.quantity->value());
    if (context.edit.position == kInsertAfterPages)
        context.edit.pages = context.pages->text();
}

void DefaultInserts(InsertsContext &context)
{
    context.edit = insertEdit(nullptr);
    syncToUI(context);
}

OSStatus handleEvent(InsertsContext &context, const Event &event)
{
    if (event.kind != EventKind::Command)
        return eventNotHandledErr;
    switch (event.command) {
    case kCommandInsertOption:
        syncFromUI(context);
        context.edit.position = event.reference;
        syncToUI(context);
        return noErr;
    case kCommandRevert:
        DefaultInserts(context);
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

// OK: false when the pages cannot be taken, which the user has then been told.
bool takeInserts(InsertsContext &context)
{
    syncFromUI(context);
    std::vector<Insert> inserts;
    const std::int32_t others = context.inserts->count() - (context.edited ? 1 : 0);
    OSStatus status = insertsFrom(context.edit, others, &inserts);
    if (status == noErr)
        status = putIntoList(*context.inserts, context.edited, inserts);
    if (status != noErr)
        refusePages(status, context.device.bundle, context.pages);
    return status == noErr;
}

void findControls(InsertsContext &context, NeededControls &needed)
{
    context.position = needed.find<PopupButton>(kPosition);
    context.pages = needed.find<QLineEdit>(kPages);
    context.pagesHint = needed.find<QLabel>(kPagesHint);
    context.quantity = needed.find<SpinField>(kQuantity);
    findStockControls(context.stock, needed, kStockControls);
}

OSStatus initializeInserts(InsertsContext &context, const Stock *jobStock, QWidget *parent)
{
    context.window = createModalDialog(
        context.device.bundle, QStringLiteral("SpecialPages"), QStringLiteral("Basic Inserts"),
        parent, [&context](NeededControls &needed) { findControls(context, needed); });
    if (!context.window)
        return kWindowNotMade;
    const QWidget *window = context.window.get();
    context.stock.device = context.device;
    context.stock.stock = &context.edit.page.stock();
    context.stock.jobContext = kJobContextInserts;
    InitializeStockMenuButton(context.stock.button, &context.stock);

    PopulatePopupButtonFromMap(context.device, context.position, InsertOptionMap,
                               kJobContextInserts, kCommandInsertOption);
    initializePagesField(context.pages, context.pagesHint);
    const SheetLimits limits = sheetLimits(context.edit.page);
    context.quantity->setMinimum(limits.least);
    context.quantity->setMaximum(limits.most);
    showJobPaper(context.device, findControl<QLabel>(window, kJobPaper), jobStock);
    context.handler = installEventHandler(context.window.get(), [&context](const Event &event) {
        return handleEvent(context, event);
    });
    context.window->setAcceptRule([&context] { return takeInserts(context); });
    syncToUI(context);
    return noErr;
}

} // namespace

OSStatus RunModalInsertsDialog(const Device &device, DialogMode mode, const Stock *jobStock,
                               InsertList *inserts, const Insert *edited, DialogResult *outcome,
                               QWidget *parent)
{
    const bool isEdit = mode == kDialogModeEdit;
    if (!device.bundle || !inserts || !outcome || (isEdit && !edited))
        return paramErr;
    InsertsContext context;
    context.device = device;
    context.inserts = inserts;
    context.edited = isEdit ? edited : nullptr;
    context.edit = insertEdit(context.edited);
    const OSStatus status = initializeInserts(context, jobStock, parent);
    if (status != noErr)
        return status;
    *outcome = context.window->runModal();
    FinalizeStockMenuButton(&context.stock);
    return noErr;
}

} // namespace kelvo
