#include "card_files.h"
#include "files.h"
#include "people_rows.h"
#include "preferences.h"
#include "recent_recipients.h"
#include "recipient_input.h"
#include "table.h"

#include <QFileInfo>
#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

// Whom a fax is sent to: typed, picked, and remembered.
class TestFaxPeople : public QObject
{
    Q_OBJECT

private slots:
    void whatIsNotTouchedStays_data();
    void whatIsNotTouchedStays();
    void anotherNumberLosesItsLabel();
    void numbersAreJudged_data();
    void numbersAreJudged();
    void peopleBecomeRecipients_data();
    void peopleBecomeRecipients();
    void rowsAreNumbersAndGroups();
    void manyAreAddedOnce_data();
    void manyAreAddedOnce();
    void recentOnesAreRemembered();
    void aDamagedStoreIsSetAside();
    void cardsOfSeveralFilesAreOneList();
};

namespace {

using Numbers = std::vector<PersonNumber>;

PersonNumber fax(const QString &number, const QString &label = u"work"_s)
{
    return {PersonNumber::Kind::Fax, label, number};
}

PersonNumber phone(const QString &number)
{
    return {PersonNumber::Kind::Phone, u"work"_s, number};
}

Person person(const QString &name, const Numbers &numbers)
{
    return {.fullName = name, .firstName = name, .numbers = numbers};
}

// 5551, 5552 …
FaxRecipientList recipientsNumbered(int from, int to)
{
    FaxRecipientList list;
    for (int number = from; number <= to; ++number) {
        auto *recipient = new FaxRecipient(u"Ann"_s, {}, QString::number(5550 + number));
        list.append(recipient);
        FaxRecipientRelease(recipient);
    }
    return list;
}

QStringList numbersOf(const std::vector<FaxRecipient> &recipients)
{
    QStringList numbers;
    for (const FaxRecipient &recipient : recipients)
        numbers.append(recipient.faxNumber().value_or(u"none"_s));
    return numbers;
}

QString storePath()
{
    return userPreferencePath(kRecentRecipientsFile).value();
}

} // namespace

void TestFaxPeople::whatIsNotTouchedStays_data()
{
    const Table<FaxString, QString, FaxString> row{"before", "typed", "after"};
    row("absent", {}, "", {});
    row("empty", u""_s, "", u""_s);
    row("a text", u" Ann "_s, " Ann ", u" Ann "_s);
    row("typed", {}, " Ann ", u"Ann"_s);
    row("emptied", u"Ann"_s, "", FaxString());
    row("blanks instead", u"Ann"_s, "  ", FaxString());
    row("blanks into an empty one", u""_s, "  ", FaxString());
}

void TestFaxPeople::whatIsNotTouchedStays()
{
    QFETCH(FaxString, before);
    QFETCH(QString, typed);
    QTEST(takenText(before, typed), "after");
}

void TestFaxPeople::anotherNumberLosesItsLabel()
{
    FaxRecipient recipient(u"Ann"_s, u""_s, u"555-1234"_s);
    recipient.setFaxNumberLabel(u"work"_s);
    recipient.setUID(u"u-1"_s);
    RecipientInput input = inputOf(recipient);
    input.firstName = u"Bo"_s;
    input.mailbox = u"17"_s;
    take(input, recipient);
    QCOMPARE(recipient.toTicket(),
             (Dictionary{{"FirstName", "Bo"},
                         {"LastName", ""},
                         {"FaxNumber", "555-1234"},
                         {"FaxNumberLabel", "work"},
                         {"Mailbox", "17"},
                         {"UID", "u-1"}}));
    input.faxNumber = u"555-1235"_s;
    take(input, recipient);
    QCOMPARE(recipient.faxNumberLabel(), FaxString());
    QCOMPARE(recipient.uid(), u"u-1"_s); // the person is the same
}

void TestFaxPeople::numbersAreJudged_data()
{
    const Table<QString, int> row{"typed", "state"};
    row("nothing", " ", int(NumberState::Missing));
    row("letters that are not dialed", "see card", int(NumberState::NotDialable));
    row("a code letter", "(A)", int(NumberState::Dialable));
    row("50 and punctuation", "+ " + QString(50, u'1'), int(NumberState::Dialable));
    row("51", QString(51, u'1'), int(NumberState::TooLong));
}

void TestFaxPeople::numbersAreJudged()
{
    QFETCH(QString, typed);
    QTEST(int(numberState(typed)), "state");
}

