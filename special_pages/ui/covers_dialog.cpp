#include "covers_dialog.h"

#include "control.h"
#include "cover_options.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "notice.h"
#include "picture_view.h"
#include "popups.h"
#include "setting_maps.h"
#include "special_page_dialogs.h"
#include "stock_summary.h"
#include "ticket_places.h"
#include "ticket_values.h"

#include <QGroupBox>
#include <QLabel>

#include <algorithm>
#include <array>

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
    CFBundleRef bundle = nullptr;
    std::unique_ptr<ModalDialog> window;
    DialogResult result = DialogResult::Cancel;
    WorkingCovers covers;
    QPointer<PictureView> picture;
    QPointer<PopupButton> options;
    CoverSide front, back;
    EventHandlerRef handler;
};

QString sourceHintKey(const CoverSide &side)
{
    if (side.sources.items.empty())
        return QStringLiteral("Not on This Device");
    const std::int32_t source = side.cover->stock().source();
    if (!hasSource(side.sources, *side.cover))
        return source == kStockSourceInserter ? QStringLiteral("Cover Source Inserter")
                                              : QStringLiteral("Cover Source Missing");
    return source == kCoverSourceAutomatic ? QStringLiteral("Cover Source Automatic")
                                           : QStringLiteral("Cover Source Chosen");
}

// The paper of a tray is what lies in it: whatever was chosen before is not shown as if
// it came from there.
void showStock(CFBundleRef bundle, const CoverSide &side, bool isThere)
{
    const Stock &stock = side.cover->stock();
    QString text =
        stockSummaryText(currentDevice(bundle), kJobContextCovers, isThere ? &stock : nullptr);
    const bool isFromSource = isThere && hasSource(side.sources, *side.cover);
    if (isFromSource && stock.source() != kCoverSourceAutomatic)
        text = QStringLiteral("- ") + side.source->currentText();
    UpdateSummaryTextView(side.stock.summary, text);
    showStockIcon(bundle, side.stock.icon, isFromSource ? newCover().stock() : stock, text);
}

// From a cover to its controls. One that is not there leaves them empty.
void showCover(CFBundleRef bundle, CoverSide &side, bool isThere, bool isEnabled)
{
    const Cover &cover = *side.cover;
    side.group->setEnabled(isEnabled);
    enableStockItems(side.stock.button->menu(), cover);
    side.stock.offersSize = offersSize(cover);

    side.source->setMenu(sourceMenu(side.sources, cover,
                                    localizedText(bundle, QStringLiteral("Cover Source Not Set"))));
    const std::int32_t source = cover.stock().source();
    const bool hasNone = side.sources.items.empty() || source == kStockSourceInserter;
    showChoice(bundle, side.source, hasNone ? kUnset : source);
    setEnabledWithLabel(side.source, !side.sources.items.empty());
    showStock(bundle, side, isThere);
    const QString hint = isThere ? localizedText(bundle, sourceHintKey(side)) : QString();
    QFont font = side.group->font();
    font.setBold(isEnabled && !hasSource(side.sources, cover)); // the cover is not printed
    side.sourceHint->setFont(font);
    side.sourceHint->setText(hint);
    side.source->setAccessibleDescription(hint);

    if (!isThere || !SetPopupButtonToTicketValue(side.sides, cover.sidesImaged()))
        side.sides->setValue(isThere ? 0 : 1);
}

