#include "ppd_translation.h"

#include <QList>

#include <algorithm>
#include <cctype>

namespace kelvo {

namespace {

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

// Calls `take` with what follows `start` in each line that begins with it.
void eachLine(const QByteArray &ppd, const QByteArray &start, const auto &take)
{
    for (qsizetype at = ppd.indexOf(start); at >= 0; at = ppd.indexOf(start, at + start.size())) {
        if (at > 0 && !isLineEnd(ppd[at - 1]))
            continue;
        const auto *begin = ppd.cbegin() + at + start.size();
        take(QByteArrayView(begin, std::find_if(begin, ppd.cend(), isLineEnd)));
    }
}

// Bytes may stand as hexadecimal digits in angle brackets. Translations are UTF-8 whatever
// encoding the file declares.
QString decoded(QByteArrayView text)
{
    if (!text.contains('<')) // as nearly all
        return QString::fromUtf8(text);
    QByteArray bytes;
    while (!text.isEmpty()) {
        const qsizetype close = text.startsWith('<') ? text.indexOf('>') : -1;
        const QByteArrayView digits = close > 0 ? text.sliced(1, close - 1) : QByteArrayView();
        const bool isHex = !digits.isEmpty()
            && std::ranges::all_of(digits, [](unsigned char c) { return std::isxdigit(c) != 0; });
        bytes += isHex ? QByteArray::fromHex(digits.toByteArray()) : QByteArray(1, text.front());
        text = text.sliced(isHex ? close + 1 : 1);
    }
    return QString::fromUtf8(bytes);
}

QList<QByteArray> languagesOf(const QByteArray &ppd)
{
    QList<QByteArray> listed;
    eachLine(ppd, "*cupsLanguages:", [&listed](QByteArrayView list) {
        listed = list.toByteArray().replace('"', ' ').simplified().split(' ');
    });
    return listed;
}

// The name under which the PPD has texts for `language`; empty when it has none.
QByteArray nameOf(const QByteArray &ppd, const QString &language)
{
    const QList<QByteArray> listed = languagesOf(ppd);
    for (const QByteArray &name : {language.toLatin1(), language.section(u'_', 0, 0).toLatin1()}) {
        if (listed.contains(name))
            return name;
    }
    return {};
}

} // namespace

PpdTranslation::PpdTranslation(const QByteArray &ppd, const QString &language)
{
    const QByteArray name = nameOf(ppd, language);
    if (name.isEmpty())
        return;
    // "PageSize A5/DIN A5: """
    eachLine(ppd, '*' + name + '.', [this](QByteArrayView line) {
        const qsizetype slash = line.indexOf('/');
        const qsizetype colon = line.indexOf(':');
        if (slash > 0 && colon > slash)
            m_texts.insert(line.first(slash).toByteArray().simplified(),
                           decoded(line.sliced(slash + 1, colon - slash - 1)));
    });
}

QByteArray withoutTranslations(const QByteArray &ppd)
{
    QList<QByteArray> starts;
    for (const QByteArray &language : languagesOf(ppd))
        starts << '*' + language + '.';
    if (starts.isEmpty())
        return ppd;
    QByteArray rest;
    rest.reserve(ppd.size());
    for (qsizetype at = 0; at < ppd.size();) {
        const qsizetype lineEnd = ppd.indexOf('\n', at);
        const qsizetype next = lineEnd < 0 ? ppd.size() : lineEnd + 1;
        const QByteArrayView line(ppd.constData() + at, next - at);
        const bool isTranslation = line.trimmed().endsWith(": \"\"")
            && std::ranges::any_of(starts, [line](const QByteArray &start) {
                                       return line.startsWith(start);
                                   });
        rest.append(isTranslation ? QByteArrayView("\n") : line);
        at = next;
    }
    return rest;
}

QString PpdTranslation::text(const QByteArray &keyword, const QString &original) const
{
    return text("Translation", keyword, original);
}

QString PpdTranslation::text(const QByteArray &option, const QByteArray &choice,
                             const QString &original) const
{
    return m_texts.isEmpty() ? original : m_texts.value(option + ' ' + choice, original);
}

} // namespace kelvo
