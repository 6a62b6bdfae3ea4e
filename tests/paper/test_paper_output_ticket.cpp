#include "device_session.h"
#include "paper_output_settings.h"
#include "separators.h"
#include "table.h"
#include "ticket.h"
#include "ticket_values.h"

#include <QTest>

#include <functional>

using namespace kelvo;

namespace {

const QString client = QStringLiteral("test");

Dictionary jobTypeIn(const DeviceSession &device)
{
    return PMTicketGetCFDictionary(device.settings(), ticketKey("JobType")).value_or(Dictionary());
}

void read(PaperOutputSettings &context, const DeviceSession &device)
{
    readPaperOutput(context, device.session.printSettings(), device.session.pageFormat(),
                    currentDevice());
}

void write(const PaperOutputSettings &context, const DeviceSession &device, bool opened = false)
{
    writePaperOutput(context, *findTicket(device.settings()), opened);
}

// Reads, writes, and gives the ticket's value of `name`.
std::optional<std::int64_t> numberIn(const DeviceSession &device, const char *name)
{
    return PMTicketGetCFNumber(device.settings(), ticketKey(name));
}

} // namespace

class TestPaperOutputTicket : public QObject
{
    Q_OBJECT

private slots:
    void readsAnEmptyTicketAsTheDevicesDefaults();
    void letsTheTicketsChoicesRuleTheStock();
    void keepsWhatOnlyAStockCanSay_data();
    void keepsWhatOnlyAStockCanSay();
    void findsTwoSidedInThreePlaces_data();
    void findsTwoSidedInThreePlaces();
    void writesWhatBelongsToTheJobType();
    void keepsForeignEntriesOfTheJobType();
    void forgetsWhatAnEarlierTicketSaid();
    void writesBookletEntriesWithALayoutOnly();
    void writesTwoSidedWhileOpenOnly();
    void takesBackHolesThatAreNotChosen_data();
    void takesBackHolesThatAreNotChosen();
    void takesBackPaperThatIsNotChosen();
    void writesSeparatorsSourceWithSeparatorsOnly();
    void readsBackWhatItWroteBut_data();
    void readsBackWhatItWroteBut();
};

