#include "job_settings.h"

#include "device_offers.h"
#include "ipp_options.h"
#include "job_timing.h"
#include "nearest_name.h"
#include "ppd_words.h"
#include "standard_words.h"
#include "texts.h"
#include "ticket_layers.h"
#include "values.h"

#include <QRegularExpression>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kelvo {

namespace {

using Code = Error::Code;

const QString client = QStringLiteral("com.kelvo.printingmanager");
const QString pageSizeOption = QStringLiteral("PageSize");

// What the page format calls them and the print server's names for the same.
struct OrientationRow
{
    const char *requested; // orientation-requested
    Orientation orientation;
};
constexpr OrientationRow orientationRows[] = {
    {"3", Orientation::Portrait},
    {"4", Orientation::Landscape},
    {"5", Orientation::ReverseLandscape},
    {"6", Orientation::ReversePortrait},
};

struct WordRow
{
    const char *word;
    const char *choice;
};
constexpr WordRow sidesRows[] = {
    {"one-sided", "None"},
    {"two-sided-long-edge", "DuplexNoTumble"},
    {"two-sided-short-edge", "DuplexTumble"},
};

struct FlagRow
{
    const char *word;
    bool value;
};
// What stands for yes and no, and what choices of PPDs are called that mean it.
constexpr FlagRow flagRows[] = {
    {"true", true}, {"false", false}, {"on", true}, {"off", false}, {"yes", true}, {"no", false},
};
constexpr FlagRow documentHandlingRows[] = {
    {"separate-documents-collated-copies", true},
    {"separate-documents-uncollated-copies", false},
};

constexpr FlagRow outputOrderRows[] = {{"normal", false}, {"reverse", true}};
constexpr FlagRow borderRows[] = {{"none", false}, {"single", true}};

struct UnitRow
{
    const char *unit;
    double points;
};
constexpr UnitRow unitRows[] = {
    {"pt", 1.0},         {"in", 72.0},        {"ft", 12 * 72.0},
    {"mm", 72.0 / 25.4}, {"cm", 72.0 / 2.54}, {"m", 72.0 / 0.0254},
};

template <typename Row, std::size_t N>
const Row *findRow(const Row (&rows)[N], const QString &word, const char *Row::*column)
{
    for (const Row &row : rows) {
        if (word.compare(QLatin1String(row.*column), Qt::CaseInsensitive) == 0)
            return &row;
    }
    return nullptr;
}

template <typename Row, std::size_t N>
QStringList words(const Row (&rows)[N], const char *Row::*column)
{
    QStringList list;
    for (const Row &row : rows)
        list << QLatin1String(row.*column);
    return list;
}

const QVariant *findValue(const Ticket &ticket, const QString &key)
{
    const auto found = ticket.entries.find(key);
    return found == ticket.entries.end() ? nullptr : &found->second.value;
}

template <typename Read>
auto read(const Ticket &ticket, const QString &key, Read reader) -> decltype(reader(QVariant()))
{
    const QVariant *value = findValue(ticket, key);
    return value ? reader(*value) : std::nullopt;
}

const auto asText = [](const QVariant &value) { return string(value); };
const auto asNumber = [](const QVariant &value) { return integer32(value); };
const auto asFlag = [](const QVariant &value) { return boolean(value); };

// "210x297mm" as points; none for anything else, zero and what is no length.
std::optional<QSizeF> sizeFrom(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9]+(?:\\.[0-9]+)?)x([0-9]+(?:\\.[0-9]+)?)([a-z]*)$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    double factor = 1;
    if (const QString unit = match.captured(3); !unit.isEmpty()) {
        const UnitRow *row = findRow(unitRows, unit, &UnitRow::unit);
        if (!row)
            return std::nullopt;
        factor = row->points;
    }
    const auto length = [&](int group) {
        const QByteArray digits = match.captured(group).toLatin1();
        double number = 0;
        const auto parsed =
            std::from_chars(digits.constData(), digits.constData() + digits.size(), number);
        return parsed.ec == std::errc() ? number * factor : 0.0;
    };
    const QSizeF size(length(1), length(2));
    // Custom sizes are device lengths: what is larger than a house is a mistake.
    constexpr double longest = 1e6; // points
    if (!(size.width() > 0 && size.height() > 0 && size.width() < longest
          && size.height() < longest))
        return std::nullopt;
    return size;
}

const QString customPrefix = QStringLiteral("Custom.");

