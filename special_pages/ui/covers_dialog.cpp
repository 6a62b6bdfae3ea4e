#include "covers_dialog.h"

#include "control.h"
#include "cover_options.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "notice.h"
#include "picture_view.h"
#include "pictures.h"
#include "popups.h"
#include "setting_maps.h"
#include "special_page_dialogs.h"
#include "ticket_places.h"

#include <QGroupBox>
#include <QLabel>

namespace kelvo {

namespace {

constexpr OSType kCommandCoverOptions = fourCharCode("Copt");
constexpr OSType kCommandFrontSides = fourCharCode("Cfpo");
constexpr OSType kCommandBackSides = fourCharCode("Cbpo");

constexpr ControlID kPicture{kPanelSignature, 8600};
constexpr ControlID kOptions{kPanelSignature, 8601};
constexpr ControlID kJobPaper{kPanelSignature, 8602};

// KPDE numbers of a cover's controls, from the first one of its group.
enum CoverControl : std::int32_t {
    kGroup,
    kStock, // and the two after it
    kSource = kStock + 3,
    kSourceHint,
    kSides,
};
constexpr std::int32_t kFrontControls = 8610;
constexpr std::int32_t kBackControls = 8630;

constexpr int kHintLines = 2;

// The controls of one cover.
struct CoverSide
{
    CoverPlace place = CoverPlace::Front;
    Cover *cover = nullptr; // of the working covers
    Menu sources;           // what the device offers
    QPointer<QGroupBox> group;
    QPointer<PopupButton> source;
    QPointer<QLabel> sourceHint;
    QPointer<PopupButton> sides;
    _StockMenuCommandEventHandlerData stock;
};

struct CoversContext
{
    Device device;
    std::unique_ptr<ModalDialog> window;
    DialogResult result = DialogResult::Cancel;
    WorkingCovers covers;
    QPointer<PictureView> picture;
    QPointer<PopupButton> options;
    CoverSide front{.place = CoverPlace::Front}, back{.place = CoverPlace::Back};
    EventHandlerRef handler;
};

CoverView viewOf(const CoversContext &context, const CoverSide &side)
{
    return coverView(context.device, context.covers, side.place, side.sources);
}

QString hintOf(const CoversContext &context, const CoverView &view)
{
    return view.sourceHintKey ? context.device.text(view.sourceHintKey) : QString();
}

// From a cover to its controls. One that is not there leaves them empty.
void showCover(const CoversContext &context, CoverSide &side)
{
    const Cover &cover = *side.cover;
    const CFBundleRef bundle = context.device.bundle;
    const CoverView view = viewOf(context, side);
    side.group->setEnabled(view.isEditable);
    enableStockItems(side.stock.button->menu(), cover);
    side.stock.offersSize = offersSize(cover);

    side.source->setMenu(
        sourceMenu(side.sources, cover, context.device.text("Cover Source Not Set")));
    showChoice(bundle, side.source, view.source);
    setEnabledWithLabel(side.source, !side.sources.items.empty());
    UpdateSummaryTextView(side.stock.summary, view.paper);
    showStockIcon(bundle, side.stock.icon, view.picture, view.paper);
    const QString hint = hintOf(context, view);
    QFont font = side.group->font();
    font.setBold(view.isEditable && view.isLeftOut);
    side.sourceHint->setFont(font);
    side.sourceHint->setText(hint);
    side.source->setAccessibleDescription(hint);

    if (!view.isThere || !SetPopupButtonToTicketValue(side.sides, cover.sidesImaged()))
        side.sides->setValue(view.isThere ? 0 : 1);
}

// From the context to the controls.
void syncToUI(CoversContext &context)
{
    const std::int32_t option = context.covers.option;
    SetPopupButtonToTicketValue(context.options, option);
    const QString file =
        pictureFile(context.device.bundle->resourcesPath(), coverOptionPicture(option));
    context.picture->setPictures(file.isEmpty() ? QStringList() : QStringList{file},
                                 context.options->currentText());
    showCover(context, context.front);
    showCover(context, context.back);
}

void settle(CoversContext &context)
{
    settleCovers(context.covers);
    syncToUI(context);
}

void DefaultCovers(CoversContext &context)
{
    setCoverOption(context.covers, kNoCovers);
    syncToUI(context);
}

OSStatus handleCommand(CoversContext &context, OSType command, std::int32_t value)
{
    switch (command) {
    case kCommandCoverOptions:
        setCoverOption(context.covers, value);
        syncToUI(context);
        return noErr;
    case kCommandFrontSides:
        context.covers.front.setSidesImaged(value);
        settle(context);
        return noErr;
    case kCommandBackSides:
        context.covers.back.setSidesImaged(value);
        settle(context);
        return noErr;
    case kCommandRevert:
        DefaultCovers(context);
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

OSStatus handleEvent(CoversContext &context, const Event &event)
{
    if (event.kind == EventKind::Command)
        return handleCommand(context, event.command, event.reference);
    if (event.kind != EventKind::ControlHit)
        return eventNotHandledErr;
    for (const CoverSide *side : {&context.front, &context.back}) {
        if (event.source == side->source) {
            side->cover->stock().setSource(side->source->chosenReference());
            settle(context);
        }
    }
    return eventNotHandledErr;
}

// OK: true when no cover is left out, or the user wants it so.
bool mayClose(const CoversContext &context)
{
    const CoverView front = viewOf(context, context.front), back = viewOf(context, context.back);
    const char *header = leftOutHeaderKey(front.isLeftOut, back.isLeftOut);
    if (!header)
        return true;
    const Device &device = context.device;
    constexpr int goBack = 1, leaveOut = 2;
    const int answer = CFUserNotificationDisplayAlert(
        NoticeLevel::Caution, device.text(header), hintOf(context, front.isLeftOut ? front : back),
        {device.text("Cover Go Back"), device.text("Cover Leave Out")}, context.window.get(),
        goBack);
    if (answer == leaveOut)
        return true;
    const CoverSide &side = front.isLeftOut ? context.front : context.back;
    if (side.source->isEnabled())
        side.source->setFocus();
    return false;
}

void findSide(CoverSide &side, NeededControls &needed, std::int32_t controls)
{
    const auto idOf = [controls](CoverControl control) {
        return ControlID{kPanelSignature, controls + control};
    };
    side.group = needed.find<QGroupBox>(idOf(kGroup));
    side.source = needed.find<PopupButton>(idOf(kSource));
    side.sourceHint = needed.find<QLabel>(idOf(kSourceHint));
    side.sides = needed.find<PopupButton>(idOf(kSides));
    findStockControls(side.stock, needed, controls + kStock);
}

void findControls(CoversContext &context, NeededControls &needed)
{
    context.picture = needed.find<PictureView>(kPicture);
    context.options = needed.find<PopupButton>(kOptions);
    findSide(context.front, needed, kFrontControls);
    findSide(context.back, needed, kBackControls);
}

void initializeSide(CoversContext &context, CoverSide &side, Cover &cover, const char *sourceOption,
                    OSType sidesCommand)
{
    side.cover = &cover;
    side.stock.device = context.device;
    side.stock.stock = &cover.stock();
    side.stock.jobContext = kJobContextCovers;
    side.stock.changed = [&context] { settle(context); };
    InitializeStockMenuButton(side.stock.button, &side.stock);

    // "None" is no source, but no cover.
    fillFromPpd(side.source, context.device, QString::fromLatin1(sourceOption),
                {.readByName = {QStringLiteral("None")}, .isExpected = true});
    side.sources = side.source->menu();
    makeHintText(side.sourceHint);
    // The window keeps its size while the hints change.
    side.sourceHint->setMinimumHeight(kHintLines * side.sourceHint->fontMetrics().lineSpacing());
    PopulatePopupButtonFromMap(context.device, side.sides, CoverSidesImagedMap, kJobContextCovers,
                               sidesCommand);
}

OSStatus initializeCovers(CoversContext &context, const Stock *jobStock, QWidget *parent)
{
    context.window = createModalDialog(
        context.device.bundle, QStringLiteral("SpecialPages"), QStringLiteral("Basic Covers"),
        parent, [&context](NeededControls &needed) { findControls(context, needed); });
    if (!context.window)
        return kWindowNotMade;
    const QWidget *window = context.window.get();
    initializeSide(context, context.front, context.covers.front, "KVFrontCoverSheet",
                   kCommandFrontSides);
    initializeSide(context, context.back, context.covers.back, "KVBackCoverSheet",
                   kCommandBackSides);
    context.options->setMenu(coverOptionsMenu(context.device, kCommandCoverOptions));
    setTicketPlaces(context.options,
                    {{kPPDChoices, QStringLiteral("KVFrontCoverSheet")},
                     {kPPDChoices, QStringLiteral("KVBackCoverSheet")}});
    showJobPaper(context.device, findControl<QLabel>(window, kJobPaper), jobStock);
    context.handler = installEventHandler(context.window.get(), [&context](const Event &event) {
        return handleEvent(context, event);
    });
    context.window->setAcceptRule([&context] { return mayClose(context); });
    syncToUI(context);
    return noErr;
}

void finalizeCovers(CoversContext &context)
{
    FinalizeStockMenuButton(&context.front.stock);
    FinalizeStockMenuButton(&context.back.stock);
}

} // namespace

OSStatus RunModalCoversDialog(const Device &device, DialogMode mode, Stock *jobStock,
                              std::optional<Cover> *front, std::optional<Cover> *back,
                              DialogResult *outcome, QWidget *parent)
{
    if (!device.bundle || !front || !back || !outcome
        || (mode == kDialogModeEdit && !*front && !*back))
        return paramErr;
    CoversContext context;
    context.device = device;
    context.covers = workingCovers(*front, *back);
    const OSStatus status = initializeCovers(context, jobStock, parent);
    if (status != noErr)
        return status;
    context.result = context.window->runModal();
    finalizeCovers(context);
    if (context.result == DialogResult::OK)
        handOver(context.covers, *front, *back);
    *outcome = context.result;
    return noErr;
}

} // namespace kelvo
