#include "person_search.h"
#include "table.h"

#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

class TestPersonSearch : public QObject
{
    Q_OBJECT

private slots:
    void findsAsOneTypes_data();
    void findsAsOneTypes();
};

namespace {

AddressBookContents contents()
{
    const auto fax = [](const QString &number) {
        return std::vector<PersonNumber>{{PersonNumber::Kind::Fax, u"work"_s, number}};
    };
    AddressBookContents contents;
    contents.people = {
        {{},
         u"Ann-Marie Lee"_s,
         u"Ann-Marie"_s,
         u"Lee"_s,
         u"Acme"_s,
         {u"am@x.org"_s},
         fax(u"+1 (555) 123-4567"_s),
         {}},
        {{}, u"Jörg Ångström"_s, {}, {}, u"Straße AG"_s, {}, fax(u"030/99"_s), {}},
        {{}, u"Kim"_s, u"Kim"_s, {}, u"2nd Floor"_s, {u"kim.lee@y.org"_s}, fax(u"٣٤"_s), {}},
        {{}, u"Müller, Ｋａｔｅ"_s, u"Kitty"_s, {}, {}, {}, {}, {}},
        {{}, u"山田太郎"_s, {}, {}, {}, {}, {}, {}},
    };
    contents.groups = {{{}, u"Team Leeds"_s, {}}, {{}, u"North 555"_s, {}}};
    return contents;
}

} // namespace

void TestPersonSearch::findsAsOneTypes_data()
{
    // Which people, and which groups.
    const Table<QString, std::vector<int>, std::vector<int>> row{"typed", "people", "groups"};
    row("nothing", u" "_s, {0, 1, 2, 3, 4}, {0, 1});
    row("the beginning of words", u"lee"_s, {0, 2}, {0});
    row("not within one", u"ee"_s, {}, {});
    row("behind a hyphen", u"marie"_s, {0}, {});
    row("several words in any order", u" LEE  a"_s, {0}, {});
    row("without accents", u"jorg angs"_s, {1}, {});
    row("with other accents", u"mùll"_s, {3}, {});
    row("one letter as two", u"STRASSE"_s, {1}, {});
    row("wide letters", u"kate"_s, {3}, {});
    row("no blanks between words", u"山田"_s, {4}, {});
    row("a name that is not shown", u"kitty"_s, {3}, {});
    row("an address's place", u"y.org"_s, {2}, {});
    row("a number otherwise punctuated", u"+1 555-123"_s, {0}, {});
    row("without its country", u"5551234567"_s, {0}, {});
    row("other digits", u"34"_s, {2}, {});
    row("digits in names", u"2"_s, {2}, {});
    row("digits of a group's name", u"555"_s, {0}, {1});
    row("digits within a number", u"5123"_s, {}, {});
    row("a word and digits", u"ann 555-1"_s, {0}, {});
}

void TestPersonSearch::findsAsOneTypes()
{
    QFETCH(QString, typed);
    QFETCH(std::vector<int>, people);
    QFETCH(std::vector<int>, groups);
    const PersonSearch search(contents());
    QCOMPARE(search.find(typed).people, people);
    QCOMPARE(search.find(typed).groups, groups);
}

QTEST_GUILESS_MAIN(TestPersonSearch)
#include "test_person_search.moc"