// The PPD's name of the page size that the user called `name`.
std::optional<QString> findPageSizeName(const QString &name, const PpdFile &ppd)
{
    for (const PpdPageSize &size : ppd.pageSizes()) {
        if (size.name.compare(name, Qt::CaseInsensitive) == 0)
            return size.name;
    }
    if (name.startsWith(customPrefix, Qt::CaseInsensitive)) {
        const QString custom = customPrefix + name.mid(customPrefix.size());
        if (paperSize(custom, ppd))
            return custom;
        return std::nullopt;
    }
    // A self-describing name (class_name_210x297mm) says its own size; PPDs round
    // theirs to whole points.
    constexpr double tolerance = 2; // points
    if (name.count(u'_') < 2)
        return std::nullopt;
    const auto wanted = sizeFrom(name.section(u'_', -1));
    if (!wanted)
        return std::nullopt;
    for (const PpdPageSize &size : ppd.pageSizes()) {
        if (std::abs(size.width - wanted->width()) <= tolerance
            && std::abs(size.height - wanted->height()) <= tolerance)
            return size.name;
    }
    return std::nullopt;
}

// The page sizes that the user can name.
QStringList paperNames(const PpdFile &ppd)
{
    QStringList names;
    for (const PpdPageSize &size : ppd.pageSizes())
        names << size.name;
    if (ppd.customPageLimits())
        names << QStringLiteral("Custom.WIDTHxHEIGHT");
    return names;
}

// What is wrong with a custom size that the device does not have, and how one is written;
// empty where `name` means none.
QString customSizeProblem(const QString &name, const PpdFile &ppd)
{
    if (name.section(u'.', 0, 0).compare(QLatin1String("Custom"), Qt::CaseInsensitive) != 0)
        return {};
    const auto limits = ppd.customPageLimits();
    if (!limits)
        return translate("Job", "this printer takes no custom sizes");
    const auto millimetres = [](double points) {
        return QString::number(std::round(points / 72 * 254) / 10);
    };
    return translate("Job",
                     "a custom size is written Custom.WIDTHxHEIGHT with in, mm, cm or pt "
                     "behind it; this printer takes widths from %1 to %2 mm and heights "
                     "from %3 to %4 mm")
        .arg(millimetres(limits->minWidth), millimetres(limits->maxWidth),
             millimetres(limits->minHeight), millimetres(limits->maxHeight));
}

const PpdOption *findOptionInAnyCase(const QString &name, const PpdFile *ppd)
{
    return ppd ? ppd->findOption(name) : nullptr; // libcups compares without case
}

std::optional<QString> findChoiceName(const QString &value, const PpdOption &option)
{
    if (const PpdChoice *choice = option.findChoice(value))
        return choice->keyword;
    for (const PpdChoice &choice : option.choices) {
        if (choice.keyword.compare(value, Qt::CaseInsensitive) == 0)
            return choice.keyword;
    }
    const FlagRow *wanted = findRow(flagRows, value, &FlagRow::word);
    if (!wanted)
        return std::nullopt;
    for (const PpdChoice &choice : option.choices) {
        const FlagRow *meant = findRow(flagRows, choice.keyword, &FlagRow::word);
        if (meant && meant->value == wanted->value)
            return choice.keyword;
    }
    const PpdChoice *none = wanted->value ? nullptr : option.findChoice(QStringLiteral("None"));
    return none ? std::optional(none->keyword) : std::nullopt;
}

QStringList choiceNames(const PpdOption &option)
{
    QStringList names;
    for (const PpdChoice &choice : option.choices)
        names << choice.keyword;
    return names;
}

// Nobody knows whether such a printer can do it.
QString noDescription()
{
    return translate("Job",
                     "the print server has no description (PPD) of this printer, so that it "
                     "cannot be asked for this");
}

// One -o: what it says and means, and what it changes.
struct Request
{
    const AskedOption &asked;
    QString name, value;
    const PpdFile *ppd;
    PrintSession &session;

    Error error(Code code, const QString &detail) const { return {code, asked.text(), detail}; }
    Error unknownValue(const QStringList &known) const
    {
        return error(Code::NotFound,
                     nearestOrAll(translate("Job", "there is no such value"), value, known));
    }
    // `places` is what `edit` is about: the others are only written again.
    TicketPlaces change(const TicketPlaces &places,
                        const std::function<void(JobSettings &)> &edit) const
    {
        JobSettings settings = jobSettingsFrom(session, ppd);
        edit(settings);
        writeJobSettings(settings, ppd, session);
        return places;
    }
    TicketPlaces choose(const QString &option, const QString &choice) const
    {
        session.printSettings().ppdChoices.insert(option, choice);
        return {{kPPDChoices, option}};
    }
};

