#include "printer_list.h"

#include "cups_connection.h"
#include "user_destinations.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <vector>

namespace kelvo {

namespace {

using Options = QMap<QString, QString>; // name → value

// A queue as the server has it: what it says of itself, and its defaults by the names of
// job options ("sides" for sides-default).
struct Queue
{
    QString name;
    Options options;
};

// Not of a job: what a queue says of itself, and options that a job gets elsewhere.
bool isDescription(const QString &name)
{
    static const char *const prefixes[] = {"printer-", "marker-",    "job-",
                                           "notify-",  "auth-info-", "device-uri"};
    return std::any_of(std::begin(prefixes), std::end(prefixes),
                       [&](const char *prefix) { return name.startsWith(QLatin1String(prefix)); });
}

Printer::State stateFrom(int value)
{
    switch (value) {
    case IPP_PSTATE_PROCESSING:
        return Printer::State::Busy;
    case IPP_PSTATE_STOPPED:
        return Printer::State::Stopped;
    default:
        return Printer::State::Idle;
    }
}

// What a server that has no printer answers is no failure.
bool isAnswer(ipp_t *response)
{
    const ipp_status_t status = ippGetStatusCode(response);
    return response
        && (status < IPP_STATUS_REDIRECTION_OTHER_SITE || status == IPP_STATUS_ERROR_NOT_FOUND);
}

// One of several texts, as options are written: what would end it stands behind a backslash.
QString inList(const QString &text)
{
    QString written;
    for (const QChar character : text) {
        if (QStringView(u" \t\n\\'\"").contains(character))
            written += u'\\';
        written += character;
    }
    return written;
}

// The texts of an answer, each made once: libcups keeps equal ones in one place, and of hundreds of
// queues nearly all are.
class AnswerTexts
{
public:
    QString text(const char *in)
    {
        const auto found = m_texts.constFind(in);
        return found != m_texts.cend() ? *found : *m_texts.insert(in, QString::fromUtf8(in));
    }
    // "sides" of "sides-default"
    QString option(const char *attribute)
    {
        const auto found = m_options.constFind(attribute);
        return found != m_options.cend()
            ? *found
            : *m_options.insert(attribute,
                                text(attribute).section(QLatin1String("-default"), 0, 0));
    }

private:
    QHash<const char *, QString> m_texts, m_options;
};

// The attribute's values as an option's, with commas between them; none for one that cannot
// be an option's (collections, dates, ...).
std::optional<QString> optionValue(ipp_attribute_t *attribute, AnswerTexts &texts)
{
    const int count = ippGetCount(attribute);
    const bool isWord =
        ippGetValueTag(attribute) == IPP_TAG_KEYWORD || ippGetValueTag(attribute) == IPP_TAG_NAME;
    if (count == 1 && isWord)
        return texts.text(ippGetString(attribute, 0, nullptr));
    QStringList values;
    for (int i = 0; i < count; ++i) {
        switch (ippGetValueTag(attribute)) {
        case IPP_TAG_INTEGER:
        case IPP_TAG_ENUM:
            values << QString::number(ippGetInteger(attribute, i));
            break;
        case IPP_TAG_BOOLEAN:
            values << (ippGetBoolean(attribute, i) ? QStringLiteral("true")
                                                   : QStringLiteral("false"));
            break;
        case IPP_TAG_RANGE: {
            int upper = 0;
            const int lower = ippGetRange(attribute, i, &upper);
            values << (lower == upper ? QString::number(lower)
                                      : QStringLiteral("%1-%2").arg(lower).arg(upper));
            break;
        }
        case IPP_TAG_TEXT:
        case IPP_TAG_TEXTLANG:
        case IPP_TAG_NAME:
        case IPP_TAG_NAMELANG:
        case IPP_TAG_KEYWORD: {
            const QString text = QString::fromUtf8(ippGetString(attribute, i, nullptr));
            values << (count == 1 ? text : inList(text));
            break;
        }
        default:
            return std::nullopt;
        }
    }
    return values.join(u',');
}

void take(ipp_attribute_t *attribute, AnswerTexts &texts, Queue &queue)
{
    const QString name = texts.text(ippGetName(attribute));
    const auto value = optionValue(attribute, texts);
    if (name == QLatin1String("printer-name") && value) {
        queue.name = *value;
        return;
    }
    // As of libcups: a queue's print quality is no default for jobs. And what an administrator
    // has set for `media` comes before what the server makes of the PPD.
    const QString option = texts.option(ippGetName(attribute));
    if (value && option != QLatin1String("print-quality")
        && !(option == QLatin1String("media") && queue.options.contains(option)))
        queue.options.insert(option, *value);
}

Result<std::vector<Queue>> readQueues(http_t *http, Patience &patience)
{
    ipp_t *request = newRequest(IPP_OP_CUPS_GET_PRINTERS);
    askFor(request,
           {"printer-name", "printer-info", "printer-location", "printer-make-and-model",
            "printer-state", "printer-state-message", "printer-state-reasons",
            "printer-is-accepting-jobs", "printer-defaults"});
    const Message response = askAtOnce(http, request, patience);
    if (!isAnswer(response.get()))
        return serverError(patience, serverName());
    std::vector<Queue> queues;
    AnswerTexts texts;
    bool isInQueue = false; // what separates two groups of attributes belongs to none
    for (ipp_attribute_t *attribute = ippFirstAttribute(response.get()); attribute;
         attribute = ippNextAttribute(response.get())) {
        const bool isOfQueue =
            ippGetGroupTag(attribute) == IPP_TAG_PRINTER && ippGetName(attribute);
        if (isOfQueue && !isInQueue)
            queues.emplace_back();
        isInQueue = isOfQueue;
        if (isOfQueue)
            take(attribute, texts, queues.back());
    }
    std::erase_if(queues, [](const Queue &queue) { return queue.name.isEmpty(); });
    std::ranges::sort(queues, [](const Queue &one, const Queue &other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
    });
    return queues;
}

// Empty where the server has none.
QString readDefault(http_t *http)
{
    ipp_t *request = newRequest(IPP_OP_CUPS_GET_DEFAULT);
    askFor(request, {"printer-name"});
    const Message response(cupsDoRequest(http, request, "/"));
    ipp_attribute_t *name = ippFindAttribute(response.get(), "printer-name", IPP_TAG_NAME);
    return QString::fromUtf8(ippGetString(name, 0, nullptr));
}

Printer printerFrom(const QString &name, const Options &options)
{
    const auto option = [&options](const char *key) {
        return options.value(QLatin1String(key)).simplified();
    };
    Printer printer;
    printer.name = name;
    printer.info = option("printer-info");
    printer.location = option("printer-location");
    printer.makeAndModel = option("printer-make-and-model");
    printer.state = stateFrom(option("printer-state").toInt());
    printer.acceptsJobs = option("printer-is-accepting-jobs") != QLatin1String("false");
    printer.stateMessage =
        stateWords(option("printer-state-message"),
                   option("printer-state-reasons").split(u',', Qt::SkipEmptyParts));
    for (auto value = options.cbegin(); value != options.cend(); ++value) {
        if (!isDescription(value.key()))
            printer.defaults.insert(value.key(), value.value());
    }
    return printer;
}

// The queue, as the user has set it, and its instances.
void addPrinters(const Queue &queue, const UserDestinations &user, QList<Printer> &printers)
{
    bool isKnown = false;
    for (const UserDestination &destination : user.destinations) {
        if (!isSamePrinter(destination.name.section(u'/', 0, 0), queue.name))
            continue;
        Options options = queue.options;
        options.insert(destination.options);
        printers << printerFrom(destination.name, options);
        isKnown = true;
    }
    if (!isKnown)
        printers << printerFrom(queue.name, queue.options);
}

} // namespace

Result<QList<Printer>> readPrinters(Patience &patience, const QString &preferred)
{
    const auto http = connectToServer(patience);
    if (!http)
        return http.error();
    const auto queues = readQueues(http.value().get(), patience);
    if (!queues)
        return queues.error();
    patience.progress();
    const UserDestinations user = readUserDestinations();
    QList<Printer> printers;
    for (const Queue &queue : queues.value())
        addPrinters(queue, user, printers);

    const auto markDefault = [&printers](const QString &name) {
        const auto found = std::ranges::find_if(
            printers, [&](const Printer &printer) { return isSamePrinter(printer.name, name); });
        if (found == printers.end())
            return false;
        found->isDefault = true;
        std::rotate(printers.begin(), found, found + 1);
        return true;
    };
    if (printers.isEmpty() || markDefault(user.defaultName) || user.isDefaultForced)
        return printers;
    markDefault(readDefault(http.value().get()));
    const auto first = std::ranges::find(printers, preferred, &Printer::name);
    if (first != printers.end())
        std::rotate(printers.begin(), first, first + 1);
    return printers;
}

Result<PrinterCondition> readCondition(const QString &printer, Patience &patience)
{
    const auto queue = queueName(printer);
    if (!queue)
        return queue.error();
    const auto http = connectToServer(patience);
    if (!http)
        return http.error();
    ipp_t *request = newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue.value());
    askFor(request,
           {"printer-state", "printer-state-message", "printer-state-reasons",
            "printer-is-accepting-jobs"});
    const Message response(cupsDoRequest(http.value().get(), request, "/"));
    if (!response || !lastCallSucceeded())
        return serverError(patience, printer);
    const auto find = [&response](const char *name, ipp_tag_t tag) {
        return ippFindAttribute(response.get(), name, tag);
    };
    PrinterCondition condition;
    condition.state = stateFrom(ippGetInteger(find("printer-state", IPP_TAG_ENUM), 0));
    if (ipp_attribute_t *accepts = find("printer-is-accepting-jobs", IPP_TAG_BOOLEAN))
        condition.acceptsJobs = ippGetBoolean(accepts, 0) != 0;
    QStringList reasons;
    ipp_attribute_t *listed = find("printer-state-reasons", IPP_TAG_KEYWORD);
    for (int i = 0; i < ippGetCount(listed); ++i)
        reasons << QString::fromUtf8(ippGetString(listed, i, nullptr));
    condition.stateMessage = stateWords(
        QString::fromUtf8(ippGetString(find("printer-state-message", IPP_TAG_TEXT), 0, nullptr)),
        reasons);
    return condition;
}

} // namespace kelvo
