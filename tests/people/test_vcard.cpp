#include "files.h"
#include "size_limits.h"
#include "table.h"
#include "vcard.h"

#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

// Cards as contacts programs, phones and mail programs write them, and damaged ones.
class TestVCard : public QObject
{
    Q_OBJECT

private slots:
    void readsPeople_data();
    void readsPeople();
    void readsEveryEncodingOfAFile();
    void refusesWhatIsNoCard();
    void holdsItsLimits();
};

namespace {

// "FULL/FIRST/LAST/ORGANIZATION/MAILBOX E-MAIL fax LABEL NUMBER"
QString textOf(const Person &person)
{
    QString text = QStringList{person.fullName, person.firstName, person.lastName,
                               person.organization, person.mailbox}
                       .join(u'/');
    for (const QString &address : person.emailAddresses)
        text += u' ' + address;
    for (const PersonNumber &number : person.numbers) {
        text += (number.kind == PersonNumber::Kind::Fax ? u" fax "_s : u" phone "_s) + number.label
            + u' ' + number.number;
    }
    return text;
}

QByteArray card(const QByteArray &lines)
{
    return "BEGIN:VCARD\r\n" + lines + "\r\nEND:VCARD\r\n";
}

} // namespace

void TestVCard::readsPeople_data()
{
    const Table<QByteArray, QStringList, int> row{"bytes", "people", "damaged"};

    row("a contacts program, 3.0",
        card("VERSION:3.0\r\nFN:Kim Lee\r\nN:Lee;Kim;;;\r\nORG:Acme\\, Inc.;Sales\r\n"
             "TEL;type=WORK;type=FAX;type=pref:+1 (555) 0100\r\nitem1.TEL:0101\r\n"
             "item1.X-ABLabel:Branch Fax\r\nitem2.TEL:0102\r\nITEM2.X-ABLabel:_$!<HomeFAX>!$_\r\n"
             "item3.TEL;type=WORK:0103\r\nitem3.X-ABLabel:Fax\r\nTEL;type=PAGER:0104\r\n"
             "EMAIL;type=INTERNET:k@x.org\r\nEMAIL;type=INTERNET;type=pref:lee@x.org\r\n"
             "X-COM-KELVO-MAILBOX:12\r\nPHOTO;ENCODING=b;TYPE=JPEG:AAAA\r\n BBBB=="),
        {u"Kim Lee/Kim/Lee/Acme, Inc./12 lee@x.org k@x.org fax work +1 (555) 0100 "
         "fax Branch Fax 0101 fax home 0102 fax work 0103"_s},
        0);
    row("4.0",
        card("VERSION:4.0\nKIND:individual\nFN;PREF=2:Kim\nFN;PREF=1:Kim Lee\nN:Lee;Kim\n"
             "TEL;VALUE=uri;TYPE=\"voice,home\";PREF=2:tel:+1-555-0100;ext=2;phone-context=x\n"
             "TEL;TYPE=\"fax,home\";VALUE=uri;PREF=1:TEL:+1%20555\nTEL;TYPE=fax:0103\n"
             "EMAIL;X=\";:,\":k@x.org"),
        {u"Kim Lee/Kim/Lee// k@x.org fax home +1 555 phone home +1-555-0100 x2 fax other 0103"_s},
        0);
    row("a phone, 2.1",
        card("VERSION:2.1\rN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=C3=84rger;J=C3=B6=\r"
             "rg=3B;;;\rTEL;WORK;FAX:0100\rTEL;CELL;PREF:0101\rEMAIL:a@x.org\r"
             "ORG;QUOTED-PRINTABLE;CHARSET=ISO-8859-1:Caf=E9 =zz\rPHOTO;JPEG;BASE64:\r AAAA\r"),
        {u"Jörg; Ärger/Jörg;/Ärger/Café =zz/ a@x.org phone other 0101 fax work 0100"_s}, 0);
    row("folded", card("FN:Ki\r\n m \r\n\tLee\r\nEMAIL:\xc3\r\n \xa4@x.org"),
        {u"Kim Lee/Kim Lee/// ä@x.org"_s}, 0);
    row("folded between words in 2.1", card("VERSION:2.1\r\nORG:One\r\n Two\r\nFN:K"),
        {u"K/K//One Two/"_s}, 0);
    row("escapes", card("FN:a\\,b\\;c\\\\d\\ne\\q\nN:\\;;x;"), {u"a,b;c\\d e\\q/x/;//"_s}, 0);
    row("no name but an organization", card("ORG:Acme;X\nTEL;TYPE=FAX:1"),
        {u"Acme///Acme/ fax other 1"_s}, 0);
    row("no name but an address", card("EMAIL:k@x.org"), {u"k@x.org//// k@x.org"_s}, 0);
    row("no version, in small letters", "begin:vcard\nfn:K\nend:vcard", {u"K/K///"_s}, 0);
    row("neither UTF-8 nor said", card("FN:Caf\xe9"), {u"Café/Café///"_s}, 0);
    row("a charset that nobody knows", card("FN;CHARSET=X-1:Caf\xc3\xa9"), {u"Café/Café///"_s}, 0);
    row("characters that nothing holds", card(QByteArray("FN:a\0b\x01\x7f\xef\xbf\xbe\tc", 13)),
        {u"ab c/ab c///"_s}, 0);
    row("a quotation mark that is not closed", card("TEL;TYPE=\"FAX:1\nFN:K"),
        {u"K/K/// fax other 1"_s}, 0);
    row("groups", card("KIND:group\nFN:All") + card("X-ADDRESSBOOKSERVER-KIND:Group\nFN:All"), {},
        0);
    row("an assistant's card inside",
        card("VERSION:2.1\nFN:K\nAGENT:\nBEGIN:VCARD\nFN:L\nEND:VCARD\nTEL;FAX:1"),
        {u"K/K/// fax other 1"_s}, 0);
    row("damaged ones between others",
        "garbage\n" + card("FN:A") + ":::\nEND:VCARD\n" + card("NOTE:nobody")
            + "BEGIN:VCARD\nFN:B\n" + card(";;\nFN\n:x\n=\nFN:C") + "BEGIN:VCARD\nFN:D",
        {u"A/A///"_s, u"C/C///"_s}, 3);
}