Result<TicketPlaces> applyPpdChoice(const Request &request, const PpdOption &option)
{
    const bool isPaper = option.keyword == pageSizeOption
        || option.keyword == QLatin1String("PageRegion"); // the same paper, fed by hand
    const auto choice = isPaper ? findPageSizeName(request.value, *request.ppd)
                                : findChoiceName(request.value, option);
    if (!choice && isPaper) {
        const QString problem = customSizeProblem(request.value, *request.ppd);
        return problem.isEmpty() ? request.unknownValue(paperNames(*request.ppd))
                                 : request.error(Code::NotFound, problem);
    }
    if (!choice)
        return request.unknownValue(choiceNames(option));
    if (isPaper)
        return request.change(paperPlaces(),
                              [&](JobSettings &settings) { settings.paperName = *choice; });
    if (!offers(*request.ppd, option.keyword, *choice))
        return request.error(Code::Refused,
                             translate("Job",
                                       "this is equipment of the printer, which its "
                                       "administrator enters (lpadmin -p PRINTER -o …)"));
    return request.choose(option.keyword, *choice);
}

Result<TicketPlaces> applyMedia(const Request &request)
{
    if (!request.ppd)
        return request.change(paperPlaces(),
                              [&](JobSettings &settings) { settings.paperName = request.value; });
    QString paper;
    PPDDictionary choices;
    QStringList known = paperNames(*request.ppd);
    const PpdOption *others[] = {request.ppd->findOption(QStringLiteral("InputSlot")),
                                 request.ppd->findOption(QStringLiteral("MediaType"))};
    for (const PpdOption *option : others) {
        if (option)
            known << choiceNames(*option);
    }
    const QStringList parts = request.value.split(u',');
    for (const QString &part : parts) {
        bool found = false;
        if (const auto name = findPageSizeName(part, *request.ppd)) {
            paper = *name;
            continue;
        }
        for (const PpdOption *option : others) {
            auto choice = option ? findChoiceName(part, *option) : std::nullopt;
            if (option && !choice) // "tray-2", as IPP has it
                choice = findChoiceName(ppdName(part), *option);
            if (!choice)
                continue;
            choices.insert(option->keyword, *choice);
            found = true;
            break;
        }
        if (!found) {
            const QString missing = translate("Job", "this printer has no paper %1").arg(part);
            const QString problem = customSizeProblem(part, *request.ppd);
            return request.error(Code::NotFound,
                                 problem.isEmpty() ? nearestOrAll(missing, part, known)
                                                   : joined({missing, problem}));
        }
    }
    TicketPlaces places;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice)
        places.merge(request.choose(choice.key(), choice.value()));
    if (!paper.isEmpty())
        places.merge(request.change(paperPlaces(),
                                    [&](JobSettings &settings) { settings.paperName = paper; }));
    return places;
}

Result<TicketPlaces> applyOrientation(const Request &request)
{
    const auto *row = findRow(orientationRows, request.value, &OrientationRow::requested);
    if (!row)
        return request.error(Code::OutOfRange,
                             translate("Job",
                                       "3 is portrait, 4 landscape, 5 reverse landscape, "
                                       "6 reverse portrait"));
    return request.change({{kPMPageFormatTicket, kPMOrientationKey}},
                          [&](JobSettings &settings) { settings.orientation = row->orientation; });
}

Result<TicketPlaces> applySides(const Request &request)
{
    const auto *row = findRow(sidesRows, request.value, &WordRow::word);
    if (!row)
        return request.unknownValue(words(sidesRows, &WordRow::word));
    const PpdOption *duplex = findOptionInAnyCase(QStringLiteral("Duplex"), request.ppd);
    const QString choice = QLatin1String(row->choice);
    if (!duplex || !duplex->findChoice(choice)) {
        if (row == &sidesRows[0])
            return TicketPlaces(); // what such a printer does anyway
        return request.error(Code::NotFound,
                             request.ppd
                                 ? translate("Job", "this printer does not print on both sides")
                                 : noDescription());
    }
    return request.choose(duplex->keyword, choice);
}

Result<TicketPlaces> applyCopies(const Request &request)
{
    bool isNumber = false;
    const int copies = request.value.toInt(&isNumber);
    if (!isNumber || copies < 1 || copies > kMaximumCopies)
        return request.error(Code::OutOfRange,
                             translate("Job", "copies are a number from 1 to %1")
                                 .arg(QString::number(kMaximumCopies)));
    return request.change({{kPMPrintSettingsTicket, kPMCopiesKey}},
                          [&](JobSettings &settings) { settings.copies = copies; });
}

QStringList trueAndFalse()
{
    return {QLatin1String(flagRows[0].word), QLatin1String(flagRows[1].word)};
}

