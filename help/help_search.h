#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace kelvo {

class HelpBook;

// A page as one line: "No fold: The sheets come out flat. What cannot be folded: Transparencies".
// Without its heading, which is the title, and without what follows the section "see".
struct HelpText
{
    QString page;
    QString title;
    QString text;
};

HelpText helpText(const QString &page, const QString &html);

// Those of all pages, in the order of their titles. A page that cannot be read is left out.
std::vector<HelpText> helpTexts(const HelpBook &book);

struct HelpHit
{
    QString page;
    QString title;
    QString excerpt; // of the text, from shortly before what was found; "…" where it is cut
};

// Finds pages as somebody types: all words that are typed, in any order, also inside of
// others; capitals and accents count alike.
class HelpSearch
{
public:
    HelpSearch() = default;
    explicit HelpSearch(std::vector<HelpText> texts);

    // First the pages that have the words in their titles, then those where words begin
    // with them. None for blanks.
    std::vector<HelpHit> find(const QString &typed) const;

private:
    struct Page
    {
        HelpText text;
        QString title;                     // folded
        QStringList words;                 // of the text, as they stand
        QString folded;                    // the same, a blank between any two
        std::vector<qsizetype> beginnings; // of each word in `folded`
    };
    static QString excerptAt(const Page &page, qsizetype place);

    std::vector<Page> m_pages;
};

} // namespace kelvo
