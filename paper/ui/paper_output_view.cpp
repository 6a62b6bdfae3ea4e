#include "paper_output_view.h"

#include "bundle_picture.h"
#include "finished_set_drawing.h"
#include "finishing_ticket.h"
#include "hint_text.h"
#include "job_type_setup.h"
#include "more_finishing.h"
#include "output_destinations.h"
#include "paper_output_pictures.h"
#include "paper_output_summary.h"
#include "popups.h"
#include "setting_maps.h"
#include "texts.h"
#include "ticket_places.h"
#include "ticket_values.h"
#include "two_sided.h"

#include <QLabel>
#include <QPushButton>

namespace kelvo {

PaperOutputControls findPaperOutputControls(NeededControls &needed)
{
    const auto id = [](std::int32_t number) { return ControlID{kPanelSignature, number}; };
    return {
        .jobType = needed.find<PopupButton>(id(kJobTypePopup)),
        .jobTypeSetup = needed.find<QPushButton>(id(kJobTypeSetupButton)),
        .jobTypeIcon = needed.find<PictureView>(id(104)),
        .jobTypeHint = needed.find<QLabel>(id(1021)),
        .stockButton = needed.find<MenuButton>(id(kStockButton)),
        .stockSummary = needed.find<SummaryView>(id(107)),
        .stockIcon = needed.find<PictureView>(id(108)),
        .coversButton = needed.find<QPushButton>(id(kCoversButton)),
        .coversSummary = needed.find<QLabel>(id(1291)),
        .separatorsButton = needed.find<QPushButton>(id(kSeparatorsButton)),
        .separatorsSummary = needed.find<QLabel>(id(1301)),
        .twoSided = needed.find<PopupButton>(id(kTwoSidedPopup)),
        .twoSidedIcon = needed.find<PictureView>(id(111)),
        .stapling = needed.find<PopupButton>(id(kStaplingPopup)),
        .staplingIcon = needed.find<PictureView>(id(114)),
        .holePunch = needed.find<PopupButton>(id(kHolePunchPopup)),
        .holePunchIcon = needed.find<PictureView>(id(117)),
        .outputColor = needed.find<PopupButton>(id(kOutputColorPopup)),
        .outputColorIcon = needed.find<PictureView>(id(120)),
        .finishingButton = needed.find<MenuButton>(id(kFinishingButton)),
        .finishingIcon = needed.find<PictureView>(id(124)),
        .finishingSummary = needed.find<SummaryView>(id(127)),
        .moreFinishing = needed.find<MenuButton>(id(kMoreFinishingButton)),
        .moreFinishingSummary = needed.find<QLabel>(id(1281)),
        .outputDestination = needed.find<PopupButton>(id(kOutputDestinationPopup)),
        .finishedSet = needed.find<DrawingView>(id(131)),
        .finishedSetSummary = needed.find<QLabel>(id(132)),
    };
}

void fillPaperOutputControls(_PaperOutputContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    PopulatePopupButtonFromMap(panel.device, controls.jobType, JobTypeMap, kJobContextJob,
                               kNoCommand);
    setTicketPlaces(controls.jobType,
                    {{kPMPrintSettingsTicket, ticketKey("JobType"), QStringLiteral("JobType")}});
    const Device &device = panel.device;
    fillWithMenu(controls.twoSided, twoSidedMenu(device), QStringLiteral("Duplex"));
    fillFromPpd(controls.stapling, device, QStringLiteral("StapleLocation"),
                {.readByName = stapleChoicesWithoutValue()});
    fillFromPpd(controls.holePunch, device, QStringLiteral("KVPunch"),
                {.readByName = punchChoicesWithoutValue()});
    fillFromPpd(controls.outputColor, device, QStringLiteral("KVColorMode"));
    Menu destinations;
    PopulateOutputDestination(destinations, device);
    fillWithMenu(controls.outputDestination, std::move(destinations), QStringLiteral("OutputBin"));
    Menu finishing;
    PopulateFinishingMenu(finishing, device);
    for (const MenuItem &item : finishing.items)
        setTicketPlaces(controls.finishingButton, finishingPlaces(item.command), item.command);
    controls.finishingButton->setMenu(std::move(finishing));
    Menu more;
    PopulateMoreFinishingMenu(more, device);
    controls.moreFinishing->setMenu(std::move(more));
    setOnDevice(device, controls.coversButton,
                device.hasOption(QStringLiteral("KVFrontCoverSheet")));
    setOnDevice(device, controls.separatorsButton,
                device.hasOption(QStringLiteral("KVSlipSheetPrint")));
    makeHintText(controls.coversSummary);
    makeHintText(controls.separatorsSummary);
    makeHintText(controls.moreFinishingSummary);
    makeHintText(controls.finishedSetSummary);
    // The hint comes and goes with the job type, and nothing below it moves.
    QSizePolicy policy = controls.jobTypeHint->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    controls.jobTypeHint->setSizePolicy(policy);
}

void showJobType(const _PaperOutputContext &panel)
{
    showChoice(panel.bundle, panel.controls.jobType, panel.settings.jobType);
    EnableDisableJobTypeSetupButton(panel);
    showBundlePicture(panel.controls.jobTypeIcon, panel.bundle,
                      jobTypePicture(panel.settings.jobType));
    if (QLabel *hint = panel.controls.jobTypeHint) {
        const bool isShown = lacksPasscode(panel.settings);
        hint->setVisible(isShown);
        panel.controls.jobType->setAccessibleDescription(isShown ? hint->text() : QString());
    }
}

void showStockAndSeparators(const _PaperOutputContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    if (!controls.stockSummary)
        return;
    UpdateSummaryTextView(controls.stockSummary, paperText(panel.settings, panel.device));
    controls.separatorsSummary->setText(separatorsText(panel.settings, panel.device));
}

void showCovers(const _PaperOutputContext &panel)
{
    if (panel.controls.coversSummary)
        panel.controls.coversSummary->setText(coversText(panel.settings, panel.device));
}

void showTwoSided(const _PaperOutputContext &panel)
{
    PopupButton *popup = panel.controls.twoSided;
    showChoice(panel.bundle, popup, shownTwoSided(panel.settings));
    if (popup)
        setEnabledWithLabel(popup, canChooseTwoSided(panel.settings, panel.device));
    showBundlePicture(panel.controls.twoSidedIcon, panel.bundle, duplexPicture(panel.settings));
}

void showFinishing(const _PaperOutputContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    if (!controls.finishingSummary)
        return;
    MarkFinishingMenu(controls.finishingButton->menu(), panel.settings);
    MarkMoreFinishingMenu(controls.moreFinishing->menu(), panel.settings, panel.device);
    controls.moreFinishingSummary->setText(moreFinishingText(panel.settings, panel.device));
    UpdateSummaryTextView(controls.finishingSummary, finishingText(panel.settings, panel.device));
    showChoice(panel.bundle, controls.stapling, shownStaple(panel.settings.finishing));
    showChoice(panel.bundle, controls.holePunch, panel.settings.finishing.punch);
    showBundlePicture(controls.finishingIcon, panel.bundle, finishingPicture(panel.settings));
    showBundlePictures(controls.staplingIcon, panel.bundle,
                       staplePictures(panel.settings.finishing));
    showBundlePicture(controls.holePunchIcon, panel.bundle,
                      punchPicture(panel.settings.finishing.punch));
}

void showOutputColor(const _PaperOutputContext &panel)
{
    showChoice(panel.bundle, panel.controls.outputColor, panel.settings.colorMode);
    showBundlePicture(panel.controls.outputColorIcon, panel.bundle,
                      colorModePicture(panel.settings.colorMode));
}

void showOutputDestination(const _PaperOutputContext &panel)
{
    showChoice(panel.bundle, panel.controls.outputDestination, panel.settings.outputBin);
}

void showFinishedSet(_PaperOutputContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    if (!controls.finishedSet)
        return;
    FinishedSet set = finishedSet(panel.settings, panel.device);
    if (set == panel.shownSet)
        return;
    const QStringList words = finishedSetWords(set, panel.device);
    controls.finishedSetSummary->setText(words.join(u'\n'));
    controls.finishedSet->setDrawing(
        [set](QPainter &painter, const QSizeF &size) { drawFinishedSet(painter, size, set); },
        joined(words));
    panel.shownSet = std::move(set);
}

void showPaperOutput(_PaperOutputContext &panel)
{
    if (!panel.content)
        return;
    StockIconEventHandler(panel.stockButtonData);
    showStockAndSeparators(panel);
    showOutputDestination(panel);
    showOutputColor(panel);
    showJobType(panel);
    showTwoSided(panel);
    showFinishing(panel);
    showCovers(panel);
    showFinishedSet(panel);
}

void EnableDisableJobTypeSetupButton(const _PaperOutputContext &panel)
{
    if (panel.controls.jobTypeSetup)
        panel.controls.jobTypeSetup->setEnabled(hasJobTypeSetup(panel.settings.jobType));
}

} // namespace kelvo
