#include "paper_output_ticket.h"

#include "cover_sync.h"
#include "delayed_print.h"
#include "finishing_ticket.h"
#include "ppd_choices.h"
#include "separators.h"
#include "ticket.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString kClient = QStringLiteral("com.kelvo.print");
const QString kShellClient = QStringLiteral("K"); // of gutter, creep and new size
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

std::optional<std::int32_t> findNumber(PMTicketRef ticket, const QString &key)
{
    const std::optional<std::int64_t> found = PMTicketGetCFNumber(ticket, key);
    return found ? integer32(QVariant::fromValue<qint64>(*found)) : std::nullopt;
}

std::int32_t number(PMTicketRef ticket, const char *name, std::int32_t whenAbsent)
{
    return findNumber(ticket, ticketKey(name)).value_or(whenAbsent);
}

void setNumber(PMTicketRef ticket, const char *name, std::int64_t value,
               const QString &client = kClient)
{
    PMTicketSetCFNumber(ticket, client, ticketKey(name), value);
}

// The value of the current choice, or of the PPD's default; `whenAbsent` where
// neither is there.
std::int32_t choiceValue(const PpdFile *ppd, PMTicketRef ticket, const char *option,
                         std::int32_t whenAbsent)
{
    std::int32_t value = whenAbsent;
    PPDGetTicketValueForChoiceOrDefault(ppd, ticket, QString::fromLatin1(option), &value);
    return value;
}

QString currentChoice(const PpdFile *ppd, PMTicketRef ticket, const char *option)
{
    return PPDCopyChoiceOrDefault(ppd, ticket, QString::fromLatin1(option)).value_or(QString());
}

void setChoice(PMTicketRef ticket, const char *option, const std::optional<QString> &choice)
{
    PPDSetCurrentChoice(ticket, QString::fromLatin1(option), choice);
}

void removeChoice(PMTicketRef ticket, const char *option)
{
    PPDRemoveCurrentChoice(ticket, QString::fromLatin1(option));
}

// A value without a choice (the printer's default, a colour of the user's) takes an
// earlier choice back: the device would do what the panel does not show. A choice
// that we do not know stays.
void setChoiceValue(PMTicketRef ticket, const char *option, std::int32_t value)
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
void readColorAndType(Stock &stock, PMTicketRef ticket, const PpdFile *ppd)
{
    const auto hasChoice = [ticket](const char *option) {
        return PPDCopyCurrentChoice(ticket, QString::fromLatin1(option)).has_value();
    };
    if (hasChoice("MediaColor") || !hasOwnColor(stock))
        stock.setColor(choiceValue(ppd, ticket, "MediaColor", kUnset));
    if (hasChoice("MediaType") || !hasOwnType(stock))
        stock.setType(choiceValue(ppd, ticket, "MediaType", kUnset));
}

void readJobType(_PaperOutputContext &context, PMTicketRef ticket)
{
    context.jobTypeOptions = PMTicketGetCFDictionary(ticket, ticketKey("JobType"))
                                 .value_or(Dictionary{{mediaTypeKey, qint64(1)},
                                                      {jobTypeKey, qint64(kJobTypeNormal)},
                                                      {useJobNameKey, true},
                                                      {savedJobNameKey, QStringLiteral("")}});
    const Dictionary &options = context.jobTypeOptions;
    context.mediaTypeEcho = integer32(options, mediaTypeKey).value_or(1);
    context.savedJob.usesJobName = boolean(options, useJobNameKey).value_or(true);
    context.jobType = integer32(options, jobTypeKey).value_or(kJobTypeNormal);
    context.savedJob.name = string(options, savedJobNameKey).value_or(QString());
    context.savedJob.location = string(options, savedJobLocationKey);
    context.savedJob.elsewhere = locationElsewhere(context.savedJob);
    context.savedJob.fileFormat = integer32(options, savedJobFormatKey).value_or(kSavedAsPdf);
    context.savedJob.saveDisposition = integer32(options, saveDispositionKey).value_or(kSaveOnly);
    context.passcode = string(options, passwordKey);
    context.delayedPrintTime =
        integer64(options, delayedPrintTimeKey).value_or(context.delayedPrintTime);
}

