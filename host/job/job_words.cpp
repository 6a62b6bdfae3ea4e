#include "job_words.h"

#include "device_offers.h"
#include "job_describer.h"
#include "job_timing.h"
#include "layout_words.h"
#include "ppd_words.h"
#include "terminal.h"
#include "texts.h"
#include "values.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

const QString paperOption = QStringLiteral("PageSize"); // the host's own control
constexpr int longestValue = 500; // characters of a ticket value that are shown

// Control characters and line ends would let a value pass for a line of its own.
QString quoted(const QString &text)
{
    QString shown = text.left(longestValue);
    shown.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return u'"' + visibleText(shown) + u'"';
}

// Appends `value` to `out`; stops adding once `out` is long enough, so that a
// list of 99,999 pages costs no more than what is shown of it.
void append(const QVariant &value, QString &out)
{
    if (out.size() > longestValue)
        return;
    if (const auto entries = dictionary(value)) {
        out += u'{';
        const char *separator = "";
        for (auto entry = entries->cbegin(); entry != entries->cend(); ++entry) {
            if (out.size() > longestValue)
                return;
            out += QLatin1String(separator) + visibleText(entry.key()) + QStringLiteral(" = ");
            append(entry.value(), out);
            separator = "; ";
        }
        out += u'}';
    } else if (const auto elements = array(value)) {
        out += u'(';
        const char *separator = "";
        for (const QVariant &element : *elements) {
            if (out.size() > longestValue)
                return;
            out += QLatin1String(separator);
            append(element, out);
            separator = ", ";
        }
        out += u')';
    } else if (const auto text = string(value)) {
        out += quoted(*text);
    } else if (const auto flag = boolean(value)) {
        out += *flag ? QStringLiteral("true") : QStringLiteral("false");
    } else if (const auto number = integer64(value)) {
        out += QString::number(*number);
    } else if (const auto fraction = real(value)) {
        out += QString::number(*fraction, 'g', 10);
    } else if (const auto bytes = data(value)) {
        out += QStringLiteral("%1 bytes").arg(bytes->size());
    } else if (value.typeId() == QMetaType::QDateTime) {
        out += value.toDateTime().toUTC().toString(Qt::ISODate);
    }
}

QString valueWords(const QVariant &value)
{
    QString words;
    append(value, words);
    if (words.size() <= longestValue)
        return words;
    words = words.left(longestValue) + QStringLiteral("… (cut)");
    if (const auto elements = array(value))
        words += QStringLiteral(", %1 entries in all").arg(elements->size());
    return words;
}

// The ticket as it is, in no language.
QStringList ticketLines(const Ticket &ticket)
{
    QStringList lines;
    for (const auto &[key, entry] : ticket.entries) {
        QString line = QStringLiteral("%1 = %2").arg(visibleText(key), valueWords(entry.value));
        if (!entry.client.isEmpty())
            line += QStringLiteral(" (written by %1)").arg(visibleText(entry.client));
        lines << line;
    }
    return lines;
}

QString orientationWords(Orientation orientation)
{
    switch (orientation) {
    case Orientation::Portrait:
        return translate("Job", "Portrait");
    case Orientation::Landscape:
        return translate("Job", "Landscape");
    case Orientation::ReversePortrait:
        return translate("Job", "Portrait, upside down");
    case Orientation::ReverseLandscape:
        return translate("Job", "Landscape, upside down");
    }
    return {};
}

void addLayout(const PageLayout &layout, JobWords &words)
{
    const bool isPercent = layout.scaling == PageScaling::Percent;
    (layout.scaling == PageScaling::Shrink ? words.defaults : words.settings)
        << translate("Job", "Scaling: %1")
               .arg(isPercent ? percentInWords(layout.percent) : wordsOf(layout.scaling));
    const QString perSide = QString::number(layout.pagesPerSide);
    if (layout.pagesPerSide == 1)
        words.defaults << translate("Job", "Pages per sheet: %1").arg(perSide);
    else
        words.settings << (layout.drawsBorders
                               ? translate("Job", "Pages per sheet: %1, %2, with borders")
                               : translate("Job", "Pages per sheet: %1, %2"))
                              .arg(perSide, wordsOf(layout.flow));
}

