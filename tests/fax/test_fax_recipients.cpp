#include "dialing_check.h"
#include "fax_recipient_list.h"
#include "fax_texts.h"
#include "table.h"

#include <QTest>

#include <memory>

using namespace kelvo;
using namespace Qt::StringLiterals;

class TestFaxRecipients : public QObject
{
    Q_OBJECT

private slots:
    void absentAndEmptyAreTwo_data();
    void absentAndEmptyAreTwo();
    void sameByNamesAndNumber_data();
    void sameByNamesAndNumber();
    void listsKeepWhomTheyShare();
    void removingSkipsTheNeighbour_data();
    void removingSkipsTheNeighbour();
    void onlyWhatDevicesDialIsDialed_data();
    void onlyWhatDevicesDialIsDialed();
    void senderLines_data();
    void senderLines();
    void fiftyCharactersAreDialed();
};

void TestFaxRecipients::absentAndEmptyAreTwo_data()
{
    const Table<Dictionary, QString> row{"ticket", "name"};
    row("nothing", {}, "");
    row("a first name", {{"FirstName", "Ann"}}, "Ann");
    row("a last name", {{"LastName", "Lee"}}, "Lee");
    row("an empty first name", {{"FirstName", ""}, {"LastName", "Lee"}}, " Lee");
    row("all",
        {{"FirstName", "Ann"},
         {"LastName", "Lee"},
         {"FaxNumber", "+1 (555)"},
         {"FaxNumberLabel", "work"},
         {"Organization", "Kelvo"},
         {"PhoneNumber", ""},
         {"EmailAddress", "ann@lee"},
         {"Mailbox", "17"},
         {"UID", "u-1"}},
        "Ann Lee");
}

void TestFaxRecipients::absentAndEmptyAreTwo()
{
    QFETCH(Dictionary, ticket);

    FaxRecipient recipient(u"Old"_s, u"Name"_s, u"1"_s);
    recipient.setOrganization(u"Gone"_s);
    recipient.fromTicket(nullptr);
    QCOMPARE(recipient.organization(), u"Gone"_s);
    recipient.fromTicket(&ticket);

    QCOMPARE(recipient.toTicket(), ticket);
    QTEST(DisplayNameFromRecipient(&recipient), "name");
    // Neighbours of all kinds come back where they were, what is no dictionary as nobody.
    const Array list{ticket, Dictionary(), 7, ticket};
    QCOMPARE(FaxRecipientList(list).toTicket(),
             (Array{ticket, Dictionary(), Dictionary(), ticket}));
}

void TestFaxRecipients::sameByNamesAndNumber_data()
{
    const Table<Dictionary, Dictionary, bool> row{"one", "other", "same"};
    const Dictionary ann{{"FirstName", "Ann"}, {"FaxNumber", "555-1234"}};
    const auto with = [&ann](const char *key, const QString &text) {
        Dictionary changed = ann;
        changed.insert(QLatin1String(key), text);
        return changed;
    };
    row("equal", ann, ann, true);
    row("another e-mail", ann, with("EmailAddress", "a@b"), true);
    row("an empty last name", ann, with("LastName", ""), false);
    row("small letters", ann, with("FirstName", "ann"), false);
    row("the number in other notation", ann, with("FaxNumber", "5551234"), false);
    row("nobody twice", {}, {}, true);
}

void TestFaxRecipients::sameByNamesAndNumber()
{
    QFETCH(Dictionary, one);
    QFETCH(Dictionary, other);

    const FaxRecipientList list(Array{Dictionary{{"FirstName", "Bo"}}, one});
    const FaxRecipient recipient(other);
    QTEST(list.containsRecipient(&recipient), "same");
}

void TestFaxRecipients::listsKeepWhomTheyShare()
{
    auto *recipient = new FaxRecipient(u"Ann"_s, {}, u"1"_s);
    QCOMPARE(recipient->references(), 1U);
    {
        FaxRecipientList first, second;
        first.append(recipient);
        second.insertAtIndex(recipient, 0);
        second.insertAtIndex(recipient, 9); // there is no such place
        QCOMPARE(recipient->references(), 3U);

        const FaxRecipientList copy(first);
        QVERIFY(copy.recipientAtIndex(0) != recipient);
        QCOMPARE(copy, first);
        second = copy;
        QCOMPARE(recipient->references(), 2U);
        copy.recipientAtIndex(0)->setUID(u"u"_s);
        QVERIFY(copy != first);
        first.removeAtIndex(1);
        first.removeAtIndex(-1);
        QCOMPARE(first.count(), 1L);
    }
    QCOMPARE(recipient->references(), 1U);
    FaxRecipientRelease(recipient);
}

