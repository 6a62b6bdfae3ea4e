#include "terminal.h"

#include "characters.h"
#include "file_names.h"

#include <QJsonDocument>
#include <QRegularExpression>

namespace kelvo {

namespace {

QString escaped(char32_t c)
{
    switch (c) {
    case '\n':
        return QStringLiteral("\\n");
    case '\t':
        return QStringLiteral("\\t");
    case '\r':
        return QStringLiteral("\\r");
    default:
        break;
    }
    if (c >= kFirstByte && c <= kLastByte)
        c -= kFirstByte - 0x80;
    const char *form = c < 0x100 ? "\\x%02x" : c < 0x10000 ? "\\u%04x" : "\\U%08x";
    return QString::asprintf(form, static_cast<unsigned>(c));
}

// As JSON spells it inside a string; the line ends are those between its values.
QString escapedInJson(char32_t c)
{
    if (c == '\n')
        return QStringLiteral("\n");
    QString text;
    for (const QChar unit : QString::fromUcs4(&c, 1))
        text += QString::asprintf("\\u%04x", unit.unicode());
    return text;
}

QString withEscapes(QStringView text, QString (*escape)(char32_t))
{
    QString visible;
    visible.reserve(text.size());
    eachCharacter(text, [&](char32_t c) {
        if (isSeen(c))
            visible += QString::fromUcs4(&c, 1);
        else
            visible += escape(c);
    });
    return visible;
}

// Without pairs of isolates, which keep a sentence of two scripts in order in a window: no
// harm comes of what they hold together, and a terminal would show them as signs.
QString withoutIsolates(QString text)
{
    static const QRegularExpression pair(
        QStringLiteral("[\u2066-\u2068]([^\u2066-\u2069]*)\u2069"));
    for (qsizetype before = -1; before != text.size();) {
        before = text.size();
        text.replace(pair, QStringLiteral("\\1")); // the innermost
    }
    return text;
}

// Whole at once: two threads' lines stay two lines. Nulls are written out, so
// there are none.
void write(std::FILE *stream, const QString &visible)
{
    std::fputs(visible.toUtf8().constData(), stream);
    std::fflush(stream);
}

} // namespace

QString visibleText(QStringView text)
{
    return withEscapes(text, escaped);
}

QString shortened(const QString &text)
{
    constexpr qsizetype most = 80; // characters, of one line of a terminal
    return text.size() <= most ? text : text.left(most - 1) + u'…';
}

QString terminalText(const QString &text)
{
    return visibleText(withoutIsolates(text));
}

void printLine(std::FILE *stream, const QString &text)
{
    write(stream, terminalText(text) + u'\n');
}

void printLine(std::FILE *stream, const QStringList &columns)
{
    QStringList visible;
    for (const QString &column : columns)
        visible << visibleText(column);
    write(stream, visible.join(u'\t') + u'\n');
}

void printLines(std::FILE *stream, const QString &lines)
{
    QString visible;
    for (const QString &line : lines.split(u'\n'))
        visible += terminalText(line) + u'\n';
    if (lines.endsWith(u'\n'))
        visible.chop(1);
    write(stream, visible);
}

void printJson(std::FILE *stream, const QJsonDocument &json)
{
    write(stream, withEscapes(QString::fromUtf8(json.toJson()), escapedInJson));
}

} // namespace kelvo
