#include "paper_output_settings.h"

#include "cover_sync.h"
#include "finishing_ticket.h"
#include "job_type_setup.h"
#include "page_format.h"
#include "ppd_choices.h"
#include "separators.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString kClient = QStringLiteral("com.kelvo.print");
const QString kDuplexingKey = QStringLiteral("com.apple.print.PrintSettings.PMDuplexing");

const QString mediaTypeKey = QStringLiteral("MediaType");
const QString useJobNameKey = QStringLiteral("UseJobName");
const QString jobTypeKey = QStringLiteral("JobType");
const QString savedJobNameKey = QStringLiteral("SavedJobName");
const QString savedJobLocationKey = QStringLiteral("SavedJobLocation");
const QString savedJobFormatKey = QStringLiteral("SavedJobFormat");
const QString passwordKey = QStringLiteral("SecurePrintPassword");
const QString delayedPrintTimeKey = QStringLiteral("DelayedPrintTime");
const QString saveDispositionKey = QStringLiteral("SaveDisposition");

const QVariant &entry(const Ticket &ticket, const char *name)
{
    return valueIn(ticket, ticketKey(name));
}

std::int32_t number(const Ticket &ticket, const char *name, std::int32_t whenAbsent)
{
    return integer32(entry(ticket, name)).value_or(whenAbsent);
}

void setEntry(Ticket &ticket, const char *name, QVariant value)
{
    setValue(ticket, kClient, ticketKey(name), std::move(value));
}

void setNumber(Ticket &ticket, const char *name, qint64 value)
{
    setEntry(ticket, name, value);
}

// The value of the current choice, or of the PPD's default; `whenAbsent` where
// neither is there.
std::int32_t choiceValue(const PpdFile *ppd, const Ticket &ticket, const char *option,
                         std::int32_t whenAbsent)
{
    std::int32_t value = whenAbsent;
    PPDGetTicketValueForChoiceOrDefault(ppd, ticket, QString::fromLatin1(option), &value);
    return value;
}

QString currentChoice(const PpdFile *ppd, const Ticket &ticket, const char *option)
{
    return PPDCopyChoiceOrDefault(ppd, ticket, QString::fromLatin1(option)).value_or(QString());
}

void setChoice(Ticket &ticket, const char *option, const std::optional<QString> &choice)
{
    PPDSetCurrentChoice(ticket, QString::fromLatin1(option), choice);
}

void removeChoice(Ticket &ticket, const char *option)
{
    PPDRemoveCurrentChoice(ticket, QString::fromLatin1(option));
}

// A value without a choice (the printer's default, a colour of the user's) takes an
// earlier choice back: the device would do what the panel does not show. A choice
// that we do not know stays.
void setChoiceValue(Ticket &ticket, const char *option, std::int32_t value)
{
    const auto choice = PPDChoiceForTicketValue(QString::fromLatin1(option), value);
    if (choice)
        setChoice(ticket, option, choice);
    else if (value != kNoPpdChoice)
        removeChoice(ticket, option);
}

void setOrRemove(Dictionary &dictionary, const QString &key, bool isSet, const QVariant &value)
{
    if (isSet)
        dictionary.insert(key, value);
    else
        dictionary.remove(key);
}

// What only a stock can say: a color or a type that no PPD has a choice for.
bool hasOwnColor(const Stock &stock)
{
    return stock.color() == kStockColorCustom;
}
bool hasOwnType(const Stock &stock)
{
    return stock.type() == kStockTypePrecutTab || stock.type() == kStockTypeOrdered
        || stock.type() == kStockTypeCustom;
}

// The ticket's choices rule, and where it has none, the PPD's defaults; but no choice
// is also what is written for a color or type of the stock's own.
void readColorAndType(Stock &stock, const Ticket &ticket, const PpdFile *ppd)
{
    const auto hasChoice = [&ticket](const char *option) {
        return PPDCopyCurrentChoice(ticket, QString::fromLatin1(option)).has_value();
    };
    if (hasChoice("MediaColor") || !hasOwnColor(stock))
        stock.setColor(choiceValue(ppd, ticket, "MediaColor", kUnset));
    if (hasChoice("MediaType") || !hasOwnType(stock))
        stock.setType(choiceValue(ppd, ticket, "MediaType", kUnset));
}

