#include "xml_entities.h"

#include <QStringView>

#include <array>
#include <optional>

namespace kelvo {

namespace {

struct Predefined
{
    QLatin1String name;
    QChar character;
};
constexpr std::array predefinedRows = {
    Predefined{QLatin1String("amp"), u'&'},   Predefined{QLatin1String("quot"), u'"'},
    Predefined{QLatin1String("lt"), u'<'},    Predefined{QLatin1String("gt"), u'>'},
    Predefined{QLatin1String("apos"), u'\''},
};

constexpr char32_t kLastCharacter = 0x10FFFF;

int digitValue(QChar c)
{
    const char16_t unit = c.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10;
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10;
    return 16;
}

// The character that "65" or "x41" refers to; none when it is no number or no
// character (0, half a surrogate pair, beyond the last one).
std::optional<QString> referredCharacter(QStringView reference)
{
    const bool hexadecimal = reference.startsWith(u'x');
    const QStringView digits = hexadecimal ? reference.sliced(1) : reference;
    const int base = hexadecimal ? 16 : 10;
    if (digits.isEmpty())
        return std::nullopt;
    char32_t character = 0;
    for (const QChar c : digits) {
        const int digit = digitValue(c);
        if (digit >= base)
            return std::nullopt;
        character = character * static_cast<char32_t>(base) + static_cast<char32_t>(digit);
        if (character > kLastCharacter)
            return std::nullopt;
    }
    if (character == 0 || QChar::isSurrogate(character))
        return std::nullopt;
    return QString::fromUcs4(&character, 1);
}

std::optional<QString> replacementOf(QStringView entity,
                                     const QMap<QString, QString> &extraEntities)
{
    if (entity.startsWith(u'#')) {
        if (auto character = referredCharacter(entity.sliced(1)))
            return character;
    }
    for (const Predefined &row : predefinedRows) {
        if (entity == row.name)
            return QString(row.character);
    }
    const auto extra = extraEntities.constFind(entity.toString());
    if (extra == extraEntities.constEnd())
        return std::nullopt;
    return *extra;
}

// Where the entity after the "&" at `start` ends: its ";", or the next "&" or the
// end of the text when it has none. Stopping at the "&" keeps the whole linear.
qsizetype endOfEntity(QStringView text, qsizetype start)
{
    qsizetype end = start + 1;
    while (end < text.size() && text[end] != u';' && text[end] != u'&')
        ++end;
    return end;
}

} // namespace

QString XMLCreateStringByUnescapingEntities(const QString &string,
                                            const QMap<QString, QString> &extraEntities)
{
    const QStringView text(string);
    QString unescaped;
    unescaped.reserve(text.size());
    qsizetype copied = 0; // what stands before is in `unescaped`
    qsizetype start = text.indexOf(u'&');
    while (start >= 0) {
        const qsizetype end = endOfEntity(text, start);
        std::optional<QString> replacement;
        if (end < text.size() && text[end] == u';')
            replacement = replacementOf(text.sliced(start + 1, end - start - 1), extraEntities);
        if (replacement) {
            unescaped += text.sliced(copied, start - copied);
            unescaped += *replacement;
            copied = end + 1;
        }
        start = text.indexOf(u'&', end);
    }
    unescaped += text.sliced(copied);
    return unescaped;
}

} // namespace kelvo