// The host's own settings, each with what counts as the default.
void addHostSettings(const JobSettings &settings, const PpdFile *ppd, JobWords &words)
{
    const auto add = [&words](bool isDefault, const QString &line) {
        (isDefault ? words.defaults : words.settings) << line;
    };
    // Without a PPD nobody on the way sees to it.
    const auto passedOn = [ppd](const QString &line) {
        return ppd ? line
                   : translate("Job", "%1 – passed on, the printer may not heed it").arg(line);
    };
    const QString copies = QString::number(settings.copies);
    add(settings.copies == 1,
        settings.copies == 1 ? translate("Job", "Copies: %1").arg(copies)
            : settings.collate
            ? translate("Job", "Copies: %1, collated").arg(copies)
            : passedOn(translate("Job", "Copies: %1, not collated").arg(copies)));
    add(settings.pageRanges.isEmpty(),
        settings.pageRanges.isEmpty()
            ? translate("Job", "Pages: All")
            : translate("Job", "Pages: %1").arg(visibleText(settings.pageRanges)));
    add(settings.pageSet == PageSet::All,
        translate("Job", "Of these: %1").arg(wordsOf(settings.pageSet)));
    add(!settings.isReversed,
        settings.isReversed ? translate("Job", "Order: Reversed")
                            : translate("Job", "Order: As in the document"));
    addLayout(settings.layout, words);
    const bool isPortrait = settings.orientation == Orientation::Portrait;
    const QString orientation =
        translate("Job", "Orientation: %1").arg(orientationWords(settings.orientation));
    add(isPortrait, isPortrait ? orientation : passedOn(orientation));
    // Where there is a PPD, the paper stands among its options.
    if (!ppd && !settings.paperName.isEmpty())
        add(false,
            passedOn(translate("Job", "Paper size: %1").arg(visibleText(settings.paperName))));
}

QString lineOf(const DescribedSetting &setting)
{
    return translate("Job", "%1: %2").arg(setting.label, setting.words);
}

// Nothing but the ticket tells the device.
bool isOnlyInTicket(const DescribedSetting &setting)
{
    return setting.isOnlyInTicket || setting.place.first() != kPPDChoices;
}

// What the panels set, as their bundle says it.
void addDescribed(const JobDescription &description, bool readsTickets, JobWords &words)
{
    for (const DescribedSetting &setting : description.settings) {
        if (readsTickets || !isOnlyInTicket(setting))
            (setting.isDefault ? words.defaults : words.settings) << lineOf(setting);
    }
}

// When the server prints it. A queue may have a way of its own: what is not set is not told.
void addTiming(const JobTiming &timing, JobWords &words)
{
    if (timing.priority)
        words.settings << translate("Job", "Priority: %1").arg(QString::number(*timing.priority));
    if (timing.isHeld())
        words.settings
            << translate("Job", "On the server: held %1").arg(holdInWords(timing.holdUntil));
}

// Where the description says all that is to be said.
TicketPlaces spokenFor(const JobDescription &description)
{
    TicketPlaces places = description.unspoken;
    for (const DescribedSetting &setting : description.settings) {
        places.insert(setting.place);
        for (const QString &repeat : setting.repeats)
            places.insert({kPMPrintSettingsTicket, repeat});
    }
    return places;
}

void addOption(const PpdOption &option, const PPDDictionary &choices, const PpdFile &ppd,
               JobWords &words)
{
    const QString choice = choices.value(option.keyword, option.defaultChoice);
    if (!choice.isEmpty() && offers(ppd, option.keyword, choice))
        (choice == option.defaultChoice ? words.defaults : words.settings)
            << settingWords(option, choice);
}

// What neither the host nor a panel has a control for.
void addOtherOptions(const PPDDictionary &choices, const PpdFile &ppd,
                     const TicketPlaces &spokenFor, JobWords &words)
{
    for (const PpdGroup &group : ppd.groups()) {
        if (isInstallable(group))
            continue;
        for (const PpdOption &option : group.options) {
            // The same paper again, as it is fed by hand.
            const bool isPaper = option.keyword == paperOption
                || (option.keyword == QLatin1String("PageRegion")
                    && !choices.contains(option.keyword));
            if (!isPaper && !spokenFor.contains({kPPDChoices, option.keyword}))
                addOption(option, choices, ppd, words);
        }
    }
}

// How much of what stands at `place` nobody has words for: a dictionary of which a part has
// words is counted key by key.
int wordlessIn(const QVariant &value, const TicketPlace &place, const TicketPlaces &spokenFor)
{
    const auto known = spokenFor.lower_bound(place);
    if (known == spokenFor.end() || known->first(std::min(known->size(), place.size())) != place)
        return 1;
    const auto parts = dictionary(value);
    if (*known == place || !parts)
        return 0;
    return static_cast<int>(
        std::count_if(parts->keyBegin(), parts->keyEnd(), [&](const QString &key) {
            return !spokenFor.contains(place + TicketPlace{key});
        }));
}

