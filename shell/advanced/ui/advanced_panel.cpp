#include "advanced_panel.h"

#include "about_dialog.h"
#include "hint_text.h"
#include "popups.h"
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
    std::int32_t hintNumber; // KPDE, the text below the pop-up
    const char *hintKey;
};

const std::array kPpdRows = {
    PpdRow{kBannerChoice, &AdvancedControls::banner, 6141, "Banner Sheet Hint"},
    PpdRow{kOffsetChoice, &AdvancedControls::offset, 6161, "Request Offset Hint"},
    PpdRow{kFeedEdgeChoice, &AdvancedControls::feedEdge, 7021, "Bypass Feed Edge Hint"},
};

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
        if (event.control.number != row.choice.control)
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
        controls.*row.popup = needed.find<PopupButton>({kPanelSignature, row.choice.control});
    for (const int hint : kHints)
        needed.find<QLabel>({kPanelSignature, hint});
    needed.find(kAboutButton);
    return controls;
}

void fillPopups(const AdvancedContext &advanced)
{
    PopulatePopupButtonFromMap(advanced.device, advanced.controls.bookletOrder,
                               BookletLayoutOrderMap, kJobContextJob, kNoCommand);
    setTicketPlaces(advanced.controls.bookletOrder, bookletOrderPlaces());
    for (const PpdRow &row : kPpdRows)
        fillFromPpd(advanced.controls.*row.popup, advanced.device,
                    QString::fromLatin1(row.choice.option), {.isExpected = true});
}

} // namespace

OSStatus AdvancedContext::read(Ticket &printSettings, const Ticket &)
{
    readAdvanced(settings, printSettings, device);
    showSettings(*this);
    return noErr;
}

OSStatus AdvancedContext::write(Ticket &printSettings, const Ticket &)
{
    writeAdvanced(settings, printSettings);
    return noErr;
}

OSStatus AdvancedContext::build()
{
    const OSStatus status = buildContent(
        "AdvancedPanel", "Advanced",
        [this](NeededControls &needed) { controls = findControls(needed); },
        [this] {
            fillPopups(*this);
            arrangeRows(controls, content);
        },
        [this](const Event &event) { return advancedEventHandler(*this, event); });
    if (status == noErr)
        showSettings(*this);
    return status;
}

OSStatus GetAdvancedPanelInterface(PanelInterface **interface)
{
    return givePanel<AdvancedContext>(interface);
}

} // namespace kelvo
