#include "file_store.h"
#include "property_list.h"
#include "ticket_file.h"

#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace kelvo;
using Code = Error::Code;

class TestTickets : public QObject
{
    Q_OBJECT

private slots:
    void namesEachLivingTicketByAHandle();
    void handsOutWhatTheSessionKnows();
    void readsAnEntryAsItsOwnTypeOnly();
    void keepsLockedEntries();
    void survivesItsFile();
    void keepsWhatItDoesNotKnow();
    void refusesOtherLists_data();
    void refusesOtherLists();
};

static const QString kelvoClient = QStringLiteral("com.kelvo.print.pde");
static const QString key = QStringLiteral("com.kelvo.print.JobType");

void TestTickets::namesEachLivingTicketByAHandle()
{
    PMTicketRef stale = 0;
    {
        const PrintSession gone;
        stale = gone.printSettingsTicket();
        QVERIFY(findTicket(stale));
    }
    PrintSession one, other;
    QVERIFY(!findTicket(stale));
    QCOMPARE(findTicket(one.printSettingsTicket()), &one.printSettings());
    QCOMPARE(findTicket(other.pageFormatTicket()), &other.pageFormat());
    for (const PMTicketRef bad :
         {0U, one.printSettingsTicket() & 0xFFFF0000U, one.pageFormatTicket() + 1, 0xFFFFFFFFU})
        QCOMPARE(findTicket(bad), nullptr);
}

void TestTickets::handsOutWhatTheSessionKnows()
{
    PrintSession session;
    QByteArray bytes;
    QCOMPARE(PMSessionGetDataFromSession(&session, kPMPageFormatTicket, &bytes), noErr);
    PMTicketRef handle = 0;
    QCOMPARE(bytes.size(), qsizetype(sizeof handle));
    std::memcpy(&handle, bytes.constData(), sizeof handle);
    QCOMPARE(handle, session.pageFormatTicket());
    QCOMPARE(PMSessionGetDataFromSession(&session, key, &bytes), kPMKeyNotFound);
    QCOMPARE(PMSessionGetDataFromSession(nullptr, kPMPageFormatTicket, &bytes), paramErr);

    PMPrinter printer = nullptr;
    QString url;
    QCOMPARE(PMSessionGetCurrentPrinter(&session, &printer), noErr);
    QCOMPARE(PMPrinterGetDescriptionURL(printer, kPMPPDDescriptionType, &url), kPMKeyNotFound);
    const QString path = QStringLiteral("/tmp/a b%20#é.ppd");
    session.setPrinter({QStringLiteral("Hall 3"), path});
    QCOMPARE(PMPrinterGetDescriptionURL(printer, key, &url), kPMKeyNotFound);
    QCOMPARE(PMPrinterGetDescriptionURL(printer, kPMPPDDescriptionType, &url), noErr);
    QCOMPARE(QUrl(url).toLocalFile(), path);
}

void TestTickets::readsAnEntryAsItsOwnTypeOnly()
{
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    QCOMPARE(PMTicketSetCFNumber(ticket, kelvoClient, key, 7), noErr);
    QCOMPARE(PMTicketGetCFNumber(ticket, key), std::optional<std::int64_t>(7));
    QVERIFY(!PMTicketGetCFString(ticket, key));
    QVERIFY(!PMTicketGetCFBoolean(ticket, key));
    QCOMPARE(PMTicketSetCFString(ticket, kelvoClient, key, QStringLiteral("7")), noErr);
    QVERIFY(!PMTicketGetCFNumber(ticket, key));
    QCOMPARE(PMTicketGetCFString(ticket, key), std::optional(QStringLiteral("7")));

    QCOMPARE(PMTicketSetCFNumber(ticket, kelvoClient, QString(), 7), paramErr);
    QCOMPARE(PMTicketSetCFNumber(0, kelvoClient, key, 7), kPMInvalidTicket);
    QVERIFY(!PMTicketGetCFNumber(0, key));
    QCOMPARE(PMTicketGetPPDDict(0), nullptr);
    QCOMPARE(PMTicketGetPPDDict(ticket), &session.printSettings().ppdChoices);
}