// landscape and portrait: one that is false is the other.
Result<TicketPlaces> applyOrientationFlag(const Request &request, Orientation whenTrue)
{
    const FlagRow *row = findRow(flagRows, request.value, &FlagRow::word);
    if (!row)
        return request.unknownValue(trueAndFalse());
    return request.change({{kPMPageFormatTicket, kPMOrientationKey}}, [&](JobSettings &settings) {
        const bool isPortrait = (whenTrue == Orientation::Portrait) == row->value;
        settings.orientation = isPortrait ? Orientation::Portrait : Orientation::Landscape;
    });
}

TicketPlace printPlace(const QString &key)
{
    return {kPMPrintSettingsTicket, key};
}

TicketPlaces scalingPlaces()
{
    return {printPlace(kPMScalingKey), printPlace(kPMScalingPercentKey)};
}

TicketPlaces changeScaling(const Request &request, PageScaling scaling, int percent = 100)
{
    return request.change(scalingPlaces(), [&](JobSettings &settings) {
        settings.layout.scaling = scaling;
        settings.layout.percent = percent;
    });
}

// true: fitted; false: what is done where nobody asks.
Result<TicketPlaces> applyFitToPage(const Request &request)
{
    const FlagRow *row = findRow(flagRows, request.value, &FlagRow::word);
    if (!row)
        return request.unknownValue(trueAndFalse());
    return changeScaling(request, row->value ? PageScaling::Fit : PageScaling::Shrink);
}

Result<TicketPlaces> applyPrintScaling(const Request &request)
{
    const auto scaling = pageScalingFrom(request.value);
    if (!scaling || *scaling == PageScaling::Percent) // which has a name of its own
        return request.unknownValue({QStringLiteral("auto"), QStringLiteral("auto-fit"),
                                     QStringLiteral("fit"), QStringLiteral("fill"),
                                     QStringLiteral("none")});
    return changeScaling(request, *scaling);
}

// A whole number; 0 for anything else.
int numberIn(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? number : 0;
}

Result<TicketPlaces> applyScaling(const Request &request)
{
    const QString digits = request.value.endsWith(u'%') ? request.value.chopped(1) : request.value;
    const int percent = numberIn(digits);
    if (percent < kLeastPercent || percent > kMostPercent)
        return request.error(Code::OutOfRange,
                             translate("Job", "pages are scaled by a number from %1 to %2 percent")
                                 .arg(kLeastPercent)
                                 .arg(kMostPercent));
    return changeScaling(request, PageScaling::Percent, percent);
}

Result<TicketPlaces> applyNumberUp(const Request &request)
{
    const int number = numberIn(request.value);
    if (std::ranges::find(kPagesPerSide, number) == kPagesPerSide.end())
        return request.error(Code::OutOfRange,
                             translate("Job", "a side has room for 1, 2, 4, 6, 9 or 16 pages"));
    return request.change({printPlace(kPMPagesPerSideKey)},
                          [&](JobSettings &settings) { settings.layout.pagesPerSide = number; });
}

// The value of a setting that has names, as `find` knows them.
template <typename Value>
Result<TicketPlaces>
applyNamed(const Request &request, const QString &key, const QStringList &known,
           std::optional<Value> (*find)(const QString &), void (*set)(JobSettings &, Value))
{
    const auto value = find(request.value);
    if (!value)
        return request.unknownValue(known);
    return request.change({printPlace(key)}, [&](JobSettings &settings) { set(settings, *value); });
}

Result<TicketPlaces> applyNumberUpLayout(const Request &request)
{
    QStringList known;
    for (int flow = 0; flow <= int(PageFlow::BtRl); ++flow)
        known << nameOf(PageFlow(flow));
    return applyNamed<PageFlow>(
        request, kPMPageFlowKey, known, pageFlowFrom,
        [](JobSettings &settings, PageFlow flow) { settings.layout.flow = flow; });
}

Result<TicketPlaces> applyPageSet(const Request &request)
{
    return applyNamed<PageSet>(
        request, kPMPageSetKey, {nameOf(PageSet::All), nameOf(PageSet::Odd), nameOf(PageSet::Even)},
        pageSetFrom, [](JobSettings &settings, PageSet set) { settings.pageSet = set; });
}

// One of two words.
template <std::size_t N>
Result<TicketPlaces> applyWord(const Request &request, const FlagRow (&rows)[N], const QString &key,
                               void (*set)(JobSettings &, bool))
{
    const FlagRow *row = findRow(rows, request.value, &FlagRow::word);
    if (!row)
        return request.unknownValue(words(rows, &FlagRow::word));
    return request.change({printPlace(key)},
                          [&](JobSettings &settings) { set(settings, row->value); });
}

