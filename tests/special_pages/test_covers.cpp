#include "cover_options.h"
#include "cover_sync.h"
#include "pde_session.h"
#include "ppd_choices.h"
#include "print_session.h"
#include "stock_menus.h"
#include "table.h"
#include "ticket.h"
#include "ticket_values.h"

#include <QTest>

using namespace kelvo;

namespace {

constexpr std::int32_t kTray1 = 1, kTray2 = 2;
constexpr std::int32_t kA4 = 4, kBlue = 2;

Cover coverFrom(std::int32_t source, std::int32_t sidesImaged = kCoverBlank)
{
    Cover cover = newCover();
    cover.stock().setSource(source);
    cover.setSidesImaged(sidesImaged);
    return cover;
}

// What a device offers: automatic, and tray 1.
Menu twoSources()
{
    Menu sources;
    for (const std::int32_t offered : {kCoverSourceAutomatic, kTray1}) {
        MenuItem item;
        item.text = QStringLiteral("Source %1").arg(offered);
        item.reference = offered;
        sources.items.push_back(item);
    }
    return sources;
}

std::optional<Cover> given(std::optional<std::int32_t> source)
{
    return source ? std::optional(coverFrom(*source)) : std::nullopt;
}

} // namespace

Q_DECLARE_METATYPE(std::optional<std::int32_t>)

class TestCovers : public QObject
{
    Q_OBJECT

private slots:
    void optionSaysWhichCoversAreGiven_data();
    void optionSaysWhichCoversAreGiven();
    void coversThatStayKeepTheirSettings();
    void sameCoversFollowTheFront();
    void printedCoversHaveNoSizeOfTheirOwn();
    void aSourceThatIsNotOfferedIsNotSet_data();
    void aSourceThatIsNotOfferedIsNotSet();
    void eachCoverSaysWhatBecomesOfIt_data();
    void eachCoverSaysWhatBecomesOfIt();
    void theCallersCoverStaysTheSameObject();
    void readsDictionaries_data();
    void readsDictionaries();
    void writesSources_data();
    void writesSources();
    void readsSources_data();
    void readsSources();
};

void TestCovers::optionSaysWhichCoversAreGiven_data()
{
    const Table<std::optional<std::int32_t>, std::optional<std::int32_t>, int> row{"front", "back",
                                                                                   "option"};
    const std::optional<std::int32_t> none;
    const std::optional<std::int32_t> one = kTray1;
    const std::optional<std::int32_t> two = kTray2;

    row("none", none, none, 1);
    row("front", one, none, 2);
    row("back", none, one, 3);
    row("the same", one, one, 4);
    row("both", one, two, 5);
}

void TestCovers::optionSaysWhichCoversAreGiven()
{
    QFETCH(std::optional<std::int32_t>, front);
    QFETCH(std::optional<std::int32_t>, back);
    const WorkingCovers covers = workingCovers(given(front), given(back));
    QTEST(int(covers.option), "option");
    QCOMPARE(covers.front.stock().source(), front.value_or(kCoverSourceAutomatic));
    QCOMPARE(covers.back.stock().source(), back.value_or(kCoverSourceAutomatic));
}

void TestCovers::coversThatStayKeepTheirSettings()
{
    const Cover front = coverFrom(kTray1);
    const Cover back = coverFrom(kTray2);
    WorkingCovers covers = workingCovers(front, back);
    setCoverOption(covers, kFrontCoverOnly);
    QVERIFY(covers.front == front);
    setCoverOption(covers, kFrontAndBackCovers);
    QVERIFY(covers.front == front);
    // A cover that comes again follows the job, from whatever tray has its paper.
    QVERIFY(covers.back == coverFrom(kCoverSourceAutomatic));
    QCOMPARE(covers.back.stock().color(), kUnset);
    setCoverOption(covers, kBackCoverOnly);
    QVERIFY(covers.front == newCover());
    setCoverOption(covers, kNoCovers);
    std::optional<Cover> left = given(kTray1);
    std::optional<Cover> none;
    handOver(covers, left, none);
    QVERIFY(!left && !none);
}

void TestCovers::sameCoversFollowTheFront()
{
    Cover front = coverFrom(kTray1);
    front.setStartPage(3);
    const Cover back = coverFrom(kTray2);
    WorkingCovers covers = workingCovers(front, back);
    setCoverOption(covers, kSameCovers);
    QVERIFY(covers.back == front);
    QCOMPARE(covers.back.startPage(), 3);
    covers.front.setSidesImaged(kCoverPrinted);
    covers.front.stock().setColor(kBlue);
    settleCovers(covers);
    QCOMPARE(covers.back.sidesImaged(), kCoverPrinted);
    QCOMPARE(covers.back.stock().color(), kBlue);
    // Apart again, they begin as equals and change one by one.
    setCoverOption(covers, kFrontAndBackCovers);
    covers.front.setSidesImaged(kCoverBlank);
    settleCovers(covers);
    QCOMPARE(covers.back.sidesImaged(), kCoverPrinted);
}