void TestFaxPeople::peopleBecomeRecipients_data()
{
    const Table<Person, Dictionary> row{"person", "ticket"};
    row("all of one",
        {.uid = "u-1",
         .fullName = "Dr. Ann Lee",
         .firstName = "Ann",
         .lastName = "Lee",
         .organization = "Kelvo",
         .emailAddresses = {"ann@lee", "second@lee"},
         .numbers = {fax("+1 555"), phone("556"), phone("557")},
         .mailbox = "17"},
        {{"FirstName", "Ann"},
         {"LastName", "Lee"},
         {"FaxNumber", "+1 555"},
         {"FaxNumberLabel", "work"},
         {"Organization", "Kelvo"},
         {"PhoneNumber", "556"},
         {"EmailAddress", "ann@lee"},
         {"Mailbox", "17"},
         {"UID", "u-1"}});
    row("a name in one piece", {.fullName = "Front desk", .numbers = {fax("1", {})}},
        {{"FirstName", "Front desk"}, {"FaxNumber", "1"}});
    row("a last name alone", {.fullName = "Lee", .lastName = "Lee", .numbers = {fax("1", {})}},
        {{"LastName", "Lee"}, {"FaxNumber", "1"}});
}

void TestFaxPeople::peopleBecomeRecipients()
{
    QFETCH(Person, person);
    QTEST(recipientFrom(person, person.numbers.front()).toTicket(), "ticket");
}

void TestFaxPeople::rowsAreNumbersAndGroups()
{
    const Person two = person("Two", {fax("21"), phone("22"), fax("23", "home")});
    const Person none = person("None", {phone("31")});
    const Person words = person("Words", {fax("see card")});
    const PeopleToPick people(
        {.people = {person("One", {fax("11")}), none, two, words},
         .groups = {{.uid = "g", .name = "Group Two", .members = {none, two, words}}}});

    const PeopleToPick::Found all = people.find({});
    QStringList names;
    for (const int row : all.rows)
        names.append(people.row(row).name + u' '
                     + numbersOf(people.row(row).recipients).join(u'+'));
    QCOMPARE(names, (QStringList{"Group Two 21", "One 11", "Two 21", "Two 23"}));
    QCOMPARE(all.withoutNumber, 2);
    QCOMPARE(people.row(all.rows.front()).withoutNumber, (QStringList{"None", "Words"}));

    const PeopleToPick::Found two3 = people.find("two");
    QCOMPARE(two3.rows.size(), std::size_t(3)); // the group, and the person at both numbers
    QCOMPARE(two3.withoutNumber, 0);
    QCOMPARE(people.find("none").withoutNumber, 1);
    QVERIFY(!people.isEmpty());
    QVERIFY(PeopleToPick(AddressBookContents()).isEmpty());
    QVERIFY(!PeopleToPick(AddressBookContents{.people = {none}, .groups = {}}).isEmpty());
}

void TestFaxPeople::manyAreAddedOnce_data()
{
    const auto row = [](const char *name, const std::vector<int> &rows, const QStringList &added,
                        int alreadyThere, const QStringList &withoutNumber) {
        QTest::newRow(name) << rows << added << alreadyThere << withoutNumber;
    };
    QTest::addColumn<std::vector<int>>("rows");
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<int>("alreadyThere");
    QTest::addColumn<QStringList>("withoutNumber");
    row("one who is there is asked for", {1}, {"11"}, 0, {});
    row("of two, the one who is there is left out", {1, 2}, {"21"}, 1, {});
    row("a group is many", {0}, {"21"}, 1, {"None"});
    row("a group and its member", {0, 2}, {"21"}, 2, {"None"});
}

void TestFaxPeople::manyAreAddedOnce()
{
    QFETCH(std::vector<int>, rows);
    QFETCH(int, alreadyThere);
    QFETCH(QStringList, withoutNumber);
    const Person one = person("One", {fax("11")}), two = person("Two", {fax("21")});
    const PeopleToPick people(
        {.people = {one, two},
         .groups = {{.uid = "g", .name = "G", .members = {one, two, person("None", {})}}}});
    RecipientSet inList;
    inList.add(FaxRecipient(u"One"_s, {}, u"11"_s));
    inList.add(FaxRecipient(u"Two"_s, u""_s, u"21"_s)); // with an empty last name: another one

    std::vector<const PeopleRow *> selected;
    for (const int each : rows)
        selected.push_back(&people.row(each));
    const PeopleToAdd adding = peopleToAdd(selected, inList, true);
    QTEST(numbersOf(adding.recipients), "added");
    QCOMPARE(adding.alreadyThere, alreadyThere);
    QCOMPARE(adding.withoutNumber, withoutNumber);
    // Nobody is asked, and everybody is added.
    QCOMPARE(peopleToAdd(selected, inList, false).alreadyThere, 0);
    QVERIFY(inList.containsAll(people.row(1)));
    QVERIFY(!inList.containsAll(people.row(0)));
}

