#include "device_session.h"
#include "finishing.h"
#include "finishing_ticket.h"
#include "output_destinations.h"
#include "paper_output_pictures.h"
#include "paper_output_settings.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

namespace {

QString codeText(OSType code)
{
    return code == kNoCommand ? QStringLiteral("-")
                              : QStringLiteral("%1%2%3%4")
                                    .arg(QChar(code >> 24), QChar(code >> 16 & 255),
                                         QChar(code >> 8 & 255), QChar(code & 255));
}

// What commands leave behind, in one line.
QString stateOf(const PaperOutputSettings &context)
{
    const Finishing &finishing = context.finishing;
    return QStringLiteral("booklet %1 duplex %2 options %3 fold %4 punch %5/%6 staples %7,%8,%9")
        .arg(context.booklet.layout)
        .arg(context.duplex)
        .arg(finishing.options)
        .arg(finishing.fold)
        .arg(finishing.punch)
        .arg(finishing.punchKind)
        .arg(finishing.singleStaple)
        .arg(finishing.dualStaple)
        .arg(finishing.otherStaple);
}

} // namespace

class TestFinishing : public QObject
{
    Q_OBJECT

private slots:
    void offersWhatIsInstalled_data();
    void offersWhatIsInstalled();
    void followsTheMenu_data();
    void followsTheMenu();
    void staplesAreOfThreeKinds();
    void checksWhatIsChosen_data();
    void checksWhatIsChosen();
    void summarizes_data();
    void summarizes();
    void placesStaplesAndHolesByOrientation_data();
    void placesStaplesAndHolesByOrientation();
    void readsChoicesWithoutValue();
    void showsWhatComesOut_data();
    void showsWhatComesOut();
};

void TestFinishing::offersWhatIsInstalled_data()
{
    const Table<QString, QString> row{"commands", "bins"};
    row("full", "Stp0 Stp1 Stp2 Stp4 - Hpn2 Hpn3 Hpn4 Hpn0 - Fld0 Bfld Cfld Zfld Zfol - Bkcr",
        "Auto PrinterDefault Top Side Middle Middle2 Upper Lower Stacker Booklet EnvFolder SBM");
    row("mid", "Stp0 Stp1 - Hpn2 Hpn0 - - Bkcr", "Auto Top Side Upper");
    row("bare", "- - - Bkcr", "Top"); // its catch tray is not installed
}

void TestFinishing::offersWhatIsInstalled()
{
    const DeviceSession device(QString::fromLatin1(QTest::currentDataTag()));
    Menu finishings, destinations;
    PopulateFinishingMenu(finishings, currentDevice());
    PopulateOutputDestination(destinations, currentDevice());

    QStringList commands, bins;
    for (const MenuItem &item : finishings.items) {
        commands << codeText(item.command);
        QVERIFY2(item.divider || !item.text.isEmpty(), qPrintable(commands.last()));
    }
    for (const MenuItem &item : destinations.items)
        bins << item.key;
    QTEST(commands.join(u' '), "commands");
    QTEST(bins.join(u' '), "bins");
}

void TestFinishing::followsTheMenu_data()
{
    // plain: from two staples, four holes and a C-fold; booklet: from a stapled booklet
    const Table<OSType, std::int32_t, QString, QString> table{"command", "value", "plain",
                                                              "booklet"};

    const auto row = [&](const char *command, std::int32_t value, const char *plain,
                         const char *booklet) {
        const char code[5] = {command[0], command[1], command[2], command[3], 0};
        table(command, fourCharCode(code), value, plain, booklet);
    };
    row("Stp0", 1, "booklet 2 duplex 1 options 9 fold 19 punch 5/32 staples 1,1,1",
        "booklet 2 duplex 2 options 0 fold 1 punch 1/1 staples 1,1,1");
    row("Stp1", 5, "booklet 2 duplex 1 options 4 fold 1 punch 5/32 staples 5,1,1",
        "booklet 2 duplex 2 options 4 fold 1 punch 1/1 staples 5,1,1");
    row("Stp2", 10, "booklet 2 duplex 1 options 9 fold 1 punch 5/32 staples 1,10,1",
        "booklet 2 duplex 2 options 9 fold 1 punch 1/1 staples 1,10,1");
    row("Stp4", 54, "booklet 2 duplex 1 options 53 fold 1 punch 1/1 staples 1,1,54",
        "booklet 2 duplex 2 options 53 fold 1 punch 1/1 staples 1,1,54");
    row("Hpn3", 4, "booklet 2 duplex 1 options 30 fold 1 punch 4/32 staples 1,10,1",
        "booklet 2 duplex 2 options 30 fold 1 punch 4/32 staples 1,1,1");
    row("Hpn0", 1, "booklet 2 duplex 1 options 9 fold 19 punch 1/1 staples 1,10,1",
        "booklet 2 duplex 2 options 0 fold 1 punch 1/1 staples 1,1,1");
    row("Zfld", 20, "booklet 2 duplex 1 options 9 fold 20 punch 5/32 staples 1,10,1",
        "booklet 1 duplex 3 options 24 fold 20 punch 1/1 staples 1,1,1");
}