void writeJobType(const _PaperOutputContext &context, PMTicketRef ticket)
{
    Dictionary options = context.jobTypeOptions;
    const SavedJob &job = context.savedJob;
    const bool isSaved = context.jobType == kJobTypeSaved;
    WriteTicketValue(options, mediaTypeKey, context.mediaTypeEcho);
    WriteTicketValue(options, jobTypeKey, context.jobType);
    WriteTicketValue(options, delayedPrintTimeKey, context.delayedPrintTime);
    options.insert(useJobNameKey, job.usesJobName);
    setOrRemove(options, savedJobNameKey, !job.usesJobName, job.name);
    setOrRemove(options, savedJobLocationKey, job.location.has_value(),
                job.location.value_or(QString()));
    setOrRemove(options, passwordKey, context.passcode.has_value(),
                context.passcode.value_or(QString()));
    setOrRemove(options, saveDispositionKey, isSaved, qint64(job.saveDisposition));
    setOrRemove(options, savedJobFormatKey, isSaved, qint64(job.fileFormat));
    PMTicketSetCFDictionary(ticket, kClient, ticketKey("JobType"), options);
}

void readBooklet(_PaperOutputContext &context, PMTicketRef ticket)
{
    context.bookletLayout = {};
    if (!PMTicketGetCFBoolean(ticket, ticketKey("BookletLayout")).value_or(false)) {
        context.booklet = kBookletOff;
        return;
    }
    context.booklet = kBookletOn;
    BookletLayout &layout = context.bookletLayout;
    layout.pageBorders = number(ticket, "BookletDrawOutlines", layout.pageBorders);
    layout.gutter = number(ticket, "Gutter", layout.gutter);
    layout.creep = number(ticket, "Creep", layout.creep);
    if (PMTicketGetCFBoolean(ticket, ticketKey("BookletForceNewSize")).value_or(false))
        layout.newSize = context.jobStock.size();
}

// A booklet's sheets may have another size than the document's pages.
Stock stockForTicket(const _PaperOutputContext &context)
{
    Stock stock = context.jobStock;
    if (context.isBooklet())
        stock.setSize(context.bookletLayout.newSize);
    return stock;
}

void writeBooklet(const _PaperOutputContext &context, PMTicketRef ticket)
{
    PMTicketSetCFBoolean(ticket, kClient, ticketKey("BookletLayout"), context.isBooklet());
    if (!context.isBooklet())
        return;
    const BookletLayout &layout = context.bookletLayout;
    setNumber(ticket, "BookletDrawOutlines", layout.pageBorders);
    PMTicketSetCFBoolean(ticket, kShellClient, ticketKey("BookletForceNewSize"),
                         layout.newSize != kUnset);
    setNumber(ticket, "Gutter", layout.gutter, kShellClient);
    setNumber(ticket, "Creep", layout.creep, kShellClient);
}

void readDuplex(_PaperOutputContext &context, PMTicketRef ticket, const PpdFile *ppd)
{
    std::optional<std::int32_t> duplex = findNumber(ticket, ticketKey("FinishingDuplex"));
    if (!duplex)
        duplex = findNumber(ticket, kDuplexingKey);
    context.duplex = duplex ? *duplex : choiceValue(ppd, ticket, "Duplex", kPlexSimplex);
}

void writeDuplex(const _PaperOutputContext &context, PMTicketRef ticket)
{
    const std::int32_t duplex = context.isBooklet() ? kPlexDuplex : context.duplex;
    if (duplex == kNoPpdChoice)
        return; // the ticket's choice is one that we do not know, and stays
    setChoiceValue(ticket, "Duplex", duplex);
    setNumber(ticket, "FinishingDuplex", duplex);
    PMTicketSetCFNumber(ticket, kClient, kDuplexingKey, duplex);
}

std::int32_t readPunch(PMTicketRef ticket, const PpdFile *ppd)
{
    const std::int32_t punch = choiceValue(ppd, ticket, "KVPunch", kPunchNone);
    if (punch != kNoPpdChoice)
        return punch;
    return punchOfChoice(currentChoice(ppd, ticket, "KVPunch")).value_or(kNoPpdChoice);
}

void readFinishing(Finishing &finishing, PMTicketRef ticket, const PpdFile *ppd)
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

    finishing.custom =
        PMTicketGetCFString(ticket, ticketKey("FinishingCustom")).value_or(QStringLiteral(""));
}

