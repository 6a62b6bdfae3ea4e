#include "file_store.h"
#include "files.h"
#include "ppd_file.h"
#include "property_list.h"
#include "sample_ppds.h"
#include "table.h"
#include "ticket_file.h"

#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace kelvo;
using namespace Qt::StringLiterals;
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
    void replacesTicketsOnly();
    void keepsWhatItDoesNotKnow();
    void refusesOtherLists_data();
    void refusesOtherLists();
};

static const QString kelvoClient = u"com.kelvo.print.pde"_s;
static const QString key = u"com.kelvo.print.JobType"_s;

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
    const QString path = u"/tmp/a b%20#é.ppd"_s;
    session.setPrinter({u"Hall 3"_s, path});
    QCOMPARE(PMPrinterGetDescriptionURL(printer, key, &url), kPMKeyNotFound);
    QCOMPARE(PMPrinterGetDescriptionURL(printer, kPMPPDDescriptionType, &url), noErr);
    QCOMPARE(QUrl(url).toLocalFile(), path);
    // What came from a server is a file, too, for whoever reads it.
    const QByteArray ppd = bytesOf(samplePpd(u"full"_s));
    session.setPrinter({u"Hall 3"_s, {}, PpdFile::fromBytes(ppd, u"Hall 3"_s).value()});
    QCOMPARE(PMPrinterGetDescriptionURL(printer, kPMPPDDescriptionType, &url), noErr);
    QVERIFY(!ppd.isEmpty() && bytesOf(QUrl(url).toLocalFile()) == ppd);
}

void TestTickets::readsAnEntryAsItsOwnTypeOnly()
{
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    QCOMPARE(PMTicketSetCFNumber(ticket, kelvoClient, key, 7), noErr);
    QCOMPARE(PMTicketGetCFNumber(ticket, key), std::optional<std::int64_t>(7));
    QVERIFY(!PMTicketGetCFString(ticket, key));
    QVERIFY(!PMTicketGetCFBoolean(ticket, key));
    QCOMPARE(PMTicketSetCFString(ticket, kelvoClient, key, u"7"_s), noErr);
    QVERIFY(!PMTicketGetCFNumber(ticket, key));
    QCOMPARE(PMTicketGetCFString(ticket, key), std::optional(u"7"_s));

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
    const QString path = folder.filePath(u"ticket.plist"_s);
    PrintSession session;
    const PMTicketRef settings = session.printSettingsTicket();
    const PMTicketRef format = session.pageFormatTicket();
    PMTicketSetCFDictionary(settings, kelvoClient, key,
                            {{u"name"_s, QString()}, {u"n"_s, qint64(1)}}, true);
    PMTicketSetCFReal(settings, QString(), u"whole"_s, 2.0);
    PMTicketSetCFArray(format, u"host"_s, kPMPaperSizeKey, {595.0, 842.0});
    PMTicketGetPPDDict(settings)->insert(u"Duplex"_s, u"None"_s);

    QVERIFY(writeTicketFile(path, ticketFileFrom(session)));
    const auto read = readTicketFile(path);
    QVERIFY2(read, qPrintable(read.reason()));
    PrintSession next;
    load(read.value(), next);

    session.printSettings().entries[key].locked = false; // locks are not stored
    QVERIFY(next.printSettings() == session.printSettings());
    QVERIFY(next.pageFormat() == session.pageFormat());
    QCOMPARE(next.printSettings().entries[u"whole"_s].value.typeId(), int(QMetaType::Double));
}

// A list of somebody's stays, also where it is a sound one.
void TestTickets::replacesTicketsOnly()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"list.plist"_s);
    for (const QByteArray &bytes :
         {QByteArray("<plist version=\"1.0\"><array/></plist>"), QByteArray("years of work\n")}) {
        putFile(path, bytes);
        const auto written = writeTicketFile(path, {});
        QVERIFY(!written);
        QCOMPARE(written.error().code, Error::Code::Refused);
        QCOMPARE(bytesOf(path), bytes);
    }
    putFile(path, {});
    QVERIFY(writeTicketFile(path, {}));
}

void TestTickets::keepsWhatItDoesNotKnow()
{
    Dictionary root = propertyListFrom(TicketFile());
    root.insert(u"Comment"_s, u"by hand"_s);
    const auto file = ticketFileFromPropertyList(root, u"a"_s);
    QVERIFY(file);
    QCOMPARE(propertyListFrom(file.value()), root);
}

void TestTickets::refusesOtherLists_data()
{
    // value invalid: the key is taken out
    const Table<QString, QVariant, Code, QString> table{"name", "value", "code", "where"};
    const auto row = [&](const char *title, const char *name, const QVariant &value, Code code,
                         const char *where) {
        table(title, name, value, code, u"a.plist: "_s + where);
    };
    const Dictionary nameless{{QString(), 1}};
    const Dictionary number{{u"Duplex"_s, 1}};
    row("no version", "FormatVersion", {}, Code::OtherKind, "FormatVersion");
    row("version as text", "FormatVersion", "1", Code::WrongType, "FormatVersion");
    row("version 0", "FormatVersion", 0, Code::Unsupported, "FormatVersion");
    row("version 2", "FormatVersion", 2, Code::Unsupported, "FormatVersion");
    row("no ticket", "PMPrintSettingsTicket", {}, Code::OtherKind, "PMPrintSettingsTicket");
    row("ticket as array", "PMPageFormatTicket", Array(), Code::WrongType, "PMPageFormatTicket");
    row("entry without key", "PMPageFormatTicket", nameless, Code::Damaged, "PMPageFormatTicket");
    row("choice as number", "PPDChoices", number, Code::WrongType, "PPDChoices/Duplex");
    row("client as number", "Clients", number, Code::WrongType, "Clients/Duplex");
    row("part as text", "IsPart", "true", Code::WrongType, "IsPart");
    row("words as number", "ChoiceWords", number, Code::WrongType, "ChoiceWords/Duplex");
    row("asked as text", "Asked", "Duplex", Code::WrongType, "Asked");
    row("removed as text", "Removed", "Duplex", Code::WrongType, "Removed");
    const Array wrongPlaces[] = {{u"PPDChoices"_s}, {u"Clients"_s, u"a"_s}, {u"PPDChoices"_s, 1}};
    for (const Array &place : wrongPlaces)
        row(qPrintable(u"no place: %1"_s.arg(place.size()) + place.first().toString()), "Removed",
            Array{QVariant(place)}, Code::WrongType, "Removed");
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
    const auto file = ticketFileFromPropertyList(root, u"a.plist"_s);
    QVERIFY(!file);
    QCOMPARE(file.error().code, code);
    QCOMPARE(file.error().where, where);
    QVERIFY(where.endsWith(u": "_s + file.error().place));
    QCOMPARE(ticketFileFromPropertyList(Array(), u"a"_s).error().code, Code::OtherKind);
}

QTEST_GUILESS_MAIN(TestTickets)
#include "test_tickets.moc"
