#include "help_search.h"

#include "characters.h"
#include "help_book.h"

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int excerptLength = 100; // characters, about three lines of the list

bool isBeginning(const QString &text, qsizetype at)
{
    return at >= 0 && (at == 0 || !text[at - 1].isLetterOrNumber());
}

// Where `word` is in `text`, where it begins one if it does so anywhere; -1 when it is not.
qsizetype findWord(const QString &text, const QString &word)
{
    const qsizetype first = text.indexOf(word);
    for (qsizetype at = first; at >= 0; at = text.indexOf(word, at + 1)) {
        if (isBeginning(text, at))
            return at;
    }
    return first;
}

// Behind the heading "See also", which has a name for that, are other pages' titles.
bool isSeeAlso(const QTextBlock &block)
{
    const auto fragment = block.begin();
    return !fragment.atEnd()
        && fragment.fragment().charFormat().anchorNames().contains(QStringLiteral("see"));
}

} // namespace

HelpText helpText(const QString &page, const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    const QString title = document.metaInformation(QTextDocument::DocumentTitle).simplified();
    QString text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (isSeeAlso(block))
            break;
        QString line = block.text();
        line = line.remove(QChar::ObjectReplacementCharacter).simplified();
        if (line.isEmpty() || line == title)
            continue;
        const bool isSentence = QStringView(u".:?!").contains(line.back());
        text += line + (isSentence ? QStringLiteral(" ") : QStringLiteral(": "));
    }
    return {page, title, text.trimmed()};
}

std::vector<HelpText> helpTexts(const HelpBook &book)
{
    std::vector<HelpText> texts;
    for (const QString &page : book.pages()) {
        QFile file(book.findFile(page));
        if (file.open(QIODevice::ReadOnly))
            texts.push_back(helpText(page, QString::fromUtf8(file.readAll())));
    }
    std::ranges::stable_sort(texts, [](const HelpText &one, const HelpText &other) {
        return one.title.localeAwareCompare(other.title) < 0;
    });
    return texts;
}

HelpSearch::HelpSearch(std::vector<HelpText> texts)
{
    m_pages.reserve(texts.size());
    for (HelpText &text : texts) {
        Page page;
        page.title = folded(text.title);
        page.words = text.text.split(u' ', Qt::SkipEmptyParts);
        for (const QString &word : std::as_const(page.words)) {
            page.beginnings.push_back(page.folded.size());
            page.folded += folded(word) + u' ';
        }
        page.text = std::move(text);
        m_pages.push_back(std::move(page));
    }
}

// From a few words before the one at `place` of the folded text; from its start for -1.
QString HelpSearch::excerptAt(const Page &page, qsizetype place)
{
    constexpr qsizetype wordsBefore = 4;
    const auto next = std::ranges::upper_bound(page.beginnings, place);
    const qsizetype word = next - page.beginnings.begin() - 1;
    const qsizetype first = std::max(word - wordsBefore, qsizetype(0));
    QString excerpt = first > 0 ? QStringLiteral("…") : QString();
    qsizetype i = first;
    for (; i < page.words.size() && excerpt.size() + page.words[i].size() < excerptLength; ++i)
        excerpt += page.words[i] + u' ';
    excerpt.chop(i > first ? 1 : 0);
    return i < page.words.size() ? excerpt + u'…' : excerpt;
}

std::vector<HelpHit> HelpSearch::find(const QString &typed) const
{
    struct Ranked
    {
        int rank;
        HelpHit hit;
    };
    std::vector<Ranked> found;
    const QStringList words = folded(typed).simplified().split(u' ', Qt::SkipEmptyParts);
    for (const Page &page : m_pages) {
        constexpr int notInTitle = 1000; // outweighs all words that are no beginnings
        int rank = 0;
        const auto isThere = [&page, &rank](const QString &word) {
            const qsizetype inTitle = findWord(page.title, word);
            const qsizetype inText = findWord(page.folded, word);
            rank += inTitle < 0 ? notInTitle : 0;
            rank += isBeginning(page.title, inTitle) || isBeginning(page.folded, inText) ? 0 : 1;
            return inTitle >= 0 || inText >= 0;
        };
        if (words.isEmpty() || !std::ranges::all_of(words, isThere))
            continue;
        // The title is read anyway.
        const auto telling = std::ranges::find_if(
            words, [&page](const QString &word) { return !page.title.contains(word); });
        const qsizetype place =
            findWord(page.folded, telling == words.end() ? words.front() : *telling);
        found.push_back({rank, {page.text.page, page.text.title, excerptAt(page, place)}});
    }
    std::ranges::stable_sort(found, {}, &Ranked::rank);
    std::vector<HelpHit> hits;
    for (Ranked &each : found)
        hits.push_back(std::move(each.hit));
    return hits;
}

} // namespace kelvo