void TestTickets::keepsLockedEntries()
{
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    QCOMPARE(PMTicketReleaseItem(ticket, key), noErr);
    QCOMPARE(PMTicketSetCFBoolean(ticket, kelvoClient, key, true, true), noErr);
    const Ticket before = session.printSettings();
    QCOMPARE(PMTicketSetCFBoolean(ticket, kelvoClient, key, false), kPMTicketLocked);
    QCOMPARE(PMTicketReleaseItem(ticket, key), kPMTicketLocked);
    QVERIFY(session.printSettings() == before);
}

void TestTickets::survivesItsFile()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("ticket.plist"));
    PrintSession session;
    const PMTicketRef settings = session.printSettingsTicket();
    const PMTicketRef format = session.pageFormatTicket();
    PMTicketSetCFDictionary(settings, kelvoClient, key,
                            {{QStringLiteral("name"), QString()}, {QStringLiteral("n"), qint64(1)}},
                            true);
    PMTicketSetCFReal(settings, QString(), QStringLiteral("whole"), 2.0);
    PMTicketSetCFArray(format, QStringLiteral("host"), kPMPaperSizeKey, {595.0, 842.0});
    PMTicketGetPPDDict(settings)->insert(QStringLiteral("Duplex"), QStringLiteral("None"));

    QVERIFY(writeTicketFile(path, ticketFileFrom(session)));
    const auto read = readTicketFile(path);
    QVERIFY2(read, qPrintable(read.reason()));
    PrintSession next;
    load(read.value(), next);

    session.printSettings().entries[key].locked = false; // locks are not stored
    QVERIFY(next.printSettings() == session.printSettings());
    QVERIFY(next.pageFormat() == session.pageFormat());
    QCOMPARE(next.printSettings().entries[QStringLiteral("whole")].value.typeId(),
             int(QMetaType::Double));
}

void TestTickets::keepsWhatItDoesNotKnow()
{
    Dictionary root = propertyListFrom(TicketFile());
    root.insert(QStringLiteral("Comment"), QStringLiteral("by hand"));
    const auto file = ticketFileFromPropertyList(root, QStringLiteral("a"));
    QVERIFY(file);
    QCOMPARE(propertyListFrom(file.value()), root);
}

void TestTickets::refusesOtherLists_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value"); // invalid: the key is taken out
    QTest::addColumn<Code>("code");
    QTest::addColumn<QString>("where");
    const auto row = [](const char *title, const char *name, const QVariant &value, Code code,
                        const char *where) {
        QTest::newRow(title) << QString::fromUtf8(name) << value << code
                             << QStringLiteral("a.plist: ") + QString::fromUtf8(where);
    };
    const Dictionary nameless{{QString(), 1}};
    const Dictionary number{{QStringLiteral("Duplex"), 1}};
    row("no version", "FormatVersion", {}, Code::Damaged, "FormatVersion");
    row("version as text", "FormatVersion", "1", Code::WrongType, "FormatVersion");
    row("version 0", "FormatVersion", 0, Code::Unsupported, "FormatVersion");
    row("version 2", "FormatVersion", 2, Code::Unsupported, "FormatVersion");
    row("no ticket", "PMPrintSettingsTicket", {}, Code::Damaged, "PMPrintSettingsTicket");
    row("ticket as array", "PMPageFormatTicket", Array(), Code::WrongType, "PMPageFormatTicket");
    row("entry without key", "PMPageFormatTicket", nameless, Code::Damaged, "PMPageFormatTicket");
    row("choice as number", "PPDChoices", number, Code::WrongType, "PPDChoices/Duplex");
    row("client as number", "Clients", number, Code::WrongType, "Clients/Duplex");
}

void TestTickets::refusesOtherLists()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    QFETCH(Code, code);
    QFETCH(QString, where);
    Dictionary root = propertyListFrom(TicketFile());
    root.remove(name);
    if (value.isValid())
        root.insert(name, value);
    const auto file = ticketFileFromPropertyList(root, QStringLiteral("a.plist"));
    QVERIFY(!file);
    QCOMPARE(file.error().code, code);
    QCOMPARE(file.error().where, where);
    QCOMPARE(ticketFileFromPropertyList(Array(), QStringLiteral("a")).error().code,
             Code::WrongType);
}

QTEST_GUILESS_MAIN(TestTickets)
#include "test_tickets.moc"