template <std::size_t N>
Result<TicketPlaces> applyCollate(const Request &request, const FlagRow (&rows)[N],
                                  const QStringList &known)
{
    const FlagRow *row = findRow(rows, request.value, &FlagRow::word);
    if (!row)
        return request.unknownValue(known);
    return request.change({{kPMPrintSettingsTicket, kPMCollateKey}},
                          [&](JobSettings &settings) { settings.collate = row->value; });
}

Result<TicketPlaces> applyPageRanges(const Request &request)
{
    // Whether the document has them shows when it is there.
    static const QRegularExpression form(QStringLiteral("^[0-9,\\- ]+$"));
    if (!form.match(request.value).hasMatch())
        return request.error(Code::OutOfRange, translate("Job", "pages are written like 1-3,7,9-"));
    return request.change({{kPMPrintSettingsTicket, kPMPageRangesKey}},
                          [&](JobSettings &settings) { settings.pageRanges = request.value; });
}

// The server's own, which no printer has.
TicketPlaces applyTiming(const Request &request, const JobTiming &timing, const QString &key)
{
    writeJobTiming(timing, request.session);
    return {{kPMPrintSettingsTicket, key}};
}

Result<TicketPlaces> applyPriority(const Request &request)
{
    const auto priority = priorityFrom(request.value);
    if (!priority)
        return request.error(priority.error().code, priority.error().detail);
    JobTiming timing = jobTimingFrom(request.session.printSettings());
    timing.priority = priority.value();
    return applyTiming(request, timing, kJobPriorityKey);
}

Result<TicketPlaces> applyHoldUntil(const Request &request)
{
    const auto hold = holdUntilFrom(request.value);
    if (!hold)
        return request.error(hold.error().code, hold.error().detail);
    JobTiming timing = jobTimingFrom(request.session.printSettings());
    timing.holdUntil = hold.value();
    return applyTiming(request, timing, kJobHoldUntilKey);
}

struct OptionRow
{
    const char *name;
    Result<TicketPlaces> (*apply)(const Request &);
};
constexpr OptionRow optionRows[] = {
    {"media", applyMedia},
    {"orientation-requested", applyOrientation},
    {"sides", applySides},
    {"copies", applyCopies},
    {"collate",
     [](const Request &request) { return applyCollate(request, flagRows, trueAndFalse()); }},
    {"multiple-document-handling",
     [](const Request &request) {
         return applyCollate(request, documentHandlingRows,
                             words(documentHandlingRows, &FlagRow::word));
     }},
    {"page-ranges", applyPageRanges},
    {"landscape",
     [](const Request &request) { return applyOrientationFlag(request, Orientation::Landscape); }},
    {"portrait",
     [](const Request &request) { return applyOrientationFlag(request, Orientation::Portrait); }},
    {"fit-to-page", applyFitToPage},
    {"print-scaling", applyPrintScaling},
    {"scaling", applyScaling},
    {"number-up", applyNumberUp},
    {"number-up-layout", applyNumberUpLayout},
    {"page-border",
     [](const Request &request) {
         return applyWord(
             request, borderRows, kPMPageBordersKey,
             [](JobSettings &settings, bool value) { settings.layout.drawsBorders = value; });
     }},
    {"page-set", applyPageSet},
    {"outputorder",
     [](const Request &request) {
         return applyWord(request, outputOrderRows, kPMReverseOrderKey,
                          [](JobSettings &settings, bool value) { settings.isReversed = value; });
     }},
    {kJobPriorityOption, applyPriority},
    {kJobHoldUntilOption, applyHoldUntil},
};

// What IPP's values are called in PPDs of makers.
constexpr WordRow makersRows[] = {
    {"monochrome", "Gray"}, {"monochrome", "KGray"}, {"monochrome", "Grayscale"},
    {"monochrome", "Mono"}, {"monochrome", "Black"}, {"color", "RGB"},
    {"color", "CMYK"},      {"color", "Color"},      {"3", "Draft"},
    {"4", "Normal"},        {"5", "High"},
};

// The choice that says what `value` says of an attribute of IPP, as it is written there.
std::optional<QString> findIppChoice(const QString &attribute, const QString &value,
                                     const PpdOption &option, const PpdFile &ppd)
{
    const QString word = value.toLower();
    for (const PpdChoice &choice : option.choices) {
        if (isMadeOfIpp(&ppd) && ppd.code(option.keyword, choice.keyword).toLower() == word)
            return choice.keyword;
    }
    QStringList names{choiceOfIpp(attribute, word)};
    for (const WordRow &row : makersRows) {
        if (word == QLatin1String(row.word))
            names << QLatin1String(row.choice);
    }
    for (const QString &name : names) {
        if (const auto choice = findChoiceName(name, option))
            return choice;
    }
    return std::nullopt;
}

