#include "ipp_description.h"

#include "ipp_options.h"

#include <algorithm>

namespace kelvo {

namespace {

constexpr int mostValues = 500;     // of one attribute; more is no printer
constexpr int printerWaitMs = 5000; // a queue without its printer's description prints, too

// Registered keywords, and those that makers and administrators add.
bool isKeyword(const QString &text)
{
    return !text.isEmpty() && text.size() <= 127 && std::ranges::all_of(text, [](QChar character) {
        const char16_t c = character.unicode();
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9')
            || c == u'-' || c == u'_' || c == u'.';
    });
}

ipp_attribute_t *find(ipp_t *response, const QString &name)
{
    return ippFindAttribute(response, name.toUtf8().constData(), IPP_TAG_ZERO);
}

int count(ipp_attribute_t *attribute)
{
    return std::min(ippGetCount(attribute), mostValues);
}

// One value as an option's; empty for one that is none.
QString valueOf(ipp_attribute_t *attribute, int at)
{
    switch (ippGetValueTag(attribute)) {
    case IPP_TAG_KEYWORD:
    case IPP_TAG_NAME:
    case IPP_TAG_NAMELANG: {
        const QString text = QString::fromUtf8(ippGetString(attribute, at, nullptr));
        return isKeyword(text) ? text : QString();
    }
    case IPP_TAG_ENUM: {
        // "finishings-default" has the numbers of "finishings".
        const QString name = QString::fromUtf8(ippGetName(attribute)).section(u'-', 0, -2);
        const QString word = QString::fromUtf8(
            ippEnumString(name.toUtf8().constData(), ippGetInteger(attribute, at)));
        bool isNumber = false; // libcups has no word for it, and neither has the user
        (void)word.toInt(&isNumber);
        return isNumber ? QString() : word;
    }
    case IPP_TAG_RESOLUTION: {
        int down = 0;
        ipp_res_t unit = IPP_RES_PER_INCH;
        const int across = ippGetResolution(attribute, at, &down, &unit);
        const QString dots = across == down ? QString::number(across)
                                            : QStringLiteral("%1x%2").arg(across).arg(down);
        return across > 0 && down > 0
            ? dots + QLatin1String(unit == IPP_RES_PER_INCH ? "dpi" : "dpcm")
            : QString();
    }
    default:
        return {};
    }
}

QStringList valuesOf(ipp_attribute_t *attribute)
{
    QStringList values;
    for (int at = 0; at < count(attribute); ++at) {
        if (const QString value = valueOf(attribute, at); !value.isEmpty())
            values << value;
    }
    values.removeDuplicates();
    return values;
}

// A length of a collection; none where it is not there, or is a range.
std::optional<int> lengthIn(ipp_t *collection, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(collection, name, IPP_TAG_INTEGER);
    if (!attribute)
        return std::nullopt;
    return ippGetInteger(attribute, 0);
}

constexpr int longest = 1000000; // hundredths of a millimetre

bool isLength(int value)
{
    return value > 0 && value <= longest;
}

// One of media-col-database; a size without a name stands in media-supported, too.
void takeMedia(ipp_t *media, IppDescription &description)
{
    ipp_t *size =
        ippGetCollection(ippFindAttribute(media, "media-size", IPP_TAG_BEGIN_COLLECTION), 0);
    if (!size)
        return;
    const auto width = lengthIn(size, "x-dimension");
    const auto length = lengthIn(size, "y-dimension");
    if (!width || !length) {
        IppMediaRange range;
        const auto read = [size](const char *name, int &least, int &most) {
            least = ippGetRange(ippFindAttribute(size, name, IPP_TAG_RANGE), 0, &most);
        };
        read("x-dimension", range.minWidth, range.maxWidth);
        read("y-dimension", range.minLength, range.maxLength);
        if (range.minWidth >= 0 && range.minLength >= 0 && isLength(range.maxWidth)
            && isLength(range.maxLength) && range.minWidth <= range.maxWidth
            && range.minLength <= range.maxLength)
            description.customMedia = range;
        return;
    }
    if (!isLength(*width) || !isLength(*length))
        return;
    QString name = QString::fromUtf8(
        ippGetString(ippFindAttribute(media, "media-size-name", IPP_TAG_ZERO), 0, nullptr));
    if (!isKeyword(name)) {
        const pwg_media_t *known = pwgMediaForSize(*width, *length);
        name = known ? QString::fromUtf8(known->pwg) : QString();
    }
    if (!isKeyword(name))
        return;
    const auto margin = [media](const char *side) {
        return std::clamp(lengthIn(media, side).value_or(0), 0, longest);
    };
    const IppMedia read{name,
                        *width,
                        *length,
                        margin("media-left-margin"),
                        margin("media-bottom-margin"),
                        margin("media-right-margin"),
                        margin("media-top-margin")};
    const bool isThere = std::ranges::any_of(description.media, [&read](const IppMedia &other) {
        return other.name == read.name && other.isBorderless() == read.isBorderless();
    });
    if (!isThere)
        description.media.push_back(read);
}

void takeMediaNames(ipp_attribute_t *supported, IppDescription &description)
{
    for (const QString &name : valuesOf(supported)) {
        const bool isThere = std::ranges::any_of(
            description.media, [&name](const IppMedia &other) { return other.name == name; });
        const pwg_media_t *known = pwgMediaForPWG(name.toUtf8().constData());
        // The ends of a range, and what is no size: the name of a paper or a tray.
        const bool isSize = known && isLength(known->width) && isLength(known->length)
            && !name.startsWith(QLatin1String("custom_m"));
        constexpr int usualMargin = 423; // a sixth of an inch
        if (isSize && !isThere)
            description.media.push_back({name, known->width, known->length, usualMargin,
                                         usualMargin, usualMargin, usualMargin});
    }
}

void takeTemplates(ipp_attribute_t *database, IppDescription &description)
{
    QStringList names;
    for (int at = 0; at < count(database); ++at) {
        const QString name = QString::fromUtf8(ippGetString(
            ippFindAttribute(ippGetCollection(database, at), "finishing-template", IPP_TAG_ZERO), 0,
            nullptr));
        // What a finishing of the standard says, too, is among these already.
        const bool isFinishing =
            description.values.value(QStringLiteral("finishings")).values.contains(name);
        if (isKeyword(name) && name != QLatin1String("none") && !isFinishing)
            names << name;
    }
    names.removeDuplicates();
    if (!names.isEmpty())
        description.values.insert(QStringLiteral("finishing-template"), {names, {}});
}

ipp_t *withAllThatIsAsked(ipp_t *request)
{
    static const char *const attributes[] = {
        "device-uri",
        "document-format-supported",
        "finishings-col-database",
        "finishings-default",
        "finishings-supported",
        "media-col-database",
        "media-col-default",
        "media-default",
        "media-source-supported",
        "media-supported",
        "media-type-supported",
        "output-bin-default",
        "output-bin-supported",
        "print-color-mode-default",
        "print-color-mode-supported",
        "print-content-optimize-default",
        "print-content-optimize-supported",
        "print-quality-default",
        "print-quality-supported",
        "printer-make-and-model",
        "printer-resolution-default",
        "printer-resolution-supported",
        "sides-default",
        "sides-supported",
    };
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(attributes)), nullptr, attributes);
    return request;
}

