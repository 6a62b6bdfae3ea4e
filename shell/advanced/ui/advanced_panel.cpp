#include "advanced_panel.h"

#include "about_dialog.h"
#include "control.h"
#include "embed_control.h"
#include "hint_text.h"
#include "panel_content.h"
#include "panel_interface.h"
#include "panel_prologue.h"
#include "pde_session.h"
#include "popups.h"
#include "print_session.h"
#include "setting_maps.h"
#include "ticket_places.h"
#include "ticket_values.h"

#include <QLabel>

#include <algorithm>
#include <array>

namespace kelvo {

namespace {

constexpr ControlID kBookletOrderPopup{kPanelSignature, 602};
constexpr ControlID kAboutButton{kPanelSignature, 670};
constexpr std::array kHints = {6021, 6141, 6161, 7021}; // KPDE

// A pop-up that shows a PPD option's choices.
struct PpdRow
{
    AdvancedChoice choice;
    QPointer<PopupButton> AdvancedControls::*popup;
    std::int32_t popupNumber; // KPDE
    std::int32_t hintNumber;  // KPDE, the text below the pop-up
    const char *hintKey;
};

const std::array kPpdRows = {
    PpdRow{kBannerChoice, &AdvancedControls::banner, 614, 6141, "Banner Sheet Hint"},
    PpdRow{kOffsetChoice, &AdvancedControls::offset, 616, 6161, "Request Offset Hint"},
    PpdRow{kFeedEdgeChoice, &AdvancedControls::feedEdge, 702, 7021, "Bypass Feed Edge Hint"},
};

AdvancedContext *advancedOf(PMPDEContext context)
{
    return reinterpret_cast<AdvancedContext *>(context);
}

// The orders of the map have one value: which of them was chosen cannot be read from
// the ticket, and is still shown while the ticket has that value.
void showBookletOrder(PopupButton *popup, std::int32_t order)
{
    if (!popup || popup->chosenReference() == order || SetPopupButtonToTicketValue(popup, order))
        return;
    popup->setValue(1); // as where nothing was ever chosen
}

void showRow(const AdvancedContext &advanced, const PpdRow &row)
{
    showChoice(advanced.bundle, advanced.controls.*row.popup, advanced.settings.*row.choice.value,
               findControl<QLabel>(advanced.content, {kPanelSignature, row.hintNumber}),
               localizedText(advanced.bundle, QString::fromLatin1(row.hintKey)));
}

// From the context to the controls.
void showSettings(const AdvancedContext &advanced)
{
    showBookletOrder(advanced.controls.bookletOrder, advanced.settings.bookletOrder);
    for (const PpdRow &row : kPpdRows)
        showRow(advanced, row);
}

OSStatus advancedEventHandler(AdvancedContext &advanced, const Event &event)
{
    if (event.kind != EventKind::ControlHit || event.control.signature != kPanelSignature)
        return eventNotHandledErr;
    if (event.control == kAboutButton)
        RunModalAboutDialog(advanced.bundle, advanced.device.ppd, advanced.parentUserPane);
    else if (event.control == kBookletOrderPopup)
        advanced.settings.bookletOrder = GetPopupButtonTicketValue(advanced.controls.bookletOrder);
    for (const PpdRow &row : kPpdRows) {
        if (event.control.number != row.popupNumber)
            continue;
        advanced.settings.*row.choice.value =
            GetPopupButtonTicketValue(advanced.controls.*row.popup);
        showRow(advanced, row);
    }
    return eventNotHandledErr;
}

// The rows are views of their own: their labels share one width.
void arrangeRows(const AdvancedControls &controls, const QWidget *content)
{
    const std::array labels = {labelOf(controls.bookletOrder), labelOf(controls.banner),
                               labelOf(controls.offset), labelOf(controls.feedEdge)};
    int width = 0;
    for (const QLabel *label : labels)
        width = std::max(width, label ? label->sizeHint().width() : 0);
    for (QLabel *label : labels) {
        if (label)
            label->setMinimumWidth(width);
    }
    for (const int hint : kHints)
        makeHintText(findControl<QLabel>(content, {kPanelSignature, hint}));
}

AdvancedControls findControls(NeededControls &needed)
{
    AdvancedControls controls;
    controls.bookletOrder = needed.find<PopupButton>(kBookletOrderPopup);
    for (const PpdRow &row : kPpdRows)
        controls.*row.popup = needed.find<PopupButton>({kPanelSignature, row.popupNumber});
    for (const int hint : kHints)
        needed.find<QLabel>({kPanelSignature, hint});
    needed.find(kAboutButton);
    return controls;
}

void fillPopups(const AdvancedContext &advanced)
{
    PopulatePopupButtonFromMap(advanced.bundle, advanced.controls.bookletOrder,
                               BookletLayoutOrderMap, kJobContextJob, kNoCommand);
    setTicketPlaces(advanced.controls.bookletOrder, bookletOrderPlaces());
    for (const PpdRow &row : kPpdRows)
        fillWithOfferedChoices(advanced.controls.*row.popup, advanced.device.ppd,
                               QString::fromLatin1(row.choice.option));
}

void buildContent(AdvancedContext &advanced)
{
    QWidget *content = createPanelContent(
        advanced.bundle, QStringLiteral("AdvancedPanel"), QStringLiteral("Advanced"),
        advanced.parentUserPane,
        [&advanced](NeededControls &needed) { advanced.controls = findControls(needed); });
    if (!content)
        return;
    advanced.content = content;
    fillPopups(advanced);
    arrangeRows(advanced.controls, content);
    EmbedAndShowControl(content, advanced.parentUserPane);
    advanced.handler = installEventHandler(
        content, [&advanced](const Event &event) { return advancedEventHandler(advanced, event); });
    showSettings(advanced);
}

OSStatus Prologue(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                  CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV)
{
    return announcePanel<AdvancedContext>(QStringLiteral("Advanced"), kPanelSignature, context,
                                          creator, userOptionKind, title, maxH, maxV);
}

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    AdvancedContext *advanced = advancedOf(context);
    if (!advanced || !session)
        return kPMInvalidParameter;
    PMTicketRef ticket = 0;
    const OSStatus found = GetTicketFromSession(session, kPMPrintSettingsTicket, &ticket);
    if (found != noErr)
        return found;
    Ticket *printSettings = findTicket(ticket);
    if (!printSettings)
        return kPMInvalidTicket;
    if (direction == kSyncWrite) {
        writeAdvanced(advanced->settings, *printSettings);
    } else {
        readAdvanced(advanced->settings, *printSettings, advanced->device);
        showSettings(*advanced);
    }
    return noErr;
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane parentUserPane,
                    PMPrintSession session)
{
    AdvancedContext *advanced = advancedOf(context);
    if (!advanced || !session)
        return kPMInvalidPDEContext;
    advanced->parentUserPane = parentUserPane;
    advanced->device = currentDevice();
    return Sync(context, session, kSyncRead);
}

OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    if (!context || !titles || !texts)
        return kPMInvalidPDEContext;
    titles->reset();
    texts->reset();
    return noErr;
}

OSStatus Open(PMPDEContext context)
{
    AdvancedContext *advanced = advancedOf(context);
    if (!advanced || !advanced->parentUserPane)
        return kPMInvalidPDEContext;
    if (!advanced->lateContent)
        advanced->lateContent =
            buildBeforeSeen(advanced->parentUserPane, [advanced] { buildContent(*advanced); });
    return noErr;
}

OSStatus Close(PMPDEContext context)
{
    return context ? noErr : kPMInvalidPDEContext;
}

OSStatus Terminate(PMPDEContext context, OSStatus)
{
    if (!context)
        return kPMInvalidPDEContext;
    delete advancedOf(context);
    return noErr;
}

} // namespace

OSStatus GetAdvancedPanelInterface(PanelInterface **interface)
{
    return givePanelInterface({.Prologue = Prologue,
                               .Initialize = Initialize,
                               .Sync = Sync,
                               .GetSummaryText = GetSummaryText,
                               .Open = Open,
                               .Close = Close,
                               .Terminate = Terminate},
                              interface);
}

} // namespace kelvo
