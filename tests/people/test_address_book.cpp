#include "address_book_entry.h"
#include "address_book_service.h"
#include "files.h"
#include "people.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <thread>

using namespace kelvo;
using namespace Qt::StringLiterals;

// With the desktop's own address book, each test with one of its own.
class TestAddressBook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { AddressBookService::setOwnCard(u"own"_s); }
    void init();
    void saysWhyItCannotBeOpened();
    void saysWhatIsMissing();
    void writesWhatIsPresent();
    void aGroupHasItsMembers();
    void readsWhatOthersWrote();
    void readsManyInTheUsersOrder();
    void theOwnCardIsNotMade();
    void asksAgainAfterTheServiceWentAway();
    void endsWhenItIsTold(); // the last: libebook leaks the bus where its service hung

private:
    std::unique_ptr<AddressBookService> m_service;
};

namespace {

const AddressBook &book()
{
    const Result<const AddressBook *> opened = addressBook();
    if (!opened)
        qFatal("%s", qPrintable(opened.reason()));
    return *opened.value();
}

template <typename T>
T valueOf(const Result<T> &result)
{
    if (!result)
        qFatal("%s", qPrintable(result.reason()));
    return result.value();
}

// A stored card's lines without those that the address book adds to every one.
QStringList linesOf(const QString &card)
{
    QStringList lines = card.split(u"\r\n"_s, Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) {
        return line.startsWith(u"UID:") || line.startsWith(u"REV:") || line.startsWith(u"PRODID:");
    });
    lines.replaceInStrings(QRegularExpression(u";X-EVOLUTION-E164=[^;]*"_s), QString());
    lines.sort();
    return lines;
}

} // namespace