void TestCovers::printedCoversHaveNoSizeOfTheirOwn()
{
    Menu menu;
    for (const OSType command : {kCommandStockSize, kCommandStockColor, kCommandStockSource}) {
        MenuItem item;
        item.command = command;
        item.submenu.resize(command == kCommandStockSize ? 1 : 0);
        menu.items.push_back(item);
    }
    const auto enabled = [&menu] {
        QString text;
        for (const MenuItem &item : menu.items)
            text += item.enabled ? u'+' : u'-';
        return text;
    };

    Cover cover = coverFrom(kTray1);
    cover.stock().setSize(kA4);
    setSidesImaged(cover, kCoverPrinted);
    QCOMPARE(cover.stock().size(), kUnset);
    QCOMPARE(cover.stock().source(), kTray1);
    enableStockItems(menu, cover);
    QCOMPARE(enabled(), QStringLiteral("-+-"));

    setSidesImaged(cover, kCoverBlank);
    cover.stock().setSize(kA4);
    setSidesImaged(cover, kCoverBlank);
    QCOMPARE(cover.stock().size(), kA4);
    enableStockItems(menu, cover);
    QCOMPARE(enabled(), QStringLiteral("+++"));
    menu.items[0].submenu.clear(); // a device without sizes
    enableStockItems(menu, cover);
    QCOMPARE(enabled(), QStringLiteral("-++"));
}

void TestCovers::aSourceThatIsNotOfferedIsNotSet_data()
{
    // menu: references
    const Table<int, QString> row{"source", "menu"};

    row("automatic", 0, "0 1");
    row("a tray", int(kTray1), "0 1");
    row("a tray that is not there", int(kTray2), "unset 0 1");
    row("not set", int(kUnset), "unset 0 1");
    row("the inserter", int(kStockSourceInserter), "unset 0 1");
}

void TestCovers::aSourceThatIsNotOfferedIsNotSet()
{
    QFETCH(int, source);
    QStringList found;
    for (const MenuItem &item : sourceMenu(twoSources(), coverFrom(source), "Not set").items)
        found << (item.reference == kUnset ? "unset" : QString::number(item.reference));
    QTEST(found.join(u' '), "menu");
}

void TestCovers::eachCoverSaysWhatBecomesOfIt_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<int>("front"); // sources
    QTest::addColumn<int>("back");
    QTest::addColumn<QString>("views");  // of both
    QTest::addColumn<QString>("header"); // of what OK asks

    QTest::newRow("none") << int(kNoCovers) << 0 << 0 << "none, none"
                          << "";
    QTest::newRow("from a tray, and missing")
        << int(kFrontAndBackCovers) << int(kTray1) << int(kTray2)
        << "edited 1 Chosen - Source 1, edited 2 out Missing"
        << "Back Cover Left Out Header";
    QTest::newRow("the inserter's") << int(kFrontCoverOnly) << int(kStockSourceInserter) << 0
                                    << "edited unset out Inserter, none"
                                    << "Front Cover Left Out Header";
    QTest::newRow("the same, not set") << int(kSameCovers) << int(kUnset) << int(kUnset)
                                       << "edited unset out Missing, follows unset out Missing"
                                       << "Covers Left Out Header";
    QTest::newRow("a back cover alone")
        << int(kBackCoverOnly) << int(kTray2) << 0 << "none, edited 0 Automatic"
        << "";
}

void TestCovers::eachCoverSaysWhatBecomesOfIt()
{
    QFETCH(int, option);
    QFETCH(int, front);
    QFETCH(int, back);
    WorkingCovers covers{.option = option, .front = coverFrom(front), .back = coverFrom(back)};
    covers.front.stock().setCustomNameOnly(true); // no more paper than a tray's
    covers.back.stock().setCustomNameOnly(true);
    const auto described = [](const CoverView &view) {
        if (!view.isThere)
            return QStringLiteral("none");
        const QString paper =
            view.paper.startsWith(QLatin1String("- Source")) ? u' ' + view.paper : QString();
        return QStringLiteral("%1 %2%3 %4%5")
            .arg(view.isEditable ? "edited" : "follows",
                 view.source == kUnset ? QStringLiteral("unset") : QString::number(view.source),
                 view.isLeftOut ? " out" : "",
                 QString::fromLatin1(view.sourceHintKey).section(u' ', -1), paper);
    };
    const CoverView views[] = {
        coverView(Device(), covers, CoverPlace::Front, twoSources()),
        coverView(Device(), covers, CoverPlace::Back, twoSources()),
    };
    QTEST(described(views[0]) + QStringLiteral(", ") + described(views[1]), "views");
    QTEST(QString::fromLatin1(leftOutHeaderKey(views[0].isLeftOut, views[1].isLeftOut)), "header");
    // A device without covers has no source to show.
    QCOMPARE(coverView(Device(), covers, CoverPlace::Front, Menu()).source, kUnset);
}