void TestFinishing::followsTheMenu()
{
    QFETCH(OSType, command);
    QFETCH(std::int32_t, value);
    QFETCH(QString, booklet);

    PaperOutputSettings context;
    context.finishing = {.options = kFinishingDualStaple,
                         .fold = kFoldC,
                         .punch = kPunchFourHoles,
                         .punchKind = kPunchKindPunched,
                         .dualStaple = kStapleDual};
    QVERIFY(applyFinishingCommand(context, command, value));
    QTEST(stateOf(context), "plain");

    context = {};
    context.booklet.layout = kBookletOn;
    context.duplex = kPlexDuplexShort;
    context.finishing.options = kFinishingBooklet;
    context.finishing.fold = kFoldBiAndStaple;
    QVERIFY(applyFinishingCommand(context, command, value));
    QCOMPARE(stateOf(context), booklet);

    QVERIFY(!applyFinishingCommand(context, kCommandBookletCreation, 0));
}

void TestFinishing::staplesAreOfThreeKinds()
{
    const auto kindOf = [](std::int32_t staple) {
        Finishing finishing;
        setStaple(finishing, staple);
        return finishing.singleStaple == staple ? 1
            : finishing.dualStaple == staple    ? 2
            : finishing.otherStaple == staple   ? 3
                                                : 0;
    };
    QList<int> kinds;
    for (const std::int32_t staple : {4, 5, 8, 9, 10, 13, 14, 53, 54, 57, 58})
        kinds << kindOf(staple);
    QCOMPARE(kinds, (QList{0, 1, 1, 0, 2, 2, 0, 0, 3, 3, 0}));
    // Multiple staples leave no room for holes.
    PaperOutputSettings settings;
    setStaple(settings.finishing, kStapleMultiple);
    applyFinishingCommand(settings, kCommandTwoHoles, kPunchTwoHoles);
    QCOMPARE(settings.finishing.otherStaple, kStapleNone);
}

void TestFinishing::checksWhatIsChosen_data()
{
    const Table<std::int32_t, Finishing, QString> row{"booklet", "finishing", "checked"};

    row("nothing", kBookletOff, Finishing(), "Stp0 Hpn0 Fld0");
    row("two staples, three holes", kBookletOff,
        Finishing{.punch = kPunchThreeHoles, .dualStaple = kStapleDual}, "Stp2 Hpn3 Fld0");
    row("a staple of another place", kBookletOff, Finishing{.singleStaple = 6}, "Hpn0 Fld0");
    row("booklet layout", kBookletOn, Finishing{.fold = kFoldC}, "Bkcr");
    row("booklet finishing", kBookletOff, Finishing{.options = kFinishingBooklet, .fold = kFoldBi},
        "Bkcr");
}

void TestFinishing::checksWhatIsChosen()
{
    QFETCH(std::int32_t, booklet);
    QFETCH(Finishing, finishing);
    QFETCH(QString, checked);
    const DeviceSession device(QStringLiteral("full"));
    PaperOutputSettings context;
    context.booklet.layout = booklet;
    context.finishing = finishing;

    Menu menu;
    PopulateFinishingMenu(menu, currentDevice());
    menu.items.front().checked = true; // an earlier mark goes
    MarkFinishingMenu(menu, context);

    QStringList found;
    for (const MenuItem &item : menu.items) {
        if (item.checked)
            found << codeText(item.command);
    }
    QCOMPARE(found.join(u' '), checked);
}

void TestFinishing::summarizes_data()
{
    const Table<QString, std::int32_t, Finishing, QString> row{"device", "booklet", "finishing",
                                                               "summary"};

    const QString full = QStringLiteral("full");
    row("nothing chosen", full, kBookletOff, Finishing(), "- No staple|- No hole punch|- No fold|");
    row("multiple staples", full, kBookletOff, Finishing{.otherStaple = kStapleMultiple},
        "- Multiple staples|- No hole punch|- No fold|");
    row("single before multiple", full, kBookletOff,
        Finishing{.singleStaple = 5, .otherStaple = kStapleMultiple},
        "- 1 staple|- No hole punch|- No fold|");
    row("holes and half-sheet fold", full, kBookletOff,
        Finishing{.fold = kFoldZHalfSheet, .punch = kPunchTwoHoles},
        "- No staple|- 2-hole punch|- Z-fold half sheet|");
    row("booklet finishing without layout", full, kBookletOff,
        Finishing{.options = kFinishingBooklet, .fold = kFoldBiAndStaple},
        "- Booklet fold and staple|");
    row("booklet layout", full, kBookletOn, Finishing{.fold = kFoldBi},
        "- Booklet fold|- Booklet layout|");
    row("one stapler, no folder", "mid", kBookletOff, Finishing(), "- No staple|- No hole punch|");
    row("no finisher", "bare", kBookletOff, Finishing(), "");
}

