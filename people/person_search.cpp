#include "person_search.h"

#include "characters.h"

#include <algorithm>
#include <numeric>

namespace kelvo {

namespace {

// " ann-marie@x.org marie@x.org x.org org": from wherever a word begins, a blank before each.
void addWords(QString &words, const QString &text)
{
    for (const QString &word : folded(text).split(u' ', Qt::SkipEmptyParts)) {
        words += u' ' + word;
        for (qsizetype i = 1; i < word.size(); ++i) {
            if (word[i].isLetterOrNumber() && word[i - 1].isPunct())
                words += u' ' + word.sliced(i);
        }
    }
}

QString digitsOf(const QString &text)
{
    QString digits;
    for (const QChar c : text) {
        if (c.isDigit())
            digits += QChar(u'0' + c.digitValue());
    }
    return digits;
}

// Its digits from wherever a group of them begins: " 15550100 5550100 0100".
void addNumber(QString &words, const QString &number)
{
    for (qsizetype i = 0; i < number.size(); ++i) {
        if (number[i].isDigit() && (i == 0 || !number[i - 1].isDigit()))
            words += u' ' + digitsOf(number.sliced(i));
    }
}

// Whether it is one written with the signs that stand in numbers.
bool isNumber(const QString &typed)
{
    const auto isOfNumbers = [](QChar c) {
        return c.isDigit() || c.isSpace() || QStringView(u"+-()./").contains(c);
    };
    return std::any_of(typed.begin(), typed.end(), [](QChar c) { return c.isDigit(); })
        && std::all_of(typed.begin(), typed.end(), isOfNumbers);
}

std::vector<int> withAll(const std::vector<QString> &entries, const QStringList &beginnings)
{
    std::vector<int> hits;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto isThere = [&entry = entries[i]](const QString &each) {
            return entry.contains(each);
        };
        if (std::all_of(beginnings.begin(), beginnings.end(), isThere))
            hits.push_back(static_cast<int>(i));
    }
    return hits;
}

} // namespace

PersonSearch::PersonSearch(const AddressBookContents &contents)
{
    m_people.reserve(contents.people.size());
    for (const Person &person : contents.people) {
        QString words;
        addWords(words, person.fullName);
        for (const QString &name : {person.firstName, person.lastName}) {
            if (!person.fullName.contains(name))
                addWords(words, name);
        }
        addWords(words, person.organization);
        for (const QString &address : person.emailAddresses)
            addWords(words, address);
        for (const PersonNumber &number : person.numbers)
            addNumber(words, number.number);
        m_people.push_back(words);
    }
    for (const PeopleGroup &group : contents.groups) {
        m_groups.emplace_back();
        addWords(m_groups.back(), group.name);
    }
}

PersonSearch::Hits PersonSearch::find(const QString &typed) const
{
    // A number is one word, also where it is written with blanks.
    QStringList beginnings = isNumber(typed) ? QStringList{digitsOf(typed)}
                                             : folded(typed).split(u' ', Qt::SkipEmptyParts);
    for (QString &each : beginnings)
        each = u' ' + (isNumber(each) ? digitsOf(each) : each);
    return {withAll(m_groups, beginnings), withAll(m_people, beginnings)};
}

} // namespace kelvo
