#include "property_list.h"

#include "base64.h"
#include "file_store.h"
#include "size_limits.h"
#include "texts.h"
#include "values.h"

#include <QDateTime>
#include <QHash>

#include <expat.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <string_view>
#include <vector>

namespace kelvo {

namespace {

using Code = Error::Code;

constexpr qsizetype kShownText = 60;         // bytes of a text that is wrong
constexpr std::size_t kLeastPassedBy = 4096; // bytes of base64 that expat need not see

// The elements of a property list. Root is the list itself; it and the two
// containers hold values, the rest hold text or nothing.
enum class Element { Root, Dictionary, Array, Key, String, Integer, Real, Date, Data, True, False };

struct ElementName
{
    std::string_view name;
    Element element;
};

constexpr ElementName elementNames[] = {
    {"key", Element::Key},         {"string", Element::String}, {"integer", Element::Integer},
    {"dict", Element::Dictionary}, {"true", Element::True},     {"false", Element::False},
    {"array", Element::Array},     {"real", Element::Real},     {"data", Element::Data},
    {"date", Element::Date},       {"plist", Element::Root},
};

std::optional<Element> findElement(std::string_view name)
{
    for (const ElementName &row : elementNames) {
        if (row.name == name)
            return row.element;
    }
    return std::nullopt;
}

bool isContainer(Element element)
{
    return element == Element::Root || element == Element::Dictionary || element == Element::Array;
}

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

// Never null: an empty text in a file is a text.
QString textFrom(std::string_view utf8)
{
    if (utf8.empty())
        return QLatin1String("");
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Decimal or 0x hexadecimal with an optional sign, within signed 64 bits.
std::optional<qint64> integerFrom(std::string_view text)
{
    bool negative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        base = 16;
        text.remove_prefix(2);
    }
    quint64 magnitude = 0;
    const char *end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, magnitude, base);
    if (parsed.ec != std::errc() || parsed.ptr != end)
        return std::nullopt;
    constexpr quint64 most = std::numeric_limits<qint64>::max();
    if (magnitude > most + (negative ? 1 : 0))
        return std::nullopt;
    return static_cast<qint64>(negative ? 0 - magnitude : magnitude);
}

std::optional<double> realFrom(std::string_view text)
{
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double number = 0;
    const char *end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number);
    if (parsed.ec != std::errc() || parsed.ptr != end || !std::isfinite(number))
        return std::nullopt;
    return number;
}

// YYYY-MM-DDTHH:MM:SSZ and nothing else.
std::optional<QDateTime> dateFrom(std::string_view text)
{
    constexpr std::string_view shape = "dddd-dd-ddTdd:dd:ddZ";
    if (text.size() != shape.size())
        return std::nullopt;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (shape[i] == 'd' ? text[i] < '0' || text[i] > '9' : text[i] != shape[i])
            return std::nullopt;
    }
    const auto number = [text](std::size_t at, std::size_t digits) {
        int value = 0;
        for (const char digit : text.substr(at, digits))
            value = value * 10 + (digit - '0');
        return value;
    };
    const QDate date(number(0, 4), number(5, 2), number(8, 2));
    const QTime time(number(11, 2), number(14, 2), number(17, 2));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}

// Dictionary keys, shared: long lists repeat a few keys in every entry. What is
// kept is bounded, so that a list of distinct keys does not stand in memory twice.
class KeyCache
{
public:
    QString text(const QByteArray &utf8)
    {
        constexpr qsizetype longestKey = 128, mostKeys = 4096;
        if (utf8.size() > longestKey)
            return textFrom({utf8.constData(), static_cast<std::size_t>(utf8.size())});
        const auto found = m_keys.constFind(utf8);
        if (found != m_keys.constEnd())
            return *found;
        const QString key = textFrom({utf8.constData(), static_cast<std::size_t>(utf8.size())});
        if (m_keys.size() < mostKeys)
            m_keys.insert(QByteArray(utf8.constData(), utf8.size()), key);
        return key;
    }

private:
    QHash<QByteArray, QString> m_keys;
};

class Parser
{
public:
    Parser()
        : m_expat(XML_ParserCreate(nullptr), &XML_ParserFree)
    {
    }

    Result<QVariant> parse(const QByteArray &xml, const QString &name);

private:
    // A container that is being filled.
    struct Frame
    {
        Element element;
        Dictionary dictionary;
        Array array;
        QString key;
        bool hasKey = false;
    };

    bool feed(std::string_view xml);
    bool passBy(std::string_view base64, std::size_t at);
    void begin(std::string_view name);
    void end();
    void text(std::string_view part);
    void add(QVariant value);
    void finishText(Element element);
    void fail(Code code, const QString &detail);

    static Parser &of(void *user) { return *static_cast<Parser *>(user); }

    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> m_expat;
    std::vector<Frame> m_frames;
    std::optional<Element> m_leaf; // the element whose text is being collected
    QByteArray m_text;             // of data, what an error would show
    Base64Reader m_data;
    XML_Index m_dataBegin = -1; // where the content of the last <data> begins, as expat counts
    std::size_t m_passedBy = 0; // bytes that expat has not been given, and lines
    quint64 m_linesPassedBy = 0;
    KeyCache m_keys;
    qint64 m_nodes = 0;
    std::optional<QVariant> m_list;
    std::optional<Error> m_error; // where: still without the name
    quint64 m_errorLine = 0;
};

