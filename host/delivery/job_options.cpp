#include "job_options.h"

#include "device_offers.h"
#include "ipp_job_options.h"
#include "ipp_options.h"
#include "job_timing.h"
#include "ppd_words.h"
#include "size_limits.h"
#include "texts.h"

#include <algorithm>

namespace kelvo {

namespace {

using Code = Error::Code;

// Why `option` cannot be sent; empty when it can. Options reach a filter as one
// line of text, and a few names mean something on the way there.
QString problemOf(const JobOption &option)
{
    static const QString dangerous = QStringLiteral(",'\"`\\{}");
    const auto isPlain = [](QChar character) {
        return character.unicode() > 0x20 && character.unicode() < 0x7f
            && !dangerous.contains(character);
    };
    if (!std::all_of(option.name.begin(), option.name.end(), isPlain) || option.name.contains(u'=')
        || option.name.isEmpty() || !std::all_of(option.value.begin(), option.value.end(), isPlain)
        || option.value.isEmpty())
        return translate("Delivery",
                         "blanks, commas, quotes and special characters cannot be sent");
    if (option.value.size() > limits::optionValueBytes)
        return translate("Delivery", "it is longer than %1 characters")
            .arg(limits::optionValueBytes);
    if (option.name.startsWith(QLatin1String("job-"), Qt::CaseInsensitive))
        return translate("Delivery", "the print server drops options of that name");
    if (option.name.compare(QLatin1String("booklet"), Qt::CaseInsensitive) == 0)
        return translate("Delivery", "the print server would make a booklet of its own");
    return {};
}

QString sidesFor(const QString &choice)
{
    static const QMap<QString, QString> words{
        {QStringLiteral("None"), QStringLiteral("one-sided")},
        {QStringLiteral("DuplexNoTumble"), QStringLiteral("two-sided-long-edge")},
        {QStringLiteral("DuplexTumble"), QStringLiteral("two-sided-short-edge")},
    };
    return words.value(choice);
}

QString itself(const QString &choice)
{
    return choice;
}

// "FaceUp" as "face-up": how the print server calls a PPD's output bins.
QString dashed(const QString &choice)
{
    QString word;
    for (qsizetype i = 0; i < choice.size(); ++i) {
        if (i > 0 && choice[i].isUpper() && choice[i - 1].isLower())
            word += u'-';
        word += choice[i] == u'_' ? QChar(u'-') : choice[i].toLower();
    }
    return word;
}

// The print server's own name for what a PPD option says. Where the queue has a
// default under that name, both must agree.
struct TwinRow
{
    const char *option;
    const char *twin;
    QString (*value)(const QString &choice);
};
constexpr TwinRow twinRows[] = {
    {"Duplex", "sides", sidesFor},
    {"PageSize", "media", itself},
    {"OutputBin", "output-bin", dashed},
};

// What filters would do to pages that we have laid out, and how to say no.
struct NeutralRow
{
    const char *name;
    const char *value;
};
constexpr NeutralRow neutralRows[] = {
    {"number-up", "1"},
    {"page-set", "all"},
    {"page-ranges", "1-2147483647"}, // the pages are cut already
    {"mirror", "false"},
    {"outputorder", "normal"},
    {"orientation-requested", "3"}, // portrait: a device that reads tickets turns them itself
    {"fit-to-page", "false"},
    {"scaling", "100"},
    {"page-border", "none"},
};

// Collects options, each name once: the first one stands.
class OptionList
{
public:
    bool contains(const QString &name) const
    {
        return std::any_of(m_options.begin(), m_options.end(), [&](const JobOption &option) {
            return option.name.compare(name, Qt::CaseInsensitive) == 0;
        });
    }
    void add(const QString &name, const QString &value)
    {
        if (!contains(name))
            m_options.push_back({name, value});
    }
    std::vector<JobOption> take() { return std::move(m_options); }
    const std::vector<JobOption> &options() const { return m_options; }

private:
    std::vector<JobOption> m_options;
};

QString collateWord(const JobSettings &settings)
{
    return settings.collate ? QStringLiteral("True") : QStringLiteral("False");
}

// The ticket's choices with the paper of the settings: what the PPD is asked for.
PPDDictionary wantedChoices(const TicketFile &ticket, const JobSettings &settings,
                            const PpdFile *ppd, const QMap<QString, QString> &queueDefaults)
{
    PPDDictionary wanted = ticket.printSettings.ppdChoices;
    // A ticket without a choice means the device's own default. The queue would put
    // its own in there.
    for (auto option = queueDefaults.cbegin(); ppd && option != queueDefaults.cend(); ++option) {
        const PpdOption *known = ppd->findOption(option.key());
        if (known && !wanted.contains(known->keyword) && !isEquipment(*known, *ppd)
            && !known->defaultChoice.isEmpty() && known->defaultChoice != option.value())
            wanted.insert(known->keyword, known->defaultChoice);
    }
    const QString pageSize = QStringLiteral("PageSize");
    if (!ticket.printSettings.ppdChoices.contains(pageSize) && !settings.paperName.isEmpty())
        wanted.insert(pageSize, settings.paperName);
    // The same paper, as it is fed by hand: whichever comes last would win.
    if (wanted.contains(pageSize))
        wanted.remove(QStringLiteral("PageRegion"));
    // Some PPDs have the host's own setting among their options.
    const QString collate = QStringLiteral("Collate");
    if (wanted.contains(collate))
        wanted.insert(collate, collateWord(settings));
    return wanted;
}

// What the PPD lacks is not sent.
void addPpdChoices(const PPDDictionary &wanted, const PpdFile &ppd, OptionList &options)
{
    for (const PpdGroup &group : ppd.groups()) {
        for (const PpdOption &option : group.options) {
            const auto choice = wanted.constFind(option.keyword);
            if (choice != wanted.constEnd() && offers(ppd, option.keyword, *choice))
                options.add(option.keyword, *choice);
        }
    }
}

void addHostOptions(const JobSettings &settings, const PpdFile *ppd,
                    const QMap<QString, QString> &queueDefaults, OptionList &options)
{
    const auto isDefaulted = [&](const char *name) {
        return queueDefaults.contains(QLatin1String(name));
    };
    options.add(QStringLiteral("copies"), QString::number(settings.copies));
    if (settings.copies > 1 || isDefaulted("multiple-document-handling"))
        options.add(QStringLiteral("multiple-document-handling"),
                    settings.collate ? QStringLiteral("separate-documents-collated-copies")
                                     : QStringLiteral("separate-documents-uncollated-copies"));
    if (!isMadeOfIpp(ppd) && (settings.copies > 1 || isDefaulted("Collate")))
        options.add(QStringLiteral("Collate"), collateWord(settings));
    // Pages go out as they are to lie on the paper. Filters fit them to what they take for the
    // printable area, unless they are told.
    if (!readsTickets(ppd))
        options.add(QStringLiteral("print-scaling"), QStringLiteral("none"));
}

// Of what the queue would do with pages that are laid out: nothing.
void addNeutral(const QMap<QString, QString> &queueDefaults, OptionList &options)
{
    for (const NeutralRow &row : neutralRows) {
        const QString neutral = QLatin1String(row.value);
        if (queueDefaults.value(QLatin1String(row.name), neutral) != neutral)
            options.add(QLatin1String(row.name), neutral);
    }
}

void addTwins(const PPDDictionary &wanted, const QMap<QString, QString> &queueDefaults, bool hasPpd,
              OptionList &options)
{
    for (const TwinRow &row : twinRows) {
        const QString option = QLatin1String(row.option);
        const QString twin = QLatin1String(row.twin);
        // Without a PPD the server's name is the only one.
        const bool isSent =
            options.contains(option) || (!hasPpd && option == QLatin1String("PageSize"));
        const QString value = isSent ? row.value(wanted.value(option)) : QString();
        if (!value.isEmpty() && (!hasPpd || queueDefaults.value(twin, value) != value))
            options.add(twin, value);
    }
}

// The server's own attributes, which problemOf() would refuse of a PPD.
void addTiming(const JobTiming &timing, OptionList &options)
{
    if (timing.priority)
        options.add(QLatin1String(kJobPriorityOption), QString::number(*timing.priority));
    if (!timing.holdUntil.isEmpty())
        options.add(QLatin1String(kJobHoldUntilOption), timing.holdUntil);
}

} // namespace

Result<std::vector<JobOption>> jobOptions(const TicketFile &ticket, const JobSettings &settings,
                                          const PpdFile *ppd,
                                          const QMap<QString, QString> &queueDefaults)
{
    const PPDDictionary wanted = wantedChoices(ticket, settings, ppd, queueDefaults);
    const bool isOfIpp = isMadeOfIpp(ppd);
    OptionList options;
    if (ppd && !isOfIpp)
        addPpdChoices(wanted, *ppd, options);
    addHostOptions(settings, ppd, queueDefaults, options);
    if (!isOfIpp)
        addTwins(wanted, queueDefaults, ppd != nullptr, options);
    addNeutral(queueDefaults, options);
    for (const JobOption &option : options.options()) {
        if (const QString problem = problemOf(option); !problem.isEmpty())
            return Error{Code::Refused, option.name + u'=' + option.value,
                         translate("Delivery",
                                   "this setting cannot be sent to a print server: %1; choose "
                                   "another")
                             .arg(problem)};
    }
    addTiming(jobTimingFrom(ticket.printSettings), options);
    std::vector<JobOption> all = options.take();
    if (isOfIpp) { // names and values are the printer's own
        auto attributes = ippJobOptions(wanted, *ppd, queueDefaults);
        all.insert(all.begin(), attributes.begin(), attributes.end());
    }
    return all;
}

JobOption ticketOption(const QByteArray &sha256, bool hasPasscode, bool isFax)
{
    QStringList flags;
    if (hasPasscode)
        flags << QStringLiteral("passcode");
    if (isFax)
        flags << QStringLiteral("fax");
    if (flags.isEmpty())
        flags << QStringLiteral("none");
    return {QStringLiteral("kelvo-ticket"),
            QStringLiteral("1:%1:%2").arg(QString::fromLatin1(sha256.toHex()), flags.join(u'+'))};
}

} // namespace kelvo