Error lacksOption(const Request &request)
{
    return request.error(Code::NotFound,
                         translate("Job", "this printer does not have this option"));
}

// A finishing's number, where the print server has written into its PPD what that is.
std::optional<std::pair<QString, QString>> finishingOfNumber(const QString &number,
                                                             const PpdFile &ppd)
{
    // "*StapleLocation SinglePortrait"
    const QString rule = ppd.attribute("cupsIPPFinishings", number).value_or(QString()).trimmed();
    const QString option = rule.section(u' ', 0, 0).mid(1);
    const QString choice = rule.section(u' ', 1, 1);
    if (!rule.startsWith(u'*') || !offers(ppd, option, choice))
        return std::nullopt;
    return std::pair(option, choice);
}

// "finishings=4,20": each belongs to an option of its own kind.
Result<TicketPlaces> applyFinishings(const Request &request)
{
    std::vector<const PpdOption *> options;
    for (const QString &name : finishingOptions()) {
        if (const PpdOption *option = request.ppd->findOption(name))
            options.push_back(option);
    }
    if (options.empty())
        return lacksOption(request);
    PpdSelection choices;
    for (const PpdOption *option : options) // the list is all that is done
        choices.insert(option->keyword, QStringLiteral("None"));
    QStringList known{QStringLiteral("none")};
    for (const QString &value : request.value.split(u',')) {
        bool isFound = value == QLatin1String("none") || value == QLatin1String("3");
        if (const auto finishing = finishingOfNumber(value, *request.ppd)) {
            choices.insert(finishing->first, finishing->second);
            isFound = true;
        }
        for (const PpdOption *option : options) {
            known << choiceNames(*option).mid(1);
            const auto choice =
                isFound ? std::nullopt : findIppChoice(request.name, value, *option, *request.ppd);
            if (!choice)
                continue;
            choices.insert(option->keyword, *choice);
            isFound = true;
        }
        if (!isFound)
            return request.error(
                Code::NotFound,
                nearestOrAll(translate("Job", "there is no such value"), value, known));
    }
    TicketPlaces places;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice)
        places.merge(request.choose(choice.key(), *choice));
    return places;
}

// An attribute of IPP: what the PPD has for it.
Result<TicketPlaces> applyIpp(const Request &request)
{
    if (request.name.compare(QLatin1String("finishings"), Qt::CaseInsensitive) == 0)
        return applyFinishings(request);
    const PpdOption *option = request.ppd->findOption(optionOfIpp(request.name));
    if (!option)
        return lacksOption(request);
    const auto choice = findIppChoice(request.name.toLower(), request.value, *option, *request.ppd);
    if (!choice)
        return request.unknownValue(choiceNames(*option));
    return request.choose(option->keyword, *choice);
}

PageLayout layoutFrom(const Ticket &print)
{
    PageLayout layout;
    const auto named = [&print](const QString &key) {
        return read(print, key, asText).value_or(QString());
    };
    layout.scaling = pageScalingFrom(named(kPMScalingKey)).value_or(layout.scaling);
    const int percent = read(print, kPMScalingPercentKey, asNumber).value_or(layout.percent);
    if (percent >= kLeastPercent && percent <= kMostPercent)
        layout.percent = percent;
    const int perSide = read(print, kPMPagesPerSideKey, asNumber).value_or(1);
    if (std::ranges::find(kPagesPerSide, perSide) != kPagesPerSide.end())
        layout.pagesPerSide = perSide;
    layout.flow = pageFlowFrom(named(kPMPageFlowKey)).value_or(layout.flow);
    layout.drawsBorders = read(print, kPMPageBordersKey, asFlag).value_or(false);
    return layout;
}