// The printer at `uri`, which a queue sends its jobs to; empty where it does not say anything.
IppDescription describePrinter(const QString &uri, const Patience &patience)
{
    char scheme[32], user[256], host[256], resource[HTTP_MAX_URI];
    int port = 0;
    const http_uri_status_t status =
        httpSeparateURI(HTTP_URI_CODING_ALL, uri.toUtf8().constData(), scheme, sizeof scheme, user,
                        sizeof user, host, sizeof host, &port, resource, sizeof resource);
    const bool isTls = qstrcmp(scheme, "ipps") == 0;
    if (status < HTTP_URI_STATUS_OK || (!isTls && qstrcmp(scheme, "ipp") != 0))
        return {};
    Patience printers(std::min(printerWaitMs, patience.timeoutMs()));
    const Connection http(
        httpConnect2(host, port, nullptr, AF_UNSPEC,
                     isTls ? HTTP_ENCRYPTION_ALWAYS : HTTP_ENCRYPTION_IF_REQUESTED, 1,
                     printers.timeoutMs(), nullptr));
    if (!http)
        return {};
    endWith(http.get(), printers);
    ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 uri.toUtf8().constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    const Message response(cupsDoRequest(http.get(), withAllThatIsAsked(request), resource));
    if (!response || !lastCallSucceeded())
        return {};
    IppDescription description = ippDescriptionFrom(response.get());
    description.isBehindQueue = true;
    return description;
}

} // namespace

IppDescription ippDescriptionFrom(ipp_t *response)
{
    IppDescription description;
    description.makeAndModel = QString::fromUtf8(
        ippGetString(find(response, QStringLiteral("printer-make-and-model")), 0, nullptr));
    ipp_attribute_t *database = find(response, QStringLiteral("media-col-database"));
    for (int at = 0; at < count(database); ++at)
        takeMedia(ippGetCollection(database, at), description);
    takeMediaNames(find(response, QStringLiteral("media-supported")), description);
    description.defaultMedia = valuesOf(find(response, QStringLiteral("media-default"))).value(0);

    ipp_t *mediaDefault = ippGetCollection(find(response, QStringLiteral("media-col-default")), 0);
    for (const QString &name : ippAttributes()) {
        IppValues values;
        values.values = valuesOf(find(response, name + QStringLiteral("-supported")));
        values.values.removeAll(QStringLiteral("none"));
        ipp_attribute_t *byDefault = name.startsWith(QLatin1String("media-")) && mediaDefault
            ? find(mediaDefault, name)
            : find(response, name + QStringLiteral("-default"));
        values.byDefault = valuesOf(byDefault).value(0);
        if (!values.values.isEmpty())
            description.values.insert(name, values);
    }
    takeTemplates(find(response, QStringLiteral("finishings-col-database")), description);
    return description;
}

Result<IppDescription> describeQueue(http_t *http, const QString &queue, Patience &patience)
{
    ipp_t *request = newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    const Message response(cupsDoRequest(http, withAllThatIsAsked(request), "/"));
    if (!response || !lastCallSucceeded())
        return serverError(patience, queue);
    patience.progress();
    // Of a queue that hands all on, cupsd says that it has no finishings, and no more.
    IppDescription description = ippDescriptionFrom(response.get());
    if (!description.isEmpty())
        return description;
    const QString uri = QString::fromUtf8(
        ippGetString(find(response.get(), QStringLiteral("device-uri")), 0, nullptr));
    // What is "localhost" to a server elsewhere is another machine here.
    if (uri.isEmpty() || !httpAddrLocalhost(httpGetAddress(http)))
        return description;
    return describePrinter(uri, patience);
}

} // namespace kelvo