void Parser::fail(Code code, const QString &detail)
{
    if (m_error)
        return;
    m_error = Error{code, {}, detail};
    m_errorLine = XML_GetCurrentLineNumber(m_expat.get()) + m_linesPassedBy;
    XML_StopParser(m_expat.get(), XML_FALSE);
}

void Parser::begin(std::string_view name)
{
    // Expat still reports the end of an empty element after it was stopped.
    if (m_error)
        return;
    const auto element = findElement(name);
    if (!element)
        return fail(
            Code::Damaged,
            translate("Files", "<%1> is no element of a property list").arg(textFrom(name)));
    if (m_leaf)
        return fail(Code::Damaged,
                    translate("Files", "<%1> stands inside a value").arg(textFrom(name)));
    if ((*element == Element::Root) != m_frames.empty())
        return fail(Code::Damaged, translate("Files", "<plist> must be the outermost element"));
    if (*element == Element::Root) {
        m_frames.push_back({*element, {}, {}, {}});
        return;
    }

    Frame &frame = m_frames.back();
    if (*element == Element::Key) {
        if (frame.element != Element::Dictionary || frame.hasKey)
            return fail(Code::Damaged, translate("Files", "<key> stands where a value is due"));
    } else {
        if (frame.element == Element::Dictionary && !frame.hasKey)
            return fail(Code::Damaged, translate("Files", "a value stands where <key> is due"));
        if (frame.element == Element::Root && m_list)
            return fail(Code::Damaged, translate("Files", "holds more than one value"));
        if (++m_nodes > limits::plistNodes)
            return fail(Code::TooLarge,
                        translate("Files", "more than %1 values").arg(limits::plistNodes));
    }
    if (!isContainer(*element)) {
        m_leaf = *element;
        m_text.resize(0); // keeps its memory
        if (*element == Element::Data)
            m_dataBegin =
                XML_GetCurrentByteIndex(m_expat.get()) + XML_GetCurrentByteCount(m_expat.get());
        return;
    }
    if (m_frames.size() > static_cast<std::size_t>(limits::plistDepth)) // one is <plist>
        return fail(Code::TooLarge,
                    translate("Files", "nested more than %1 deep").arg(limits::plistDepth));
    m_frames.push_back({*element, {}, {}, {}});
}

void Parser::end()
{
    if (m_error)
        return;
    if (m_leaf) {
        const Element element = *m_leaf;
        m_leaf.reset();
        return finishText(element);
    }
    Frame frame = std::move(m_frames.back());
    m_frames.pop_back();
    switch (frame.element) {
    case Element::Dictionary:
        if (frame.hasKey)
            return fail(Code::Damaged,
                        translate("Files", "the key “%1” has no value").arg(frame.key));
        return add(frame.dictionary);
    case Element::Array:
        return add(frame.array);
    default:
        if (!m_list)
            fail(Code::Damaged, translate("Files", "holds no value"));
    }
}

void Parser::text(std::string_view part)
{
    if (m_error)
        return;
    if (m_leaf == Element::Data) {
        m_data.add(part);
        part = part.substr(
            0, static_cast<std::size_t>(kShownText - std::min(m_text.size(), kShownText)));
    }
    if (m_leaf) {
        m_text.append(part.data(), static_cast<qsizetype>(part.size()));
        return;
    }
    if (!trimmed(part).empty())
        fail(Code::Damaged, translate("Files", "text stands outside a value"));
}

void Parser::finishText(Element element)
{
    const std::string_view whole(m_text.constData(), static_cast<std::size_t>(m_text.size()));
    const auto refuse = [this](Code code, const QString &why) {
        fail(code, why.arg(QString::fromUtf8(m_text.left(kShownText)).trimmed()));
    };
    switch (element) {
    case Element::Key:
        m_frames.back().key = m_keys.text(m_text);
        m_frames.back().hasKey = true;
        return;
    case Element::String:
        return add(textFrom(whole));
    case Element::Integer:
        if (const auto number = integerFrom(trimmed(whole)))
            return add(*number);
        return refuse(Code::OutOfRange, translate("Files", "“%1” is no signed 64-bit integer"));
    case Element::Real:
        if (const auto number = realFrom(trimmed(whole)))
            return add(*number);
        return refuse(Code::OutOfRange, translate("Files", "“%1” is no finite number"));
    case Element::Date:
        if (const auto date = dateFrom(trimmed(whole)))
            return add(*date);
        return refuse(Code::Damaged,
                      translate("Files", "“%1” is no date of the form 2024-01-31T12:00:00Z"));
    case Element::Data:
        if (auto data = m_data.take())
            return add(*std::move(data));
        return refuse(Code::Damaged, translate("Files", "“%1” is no base64"));
    case Element::True:
    case Element::False:
        if (!trimmed(whole).empty())
            return refuse(Code::Damaged,
                          translate("Files", "“%1” is no content of <true/> or <false/>"));
        return add(element == Element::True);
    case Element::Root:
    case Element::Dictionary:
    case Element::Array:
        break;
    }
    Q_UNREACHABLE();
}