void TestCovers::theCallersCoverStaysTheSameObject()
{
    std::optional<Cover> front = given(kTray1);
    std::optional<Cover> back;
    const auto before = front->identity();
    WorkingCovers covers = workingCovers(front, std::nullopt);
    setCoverOption(covers, kFrontAndBackCovers);
    covers.front.setSidesImaged(kCoverPrinted);
    covers.back.stock().setSource(kTray2);
    handOver(covers, front, back);
    QCOMPARE(front->identity(), before);
    QCOMPARE(front->sidesImaged(), kCoverPrinted);
    QVERIFY(back);
    QCOMPARE(back->stock().source(), kTray2);
}

void TestCovers::readsDictionaries_data()
{
    const Table<Dictionary, int, int, int> row{"dictionary", "startPage", "sides", "color"};

    const Dictionary stock{{"Color", qint64(kBlue)}};
    row("all", {{"StartPage", qint64(7)}, {"SidesImaged", qint64(4)}, {"Stock", stock}}, 7, 4,
        int(kBlue));
    row("empty", {}, 0, 1, int(kUnset));
    row("numbers as texts", {{"StartPage", "7"}, {"SidesImaged", "4"}, {"Stock", "Blue"}}, 0, 1,
        int(kUnset));
    row("beyond 32 bits", {{"SidesImaged", qint64(1) << 32}}, 0, 1, int(kUnset));
}

void TestCovers::readsDictionaries()
{
    QFETCH(Dictionary, dictionary);
    const Cover cover(dictionary);
    QTEST(int(cover.startPage()), "startPage");
    QTEST(int(cover.sidesImaged()), "sides");
    QTEST(int(cover.stock().color()), "color");
    // What was read is written, and read again as the same.
    const Cover again(cover.asTicket());
    QVERIFY(again == cover);
    QCOMPARE(again.startPage(), cover.startPage());
}

void TestCovers::writesSources_data()
{
    // choices: front and back
    const Table<bool, std::optional<std::int32_t>, std::optional<std::int32_t>, QString> row{
        "booklet", "front", "back", "choices"};
    const std::optional<std::int32_t> none;
    const std::optional<std::int32_t> one = kTray1;
    const std::optional<std::int32_t> two = kTray2;

    row("none", false, none, none, "None None");
    row("front", false, one, none, "Tray1 None");
    row("equal", false, one, one, "Tray1 Tray1");
    row("bypass and automatic", false, std::optional<std::int32_t>(100),
        std::optional<std::int32_t>(0), "Bypass Auto");
    // The stock's size, colour and type do not reach the printer.
    row("no source", false, std::optional<std::int32_t>(kUnset), none, "- None");
    row("booklet, equal", true, one, one, "Tray1 None");
    row("booklet, front", true, one, none, "Tray1 None");
    row("booklet, different", true, one, two, "Tray1 Tray2");
    row("booklet, back", true, none, two, "None Tray2");
}

void TestCovers::writesSources()
{
    QFETCH(bool, booklet);
    QFETCH(std::optional<std::int32_t>, front);
    QFETCH(std::optional<std::int32_t>, back);
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    PMTicketSetCFBoolean(ticket, "test", ticketKey("BookletLayout"), booklet);
    for (const char *option : {"KVFrontCoverSheet", "KVBackCoverSheet"})
        PPDSetCurrentChoice(ticket, option, "Tray6"); // of an earlier cover
    std::optional<Cover> frontCover = given(front);
    std::optional<Cover> backCover = given(back);

    QCOMPARE(SyncCovers(ticket, kSyncWrite, &frontCover, &backCover), noErr);

    const auto choice = [ticket](const char *option) {
        return PPDCopyCurrentChoice(ticket, option).value_or("-");
    };
    QTEST(choice("KVFrontCoverSheet") + u' ' + choice("KVBackCoverSheet"), "choices");
}

void TestCovers::readsSources_data()
{
    // front: choices; sources: front and back
    const Table<bool, QString, QString, QString> row{"booklet", "front", "back", "sources"};

    row("none", false, "None", "None", "- -");
    row("both", false, "Tray1", "Bypass", "1 100");
    row("unknown", false, "Tray9", "Auto", "- 0");
    row("booklet", true, "Tray2", "None", "2 2");
    row("booklet without front", true, "None", "Tray1", "- -");
}

void TestCovers::readsSources()
{
    QFETCH(bool, booklet);
    QFETCH(QString, front);
    QFETCH(QString, back);
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    if (booklet)
        PMTicketSetCFBoolean(ticket, "test", ticketKey("BookletLayout"), true);
    PPDSetCurrentChoice(ticket, "KVFrontCoverSheet", front);
    PPDSetCurrentChoice(ticket, "KVBackCoverSheet", back);
    std::optional<Cover> frontCover = given(kTray1);
    std::optional<Cover> backCover = given(kTray1);

    QCOMPARE(SyncCovers(ticket, kSyncRead, &frontCover, &backCover),
             booklet ? noErr : kPMKeyNotFound);

    const auto source = [](const std::optional<Cover> &cover) {
        return cover ? QString::number(cover->stock().source()) : QStringLiteral("-");
    };
    QTEST(source(frontCover) + u' ' + source(backCover), "sources");
}

QTEST_APPLESS_MAIN(TestCovers)
#include "test_covers.moc"