// From the context to the controls.
void syncToUI(CoversContext &context)
{
    const std::int32_t option = context.covers.option;
    SetPopupButtonToTicketValue(context.options, option);
    const QString file = pictureFile(context.bundle->resourcesPath(), coverOptionPicture(option));
    context.picture->setPictures(file.isEmpty() ? QStringList() : QStringList{file},
                                 context.options->currentText());
    showCover(context.bundle, context.front, hasFrontCover(option), hasFrontCover(option));
    showCover(context.bundle, context.back, hasBackCover(option),
              hasBackCover(option) && option != kSameCovers);
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

// OK: a cover that the printer leaves out is nothing that anybody chose. True when there
// is none, or the user wants it so.
bool mayClose(const CoversContext &context)
{
    const std::int32_t option = context.covers.option;
    const auto isLeftOut = [](const CoverSide &side, bool isThere) {
        return isThere && !hasSource(side.sources, *side.cover);
    };
    const bool noFront = isLeftOut(context.front, hasFrontCover(option));
    const bool noBack = isLeftOut(context.back, hasBackCover(option));
    if (!noFront && !noBack)
        return true;
    const CoverSide &side = noFront ? context.front : context.back;
    const char *header = noFront && noBack ? "Covers Left Out Header"
        : noFront                          ? "Front Cover Left Out Header"
                                           : "Back Cover Left Out Header";
    const auto text = [&context](const QString &key) { return localizedText(context.bundle, key); };
    constexpr int goBack = 1, leaveOut = 2;
    const int answer = CFUserNotificationDisplayAlert(
        NoticeLevel::Caution, text(QString::fromLatin1(header)), text(sourceHintKey(side)),
        {text(QStringLiteral("Cover Go Back")), text(QStringLiteral("Cover Leave Out"))},
        context.window.get(), goBack);
    if (answer == leaveOut)
        return true;
    if (side.source->isEnabled())
        side.source->setFocus();
    return false;
}

// CoverOptionMap's items, and the covers that are the same before those that differ.
void fillOptions(CFBundleRef bundle, PopupButton *options)
{
    PopulatePopupButtonFromMap(bundle, options, CoverOptionMap, kJobContextCovers,
                               kCommandCoverOptions);
    Menu menu = options->menu();
    MenuItem same;
    same.key = QStringLiteral("Front and Back the Same");
    same.text = localizedText(bundle, same.key);
    same.command = kCommandCoverOptions;
    same.reference = kSameCovers;
    menu.items.insert(std::ranges::find(menu.items, kFrontAndBackCovers, &MenuItem::reference),
                      same);
    options->setMenu(std::move(menu));
    setTicketPlaces(options,
                    {{kPPDChoices, QStringLiteral("KVFrontCoverSheet")},
                     {kPPDChoices, QStringLiteral("KVBackCoverSheet")}});
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
    side.stock.bundle = context.bundle;
    side.stock.stock = &cover.stock();
    side.stock.jobContext = kJobContextCovers;
    side.stock.changed = [&context] { settle(context); };
    InitializeStockMenuButton(side.stock.button, &side.stock);

    // "None" is no source, but no cover.
    fillFromPpd(side.source, currentDevice(context.bundle), QString::fromLatin1(sourceOption),
                {.readByName = {QStringLiteral("None")}, .isExpected = true});
    side.sources = side.source->menu();
    makeHintText(side.sourceHint);
    // The window keeps its size while the hints change.
    side.sourceHint->setMinimumHeight(kHintLines * side.sourceHint->fontMetrics().lineSpacing());
    PopulatePopupButtonFromMap(context.bundle, side.sides, CoverSidesImagedMap, kJobContextCovers,
                               sidesCommand);
}

OSStatus initializeCovers(CoversContext &context, const Stock *jobStock, QWidget *parent)
{
    context.window = createModalDialog(
        context.bundle, QStringLiteral("SpecialPages"), QStringLiteral("Basic Covers"), parent,
        [&context](NeededControls &needed) { findControls(context, needed); });
    if (!context.window)
        return kWindowNotMade;
    const QWidget *window = context.window.get();
    initializeSide(context, context.front, context.covers.front, "KVFrontCoverSheet",
                   kCommandFrontSides);
    initializeSide(context, context.back, context.covers.back, "KVBackCoverSheet",
                   kCommandBackSides);
    fillOptions(context.bundle, context.options);
    showJobPaper(context.bundle, findControl<QLabel>(window, kJobPaper), jobStock);
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

OSStatus RunModalCoversDialog(CFBundleRef bundle, DialogMode mode, Stock *jobStock,
                              std::optional<Cover> *front, std::optional<Cover> *back,
                              DialogResult *outcome, QWidget *parent)
{
    if (!bundle || !front || !back || !outcome || (mode == kDialogModeEdit && !*front && !*back))
        return paramErr;
    CoversContext context;
    context.bundle = bundle;
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