void TestFinishing::summarizes()
{
    QFETCH(QString, device);
    QFETCH(std::int32_t, booklet);
    QFETCH(Finishing, finishing);
    const DeviceSession session(device);
    PaperOutputSettings context;
    context.booklet.layout = booklet;
    context.finishing = finishing;

    QTEST(CreateFinishingString(context, currentDevice()).replace(u'\n', u'|'), "summary");
}

void TestFinishing::placesStaplesAndHolesByOrientation_data()
{
    // choices: by orientation; "-": none
    const Table<std::int32_t, bool, QString> row{"value", "isStaple", "choices"};

    row("no staple", 1, true, "None None DualPortrait SingleLandscape");
    row("one staple", 5, true, "SinglePortrait SingleLandscape DualPortrait SingleLandscape");
    row("two staples", 10, true, "DualPortrait DualLandscape DualPortrait SingleLandscape");
    row("multiple staples", 54, true,
        "MultipleStaples MultipleStaples DualPortrait SingleLandscape");
    row("no hole", 1, false, "- - - -");
    row("one pattern", 2, false, "- - - -");
    row("two holes", 3, false, "2HolePunch 2HolePunchLandscape 2HolePunch 2HolePunchLandscape");
    row("three holes", 4, false, "3HolePunch 3HolePunchLandscape 3HolePunch 3HolePunchLandscape");
    row("four holes", 5, false, "4HolePunch 4HolePunchLandscape 4HolePunch 4HolePunchLandscape");
}

void TestFinishing::placesStaplesAndHolesByOrientation()
{
    QFETCH(std::int32_t, value);
    QFETCH(bool, isStaple);

    QStringList found;
    for (const std::int32_t orientation : {1, 2, 3, 4}) {
        const std::optional<QString> choice =
            isStaple ? stapleChoice(value, orientation) : punchChoice(value, orientation);
        found << choice.value_or(QStringLiteral("-"));
    }
    QTEST(found.join(u' '), "choices");
    QVERIFY(!punchChoice(kPunchTwoHoles, 5));
}

void TestFinishing::readsChoicesWithoutValue()
{
    QCOMPARE(punchOfChoice(QStringLiteral("3HolePunchLandscape")), kPunchThreeHoles);
    QVERIFY(!punchOfChoice(QStringLiteral("3HolePunch")));
    QCOMPARE(stapleOfChoice(QStringLiteral("SingleLandscape")), kStapleSingle);
    QCOMPARE(stapleOfChoice(QStringLiteral("DualPortrait")), kStapleDual);
    QVERIFY(!stapleOfChoice(QStringLiteral("Corner")));
}

void TestFinishing::showsWhatComesOut_data()
{
    const Table<std::int32_t, Finishing, QString> table{"booklet", "finishing", "picture"};

    const auto row = [&](const char *name, const Finishing &finishing, const char *picture,
                         std::int32_t booklet = kBookletOff) {
        table(name, booklet, finishing, picture);
    };
    row("nothing", {}, "OfficeFinishing_None.gif");
    row("a fold decides alone", {.fold = kFoldC, .singleStaple = 5}, "OfficeFinishing_CFold.gif");
    row("unknown fold", {.fold = 99}, "");
    row("bi-fold", {.fold = kFoldBi}, "OfficeFinishing_Bklt_Fold.gif");
    row("bi-fold of a layout", {.fold = kFoldBi}, "OfficeFinishing_Bklt_Fold_Layout.gif",
        kBookletOn);
    row("stapled booklet", {.fold = kFoldBiAndStaple}, "OfficeFinishing_BKlt_Fold&Stple.gif");
    row("stapled layout", {.fold = kFoldBiAndStaple}, "OfficeFinishing_Bklt_Fold&Stpl_Layout.gif",
        kBookletOn);
    row("staple and two holes", {.punch = kPunchTwoHoles, .singleStaple = 5},
        "OfficeFinishing_1St&2Hp.gif");
    row("two staples and a pattern", {.punch = kPunchGeneric, .dualStaple = 10},
        "OfficeFinishing_2St&3Hp.gif");
    row("many staples", {.otherStaple = 54}, "OfficeFinishing_4St.gif");
    row("a staple without picture", {.singleStaple = 6}, "OfficeFinishing_None.gif");
    row("two holes show three", {.punch = kPunchTwoHoles}, "OfficeFinishing_3Hp.gif");
    row("four holes", {.punch = kPunchFourHoles}, "OfficeFinishing_4Hp.gif");
    row("layout alone", {}, "OfficeFinishing_Bklt_Layout.gif", kBookletOn);
}

void TestFinishing::showsWhatComesOut()
{
    QFETCH(std::int32_t, booklet);
    QFETCH(Finishing, finishing);
    PaperOutputSettings context;
    context.booklet.layout = booklet;
    context.finishing = finishing;

    QTEST(finishingPicture(context), "picture");
}

QTEST_GUILESS_MAIN(TestFinishing)
#include "test_finishing.moc"