// Two, three and four holes alone are written. Where it is another punch, a choice
// that says otherwise goes: the device would punch what the panel does not show.
void writePunch(const _PaperOutputContext &context, PMTicketRef ticket)
{
    const std::int32_t punch = context.finishing.punch;
    if (const auto choice = punchChoice(punch, context.orientation)) {
        setChoice(ticket, "KVPunch", choice);
        return;
    }
    if (punch != kNoPpdChoice && readPunch(ticket, nullptr) != punch)
        removeChoice(ticket, "KVPunch");
}

void writeFinishing(const _PaperOutputContext &context, PMTicketRef ticket)
{
    const Finishing &finishing = context.finishing;
    setNumber(ticket, "FinishingOptions", finishing.options);
    setNumber(ticket, "FinishingOffset", finishing.offset);
    setNumber(ticket, "FinishingOffsetEnableSubset", finishing.offsetSubsetEnabled);
    if (finishing.offsetSubsetEnabled)
        setNumber(ticket, "FinishingOffsetPagesPerSubset", finishing.pagesPerSubset);
    setNumber(ticket, "FinishingSlipSheet", finishing.slipSheet);
    setChoiceValue(ticket, "KVFold", finishing.fold);
    writePunch(context, ticket);
    if (!finishing.hasUnknownStaple)
        setChoice(ticket, "StapleLocation",
                  stapleChoice(chosenStaple(finishing), context.orientation));
    setNumber(ticket, "FinishingBindValue", finishing.bind);
    PMTicketSetCFString(ticket, kClient, ticketKey("FinishingCustom"), finishing.custom);
}

} // namespace

void initializePaperOutput(_PaperOutputContext &context, LongDateTime now)
{
    DefaultStock(&context.jobStock, kJobContextJob);
    context.delayedPrintTime = defaultDelayedPrintTime(now);
}

void readOrientation(_PaperOutputContext &context, PMTicketRef pageFormat)
{
    context.orientation = findNumber(pageFormat, kPMOrientationKey).value_or(1);
}

void readPaperOutput(_PaperOutputContext &context, PMTicketRef settings, PMTicketRef pageFormat,
                     const PpdFile *ppd)
{
    readOrientation(context, pageFormat);
    const std::optional<Dictionary> stock =
        PMTicketGetCFDictionary(settings, ticketKey("JobLevelStock"));
    if (stock) {
        context.jobStock = Stock(&*stock);
    } else {
        context.jobStock = Stock();
        DefaultStock(&context.jobStock, kJobContextJob);
    }
    readColorAndType(context.jobStock, settings, ppd);
    context.outputBin = choiceValue(ppd, settings, "OutputBin", 1);
    context.colorMode = choiceValue(ppd, settings, "KVColorMode", kNoPpdChoice);
    SyncSeparatorsFromTicket(settings, &context.separators, &context.separatorStock);

    readJobType(context, settings);
    context.faxOptions = PMTicketGetCFDictionary(settings, ticketKey("FaxOptions"));
    context.faxRecipients = PMTicketGetCFArray(settings, ticketKey("FaxRecipientList"));
    readBooklet(context, settings);
    readDuplex(context, settings, ppd);
    context.frontCover.reset();
    context.backCover.reset();
    readFinishing(context.finishing, settings, ppd);
    SyncCovers(settings, kSyncRead, &context.frontCover, &context.backCover);
}

void writePaperOutput(_PaperOutputContext &context, PMTicketRef settings)
{
    PMTicketSetCFDictionary(settings, kClient, ticketKey("JobLevelStock"),
                            stockForTicket(context).asTicket());
    setChoiceValue(settings, "MediaColor", context.jobStock.color());
    setChoiceValue(settings, "MediaType", context.jobStock.type());
    setChoiceValue(settings, "OutputBin", context.outputBin);
    setChoiceValue(settings, "KVColorMode", context.colorMode);
    SyncSeparatorsToTicket(settings, context.separators, &context.separatorStock);
    writeJobType(context, settings);
    if (context.faxOptions)
        PMTicketSetCFDictionary(settings, kClient, ticketKey("FaxOptions"), *context.faxOptions);
    if (context.faxRecipients)
        PMTicketSetCFArray(settings, kClient, ticketKey("FaxRecipientList"),
                           *context.faxRecipients);
    writeBooklet(context, settings);
    if (context.opened)
        writeDuplex(context, settings);
    writeFinishing(context, settings);
    SyncCovers(settings, kSyncWrite, &context.frontCover, &context.backCover);
}

} // namespace kelvo
