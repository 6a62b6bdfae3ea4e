#include "advanced_panel.h"

#include "about_dialog.h"
#include "advanced_pictures.h"
#include "bundle_picture.h"
#include "embed_control.h"
#include "hint_text.h"
#include "picture_view.h"
#include "popups.h"
#include "setting_maps.h"
#include "ticket_places.h"
#include "ticket_values.h"

#include <QLabel>

#include <array>

namespace kelvo {

namespace {

constexpr ControlID kBookletOrderPopup{kPanelSignature, 602};
constexpr ControlID kAboutButton{kPanelSignature, 670};
constexpr std::array kHints = {603, 6021, 6141, 6161, 7021}; // KPDE
constexpr std::int32_t kBookletOrderPicture = 6022;          // KPDE

// A pop-up that shows a PPD option's choices, the text below it and the picture beside it.
struct PpdRow
{
    AdvancedChoice choice;
    QPointer<PopupButton> AdvancedControls::*popup;
    std::int32_t hintNumber; // KPDE
    const char *hintKey;
    std::int32_t pictureNumber; // KPDE
};

const std::array kPpdRows = {
    PpdRow{kBannerChoice, &AdvancedControls::banner, 6141, "Banner Sheet Hint", 6142},
    PpdRow{kOffsetChoice, &AdvancedControls::offset, 6161, "Request Offset Hint", 6162},
    PpdRow{kFeedEdgeChoice, &AdvancedControls::feedEdge, 7021, "Bypass Feed Edge Hint", 7022},
};

// The orders of the map have one value: which of them was chosen cannot be read from
// the ticket, and is still shown while the ticket has that value.
void showBookletOrder(PopupButton *popup, std::int32_t order)
{
    if (!popup || popup->chosenReference() == order || SetPopupButtonToTicketValue(popup, order))
        return;
    popup->setValue(1); // as where nothing was ever chosen
}

// Of what the pop-up shows, which is nothing where the job has what is not offered.
void showPicture(const AdvancedContext &advanced, std::int32_t number, const PopupButton *popup,
                 const QString &setting)
{
    auto *view = findControl<PictureView>(advanced.content, {kPanelSignature, number});
    const MenuItem *item = popup ? popup->chosenItem() : nullptr;
    showBundlePicture(view, advanced.bundle, item ? advancedPicture(setting, item->key) : QString(),
                      item ? item->text : QString());
}

void showOrderPicture(const AdvancedContext &advanced)
{
    showPicture(advanced, kBookletOrderPicture, advanced.controls.bookletOrder,
                kBookletOrderSetting);
}

void showRow(const AdvancedContext &advanced, const PpdRow &row)
{
    showChoice(advanced.bundle, advanced.controls.*row.popup, advanced.settings.*row.choice.value,
               findControl<QLabel>(advanced.content, {kPanelSignature, row.hintNumber}),
               localizedText(advanced.bundle, QString::fromLatin1(row.hintKey)));
    showPicture(advanced, row.pictureNumber, advanced.controls.*row.popup,
                QString::fromLatin1(row.choice.option));
}

// From the context to the controls.
void showSettings(const AdvancedContext &advanced)
{
    showBookletOrder(advanced.controls.bookletOrder, advanced.settings.bookletOrder);
    showOrderPicture(advanced);
    for (const PpdRow &row : kPpdRows)
        showRow(advanced, row);
}

OSStatus advancedEventHandler(AdvancedContext &advanced, const Event &event)
{
    if (event.kind != EventKind::ControlHit || event.control.signature != kPanelSignature)
        return eventNotHandledErr;
    if (event.control == kAboutButton)
        RunModalAboutDialog(advanced.device, advanced.parentUserPane);
    if (event.control == kBookletOrderPopup) {
        advanced.settings.bookletOrder = GetPopupButtonTicketValue(advanced.controls.bookletOrder);
        showOrderPicture(advanced);
    }
    for (const PpdRow &row : kPpdRows) {
        if (event.control.number != row.choice.control)
            continue;
        advanced.settings.*row.choice.value =
            GetPopupButtonTicketValue(advanced.controls.*row.popup);
        showRow(advanced, row);
    }
    return eventNotHandledErr;
}

AdvancedControls findControls(NeededControls &needed)
{
    AdvancedControls controls;
    controls.bookletOrder = needed.find<PopupButton>(kBookletOrderPopup);
    for (const PpdRow &row : kPpdRows)
        controls.*row.popup = needed.find<PopupButton>({kPanelSignature, row.choice.control});
    for (const int hint : kHints)
        needed.find<QLabel>({kPanelSignature, hint});
    needed.find<PictureView>({kPanelSignature, kBookletOrderPicture});
    for (const PpdRow &row : kPpdRows)
        needed.find<PictureView>({kPanelSignature, row.pictureNumber});
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
            for (const int hint : kHints)
                makeHintText(findControl<QLabel>(content, {kPanelSignature, hint}));
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