// What is as it is where nobody asks has no entry: tickets of jobs that are not laid out do not
// speak of it.
void writePages(const JobSettings &settings, PMTicketRef print)
{
    const PageLayout &layout = settings.layout;
    const auto writeName = [print](const QString &key, const QString &name, bool isDefault) {
        isDefault ? PMTicketReleaseItem(print, key) : PMTicketSetCFString(print, client, key, name);
    };
    const auto writeNumber = [print](const QString &key, int number, bool isDefault) {
        isDefault ? PMTicketReleaseItem(print, key)
                  : PMTicketSetCFNumber(print, client, key, number);
    };
    const auto writeFlag = [print](const QString &key, bool flag) {
        flag ? PMTicketSetCFBoolean(print, client, key, true) : PMTicketReleaseItem(print, key);
    };
    writeName(kPMPageRangesKey, settings.pageRanges, settings.pageRanges.isEmpty());
    writeName(kPMPageSetKey, nameOf(settings.pageSet), settings.pageSet == PageSet::All);
    writeFlag(kPMReverseOrderKey, settings.isReversed);
    writeName(kPMScalingKey, nameOf(layout.scaling), layout.scaling == PageScaling::Shrink);
    writeNumber(kPMScalingPercentKey, layout.percent, layout.scaling != PageScaling::Percent);
    writeNumber(kPMPagesPerSideKey, layout.pagesPerSide, layout.pagesPerSide == 1);
    writeName(kPMPageFlowKey, nameOf(layout.flow), layout.flow == PageFlow::LrTb);
    writeFlag(kPMPageBordersKey, layout.drawsBorders);
}

} // namespace

const QStringList &pageEntries()
{
    static const QStringList keys{kPMPageRangesKey, kPMPageSetKey,        kPMReverseOrderKey,
                                  kPMScalingKey,    kPMScalingPercentKey, kPMPagesPerSideKey,
                                  kPMPageFlowKey,   kPMPageBordersKey};
    return keys;
}

const QStringList &entriesOfOneJob()
{
    static const QStringList keys{kPMJobNameKey, kPMPageRangesKey, kPMPageSetKey, kJobHoldUntilKey};
    return keys;
}

JobSettings jobSettingsFrom(const PrintSession &session, const PpdFile *ppd)
{
    const Ticket &print = session.printSettings();
    const Ticket &page = session.pageFormat();
    JobSettings settings;
    const int copies = read(print, kPMCopiesKey, asNumber).value_or(1);
    settings.copies = copies >= 1 && copies <= kMaximumCopies ? copies : 1;
    settings.collate = read(print, kPMCollateKey, asFlag).value_or(true);
    settings.pageRanges = read(print, kPMPageRangesKey, asText).value_or(QString());
    settings.pageSet =
        pageSetFrom(read(print, kPMPageSetKey, asText).value_or(QString())).value_or(PageSet::All);
    settings.isReversed = read(print, kPMReverseOrderKey, asFlag).value_or(false);
    settings.layout = layoutFrom(print);

    settings.paperName = print.ppdChoices.value(pageSizeOption);
    if (settings.paperName.isEmpty())
        settings.paperName = read(page, kPMPaperNameKey, asText).value_or(QString());
    const PpdOption *papers = ppd ? ppd->findOption(pageSizeOption) : nullptr;
    if (settings.paperName.isEmpty() && papers)
        settings.paperName = papers->defaultChoice;

    const int orientation = read(page, kPMOrientationKey, asNumber).value_or(1);
    if (orientation >= 1 && orientation <= 4)
        settings.orientation = static_cast<Orientation>(orientation);
    return settings;
}

void writeJobSettings(const JobSettings &settings, const PpdFile *ppd, PrintSession &session)
{
    const PMTicketRef print = session.printSettingsTicket();
    const PMTicketRef page = session.pageFormatTicket();
    PMTicketSetCFNumber(print, client, kPMCopiesKey, settings.copies);
    PMTicketSetCFBoolean(print, client, kPMCollateKey, settings.collate);
    writePages(settings, print);
    PMTicketSetCFNumber(page, client, kPMOrientationKey, static_cast<int>(settings.orientation));

    const PpdOption *papers = ppd ? ppd->findOption(pageSizeOption) : nullptr;
    const QString name =
        settings.paperName.isEmpty() && papers ? papers->defaultChoice : settings.paperName;
    if (name.isEmpty()) {
        PMTicketReleaseItem(page, kPMPaperNameKey);
        return;
    }
    PMTicketSetCFString(page, client, kPMPaperNameKey, name);
    const auto size = ppd ? paperSize(name, *ppd) : std::nullopt;
    if (!size)
        return;
    session.printSettings().ppdChoices.insert(pageSizeOption, name);
    PMTicketSetCFArray(page, client, kPMPaperSizeKey, {size->width(), size->height()});
    PMTicketSetCFArray(page, client, kPMUnadjustedPaperRectKey,
                       {0.0, 0.0, size->height(), size->width()});
}

QString defaultPaper(const PpdFile &ppd)
{
    const PpdOption *papers = ppd.findOption(pageSizeOption);
    return papers ? papers->defaultChoice : QString();
}

