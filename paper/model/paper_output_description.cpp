#include "paper_output_description.h"

#include "fax_description.h"
#include "finishing_offset.h"
#include "paper_output_controls.h"
#include "paper_output_settings.h"
#include "ppd_choices.h"
#include "setting_maps.h"
#include "stock_properties.h"
#include "stock_summary.h"
#include "string_table.h"
#include "texts.h"
#include "ticket_values.h"

#include <QLocale>

#include <algorithm>

namespace kelvo {

namespace {

QString mapText(const Device &device, const SettingMap *map, std::int32_t value)
{
    const char *key = keyOfValue(map, value);
    return key ? labelText(device, key) : QString();
}

QString jobTypeWords(const Device &device, std::int32_t jobType)
{
    const QString words = mapText(device, JobTypeMap, jobType);
    return words.isEmpty() ? QString::number(jobType) : words;
}

// Said where the ticket has one, whatever the job's type: another type would find it there.
void describePasscode(const PaperOutputSettings &settings, PanelDescription &panel)
{
    const bool isSet = settings.passcode && !settings.passcode->isEmpty();
    DescribedSetting *line = panel.add(
        "JobType/SecurePrintPassword", "Passcode in Words",
        isSet ? panel.job().device.text("Passcode Is Set") : QString(), kJobTypeSetupButton);
    if (line)
        line->isSecret = true;
}

void describeSavedJob(const PaperOutputSettings &settings, PanelDescription &panel)
{
    const Device &device = panel.job().device;
    const SavedJob &saved = settings.savedJob;
    const bool isSaved = settings.jobType == kJobTypeSaved;
    const auto add = [&](const char *name, const char *labelKey, const QString &words) {
        panel.add(name, labelKey, isSaved ? words : QString(), kJobTypeSetupButton);
    };
    add("JobType/SavedJobName", "Job Name:", saved.usesJobName ? QString() : saved.name);
    add("JobType/SavedJobLocation", "Mailbox in Words", mailboxText(saved));
    add("JobType/SaveDisposition", "Save Option:",
        labelText(device, saved.saveDisposition == kSaveAndPrint ? "SavePrint" : "Save"));
    add("JobType/SavedJobFormat",
        "File Format:", mapText(device, SavedJobFormatMap, saved.fileFormat));
}

void describeJobType(const PaperOutputSettings &settings, PanelDescription &panel,
                     JobDescription &description)
{
    const Device &device = panel.job().device;
    panel.add("JobType/JobType", "Job Type:", jobTypeWords(device, settings.jobType), kJobTypePopup,
              settings.jobType == kJobTypeNormal);
    const bool hasTime = settings.jobType == kJobTypeDelayedPrint && settings.delayedPrintTime != 0;
    panel.add("JobType/DelayedPrintTime", "TimeToPrint:",
              hasTime ? QLocale().toString(timeOf(settings.delayedPrintTime), QLocale::ShortFormat)
                      : QString(),
              kJobTypeSetupButton);
    panel.leaveUnspoken("JobType/MediaType");  // kept as it came
    panel.leaveUnspoken("JobType/UseJobName"); // the job's name says it
    describePasscode(settings, panel);
    describeSavedJob(settings, panel);
    describeFax(settings.faxOptions.value_or(Dictionary()),
                settings.faxRecipients.value_or(FaxRecipientList()),
                settings.jobType == kJobTypeFax, panel, kJobTypeSetupButton, description);
}

// What the stock alone can say of its type, also where its user has given it no name;
// empty for a type that has a choice.
QString ownTypeWords(const Device &device, const Stock &stock)
{
    const bool hasOwnType = hasTypeName(stock.type()) || stock.type() == kStockTypePrecutTab;
    const bool hasTabNumber = hasTabs(stock.type()) && stock.modulus() > 0;
    if (hasTypeName(stock.type()) && stock.customType().trimmed().isEmpty())
        return labelText(
            device, stock.type() == kStockTypeOrdered ? "StockTypeOrdered" : "StockTypeCustom");
    return hasOwnType || hasTabNumber ? stockTypeText(device, stock) : QString();
}

// A color or type of the stock's own has no choice in any PPD, and the device's default
// would be told in its stead.
void describePaper(const PaperOutputSettings &settings, PanelDescription &panel)
{
    const Device &device = panel.job().device;
    const Stock &stock = settings.jobStock;
    const auto addOwn = [&panel](const char *option, const char *labelKey, const QString &words) {
        panel.addOwnChoice(option, labelKey, words, kStockButton)->isOnlyInTicket = true;
    };
    panel.add("JobLevelStock/CustomName", "Paper Name in Words", stock.customName(), kStockButton);
    if (stock.color() == kStockColorCustom)
        addOwn("MediaColor", "Paper Color in Words",
               stock.customColor().trimmed().isEmpty() ? labelText(device, "StockColorCustom")
                                                       : stock.customColor());
    else
        panel.addChoice("MediaColor", kStockButton);
    if (const QString type = ownTypeWords(device, stock); !type.isEmpty())
        addOwn("MediaType", "Paper Type in Words", type);
    else
        panel.addChoice("MediaType", kStockButton);
    QStringList properties = stockPropertyLines(device, stock);
    properties.replaceInStrings(QStringLiteral("- "), QString());
    // A description may have commas.
    panel.add("JobLevelStock", "Paper Properties in Words", joined(properties), kStockButton);
}

// As panels read it: their own entries rule. A device without the option prints on one
// side, and panels keep their entries all the same.
void describeSides(const PaperOutputSettings &settings, PanelDescription &panel)
{
    const Device &device = panel.job().device;
    const auto choice = PPDChoiceForTicketValue(QStringLiteral("Duplex"), settings.duplex);
    DescribedSetting *line = panel.addChoice("Duplex", kTwoSidedPopup, choice);
    if (!line) {
        line = panel.addOwnChoice("Duplex",
                                  "Two Sided Printing:", mapText(device, PlexMap, kPlexSimplex),
                                  kTwoSidedPopup);
        line->isDefault = true;
    }
    line->repeats = {ticketKey("FinishingDuplex"),
                     QStringLiteral("com.apple.print.PrintSettings.PMDuplexing")};
}

// The panel's own offset. It is another one than the Advanced panel's, which says
// nothing of a job beside it.
void describeOffset(const Finishing &finishing, PanelDescription &panel)
{
    const Device &device = panel.job().device;
    const OffsetSettings offset = offsetOf(finishing);
    const QString known = offset.offset == kOffsetUnset ? labelText(device, "PrinterDefault")
                                                        : mapText(device, OffsetMap, offset.offset);
    const QString name = known.isEmpty() ? QString::number(offset.offset) : known;
    const QString words = offset.hasSubsets
        ? formatted(device.text("Offset with Subsets in Words"),
                    {name, QLocale().toString(offset.pagesPerSubset)})
        : name;
    panel.add("FinishingOffset", "Offset:", isSet(offset) ? words : QString(),
              kMoreFinishingButton);
    panel.leaveUnspoken("FinishingOffsetEnableSubset");
    panel.leaveUnspoken("FinishingOffsetPagesPerSubset");
    const QString ofDevice = QStringLiteral("Jog");
    const auto choice = panel.job().printSettings.ppdChoices.value(ofDevice);
    const PpdOption *option = device.ppd ? device.ppd->findOption(ofDevice) : nullptr;
    if (isSet(offset) && option && (choice.isEmpty() || choice == option->defaultChoice))
        panel.leaveChoiceUnspoken("Jog");
}

QString bindWords(const Device &device, std::int32_t bind)
{
    switch (bind) {
    case kBindNone:
        return {};
    case kBindLeft:
        return labelText(device, "Bind Left Edge");
    case kBindRight:
        return labelText(device, "Bind Right Edge");
    case kBindTop:
        return labelText(device, "Bind Top Edge");
    default: // of a later day
        return QString::number(bind);
    }
}

// No PPD option says that the device lacks a binder.
void describeBinding(std::int32_t bind, PanelDescription &panel)
{
    const Device &device = panel.job().device;
    const QString words = bindWords(device, bind);
    const bool isLost = bind != kBindNone && device.ppd && !device.has("TapeBindKey");
    DescribedSetting *line =
        panel.add("FinishingBindValue",
                  "Bind:", isLost ? formatted(device.text("Bind Absent in Words"), {words}) : words,
                  kMoreFinishingButton);
    if (line)
        line->isLost = isLost;
}

void describeFinishing(const Finishing &finishing, PanelDescription &panel)
{
    panel.addChoice("StapleLocation", kStaplingPopup);
    panel.addChoice("KVPunch", kHolePunchPopup);
    panel.addChoice("KVFold", kFinishingButton);
    panel.leaveUnspoken("FinishingOptions"); // the same, as the menu counts it
    describeOffset(finishing, panel);
    describeBinding(finishing.bind, panel);
    panel.add("FinishingSlipSheet", "Slip Sheets in Words",
              finishing.slipSheet == 0 ? QString() : QString::number(finishing.slipSheet),
              kMoreFinishingButton);
    panel.add("FinishingCustom", "Custom Finishing", finishing.custom, kMoreFinishingButton);
}

} // namespace

void describePaperOutput(const DescribedJob &job, JobDescription &description)
{
    PaperOutputSettings settings;
    readPaperOutput(settings, job.printSettings, job.pageFormat, job.device);

    PanelDescription panel(job, "PaperOutput", description);
    describeJobType(settings, panel, description);
    describePaper(settings, panel);
    describeSides(settings, panel);
    panel.addChoice("KVColorMode", kOutputColorPopup);
    describeFinishing(settings.finishing, panel);
    panel.addChoice("OutputBin", kOutputDestinationPopup);
    panel.addChoice("KVFrontCoverSheet", kCoversButton);
    panel.addChoice("KVBackCoverSheet", kCoversButton);
    panel.addChoice("KVSlipSheetPrint", kSeparatorsButton);
    panel.addChoice("KVSlipSheetSource", kSeparatorsButton);
}

} // namespace kelvo