void readJobType(PaperOutputSettings &settings, const Ticket &ticket)
{
    settings.jobTypeOptions = dictionary(entry(ticket, "JobType"))
                                  .value_or(Dictionary{{mediaTypeKey, qint64(1)},
                                                       {jobTypeKey, qint64(kJobTypeNormal)},
                                                       {useJobNameKey, true},
                                                       {savedJobNameKey, QStringLiteral("")}});
    const Dictionary &options = settings.jobTypeOptions;
    settings.mediaTypeEcho = integer32(options, mediaTypeKey).value_or(1);
    settings.savedJob.usesJobName = boolean(options, useJobNameKey).value_or(true);
    settings.jobType = integer32(options, jobTypeKey).value_or(kJobTypeNormal);
    settings.savedJob.name = string(options, savedJobNameKey).value_or(QString());
    settings.savedJob.location = string(options, savedJobLocationKey);
    settings.savedJob.elsewhere = locationElsewhere(settings.savedJob);
    settings.savedJob.fileFormat = integer32(options, savedJobFormatKey).value_or(kSavedAsPdf);
    settings.savedJob.saveDisposition = integer32(options, saveDispositionKey).value_or(kSaveOnly);
    settings.passcode = string(options, passwordKey);
    settings.delayedPrintTime =
        integer64(options, delayedPrintTimeKey).value_or(settings.delayedPrintTime);
}

void writeJobType(const PaperOutputSettings &settings, Ticket &ticket)
{
    Dictionary options = settings.jobTypeOptions;
    const SavedJob &job = settings.savedJob;
    const bool isSaved = settings.jobType == kJobTypeSaved;
    WriteTicketValue(options, mediaTypeKey, settings.mediaTypeEcho);
    WriteTicketValue(options, jobTypeKey, settings.jobType);
    WriteTicketValue(options, delayedPrintTimeKey, settings.delayedPrintTime);
    options.insert(useJobNameKey, job.usesJobName);
    setOrRemove(options, savedJobNameKey, !job.usesJobName, job.name);
    setOrRemove(options, savedJobLocationKey, job.location.has_value(),
                job.location.value_or(QString()));
    setOrRemove(options, passwordKey, settings.passcode.has_value(),
                settings.passcode.value_or(QString()));
    setOrRemove(options, saveDispositionKey, isSaved, qint64(job.saveDisposition));
    setOrRemove(options, savedJobFormatKey, isSaved, qint64(job.fileFormat));
    setEntry(ticket, "JobType", options);
}

void readDuplex(PaperOutputSettings &settings, const Ticket &ticket, const PpdFile *ppd)
{
    std::optional<std::int32_t> duplex = integer32(entry(ticket, "FinishingDuplex"));
    if (!duplex)
        duplex = integer32(valueIn(ticket, kDuplexingKey));
    settings.duplex = duplex ? *duplex : choiceValue(ppd, ticket, "Duplex", kPlexSimplex);
}

void writeDuplex(const PaperOutputSettings &settings, Ticket &ticket)
{
    const std::int32_t duplex = settings.isBooklet() ? kPlexDuplex : settings.duplex;
    if (duplex == kNoPpdChoice)
        return; // the ticket's choice is one that we do not know, and stays
    setChoiceValue(ticket, "Duplex", duplex);
    setNumber(ticket, "FinishingDuplex", duplex);
    setValue(ticket, kClient, kDuplexingKey, qint64(duplex));
}

std::int32_t readPunch(const Ticket &ticket, const PpdFile *ppd)
{
    const std::int32_t punch = choiceValue(ppd, ticket, "KVPunch", kPunchNone);
    if (punch != kNoPpdChoice)
        return punch;
    return punchOfChoice(currentChoice(ppd, ticket, "KVPunch")).value_or(kNoPpdChoice);
}

void readFinishing(Finishing &finishing, const Ticket &ticket, const PpdFile *ppd)
{
    finishing.options = number(ticket, "FinishingOptions", kFinishingNone);
    finishing.offset = number(ticket, "FinishingOffset", 1);
    finishing.offsetSubsetEnabled = number(ticket, "FinishingOffsetEnableSubset", 0);
    finishing.pagesPerSubset =
        finishing.offsetSubsetEnabled ? number(ticket, "FinishingOffsetPagesPerSubset", 1) : 1;
    finishing.slipSheet = number(ticket, "FinishingSlipSheet", 0);
    finishing.bind = number(ticket, "FinishingBindValue", kBindNone);
    finishing.fold = choiceValue(ppd, ticket, "KVFold", kFoldNone);

    finishing.punch = readPunch(ticket, ppd);
    finishing.punchKind = finishing.punch > kPunchNone ? kPunchKindPunched : kPunchKindNone;

    std::optional<std::int32_t> staple = choiceValue(ppd, ticket, "StapleLocation", kStapleNone);
    if (staple == kNoPpdChoice)
        staple = stapleOfChoice(currentChoice(ppd, ticket, "StapleLocation"));
    setStaple(finishing, staple.value_or(kStapleNone));
    finishing.hasUnknownStaple = !staple;

    finishing.custom = string(entry(ticket, "FinishingCustom")).value_or(QStringLiteral(""));
}