void TestVCard::readsPeople()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, people);
    QFETCH(int, damaged);

    const Result<CardPeople> read = readCards(bytes);

    QVERIFY2(read, qPrintable(read.reason()));
    QStringList found;
    for (const Person &person : read.value().people)
        found << textOf(person);
    QCOMPARE(found, people);
    QCOMPARE(read.value().damaged, damaged);
}

void TestVCard::readsEveryEncodingOfAFile()
{
    const QString text = u"BEGIN:VCARD\r\nFN:山田 ä\r\nEND:VCARD\r\n"_s;
    for (const auto encoding :
         {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QStringEncoder encode(encoding, QStringConverter::Flag::WriteBom);
        const Result<CardPeople> read = readCards(encode(text));
        QVERIFY2(read, qPrintable(read.reason()));
        QCOMPARE(read.value().people.size(), 1);
        QCOMPARE(read.value().people.front().fullName, u"山田 ä"_s);
    }
}

void TestVCard::refusesWhatIsNoCard()
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("%PDF-1.4\n"), QByteArray("END:VCARD")})
        QCOMPARE(readCards(bytes).error().code, Error::Code::Damaged);

    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vcf"_s);
    QCOMPARE(readCardFile(path).error().code, Error::Code::NotFound);
    putFile(path, "text");
    QCOMPARE(readCardFile(path).error().where, path);
    putFile(path, card("FN:K"));
    QVERIFY(readCardFile(path));
}

void TestVCard::holdsItsLimits()
{
    const QByteArray properties = QByteArray("TEL:1\n").repeated(limits::cardProperties - 1);
    QCOMPARE(readCards(card("FN:K\n" + properties.chopped(1))).value().damaged, 0);
    QCOMPARE(readCards(card("FN:K\n" + properties + "TEL:1")).value().damaged, 1);

    const QByteArray cards = card("FN:K").repeated(limits::cards);
    QCOMPARE(readCards(cards).value().people.size(), std::size_t(limits::cards));
    QCOMPARE(readCards(cards + card("FN:K")).error().code, Error::Code::TooLarge);

    QByteArray large = card("FN:K");
    large.resize(limits::cardFileBytes, 'x');
    QVERIFY(readCards(large));
    QCOMPARE(readCards(large + 'x').error().code, Error::Code::TooLarge);
}

QTEST_GUILESS_MAIN(TestVCard)
#include "test_vcard.moc"