void TestFaxRecipients::removingSkipsTheNeighbour_data()
{
    const Table<QString, QString> row{"list", "left"};
    row("once", "xay", "xy");
    row("neighbours", "aa", "a");
    row("three neighbours", "aaa", "a");
    row("apart", "axa", "x");
    row("not there", "xy", "xy");
}

void TestFaxRecipients::removingSkipsTheNeighbour()
{
    QFETCH(QString, list);
    QHash<QChar, FaxRecipient *> letters;
    FaxRecipientList recipients;
    const auto letter = [&letters](QChar c) {
        if (!letters.contains(c))
            letters.insert(c, new FaxRecipient(QString(c), {}, {}));
        return letters.value(c);
    };
    for (const QChar c : list)
        recipients.append(letter(c));

    recipients.remove(letter(u'a'));

    QString left;
    for (long i = 0; i < recipients.count(); ++i)
        left += *recipients.recipientAtIndex(i)->firstName();
    QTEST(left, "left");
    for (FaxRecipient *recipient : letters)
        FaxRecipientRelease(recipient);
}

void TestFaxRecipients::onlyWhatDevicesDialIsDialed_data()
{
    const Table<QString, QString> row{"number", "dialed"};
    row("as people write it", "+1 (555) 123-4567 x89", "1555123456789");
    row("all that is dialed", "0123456789*#=:!,/S$<>ABCD", "0123456789*#=:!,/S$<>ABCD");
    row("letters that are not", "abcdsEFs", "");
    row("digits of another script", u"\u0661\u0662"_s, "");
    row("nothing", "", "");
}

void TestFaxRecipients::onlyWhatDevicesDialIsDialed()
{
    QFETCH(QString, number);
    QTEST(CopyDialingStringFromFaxNumber(number), "dialed");
    QCOMPARE(CopyDialingStringFromFaxNumber({}), QString());
}

void TestFaxRecipients::senderLines_data()
{
    // name, organization, e-mail, phone, fax; "-" is absent
    const Table<QStringList, QString> row{"texts", "lines"};
    row("all", {"Pat", "Kelvo", "pat@kelvo", "1", "2"},
        "Pat\nKelvo\npat@kelvo\nPhone : 1\nFax : 2\n");
    row("name and fax", {"Pat", "-", "", "-", "555"}, "Pat\nFax : 555\n");
    row("nothing", {"-", "", "-", "", "-"}, "");
}

void TestFaxRecipients::senderLines()
{
    QFETCH(QStringList, texts);
    const auto text = [&texts](int i) { return texts[i] == u"-"_s ? FaxString() : texts[i]; };
    QTEST(CreateLANFaxSenderInformation(text(0), text(1), text(2), u"Phone"_s, text(3), u"Fax"_s,
                                        text(4)),
          "lines");
    QCOMPARE(CreateLANFaxSenderInformation({}, {}, {}, {}, u"1"_s, {}, {}), u" : 1\n"_s);
}

void TestFaxRecipients::fiftyCharactersAreDialed()
{
    FaxRecipientList recipients;
    for (const int digits : {46, 47, 50, 51}) {
        auto *recipient = new FaxRecipient({}, {}, QString(digits, u'7') + u" ()-"_s);
        recipients.append(recipient);
        FaxRecipientRelease(recipient);
    }
    const auto tooLong = [&recipients](int prefix) {
        QList<qsizetype> lengths;
        for (const FaxRecipient *recipient : FindMaxCharacters(recipients, prefix))
            lengths << CopyDialingStringFromFaxNumber(recipient->faxNumber()).size();
        return lengths;
    };
    QCOMPARE(tooLong(0), (QList<qsizetype>{51}));
    QCOMPARE(tooLong(4), (QList<qsizetype>{47, 50, 51}));
}

QTEST_GUILESS_MAIN(TestFaxRecipients)
#include "test_fax_recipients.moc"
