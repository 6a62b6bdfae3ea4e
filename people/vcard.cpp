#include "vcard.h"

#include "card.h"
#include "file_store.h"
#include "size_limits.h"
#include "texts.h"

#include <QByteArrayView>
#include <QStringDecoder>

#include <algorithm>
#include <cctype>
#include <optional>

namespace kelvo {

namespace {

using Code = Error::Code;

// A property as it is written, but without the line breaks within it.
struct RawProperty
{
    CardProperty property; // without its values
    QByteArray value;
    QByteArray charset;
    bool isQuotedPrintable = false;
    bool isBase64 = false;
};

bool isWord(QByteArrayView text, const char *word)
{
    return text.compare(word, Qt::CaseInsensitive) == 0;
}

// ---- bytes

// As UTF-8, where the file says that it is UTF-16.
QByteArray withoutMark(const QByteArray &bytes)
{
    if (bytes.startsWith("\xef\xbb\xbf"))
        return bytes.sliced(3);
    if (bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff")) {
        QStringDecoder decode(QStringDecoder::Utf16);
        return QString(decode(bytes)).toUtf8();
    }
    return bytes;
}

// In a charset that is named and known; else as UTF-8, and where it is none, as Latin-1.
QString decoded(const QByteArray &bytes, const QByteArray &charset)
{
    if (!charset.isEmpty()) {
        QStringDecoder decode(charset.constData());
        if (decode.isValid())
            return decode(bytes);
    }
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
}

// "=C3=84"; what is no code stays as it is.
QByteArray withoutQuotedPrintable(const QByteArray &text)
{
    const auto isDigit = [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; };
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isCode =
            text[i] == '=' && i + 2 < text.size() && isDigit(text[i + 1]) && isDigit(text[i + 2]);
        bytes += isCode ? static_cast<char>(text.sliced(i + 1, 2).toInt(nullptr, 16)) : text[i];
        if (isCode)
            i += 2;
    }
    return bytes;
}

// ---- lines

// The lines of a file, however they end.
class Lines
{
public:
    explicit Lines(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }
    bool atEnd() const { return m_bytes.isEmpty(); }
    bool isContinued() const { return !atEnd() && (m_bytes[0] == ' ' || m_bytes[0] == '\t'); }
    QByteArrayView next()
    {
        qsizetype end = 0;
        while (end < m_bytes.size() && m_bytes[end] != '\r' && m_bytes[end] != '\n')
            ++end;
        const QByteArrayView line = m_bytes.first(end);
        const bool isPair =
            end + 1 < m_bytes.size() && m_bytes[end] == '\r' && m_bytes[end + 1] == '\n';
        m_bytes = m_bytes.sliced(std::min(m_bytes.size(), end + (isPair ? 2 : 1)));
        return line;
    }

private:
    QByteArrayView m_bytes;
};

// Where `sign` stands first outside quotation marks, from `from` on; the end where it does not.
qsizetype placeOf(char sign, QByteArrayView text, qsizetype from = 0)
{
    bool isQuoted = false;
    for (qsizetype i = from; i < text.size(); ++i) {
        if (text[i] == '"')
            isQuoted = !isQuoted;
        else if (text[i] == sign && !isQuoted)
            return i;
    }
    return text.size();
}

std::vector<QByteArrayView> split(QByteArrayView text, char sign)
{
    std::vector<QByteArrayView> parts;
    for (qsizetype from = 0; from <= text.size();) {
        const qsizetype end = placeOf(sign, text, from);
        parts.push_back(text.sliced(from, end - from));
        from = end + 1;
    }
    return parts;
}

QByteArray unquoted(QByteArrayView text)
{
    return text.toByteArray().replace('"', "").trimmed();
}

void takeParameter(RawProperty &raw, QByteArrayView parameter)
{
    const qsizetype equals = parameter.indexOf('=');
    // A phone's "TEL;WORK;FAX": without the name, for there is but one that it can be.
    const QByteArray value = unquoted(equals < 0 ? parameter : parameter.sliced(equals + 1));
    QByteArrayView name = equals < 0 ? QByteArrayView("TYPE") : parameter.first(equals).trimmed();
    if (equals < 0 && (isWord(value, "QUOTED-PRINTABLE") || isWord(value, "BASE64")))
        name = "ENCODING";
    if (isWord(name, "TYPE")) {
        for (const QByteArray &word : value.split(',')) {
            if (!word.trimmed().isEmpty())
                raw.property.addType(QString::fromUtf8(word));
        }
    } else if (isWord(name, "PREF")) {
        raw.property.setPreference(QString::fromUtf8(value));
    } else if (isWord(name, "CHARSET")) {
        raw.charset = value;
    } else if (isWord(name, "ENCODING")) {
        raw.isQuotedPrintable = isWord(value, "QUOTED-PRINTABLE");
        raw.isBase64 = isWord(value, "BASE64") || isWord(value, "B");
    }
}

// None where the line is no property.
std::optional<RawProperty> propertyOf(QByteArrayView line)
{
    qsizetype colon = placeOf(':', line);
    if (colon == line.size()) // a quotation mark that is never closed
        colon = line.indexOf(':');
    if (colon <= 0)
        return std::nullopt;
    RawProperty raw;
    raw.value = line.sliced(colon + 1).toByteArray();
    const std::vector<QByteArrayView> parts = split(line.first(colon), ';');
    const QString name = QString::fromUtf8(parts.front().trimmed());
    const qsizetype dot = name.indexOf(u'.');
    raw.property.group = dot < 0 ? QString() : name.first(dot);
    raw.property.name = name.sliced(dot + 1).toUpper();
    for (std::size_t i = 1; i < parts.size(); ++i)
        takeParameter(raw, parts[i]);
    return raw;
}

// The next property of whole lines; none where the line is none. A line that begins with a
// blank goes on with the one before, and so does the one after a quoted-printable "=".
std::optional<RawProperty> nextProperty(Lines &lines, bool keepsBlanks)
{
    QByteArray line = lines.next().toByteArray();
    while (lines.isContinued())
        line += lines.next().sliced(keepsBlanks ? 0 : 1);
    std::optional<RawProperty> raw = propertyOf(line);
    while (raw && raw->isQuotedPrintable && raw->value.endsWith('=') && !lines.atEnd()) {
        raw->value.chop(1);
        raw->value += lines.next();
    }
    return raw;
}

// ---- values

QString unescaped(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = text[i] == u'\\' && i + 1 < text.size() ? text[i + 1] : QChar();
        const bool isBreak = next == u'n' || next == u'N';
        const bool isEscape = isBreak || (!next.isNull() && QStringView(u",;:\\").contains(next));
        plain += isBreak ? QChar(u'\n') : isEscape ? next : text[i];
        if (isEscape)
            ++i;
    }
    return plain;
}