void TestAddressBook::init()
{
    m_service.reset();
    m_service = std::make_unique<AddressBookService>();
    const QString problem = m_service->start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestAddressBook::saysWhyItCannotBeOpened()
{
    const std::pair<QByteArray, Error::Code> rows[] = {
        {{}, Error::Code::NotFound},
        {"no library", Error::Code::NotReadable},
        {bytesOf(u"" KELVO_BUILD_DIR "/lib/libkelvo_platform.so"_s), Error::Code::Damaged},
    };
    for (const auto &[bytes, code] : rows) {
        const QTemporaryDir folder;
        if (!bytes.isEmpty())
            putFile(folder.filePath(QLatin1String(addressBookLibraryName)), bytes);
        const Result<const AddressBook *> opened = addressBook(folder.path());
        QVERIFY(!opened);
        QCOMPARE(opened.error().code, code);
        QVERIFY2(opened.error().detail.contains(u"the package kelvo-print-address-book"_s),
                 qPrintable(opened.reason()));
    }
}

// And starts nothing to find that out.
void TestAddressBook::saysWhatIsMissing()
{
    const auto reasonOf = [](const auto &result) {
        return result ? QString() : QString::number(int(result.error().code)) + result.reason();
    };
    const QString notFound = QString::number(int(Error::Code::NotFound));
    QCOMPARE(book().find().reason(), QString());
    QCOMPARE(m_service->processes(), QList<qint64>());

    {
        PrivateBus emptyBus;
        QCOMPARE(emptyBus.start(), QString());
        for (const QString &reason : {reasonOf(book().find()), reasonOf(book().read())}) {
            QVERIFY2(reason.startsWith(notFound) && reason.contains(u"package evolution-data"_s),
                     qPrintable(reason));
        }
    }
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    for (const QString &reason : {reasonOf(book().find()), reasonOf(book().addGroup(u"G"_s))}) {
        QVERIFY2(reason.startsWith(notFound) && reason.contains(u"log in to a desktop"_s),
                 qPrintable(reason));
    }
    QCOMPARE(m_service->processes(), QList<qint64>());
}

void TestAddressBook::writesWhatIsPresent()
{
    const NewPerson ann = {u"Ann"_s,       u"+1 (555) 123-4567; x89"_s, u"555 0100"_s,
                           u"ann@x.org"_s, u"Ltd, Sons; Co\\"_s,        u"12\nb"_s};
    const QString first = valueOf(book().addPerson(ann));
    const QStringList stored = m_service->cards();
    QCOMPARE(stored.size(), 1);
    // Neither a formatted name nor one to sort by: the address book makes those up to show them.
    QCOMPARE(linesOf(stored.first()),
             QStringList({u"BEGIN:VCARD"_s, u"EMAIL;TYPE=WORK:ann@x.org"_s, u"END:VCARD"_s,
                          u"N:;Ann"_s, u"ORG:Ltd\\, Sons\\; Co\\\\"_s,
                          u"TEL;TYPE=WORK,FAX:+1 (555) 123-4567\\; x89"_s,
                          u"TEL;TYPE=WORK,VOICE:555 0100"_s, u"VERSION:3.0"_s,
                          u"X-COM-KELVO-MAILBOX:12\\nb"_s}));

    const Person read = valueOf(book().person(first));
    QCOMPARE(read,
             (Person{first,
                     u"Ann"_s,
                     u"Ann"_s,
                     {},
                     u"Ltd, Sons; Co\\"_s,
                     {u"ann@x.org"_s},
                     {{PersonNumber::Kind::Fax, u"work"_s, *ann.faxNumber},
                      {PersonNumber::Kind::Phone, u"work"_s, *ann.phoneNumber}},
                     u"12 b"_s}));

    const QString second = valueOf(book().addPerson({.firstName = u"Ann"_s}));
    QVERIFY(second != first);
    QStringList cards = m_service->cards();
    QCOMPARE(cards.size(), 2);
    cards.removeIf([&first](const QString &card) { return card.contains(first); });
    QCOMPARE(linesOf(cards.value(0)),
             QStringList({u"BEGIN:VCARD"_s, u"END:VCARD"_s, u"N:;Ann"_s, u"VERSION:3.0"_s}));
}

void TestAddressBook::aGroupHasItsMembers()
{
    const QString ann = valueOf(book().addPerson({u"Ann"_s, u"1"_s, {}, u"ann@x.org"_s, {}, {}}));
    const QString bob = valueOf(book().addPerson({.firstName = u"Bob"_s}));
    const QString nobody = valueOf(book().addPerson({.faxNumber = u"2"_s}));
    const QString group = valueOf(book().addGroup(u"Team, North"_s));
    const auto members = [&group] {
        const AddressBookContents contents = valueOf(book().read());
        QStringList uids;
        if (contents.groups.size() == 1 && contents.groups.front().uid == group) {
            for (const Person &member : contents.groups.front().members)
                uids << member.uid;
        }
        return uids;
    };
    QCOMPARE(members(), QStringList());

    for (const QStringList &uids :
         {QStringList{bob, nobody, ann}, QStringList{ann}, QStringList{}}) {
        const Result<void> set = book().setMembers(group, uids + QStringList{u"gone"_s});
        QVERIFY2(set, qPrintable(set.reason()));
        QCOMPARE(members(), uids);
    }
    const AddressBookContents contents = valueOf(book().read());
    QCOMPARE(contents.groups.front().name, u"Team, North"_s);
    QCOMPARE(contents.people.size(), 3);

    const Result<void> lost = book().setMembers(u"gone"_s, {ann});
    QVERIFY(!lost);
    QCOMPARE(lost.error().code, Error::Code::NotFound);
}

// By contacts programs, phones, and what has damaged them.
void TestAddressBook::readsWhatOthersWrote()
{
    const QStringList uids = m_service->addCards(
        {u"BEGIN:VCARD\r\nVERSION:3.0\r\nN:Lee;Kim;;;\r\nFN:Kim Lee\r\nORG:Acme;Sales\r\n"
         "TEL;TYPE=HOME,FAX:1\r\nTEL;TYPE=FAX,PREF:2\r\nTEL;TYPE=CELL:3\r\n"
         "item1.TEL:4\r\nitem1.X-ABLabel:Branch Fax\r\n"
         "EMAIL:k@x.org\r\nEMAIL;TYPE=PREF:lee@x.org\r\nEND:VCARD\r\n"_s,
         u"BEGIN:VCARD\r\nVERSION:3.0\r\n"
         "FN;ENCODING=QUOTED-PRINTABLE:A=00B=FF=01C\r\nTEL;TYPE=FAX:5\r\nEND:VCARD"_s,
         u"BEGIN:VCARD\r\nVERSION:3.0\r\nFN\r\n:::;;;=\r\nTEL;TYPE=\"FAX:6\r\n"_s});
    QCOMPARE(uids.size(), 3);

    const auto kim = valueOf(book().person(uids[0]));
    using enum PersonNumber::Kind;
    const std::vector<PersonNumber> numbers = {{Fax, u"other"_s, u"2"_s},
                                               {Fax, u"home"_s, u"1"_s},
                                               {Phone, u"other"_s, u"3"_s},
                                               {Fax, u"Branch Fax"_s, u"4"_s}};
    QCOMPARE(kim,
             (Person{uids[0],
                     u"Kim Lee"_s,
                     u"Kim"_s,
                     u"Lee"_s,
                     u"Acme"_s,
                     {u"lee@x.org"_s, u"k@x.org"_s},
                     numbers,
                     {}}));
    QCOMPARE(valueOf(book().read()).people.size(), 3);
    const Person damaged = valueOf(book().person(uids[1]));
    QVERIFY2(!damaged.fullName.contains(QChar(0)) && !damaged.fullName.contains(QChar(1)),
             qPrintable(damaged.fullName));
    QCOMPARE(damaged.numbers, (std::vector<PersonNumber>{{Fax, u"other"_s, u"5"_s}}));
}

void TestAddressBook::readsManyInTheUsersOrder()
{
    QStringList cards;
    for (int i = 0; i < 10'000; ++i) {
        cards << u"BEGIN:VCARD\r\nVERSION:3.0\r\nFN:%1\r\nTEL;TYPE=WORK,FAX:+1 555 %1\r\n"
                 "EMAIL:p%1@x.org\r\nORG:Acme\r\nEND:VCARD\r\n"_s.arg(9999 - i, 4, 10,
                                                                      QLatin1Char('0'));
    }
    QCOMPARE(m_service->addCards(cards).size(), cards.size());
    QElapsedTimer timer;
    timer.start();

    const AddressBookContents contents = valueOf(book().read());

    qInfo("%lld ms", timer.elapsed());
    QCOMPARE(contents.people.size(), std::size_t(cards.size()));
    for (int i = 0; i < cards.size(); ++i)
        QCOMPARE(contents.people[i].fullName.toInt(), i);
}

void TestAddressBook::theOwnCardIsNotMade()
{
    QCOMPARE(valueOf(book().ownCard()), std::optional<Person>());
    QCOMPARE(m_service->cards(), QStringList());

    m_service->addCards({u"BEGIN:VCARD\r\nVERSION:3.0\r\nUID:own\r\nFN:Me\r\nEND:VCARD\r\n"_s});
    const std::optional<Person> own = valueOf(book().ownCard());
    QVERIFY(own);
    QCOMPARE(own->fullName, u"Me"_s);
}

void TestAddressBook::asksAgainAfterTheServiceWentAway()
{
    const QString ann = valueOf(book().addPerson({.firstName = u"Ann"_s}));
    for (int round = 0; round < 3; ++round) {
        std::thread killer([this] {
            for (const qint64 process : m_service->processes())
                ::kill(pid_t(process), SIGKILL);
        });
        const Result<AddressBookContents> during = book().read();
        killer.join();
        QVERIFY(during || during.error().code == Error::Code::Unreachable);
        const Result<Person> after = book().person(ann);
        QVERIFY2(after, qPrintable(after.reason()));
    }
}

// Also where the service hangs.
void TestAddressBook::endsWhenItIsTold()
{
    std::atomic_bool cancelled = true;
    Result<QString> added = book().addPerson({.firstName = u"Ann"_s}, &cancelled);
    QVERIFY(!added && added.error().code == Error::Code::Cancelled);
    QCOMPARE(m_service->processes(), QList<qint64>());

    QVERIFY(book().read());
    const QList<qint64> processes = m_service->processes();
    QVERIFY(processes.size() >= 2);
    // Each of them alone, and the bus.
    for (const qint64 process : processes + QList<qint64>{m_service->bus().processId()}) {
        cancelled = false;
        ::kill(pid_t(process), SIGSTOP);
        qint64 told = 0;
        QElapsedTimer timer;
        std::thread teller([&] {
            QTest::qSleep(100);
            told = timer.elapsed();
            cancelled = true;
        });
        timer.start();
        const Result<AddressBookContents> read = book().read(&cancelled);
        const qint64 ended = timer.elapsed();
        teller.join();
        const Result<void> found = book().find();
        const qint64 foundAfter = timer.elapsed() - ended;
        ::kill(pid_t(process), SIGCONT);
        QVERIFY(!read);
        QCOMPARE(read.error().code, Error::Code::Cancelled);
        QVERIFY2(ended - told < 500, qPrintable(QString::number(ended - told)));
        QVERIFY(foundAfter < 1500);
        const bool isBus = process == m_service->bus().processId();
        QCOMPARE(bool(found), !isBus);
    }
    QVERIFY(book().read());
}

QTEST_GUILESS_MAIN(TestAddressBook)
#include "test_address_book.moc"