void TestPaperOutputTicket::readsAnEmptyTicketAsTheDevicesDefaults()
{
    PaperOutputSettings context;
    initializePaperOutput(context, 1000);
    {
        const DeviceSession device(QStringLiteral("full"));
        read(context, device);
    }

    QCOMPARE(context.jobType, kJobTypeNormal);
    QVERIFY(context.savedJob.usesJobName);
    QVERIFY(context.savedJob.name.isEmpty());
    QVERIFY(!context.savedJob.location);
    QVERIFY(!context.passcode);
    QCOMPARE(context.delayedPrintTime, 1000 + 86'400);
    QCOMPARE(context.jobStock.size(), kStockSizeLetter);
    QCOMPARE(context.jobStock.type(), kStockTypeStandard);
    QCOMPARE(context.orientation, 1);
    QCOMPARE(context.duplex, kPlexSimplex);
    QCOMPARE(context.colorMode, 2);
    QCOMPARE(context.finishing, Finishing());
    QCOMPARE(context.separators, kSeparatorsNone);
    QVERIFY(!context.frontCover && !context.backCover);

    const DeviceSession none(QString{});
    read(context, none);
    QCOMPARE(context.jobStock.color(), kUnset);
    QCOMPARE(context.finishing, Finishing());
}

void TestPaperOutputTicket::letsTheTicketsChoicesRuleTheStock()
{
    DeviceSession device(QStringLiteral("full"));
    device.session.printSettings().ppdChoices = {{"MediaColor", "Blue"},
                                                 {"MediaType", "CardStock"}};
    Stock stored;
    stored.setColor(kStockColorCustom);
    stored.setType(kStockTypeCustom);
    stored.setWeight(160);
    PMTicketSetCFDictionary(device.settings(), client, ticketKey("JobLevelStock"),
                            stored.asTicket());
    PaperOutputSettings context;

    read(context, device);

    QCOMPARE(context.jobStock.color(), 2);
    QCOMPARE(context.jobStock.type(), 12);
    QCOMPARE(context.jobStock.weight(), 160);
}

void TestPaperOutputTicket::keepsWhatOnlyAStockCanSay_data()
{
    // color: of the stock; choices: of the ticket
    const Table<std::int32_t, std::int32_t, PPDDictionary, std::int32_t, std::int32_t> row{
        "color", "type", "choices", "readColor", "readType"};

    const std::int32_t custom = kStockColorCustom, white = kStockColorWhite, plain = 1, blue = 2;
    const PPDDictionary none;
    row("no choice", custom, kStockTypeCustom, none, custom, kStockTypeCustom);
    row("others have a choice", blue, 12, none, white, plain);
    row("color in the ticket", custom, kStockTypeCustom, {{"MediaColor", "Blue"}}, blue,
        kStockTypeCustom);
    row("type in the ticket", custom, kStockTypeCustom, {{"MediaType", "Standard"}}, custom, plain);
    row("unknown choice", custom, plain, {{"MediaColor", "Puce"}}, kNoPpdChoice, plain);
}

void TestPaperOutputTicket::keepsWhatOnlyAStockCanSay()
{
    QFETCH(std::int32_t, color);
    QFETCH(std::int32_t, type);
    QFETCH(PPDDictionary, choices);
    DeviceSession device(QStringLiteral("full"));
    device.session.printSettings().ppdChoices = choices;
    Stock stock;
    stock.setColor(color);
    stock.setCustomColor(QStringLiteral("Lime"));
    stock.setType(type);
    stock.setCustomType(QStringLiteral("Felt"));
    stock.setModulus(5);
    PMTicketSetCFDictionary(device.settings(), client, ticketKey("JobLevelStock"),
                            stock.asTicket());
    PaperOutputSettings context;
    read(context, device);
    QTEST(context.jobStock.color(), "readColor");
    QTEST(context.jobStock.type(), "readType");

    // What is written says the same when it is read again: ticket in, ticket out.
    write(context, device);
    const auto written = PMTicketGetCFDictionary(device.settings(), ticketKey("JobLevelStock"));
    QCOMPARE(written->value("CustomColor"), QVariant("Lime"));
    QCOMPARE(written->value("CustomType"), QVariant("Felt"));
    PaperOutputSettings again;
    read(again, device);
    QVERIFY(again.jobStock == context.jobStock);
}

void TestPaperOutputTicket::findsTwoSidedInThreePlaces_data()
{
    const Table<QVariant, QVariant, QString, std::int32_t> row{"finishingDuplex", "duplexing",
                                                               "choice", "duplex"};

    row("own entry first", QVariant(3), QVariant(2), "None", kPlexDuplexShort);
    row("then the platform's", {}, QVariant(2), "None", kPlexDuplex);
    row("then the choice", {}, {}, "DuplexTumble", kPlexDuplexShort);
    row("an entry that is no number", QVariant("3"), {}, "DuplexNoTumble", kPlexDuplex);
}

void TestPaperOutputTicket::findsTwoSidedInThreePlaces()
{
    QFETCH(QVariant, finishingDuplex);
    QFETCH(QVariant, duplexing);
    QFETCH(QString, choice);
    QFETCH(std::int32_t, duplex);
    DeviceSession device(QStringLiteral("full"));
    Ticket &ticket = device.session.printSettings();
    if (finishingDuplex.isValid())
        ticket.entries[ticketKey("FinishingDuplex")] = {finishingDuplex, client};
    if (duplexing.isValid())
        ticket.entries[QStringLiteral("com.apple.print.PrintSettings.PMDuplexing")] = {duplexing,
                                                                                       client};
    ticket.ppdChoices[QStringLiteral("Duplex")] = choice;
    PaperOutputSettings context;

    read(context, device);

    QCOMPARE(context.duplex, duplex);
}

void TestPaperOutputTicket::writesWhatBelongsToTheJobType()
{
    const DeviceSession device(QStringLiteral("full"));
    PaperOutputSettings context;
    read(context, device);
    write(context, device);
    QCOMPARE(jobTypeIn(device).keys(),
             (QStringList{"DelayedPrintTime", "JobType", "MediaType", "UseJobName"}));

    context.jobType = kJobTypeSaved;
    context.savedJob = {false, QStringLiteral("Minutes"), locationOfMailbox(QStringLiteral("17")),
                        kSaveAndPrint, kSavedAsTiff};
    context.passcode = QStringLiteral("4815");
    write(context, device);
    const Dictionary saved = jobTypeIn(device);
    QCOMPARE(saved.value("SavedJobName"), QVariant("Minutes"));
    QCOMPARE(saved.value("SavedJobLocation"), QVariant("file:///job-repository/17"));
    QCOMPARE(saved.value("SaveDisposition"), QVariant(qint64(2)));
    QCOMPARE(saved.value("SavedJobFormat"), QVariant(qint64(1)));
    QCOMPARE(saved.value("SecurePrintPassword"), QVariant("4815"));
    PaperOutputSettings again;
    read(again, device);
    QCOMPARE(again.savedJob, context.savedJob);
    QCOMPARE(again.passcode, context.passcode);

    again.jobType = kJobTypeNormal;
    again.savedJob.usesJobName = true;
    again.savedJob.location.reset();
    again.passcode.reset();
    write(again, device);
    QCOMPARE(jobTypeIn(device).keys(),
             (QStringList{"DelayedPrintTime", "JobType", "MediaType", "UseJobName"}));
}

void TestPaperOutputTicket::keepsForeignEntriesOfTheJobType()
{
    const DeviceSession device(QStringLiteral("full"));
    PMTicketSetCFDictionary(device.settings(), client, ticketKey("JobType"),
                            {{"Shelf", "B"}, {"MediaType", 7}});
    PaperOutputSettings context;
    read(context, device);
    write(context, device);

    QCOMPARE(jobTypeIn(device).value("Shelf"), QVariant("B"));
    QCOMPARE(jobTypeIn(device).value("MediaType"), QVariant(qint64(7)));
}

void TestPaperOutputTicket::forgetsWhatAnEarlierTicketSaid()
{
    PaperOutputSettings context;
    {
        DeviceSession device(QStringLiteral("full"));
        PaperOutputSettings full;
        read(full, device);
        full.duplex = kPlexDuplex;
        full.passcode = QStringLiteral("1");
        full.finishing = {.options = 30,
                          .fold = kFoldC,
                          .offset = kOffsetSubsets,
                          .offsetSubsetEnabled = 1,
                          .pagesPerSubset = 9,
                          .custom = "tape"};
        full.separators = kSeparatorsBlank;
        full.frontCover.emplace();
        full.frontCover->stock().setSource(2);
        full.faxOptions = Dictionary{{"Resolution", 2}};
        write(full, device, true);
        read(context, device);
        QCOMPARE(context.finishing.pagesPerSubset, 9);
        QCOMPARE(context.frontCover->stock().source(), 2);
    }
    const DeviceSession empty(QStringLiteral("full"));

    read(context, empty);

    QCOMPARE(context.duplex, kPlexSimplex);
    QVERIFY(!context.passcode && !context.faxOptions && !context.frontCover);
    QCOMPARE(context.finishing, Finishing());
    QCOMPARE(context.separators, kSeparatorsNone);
}

void TestPaperOutputTicket::writesBookletEntriesWithALayoutOnly()
{
    const DeviceSession device(QStringLiteral("full"));
    PaperOutputSettings context;
    read(context, device);
    context.duplex = kPlexDuplexShort;
    context.booklet = {kBookletOff, 2, 36, 5, 5};
    write(context, device, true);
    QCOMPARE(PMTicketGetCFBoolean(device.settings(), ticketKey("BookletLayout")), false);
    QVERIFY(!numberIn(device, "Gutter"));

    context.booklet.layout = kBookletOn;
    write(context, device, true);
    QCOMPARE(numberIn(device, "FinishingDuplex"), kPlexDuplex);
    QCOMPARE(device.choice(QStringLiteral("Duplex")), QStringLiteral("DuplexNoTumble"));
    QCOMPARE(numberIn(device, "Gutter"), 36);
    const auto stock = PMTicketGetCFDictionary(device.settings(), ticketKey("JobLevelStock"));
    QCOMPARE(stock->value("Size"), QVariant(qint64(5)));
    PaperOutputSettings again;
    read(again, device);
    QVERIFY(again.isBooklet());
    QCOMPARE(again.booklet.pageBorders, 2);
    QCOMPARE(again.booklet.creep, 5);
    QCOMPARE(again.booklet.newSize, 5);

    again.booklet.newSize = kUnset;
    write(again, device);
    QVERIFY(
        !PMTicketGetCFDictionary(device.settings(), ticketKey("JobLevelStock"))->contains("Size"));
}

void TestPaperOutputTicket::writesTwoSidedWhileOpenOnly()
{
    const DeviceSession device(QStringLiteral("full"));
    PaperOutputSettings context;
    read(context, device);
    context.duplex = kPlexDuplex;
    write(context, device);
    QVERIFY(!numberIn(device, "FinishingDuplex"));
    QCOMPARE(device.choice(QStringLiteral("Duplex")), QString());

    write(context, device, true);
    QCOMPARE(numberIn(device, "FinishingDuplex"), kPlexDuplex);
    QCOMPARE(PMTicketGetCFNumber(device.settings(),
                                 QStringLiteral("com.apple.print.PrintSettings.PMDuplexing")),
             kPlexDuplex);
}

void TestPaperOutputTicket::takesBackHolesThatAreNotChosen_data()
{
    const Table<QString, std::int32_t, QString> row{"before", "punch", "after"};

    row("none after three", "3HolePunch", kPunchNone, "");
    row("none after two across", "2HolePunchLandscape", kPunchNone, "");
    row("one pattern after three", "3HolePunch", kPunchGeneric, "");
    row("one pattern stays", "HolePunch", kPunchGeneric, "HolePunch");
    row("never written", "", kPunchGeneric, "");
    row("four after three", "3HolePunch", kPunchFourHoles, "4HolePunch");
}

void TestPaperOutputTicket::takesBackHolesThatAreNotChosen()
{
    QFETCH(QString, before);
    QFETCH(std::int32_t, punch);
    DeviceSession device(QStringLiteral("full"));
    if (!before.isEmpty())
        device.session.printSettings().ppdChoices[QStringLiteral("KVPunch")] = before;
    PaperOutputSettings context;
    read(context, device);
    context.finishing.punch = punch;

    write(context, device);

    QTEST(device.choice(QStringLiteral("KVPunch")), "after");
}

void TestPaperOutputTicket::takesBackPaperThatIsNotChosen()
{
    DeviceSession device(QStringLiteral("full"));
    PPDDictionary &choices = device.session.printSettings().ppdChoices;
    const PPDDictionary unknown{{"MediaType", "Sparkling"}, {"StapleLocation", "Gold"}};
    choices = unknown;
    PaperOutputSettings context;
    read(context, device);
    write(context, device);
    for (auto choice = unknown.cbegin(); choice != unknown.cend(); ++choice)
        QCOMPARE(choices.value(choice.key()), choice.value()); // not ours to judge

    for (const std::int32_t color : {kUnset, kStockColorCustom}) {
        choices["MediaColor"] = QStringLiteral("Blue");
        context.jobStock.setColor(color);
        write(context, device);
        QVERIFY(!choices.contains("MediaColor"));
    }
}

void TestPaperOutputTicket::writesSeparatorsSourceWithSeparatorsOnly()
{
    const DeviceSession device(QStringLiteral("full"));
    Stock stock;
    stock.setSource(2);
    QCOMPARE(SyncSeparatorsToTicket(device.settings(), kSeparatorsNone, &stock), noErr);
    QCOMPARE(device.choice(QStringLiteral("KVSlipSheetSource")), QString());
    QCOMPARE(SyncSeparatorsToTicket(device.settings(), kSeparatorsPrinted, &stock), noErr);
    QCOMPARE(device.choice(QStringLiteral("KVSlipSheetPrint")), QStringLiteral("Printed"));
    QCOMPARE(device.choice(QStringLiteral("KVSlipSheetSource")), QStringLiteral("Tray2"));

    std::int32_t separators = 0;
    Stock read;
    read.setWeight(90);
    QCOMPARE(SyncSeparatorsFromTicket(device.settings(), &separators, &read), noErr);
    QCOMPARE(separators, kSeparatorsPrinted);
    QCOMPARE(read.source(), 2);
    QCOMPARE(read.weight(), kUnset);
    QCOMPARE(separatorSummary(currentDevice(), separators, read),
             QStringLiteral("- Separators: Tray 2"));
    QCOMPARE(separatorSummary(currentDevice(), kSeparatorsNone, read), QString());
    QCOMPARE(SyncSeparatorsFromTicket(0, &separators, &read), paramErr);
    QCOMPARE(SyncSeparatorsFromTicket(device.settings(), nullptr, &read), paramErr);
}

// Everything that does not come back as it was, one by one.
void TestPaperOutputTicket::readsBackWhatItWroteBut_data()
{
    using Change = std::function<void(PaperOutputSettings &)>;
    // whatComesBack: done to what was written
    const Table<std::int32_t, Change, Change> table{"orientation", "change", "whatComesBack"};

    const auto row = [&](const char *name, const Change &change, const Change &back = {},
                         std::int32_t orientation = 1) { table(name, orientation, change, back); };
    using Context = PaperOutputSettings;
    row("nothing", [](Context &) {});
    row("a colour of the PPD", [](Context &c) { c.jobStock.setColor(9); });
    row("a colour of the user's", [](Context &c) { c.jobStock.setColor(kStockColorCustom); });
    for (const std::int32_t type : {kStockTypePrecutTab, kStockTypeOrdered, kStockTypeCustom})
        row(qPrintable(QStringLiteral("type %1").arg(type)),
            [type](Context &c) { c.jobStock.setType(type); });
    row(
        "the second card stock", [](Context &c) { c.jobStock.setType(43); },
        [](Context &c) { c.jobStock.setType(12); });
    row("four holes", [](Context &c) { c.finishing.punch = kPunchFourHoles; });
    row(
        "one hole pattern", [](Context &c) { c.finishing.punch = kPunchGeneric; },
        [](Context &c) { c.finishing.punch = kPunchNone; });
    row("a fold", [](Context &c) { c.finishing.fold = kFoldZHalfSheet; });
    row("covers from trays", [](Context &c) {
        c.frontCover.emplace();
        c.frontCover->stock().setSource(2);
    });
    row(
        "what a cover is printed on",
        [](Context &c) {
            c.backCover.emplace();
            c.backCover->setSidesImaged(kCoverPrinted);
            c.backCover->stock().setColor(9);
            c.backCover->stock().setSource(2);
        },
        [](Context &c) {
            c.backCover->setSidesImaged(kCoverBlank);
            c.backCover->stock().setColor(kStockColorWhite);
        });
    const auto dual = [](Context &c) { setStaple(c.finishing, kStapleDual); };
    const auto none = [](Context &) {};
    const auto single = [](Context &c) { setStaple(c.finishing, kStapleSingle); };
    row("two staples", dual);
    row("two staples across", dual, {}, 2);
    row("two staples, reverse portrait", dual, {}, 3);
    row("two staples, reverse landscape", dual, single, 4);
    row("one staple, reverse portrait", single, dual, 3);
    row("no staple, reverse portrait", none, dual, 3);
    row("no staple, reverse landscape", none, single, 4);
    row("multiple staples", [](Context &c) { setStaple(c.finishing, kStapleMultiple); });
}

void TestPaperOutputTicket::readsBackWhatItWroteBut()
{
    using Change = std::function<void(PaperOutputSettings &)>;
    QFETCH(std::int32_t, orientation);
    QFETCH(Change, change);
    QFETCH(Change, whatComesBack);
    const DeviceSession device(QStringLiteral("full"));
    PMTicketSetCFNumber(device.pageFormat(), client, kPMOrientationKey, orientation);
    PaperOutputSettings context;
    read(context, device);
    change(context);
    write(context, device, true);

    PaperOutputSettings again;
    read(again, device);

    if (whatComesBack)
        whatComesBack(context);
    QCOMPARE(again.jobStock, context.jobStock);
    QCOMPARE(again.finishing.punch, context.finishing.punch);
    QCOMPARE(again.finishing.fold, context.finishing.fold);
    QCOMPARE(chosenStaple(again.finishing), chosenStaple(context.finishing));
    for (const auto &[one, other] : {std::pair(&again.frontCover, &context.frontCover),
                                     {&again.backCover, &context.backCover}})
        QVERIFY(*one ? *other && **one == **other : !*other);
    // Once read, it stays as it is.
    if (orientation <= 2) {
        const Ticket written = device.session.printSettings();
        write(again, device, true);
        if (!whatComesBack)
            QCOMPARE(device.session.printSettings(), written);
    }
}

QTEST_GUILESS_MAIN(TestPaperOutputTicket)
#include "test_paper_output_ticket.moc"