void Parser::add(QVariant value)
{
    Frame &frame = m_frames.back();
    switch (frame.element) {
    case Element::Dictionary: {
        // Files of our own are sorted: the end is the right hint for them.
        const qsizetype before = frame.dictionary.size();
        frame.dictionary.insert(frame.dictionary.cend(), frame.key, value);
        frame.hasKey = false;
        if (frame.dictionary.size() == before)
            fail(Code::Damaged, translate("Files", "the key “%1” stands twice").arg(frame.key));
        return;
    }
    case Element::Array:
        frame.array.append(std::move(value));
        return;
    default:
        m_list = std::move(value);
    }
}

// Gives all of `xml` to expat but for large base64, which is nearly all of a store: expat looks at
// each byte twice, and all of it would be copied in between. False where expat gives up.
bool Parser::feed(std::string_view xml)
{
    constexpr std::string_view tag = "<data>";
    std::size_t given = 0;
    const auto give = [&](std::size_t end, bool isLast) {
        const std::size_t begin = std::exchange(given, end);
        return XML_Parse(m_expat.get(), xml.data() + begin, static_cast<int>(end - begin), isLast)
            == XML_STATUS_OK;
    };
    for (std::size_t at = xml.find(tag); at != xml.npos; at = xml.find(tag, at)) {
        at += tag.size();
        const std::size_t end = std::min(xml.find('<', at), xml.size());
        if (end - at >= kLeastPassedBy) {
            if (!give(at, false))
                return false;
            if (passBy(xml.substr(at, end - at), at))
                given = end;
        }
        at = end;
    }
    return give(xml.size(), true);
}

// Whether `base64`, which stands at `at`, is the content of a <data> that expat has just seen begin
// there (it may be part of a comment), has no other characters, and is taken.
bool Parser::passBy(std::string_view base64, std::size_t at)
{
    if (m_leaf != Element::Data || m_dataBegin != static_cast<XML_Index>(at - m_passedBy))
        return false;
    m_data.add(base64);
    if (m_data.isBad()) {
        static_cast<void>(m_data.take());
        return false;
    }
    m_text = QByteArray(base64.data(), kShownText);
    m_passedBy += base64.size();
    m_linesPassedBy += static_cast<quint64>(std::ranges::count(base64, '\n'));
    return true;
}

Result<QVariant> Parser::parse(const QByteArray &xml, const QString &name)
{
    XML_Parser expat = m_expat.get();
    if (!expat)
        return Error{Code::NotReadable, name, translate("Files", "out of memory")};
    XML_SetUserData(expat, this);
    XML_SetElementHandler(
        expat,
        [](void *user, const XML_Char *element, const XML_Char **) { of(user).begin(element); },
        [](void *user, const XML_Char *) { of(user).end(); });
    XML_SetCharacterDataHandler(expat, [](void *user, const XML_Char *part, int size) {
        of(user).text({part, static_cast<std::size_t>(size)});
    });
    // Entities of a file's own could grow without bounds or name other files,
    // and those that are not declared would be dropped silently.
    XML_SetEntityDeclHandler(
        expat,
        [](void *user, const XML_Char *, int, const XML_Char *, int, const XML_Char *,
           const XML_Char *, const XML_Char *, const XML_Char *) {
            of(user).fail(Code::Damaged, translate("Files", "declares an entity"));
        });
    XML_SetSkippedEntityHandler(expat, [](void *user, const XML_Char *entity, int) {
        of(user).fail(
            Code::Damaged,
            translate("Files", "uses the unknown entity “%1”").arg(QString::fromUtf8(entity)));
    });

    const bool isRead = feed({xml.constData(), static_cast<std::size_t>(xml.size())});
    if (!m_error && isRead && m_list)
        return *std::move(m_list);
    if (!m_error) {
        const char *reason = XML_ErrorString(XML_GetErrorCode(expat));
        fail(Code::Damaged, reason ? QString::fromUtf8(reason) : translate("Files", "not XML"));
    }
    const QString line = QString::number(m_errorLine);
    m_error->where = translate("Files", "%1, line %2").arg(name, line);
    m_error->place = translate("Files", "line %1").arg(line);
    return *std::move(m_error);
}

} // namespace

Result<QVariant> CFPropertyListCreateFromXMLData(const QByteArray &xml, const QString &name)
{
    if (xml.size() > limits::plistBytes)
        return Error{Code::TooLarge, name,
                     translate("Files", "more than %1 bytes").arg(limits::plistBytes)};
    if (xml.startsWith("bplist"))
        return Error{Code::Unsupported, name,
                     translate("Files", "a binary property list; only the XML form is read")};
    return Parser().parse(xml, name);
}

Result<QVariant> readPropertyList(const QString &path)
{
    const auto bytes = readFile(path, limits::plistBytes);
    if (!bytes)
        return bytes.error();
    return CFPropertyListCreateFromXMLData(bytes.value(), path);
}

} // namespace kelvo