void TestFaxPeople::recentOnesAreRemembered()
{
    QVERIFY(forgetRecipients());
    QVERIFY(recentRecipients().empty());
    rememberRecipients(recipientsNumbered(1, 15));
    FaxRecipientList more = recipientsNumbered(15, 24);
    auto *unsendable = new FaxRecipient(u"Ann"_s, {}, u"none"_s);
    more.insertAtIndex(unsendable, 0);
    FaxRecipientRelease(unsendable);
    more.recipientAtIndex(1)->setMailbox(u""_s); // of the newest one, whatever it was before
    rememberRecipients(more);

    const std::vector<FaxRecipient> recent = recentRecipients();
    QCOMPARE(recent.size(), std::size_t(mostRecentRecipients));
    QStringList expected;
    for (int number = 15; number <= 24; ++number)
        expected.append(QString::number(5550 + number));
    for (int number = 1; number <= 10; ++number)
        expected.append(QString::number(5550 + number));
    QCOMPARE(numbersOf(recent), expected);
    QCOMPARE(recent.front().mailbox(), u""_s);
    QCOMPARE(QFileInfo(storePath()).permissions()
                 & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
             QFile::Permissions());
    rememberRecipients({}); // a fax to nobody changes nothing
    QCOMPARE(recentRecipients().size(), std::size_t(mostRecentRecipients));
    QVERIFY(forgetRecipients());
    QVERIFY(!QFileInfo::exists(storePath()));
}

void TestFaxPeople::aDamagedStoreIsSetAside()
{
    putFile(storePath(), "no property list");
    QVERIFY(recentRecipients().empty());
    rememberRecipients(recipientsNumbered(1, 2));
    QCOMPARE(numbersOf(recentRecipients()), (QStringList{"5551", "5552"}));
    QCOMPARE(bytesOf(storePath() + ".damaged-1"), "no property list");
    // Of a sound file with other things in it, what is a recipient.
    WriteUserPreferences(kRecentRecipientsFile,
                         {{"Recipients", Array{7, Dictionary{{"FaxNumber", "1"}}, Dictionary()}}});
    QCOMPARE(numbersOf(recentRecipients()), QStringList("1"));
}

void TestFaxPeople::cardsOfSeveralFilesAreOneList()
{
    const auto card = [](const QByteArray &name, const QByteArray &number) {
        return "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name + "\r\nTEL;TYPE=FAX,WORK:" + number
            + "\r\nEND:VCARD\r\n";
    };
    const QString a = QFileInfo("a.vcf").absoluteFilePath();
    const QString b = QFileInfo("b.vcf").absoluteFilePath();
    putFile(a, card("Zoe", "1") + card("Ann", "2"));
    putFile(b, card("Mia", "3") + "BEGIN:VCARD\r\nFN:Torn\r\n");
    putFile("c.txt", "no card");
    CardFiles read = withCardFiles({}, {a, "c.txt", b, "gone.vcf"});
    const auto namesOf = [](const CardFiles &files) {
        QStringList names;
        for (const Person &each : peopleIn(files.files).people)
            names.append(each.fullName);
        return names;
    };
    QCOMPARE(namesOf(read), (QStringList{"Ann", "Mia", "Zoe"}));
    QStringList problems;
    for (const CardProblem &problem : read.problems) {
        problems.append(QStringLiteral("%1 %2").arg(problem.path).arg(problem.damaged));
        QCOMPARE(problem.reason.isEmpty(), problem.damaged > 0);
    }
    QCOMPARE(problems, (QStringList{"c.txt 0", b + " 1", "gone.vcf 0"}));

    // The same file once more has what it has now; what cannot be read leaves the rest.
    putFile(a, card("Bo", "4"));
    read = withCardFiles(read.files, {a, "gone.vcf"});
    QCOMPARE(namesOf(read), (QStringList{"Bo", "Mia"}));
    const std::atomic_bool cancelled = true;
    QCOMPARE(namesOf(withCardFiles({}, {a}, &cancelled)), QStringList());
}

QTEST_GUILESS_MAIN(TestFaxPeople)
#include "test_fax_people.moc"