CardProperty decoded(RawProperty raw)
{
    const auto take = [&raw](QByteArrayView part) {
        QByteArray bytes = part.toByteArray();
        if (raw.isQuotedPrintable)
            bytes = withoutQuotedPrintable(bytes);
        raw.property.values << unescaped(decoded(bytes, raw.charset));
    };
    const QByteArrayView value = raw.value;
    qsizetype from = 0;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == '\\') {
            ++i; // what is behind it is no separator
        } else if (value[i] == ';') {
            take(value.sliced(from, i - from));
            from = i + 1;
        }
    }
    take(value.sliced(from));
    return std::move(raw.property);
}

// ---- cards

struct Card
{
    std::vector<CardProperty> properties;
    bool isPerson = true;
    bool isWhole = false;
};

bool isMark(const std::optional<RawProperty> &raw, QLatin1String name)
{
    return raw && raw->property.name == name && isWord(raw->value.trimmed(), "VCARD");
}

// A card that is inside another one, the assistant's.
void skipCard(Lines &lines)
{
    while (!lines.atEnd() && !isMark(nextProperty(lines, false), QLatin1String("END"))) { }
}

// From behind its beginning to behind its end, or to before the next one's beginning.
Card nextCard(Lines &lines)
{
    Card card;
    bool keepsBlanks = false;
    bool isAssistant = false; // what comes next
    int count = 0;
    while (!lines.atEnd()) {
        const Lines before = lines;
        std::optional<RawProperty> raw = nextProperty(lines, keepsBlanks);
        if (isMark(raw, QLatin1String("END"))) {
            card.isWhole = count <= limits::cardProperties;
            return card;
        }
        if (isMark(raw, QLatin1String("BEGIN"))) {
            if (!isAssistant) {
                lines = before;
                return card;
            }
            skipCard(lines);
        }
        isAssistant = raw && raw->property.name == QLatin1String("AGENT") && raw->value.isEmpty();
        if (!raw || raw->isBase64 || ++count > limits::cardProperties)
            continue;
        const CardProperty property = decoded(*std::move(raw));
        const QString &name = property.name;
        const QString value = property.values.first().trimmed();
        if (name == QLatin1String("VERSION"))
            keepsBlanks = value == QLatin1String("2.1"); // it is folded between words
        else if (name == QLatin1String("KIND") || name == QLatin1String("X-ADDRESSBOOKSERVER-KIND"))
            card.isPerson = value.compare(QLatin1String("group"), Qt::CaseInsensitive) != 0;
        else
            card.properties.push_back(property);
    }
    return card;
}

} // namespace

Result<CardPeople> readCards(const QByteArray &bytes)
{
    const QString where = translate("People", "vCards");
    if (bytes.size() > limits::cardFileBytes) {
        return Error{Code::TooLarge, where,
                     translate("People", "more than %1 MiB; divide the file")
                         .arg(limits::cardFileBytes / limits::MiB)};
    }
    const QByteArray text = withoutMark(bytes);
    CardPeople found;
    int count = 0;
    for (Lines lines(text); !lines.atEnd();) {
        if (!isMark(nextProperty(lines, false), QLatin1String("BEGIN")))
            continue;
        if (++count > limits::cards) {
            return Error{
                Code::TooLarge, where,
                translate("People", "more than %1 cards; divide the file").arg(limits::cards)};
        }
        const Card card = nextCard(lines);
        if (card.isWhole && !card.isPerson)
            continue;
        const Person person = card.isWhole ? personOf(card.properties) : Person();
        if (person.fullName.isEmpty() && person.numbers.empty())
            ++found.damaged;
        else
            found.people.push_back(person);
    }
    if (count == 0) {
        return Error{Code::Damaged, where,
                     translate("People", "there is no card in it; choose a vCard file (.vcf)")};
    }
    return found;
}

Result<CardPeople> readCardFile(const QString &path)
{
    const Result<QByteArray> bytes = readFile(path, limits::cardFileBytes);
    if (!bytes)
        return bytes.error();
    Result<CardPeople> cards = readCards(bytes.value());
    if (cards)
        return cards;
    Error error = cards.error();
    error.where = path;
    return error;
}

} // namespace kelvo