QString paperAsLargeAs(const QSizeF &page, const PpdFile &ppd)
{
    const auto fits = [&page](const PpdPageSize &size) {
        return isSameSize(page, QSizeF(size.width, size.height));
    };
    const PpdPageSize *usual = ppd.findPageSize(defaultPaper(ppd));
    if (usual && fits(*usual))
        return usual->name;
    // The same paper with other margins or fed otherwise ("A4.Fullbleed", "A4Small") is called
    // after it: its own name is the shortest.
    QString found;
    for (const PpdPageSize &size : ppd.pageSizes()) {
        const bool isShorter = found.isEmpty() || size.name.size() < found.size();
        if (size.name != QLatin1String("Custom") && isShorter && fits(size))
            found = size.name;
    }
    return found;
}

bool namesPaper(const QMap<QString, QString> &queueDefaults, const PpdFile &ppd)
{
    const auto isNamed = [&](const char *option) {
        return queueDefaults.contains(QLatin1String(option));
    };
    if (isNamed("PageSize") || isNamed("PageRegion"))
        return true;
    const auto media = findPageSizeName(queueDefaults.value(QStringLiteral("media")), ppd);
    return media && *media != defaultPaper(ppd);
}

std::optional<Paper> paperNamed(const QString &name, const PpdFile &ppd)
{
    const auto size = paperSize(name, ppd);
    if (!size)
        return std::nullopt;
    Paper paper{*size};
    // The larger margin of each two, since a device turns sheets either way.
    if (const PpdPageSize *known = ppd.findPageSize(name)) {
        paper.margins = {std::max({0.0, known->left, known->width - known->right}),
                         std::max({0.0, known->bottom, known->height - known->top})};
    }
    return paper;
}

std::optional<QSizeF> paperSize(const QString &name, const PpdFile &ppd)
{
    // libcups keeps lengths in single precision: 595.28 comes as 595.280029….
    const auto rounded = [](double points) { return std::round(points * 1000) / 1000; };
    if (const PpdPageSize *size = ppd.findPageSize(name))
        return QSizeF(rounded(size->width), rounded(size->height));
    const auto limits = ppd.customPageLimits();
    if (!limits || !name.startsWith(customPrefix))
        return std::nullopt;
    const auto size = sizeFrom(name.mid(customPrefix.size()));
    // A limit written in millimetres is no whole number of points.
    constexpr double tolerance = 0.5; // points
    if (!size || size->width() < limits->minWidth - tolerance
        || size->width() > limits->maxWidth + tolerance
        || size->height() < limits->minHeight - tolerance
        || size->height() > limits->maxHeight + tolerance)
        return std::nullopt;
    return size;
}

Result<TicketPlaces> applyOption(const AskedOption &asked, const PpdFile *ppd,
                                 PrintSession &session)
{
    const auto isOfIpp = [ppd](const QString &name) {
        return ppd && ippAttributes().contains(name, Qt::CaseInsensitive);
    };
    const OptionValue meant = meaningOf(asked, [&](const QString &name) {
        return findRow(optionRows, name, &OptionRow::name) || findOptionInAnyCase(name, ppd)
            || isOfIpp(name);
    });
    const Request request{asked, meant.name, meant.value, ppd, session};
    const OptionRow *row = findRow(optionRows, request.name, &OptionRow::name);
    const PpdOption *option = findOptionInAnyCase(request.name, ppd);
    TicketPlaces places;
    if (option) {
        auto applied = applyPpdChoice(request, *option);
        if (!applied || !row)
            return applied;
        places = std::move(applied).value();
    }
    if (row) { // both: a PPD's own Collate, and the host's
        auto applied = row->apply(request);
        if (applied)
            applied.value().merge(places);
        return applied;
    }
    if (isOfIpp(request.name))
        return applyIpp(request);

    QStringList known = words(optionRows, &OptionRow::name);
    if (ppd) {
        for (const PpdGroup &group : ppd->groups()) {
            for (const PpdOption &offered : group.options)
                known << offered.keyword;
        }
    }
    // Of a printer without a description nobody knows what it has.
    return request.error(
        ppd ? Code::Unsupported : Code::Refused,
        didYouMean(ppd ? translate("Job", "neither this printer nor kelvo-print has such an option")
                       : noDescription(),
                   asked.name, known));
}

bool isTwoSided(const PPDDictionary &choices, const PpdFile *ppd)
{
    const QString keyword = QStringLiteral("Duplex");
    const PpdOption *option = ppd ? ppd->findOption(keyword) : nullptr;
    const QString choice = option ? choices.value(keyword, option->defaultChoice) : QString();
    if (!option || !option->findChoice(choice))
        return false; // it is not sent
    return choice == QLatin1String("DuplexNoTumble") || choice == QLatin1String("DuplexTumble");
}

} // namespace kelvo