// Two, three and four holes alone are written. Where it is another punch, a choice
// that says otherwise goes: the device would punch what the panel does not show.
void writePunch(const PaperOutputSettings &settings, Ticket &ticket)
{
    const std::int32_t punch = settings.finishing.punch;
    if (const auto choice = punchChoice(punch, settings.orientation)) {
        setChoice(ticket, "KVPunch", choice);
        return;
    }
    if (punch != kNoPpdChoice && readPunch(ticket, nullptr) != punch)
        removeChoice(ticket, "KVPunch");
}

void writeFinishing(const PaperOutputSettings &settings, Ticket &ticket)
{
    const Finishing &finishing = settings.finishing;
    setNumber(ticket, "FinishingOptions", finishing.options);
    setNumber(ticket, "FinishingOffset", finishing.offset);
    setNumber(ticket, "FinishingOffsetEnableSubset", finishing.offsetSubsetEnabled);
    if (finishing.offsetSubsetEnabled)
        setNumber(ticket, "FinishingOffsetPagesPerSubset", finishing.pagesPerSubset);
    setNumber(ticket, "FinishingSlipSheet", finishing.slipSheet);
    setChoiceValue(ticket, "KVFold", finishing.fold);
    writePunch(settings, ticket);
    if (!finishing.hasUnknownStaple)
        setChoice(ticket, "StapleLocation",
                  stapleChoice(chosenStaple(finishing), settings.orientation));
    setNumber(ticket, "FinishingBindValue", finishing.bind);
    setEntry(ticket, "FinishingCustom", finishing.custom);
}

} // namespace

void initializePaperOutput(PaperOutputSettings &settings, LongDateTime now)
{
    DefaultStock(&settings.jobStock, kJobContextJob);
    settings.delayedPrintTime = defaultDelayedPrintTime(now);
}

void readPageFormat(PaperOutputSettings &settings, const Ticket &pageFormat)
{
    settings.orientation = integer32(valueIn(pageFormat, kPMOrientationKey)).value_or(1);
    settings.paper = paperOf(pageFormat).value_or(QSizeF());
}

void readPaperOutput(PaperOutputSettings &settings, const Ticket &printSettings,
                     const Ticket &pageFormat, const Device &device)
{
    const PpdFile *ppd = device.ppd;
    readPageFormat(settings, pageFormat);
    const std::optional<Dictionary> stock = dictionary(entry(printSettings, "JobLevelStock"));
    if (stock) {
        settings.jobStock = Stock(&*stock);
    } else {
        settings.jobStock = Stock();
        DefaultStock(&settings.jobStock, kJobContextJob);
    }
    readColorAndType(settings.jobStock, printSettings, ppd);
    settings.outputBin = choiceValue(ppd, printSettings, "OutputBin", 1);
    settings.colorMode = choiceValue(ppd, printSettings, "KVColorMode", kNoPpdChoice);
    readSeparators(settings.separators, settings.separatorStock, printSettings, device);

    readJobType(settings, printSettings);
    settings.faxOptions = dictionary(entry(printSettings, "FaxOptions"));
    settings.faxRecipients.reset();
    if (const auto recipients = array(entry(printSettings, "FaxRecipientList")))
        settings.faxRecipients.emplace(*recipients);
    settings.booklet = {};
    readBooklet(settings.booklet, printSettings);
    readDuplex(settings, printSettings, ppd);
    readFinishing(settings.finishing, printSettings, ppd);
    readCovers(settings.frontCover, settings.backCover, printSettings, device);
}

void writePaperOutput(const PaperOutputSettings &settings, Ticket &printSettings, bool opened)
{
    setEntry(printSettings, "JobLevelStock", settings.jobStock.asTicket());
    setChoiceValue(printSettings, "MediaColor", settings.jobStock.color());
    setChoiceValue(printSettings, "MediaType", settings.jobStock.type());
    setChoiceValue(printSettings, "OutputBin", settings.outputBin);
    setChoiceValue(printSettings, "KVColorMode", settings.colorMode);
    writeSeparators(settings.separators, settings.separatorStock, printSettings);
    writeJobType(settings, printSettings);
    if (settings.faxOptions)
        setEntry(printSettings, "FaxOptions", *settings.faxOptions);
    if (settings.faxRecipients)
        setEntry(printSettings, "FaxRecipientList", settings.faxRecipients->toTicket());
    writeBooklet(settings.booklet, printSettings);
    if (opened)
        writeDuplex(settings, printSettings);
    writeFinishing(settings, printSettings);
    writeCovers(settings.frontCover, settings.backCover, printSettings);
}

} // namespace kelvo