// Entries of the print settings that are not the host's own, and that nobody has words for.
int wordlessEntries(const Ticket &printSettings, const TicketPlaces &spokenFor)
{
    int count = 0;
    for (const auto &[key, entry] : printSettings.entries) {
        if (!isHostEntry(key))
            count += wordlessIn(entry.value, {kPMPrintSettingsTicket, key}, spokenFor);
    }
    return count;
}

} // namespace

QStringList entriesInWords(const JobDescription &description)
{
    QStringList lines;
    for (const DescribedSetting &setting : description.settings) {
        if (isOnlyInTicket(setting) && !setting.isDefault)
            lines << lineOf(setting);
    }
    return lines;
}

JobWords describeJob(const TicketFile &ticket, const JobSettings &settings, const PpdFile *ppd,
                     const SecretKeys &keys, const JobDescription &description,
                     const QStringList &missing)
{
    const bool isRead = readsTickets(ppd);
    const TicketPlaces spoken = spokenFor(description);
    JobWords words;
    addHostSettings(settings, ppd, words);
    addTiming(jobTimingFrom(ticket.printSettings), words);
    const PPDDictionary &choices = ticket.printSettings.ppdChoices;
    if (const PpdOption *papers = ppd ? ppd->findOption(paperOption) : nullptr)
        addOption(*papers, choices, *ppd, words);
    addDescribed(description, isRead, words);
    if (ppd)
        addOtherOptions(choices, *ppd, spoken, words);
    for (const QString &setting : missing)
        words.notSent << (ppd ? translate("Job", "%1 – this printer does not have it")
                              : translate("Job",
                                          "%1 – the print server has no description of this "
                                          "printer"))
                             .arg(setting);
    QStringList unread = isRead ? QStringList() : entriesInWords(description);
    // That there are others is said, too: only the ticket says what.
    if (const int count = wordlessEntries(ticket.printSettings, spoken); count > 0)
        (isRead ? words.settings : unread) << translate(
            "Job", "%n entry(s) that the device panels add (see Ticket)", nullptr, count);
    for (const QString &entry : std::as_const(unread))
        words.notSent << translate("Job", "%1 – this printer reads no tickets").arg(entry);
    const TicketFile shown = masked(ticket, keys);
    words.ticket = ticketLines(shown.printSettings) + ticketLines(shown.pageFormat);
    return words;
}

QString JobWords::asText() const
{
    const struct
    {
        QString heading;
        const QStringList &lines;
    } parts[] = {
        // clang-format off
        {translate("Job", "Cautions:"), cautions},
        {translate("Job", "Settings:"), settings},
        {translate("Job", "Not sent:"), notSent},
        {translate("Job", "As the printer has it:"), defaults},
        {translate("Job", "Ticket:"), ticket},
        // clang-format on
    };
    QString text;
    for (const auto &part : parts) {
        if (part.lines.isEmpty())
            continue;
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + part.heading + u'\n';
        for (const QString &line : part.lines)
            text += QStringLiteral("  ") + terminalText(line) + u'\n';
    }
    return text;
}

QString shortSummary(const TicketFile &ticket, const JobSettings &settings, int pages,
                     qint64 sheets, const SecretKeys &keys,
                     const std::optional<LeadingPage> &leadingPage)
{
    const QString copies = translate("Job", "%n copy(s)", nullptr, settings.copies);
    QStringList parts;
    if (pages > 0) {
        const QString paper = translate("Job", "%n sheet(s)", nullptr, sheets);
        parts << translate("Job", "%n page(s)", nullptr, pages)
              << (settings.copies > 1
                      ? translate("Job", "%1 × %2 = %n sheet(s)", nullptr, sheets * settings.copies)
                            .arg(paper, copies)
                      : paper);
    } else if (settings.copies > 1) {
        parts << copies;
    }
    if (holdsSecret(ticket, keys))
        parts << translate("Job", "locked");
    if (isFax(ticket, keys))
        parts << translate("Job", "fax");
    if (leadingPage && !leadingPage->inShort.isEmpty())
        parts << leadingPage->inShort;
    if (const JobTiming timing = jobTimingFrom(ticket.printSettings); timing.isHeld())
        parts << translate("Job", "held %1").arg(holdInWords(timing.holdUntil));
    return separated(parts);
}

} // namespace kelvo
