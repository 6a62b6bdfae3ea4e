#include "paper_output_view.h"

#include "bundle_picture.h"
#include "finishing_dialogs.h"
#include "finishing_ticket.h"
#include "hint_text.h"
#include "installed_features.h"
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

bool hasOption(const PaperOutputPanelContext &panel, const char *option)
{
    return panel.ppd && panel.ppd->findOption(QString::fromLatin1(option));
}

// Covers travel as their paper source. No cover at all is in order.
bool reachesDevice(const Cover *cover)
{
    return !cover
        || PPDChoiceForTicketValue(QStringLiteral("KVFrontCoverSheet"), cover->stock().source());
}

const char *coversKey(const Cover *front, const Cover *back)
{
    if (!reachesDevice(front) || !reachesDevice(back))
        return "Cover Without Source";
    if (front)
        return back ? "Front and Back Covers" : "Front Cover Only";
    return back ? "Back Cover Only" : "No Covers";
}

// What the summary has no line for.
void showMoreFinishing(const PaperOutputPanelContext &panel)
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

void fillFromPpd(PopupButton *popup, const PaperOutputPanelContext &panel, const char *option,
                 const QStringList &readByName = {})
{
    if (hasOption(panel, option))
        fillWithOfferedChoices(popup, panel.ppd, QString::fromLatin1(option), readByName);
    else if (popup)
        setEnabledWithLabel(popup, false);
}

// The map's words. A device without the option prints on one side, which cannot be
// chosen there.
void fillTwoSided(const PaperOutputPanelContext &panel)
{
    PopupButton *popup = panel.controls.twoSided;
    PopulatePopupButtonFromMap(panel.bundle, popup, PlexMap, kJobContextJob, kNoCommand);
    if (!popup)
        return;
    Menu menu = popup->menu();
    const QString option = QStringLiteral("Duplex");
    if (hasOption(panel, "Duplex"))
        removeWhatIsNotOffered(menu, panel.ppd, option);
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

void fillPaperOutputControls(PaperOutputPanelContext &panel)
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
        PopulateOutputDestination(destinations, panel.ppd);
        setEnabledWithLabel(controls.outputDestination, !destinations.items.empty());
        controls.outputDestination->setMenu(std::move(destinations));
        setTicketPlaces(controls.outputDestination, {{kPPDChoices, QStringLiteral("OutputBin")}});
    }
    Menu finishing;
    PopulateFinishingMenu(finishing, panel.bundle);
    controls.finishingButton->setMenu(std::move(finishing));
    tellTicketPlaces(controls.finishingButton);
    Menu more;
    PopulateMoreFinishingMenu(more, panel.bundle);
    controls.moreFinishing->setMenu(std::move(more));
    controls.coversButton->setEnabled(hasOption(panel, "KVFrontCoverSheet"));
    controls.separatorsButton->setEnabled(hasOption(panel, "KVSlipSheetPrint"));
    makeHintText(controls.coversSummary);
    makeHintText(controls.separatorsSummary);
    makeHintText(controls.moreFinishingSummary);
}

void showJobType(const PaperOutputPanelContext &panel)
{
    showChoice(panel.bundle, panel.controls.jobType, panel.jobType);
    EnableDisableJobTypeSetupButton(panel);
    showBundlePicture(panel.controls.jobTypeIcon, panel.bundle, jobTypePicture(panel.jobType));
    if (QLabel *hint = panel.controls.jobTypeHint) {
        const bool isShown = lacksPasscode(panel);
        hint->setVisible(isShown);
        panel.controls.jobType->setAccessibleDescription(isShown ? hint->text() : QString());
    }
}

void showStockAndSeparators(const PaperOutputPanelContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    if (!controls.stockSummary)
        return;
    ShowStockSummary(panel.bundle, controls.stockSummary, &panel.jobStock, kJobContextJob);
    const QString line = separatorSummary(panel.bundle, panel.separators, panel.separatorStock);
    if (panel.jobStock.type() == kStockTypeTransparency && !line.isEmpty())
        UpdateSummaryTextView(
            controls.stockSummary,
            QStringLiteral("%1\n%2").arg(controls.stockSummary->toPlainText(), line));
    const char *key = LocalizedKeyForTicketValue(SeparatorOptionMap, panel.separators);
    controls.separatorsSummary->setText(key ? localizedText(panel.bundle, QString::fromLatin1(key))
                                            : QString());
}

void showCovers(const PaperOutputPanelContext &panel)
{
    if (!panel.controls.coversSummary)
        return;
    const char *key = coversKey(panel.frontCover.get(), panel.backCover.get());
    panel.controls.coversSummary->setText(localizedText(panel.bundle, QString::fromLatin1(key)));
}

void showTwoSided(const PaperOutputPanelContext &panel)
{
    PopupButton *popup = panel.controls.twoSided;
    showChoice(panel.bundle, popup, panel.isBooklet() ? kPlexDuplex : panel.duplex);
    if (popup)
        setEnabledWithLabel(popup, !panel.isBooklet() && hasOption(panel, "Duplex"));
    showBundlePicture(panel.controls.twoSidedIcon, panel.bundle, duplexPicture(panel));
}

void showFinishing(const PaperOutputPanelContext &panel)
{
    const PaperOutputControls &controls = panel.controls;
    if (!controls.finishingSummary)
        return;
    MarkFinishingMenu(controls.finishingButton->menu(), panel);
    MarkMoreFinishingMenu(controls.moreFinishing->menu(), panel);
    showMoreFinishing(panel);
    QString summary = CreateFinishingString(panel).trimmed();
    if (summary.isEmpty() && !getInstalledFeature("BookletFoldKey")
        && !getInstalledFeature("TapeBindKey"))
        summary = localizedText(panel.bundle, QStringLiteral("No Finishing Devices"));
    UpdateSummaryTextView(controls.finishingSummary, summary);
    showChoice(panel.bundle, controls.stapling,
               panel.finishing.hasUnknownStaple ? kNoPpdChoice : chosenStaple(panel.finishing));
    showChoice(panel.bundle, controls.holePunch, panel.finishing.punch);
    showBundlePicture(controls.finishingIcon, panel.bundle, finishingPicture(panel));
    showBundlePicture(controls.staplingIcon, panel.bundle, staplePicture(panel.finishing));
    showBundlePicture(controls.holePunchIcon, panel.bundle, punchPicture(panel.finishing.punch));
}

void showOutputColor(const PaperOutputPanelContext &panel)
{
    showChoice(panel.bundle, panel.controls.outputColor, panel.colorMode);
    showBundlePicture(panel.controls.outputColorIcon, panel.bundle,
                      colorModePicture(panel.colorMode));
}

void showOutputDestination(const PaperOutputPanelContext &panel)
{
    showChoice(panel.bundle, panel.controls.outputDestination, panel.outputBin);
}

void showPaperOutput(const PaperOutputPanelContext &panel)
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

void EnableDisableJobTypeSetupButton(const PaperOutputPanelContext &panel)
{
    if (panel.controls.jobTypeSetup)
        panel.controls.jobTypeSetup->setEnabled(hasJobTypeSetup(panel.jobType));
}

} // namespace kelvo
