#include "paper_output_view.h"

#include "bundle_picture.h"
#include "finishing_dialogs.h"
#include "finishing_ticket.h"
#include "hint_text.h"
#include "job_type_setup.h"
#include "offered_choices.h"
#include "output_destinations.h"
#include "paper_output_pictures.h"
#include "popups.h"
#include "ppd_choices.h"
#include "separators.h"
#include "setting_maps.h"
#include "ticket_places.h"
#include "ticket_values.h"

#include <QLabel>
#include <QPushButton>

namespace kelvo {

namespace {

bool hasOption(const _PaperOutputContext &panel, const char *option)
{
    return panel.device.hasOption(QString::fromLatin1(option));
}

// Covers travel as their paper source. No cover at all is in order.
bool reachesDevice(const std::optional<Cover> &cover)
{
    return !cover
        || PPDChoiceForTicketValue(QStringLiteral("KVFrontCoverSheet"), cover->stock().source());
}

const char *coversKey(const std::optional<Cover> &front, const std::optional<Cover> &back)
{
    if (!reachesDevice(front) || !reachesDevice(back))
        return "Cover Without Source";
    if (front)
        return back ? "Front and Back Covers" : "Front Cover Only";
    return back ? "Back Cover Only" : "No Covers";
}

// What the summary has no line for.
void showMoreFinishing(const _PaperOutputContext &panel)
{
    QStringList names;
    for (const MenuItem &item : panel.controls.moreFinishing->menu().items) {
        if (item.checked
            && (item.command == kCommandBindDialog || item.command == kCommandOffsetDialog
                || item.command == kCommandCustomFinishingDialog))
            names << QString(item.text).remove(QStringLiteral("…"));
    }
    panel.controls.moreFinishingSummary->setText(names.join(QStringLiteral(", ")));
}

void tellTicketPlaces(MenuButton *finishing)
{
    constexpr struct
    {
        OSType command;
        const char *option;
    } rows[] = {
        {kCommandNoStaple, "StapleLocation"},
        {kCommandSingleStaple, "StapleLocation"},
        {kCommandDualStaple, "StapleLocation"},
        {kCommandMultipleStaples, "StapleLocation"},
        {kCommandGenericPunch, "KVPunch"},
        {kCommandNoPunch, "KVPunch"},
        {kCommandTwoHoles, "KVPunch"},
        {kCommandThreeHoles, "KVPunch"},
        {kCommandFourHoles, "KVPunch"},
        {kCommandNoFold, "KVFold"},
        {kCommandBiFold, "KVFold"},
        {kCommandCFold, "KVFold"},
        {kCommandZFold, "KVFold"},
        {kCommandZFoldHalfSheet, "KVFold"},
    };
    for (const auto &row : rows)
        setTicketPlaces(finishing, {{kPPDChoices, QString::fromLatin1(row.option)}}, row.command);
}

void fillFromPpd(PopupButton *popup, const _PaperOutputContext &panel, const char *option,
                 const QStringList &readByName = {})
{
    if (hasOption(panel, option))
        fillWithOfferedChoices(popup, panel.device.ppd, QString::fromLatin1(option), readByName);
    else if (popup)
        setEnabledWithLabel(popup, false);
}

// The map's words. A device without the option prints on one side, which cannot be
// chosen there.
void fillTwoSided(const _PaperOutputContext &panel)
{
    PopupButton *popup = panel.controls.twoSided;
    PopulatePopupButtonFromMap(panel.bundle, popup, PlexMap, kJobContextJob, kNoCommand);
    if (!popup)
        return;
    Menu menu = popup->menu();
    const QString option = QStringLiteral("Duplex");
    if (hasOption(panel, "Duplex"))
        removeWhatIsNotOffered(menu, panel.device.ppd, option);
    else
        std::erase_if(menu.items,
                      [](const MenuItem &item) { return item.reference != kPlexSimplex; });
    popup->setMenu(std::move(menu));
    setTicketPlaces(popup, {{kPPDChoices, option}});
}

} // namespace

PaperOutputControls findPaperOutputControls(NeededControls &needed)
{
    const auto id = [](std::int32_t number) { return ControlID{kPanelSignature, number}; };
    return {
        .jobType = needed.find<PopupButton>(id(kJobTypePopup)),
        .jobTypeSetup = needed.find<QPushButton>(id(kJobTypeSetupButton)),
        .jobTypeIcon = needed.find<PictureView>(id(104)),
        .jobTypeHint = needed.find<QLabel>(id(1021)),
        .stockButton = needed.find<MenuButton>(id(106)),
        .stockSummary = needed.find<SummaryView>(id(107)),
        .stockIcon = needed.find<PictureView>(id(108)),
        .coversButton = needed.find<QPushButton>(id(129)),
        .coversSummary = needed.find<QLabel>(id(1291)),
        .separatorsButton = needed.find<QPushButton>(id(130)),
        .separatorsSummary = needed.find<QLabel>(id(1301)),
        .twoSided = needed.find<PopupButton>(id(kTwoSidedPopup)),
        .twoSidedIcon = needed.find<PictureView>(id(111)),
        .stapling = needed.find<PopupButton>(id(kStaplingPopup)),
        .staplingIcon = needed.find<PictureView>(id(114)),
        .holePunch = needed.find<PopupButton>(id(kHolePunchPopup)),
        .holePunchIcon = needed.find<PictureView>(id(117)),
        .outputColor = needed.find<PopupButton>(id(kOutputColorPopup)),
        .outputColorIcon = needed.find<PictureView>(id(120)),
        .finishingButton = needed.find<MenuButton>(id(123)),
        .finishingIcon = needed.find<PictureView>(id(124)),
        .finishingSummary = needed.find<SummaryView>(id(127)),
        .moreFinishing = needed.find<MenuButton>(id(128)),
        .moreFinishingSummary = needed.find<QLabel>(id(1281)),
        .outputDestination = needed.find<PopupButton>(id(kOutputDestinationPopup)),
    };
}

void fillPaperOutputControls(_PaperOutputContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    PopulatePopupButtonFromMap(panel.bundle, controls.jobType, JobTypeMap, kJobContextJob,
                               kNoCommand);
    setTicketPlaces(controls.jobType,
                    {{kPMPrintSettingsTicket, ticketKey("JobType"), QStringLiteral("JobType")}});
    fillTwoSided(panel);
    fillFromPpd(controls.stapling, panel, "StapleLocation", stapleChoicesWithoutValue());
    fillFromPpd(controls.holePunch, panel, "KVPunch", punchChoicesWithoutValue());
    fillFromPpd(controls.outputColor, panel, "KVColorMode");
    if (controls.outputDestination) {
        Menu destinations;
        PopulateOutputDestination(destinations, panel.device);
        setEnabledWithLabel(controls.outputDestination, !destinations.items.empty());
        controls.outputDestination->setMenu(std::move(destinations));
        setTicketPlaces(controls.outputDestination, {{kPPDChoices, QStringLiteral("OutputBin")}});
    }
    Menu finishing;
    PopulateFinishingMenu(finishing, panel.device);
    controls.finishingButton->setMenu(std::move(finishing));
    tellTicketPlaces(controls.finishingButton);
    Menu more;
    PopulateMoreFinishingMenu(more, panel.device);
    controls.moreFinishing->setMenu(std::move(more));
    controls.coversButton->setEnabled(hasOption(panel, "KVFrontCoverSheet"));
    controls.separatorsButton->setEnabled(hasOption(panel, "KVSlipSheetPrint"));
    makeHintText(controls.coversSummary);
    makeHintText(controls.separatorsSummary);
    makeHintText(controls.moreFinishingSummary);
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
    ShowStockSummary(panel.bundle, controls.stockSummary, &panel.settings.jobStock, kJobContextJob);
    const QString line =
        separatorSummary(panel.device, panel.settings.separators, panel.settings.separatorStock);
    if (panel.settings.jobStock.type() == kStockTypeTransparency && !line.isEmpty())
        UpdateSummaryTextView(
            controls.stockSummary,
            QStringLiteral("%1\n%2").arg(controls.stockSummary->toPlainText(), line));
    const char *key = LocalizedKeyForTicketValue(SeparatorOptionMap, panel.settings.separators);
    controls.separatorsSummary->setText(key ? localizedText(panel.bundle, QString::fromLatin1(key))
                                            : QString());
}

void showCovers(const _PaperOutputContext &panel)
{
    if (!panel.controls.coversSummary)
        return;
    const char *key = coversKey(panel.settings.frontCover, panel.settings.backCover);
    panel.controls.coversSummary->setText(localizedText(panel.bundle, QString::fromLatin1(key)));
}

void showTwoSided(const _PaperOutputContext &panel)
{
    PopupButton *popup = panel.controls.twoSided;
    showChoice(panel.bundle, popup,
               panel.settings.isBooklet() ? kPlexDuplex : panel.settings.duplex);
    if (popup)
        setEnabledWithLabel(popup, !panel.settings.isBooklet() && hasOption(panel, "Duplex"));
    showBundlePicture(panel.controls.twoSidedIcon, panel.bundle, duplexPicture(panel.settings));
}

void showFinishing(const _PaperOutputContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    if (!controls.finishingSummary)
        return;
    MarkFinishingMenu(controls.finishingButton->menu(), panel.settings);
    MarkMoreFinishingMenu(controls.moreFinishing->menu(), panel.settings, panel.device);
    showMoreFinishing(panel);
    QString summary = CreateFinishingString(panel.settings, panel.device).trimmed();
    if (summary.isEmpty() && !panel.device.has("BookletFoldKey")
        && !panel.device.has("TapeBindKey"))
        summary = localizedText(panel.bundle, QStringLiteral("No Finishing Devices"));
    UpdateSummaryTextView(controls.finishingSummary, summary);
    showChoice(panel.bundle, controls.stapling,
               panel.settings.finishing.hasUnknownStaple ? kNoPpdChoice
                                                         : chosenStaple(panel.settings.finishing));
    showChoice(panel.bundle, controls.holePunch, panel.settings.finishing.punch);
    showBundlePicture(controls.finishingIcon, panel.bundle, finishingPicture(panel.settings));
    showBundlePicture(controls.staplingIcon, panel.bundle, staplePicture(panel.settings.finishing));
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

void showPaperOutput(const _PaperOutputContext &panel)
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
}

void EnableDisableJobTypeSetupButton(const _PaperOutputContext &panel)
{
    if (panel.controls.jobTypeSetup)
        panel.controls.jobTypeSetup->setEnabled(hasJobTypeSetup(panel.settings.jobType));
}

} // namespace kelvo
