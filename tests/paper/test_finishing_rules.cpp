#include "finishing_choices.h"
#include "finishing_offset.h"
#include "installed_features.h"
#include "paper_output_context.h"
#include "ppd_file.h"
#include "separator_picture.h"
#include "separators.h"

#include <QTest>

using namespace kelvo;
using Kind = FinishingDialogKind;

Q_DECLARE_METATYPE(kelvo::OffsetSettings)
Q_DECLARE_METATYPE(kelvo::FinishingDialogKind)

namespace {

QString devicePpd(const char *device)
{
    return QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-%1.ppd")
        .arg(QLatin1String(device));
}

std::shared_ptr<PpdFile> openDevice(const char *device)
{
    const auto opened = PpdFile::open(devicePpd(device));
    if (!opened)
        return nullptr;
    LoadInstallableOptions(opened.value().get(), InstalledFeatures);
    return opened.value();
}

QList<int> valuesOf(const std::vector<FinishingChoice> &choices)
{
    QList<int> values;
    for (const FinishingChoice &choice : choices)
        values << choice.value;
    return values;
}

Finishing stapledAndPunched(std::int32_t staple, std::int32_t punch, std::int32_t fold = kFoldNone)
{
    Finishing finishing;
    setStaple(finishing, staple);
    finishing.punch = punch;
    finishing.fold = fold;
    return finishing;
}

} // namespace

class TestFinishingRules : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { UnloadInstallableOptions(); }

    void offsetsAndSubsetsKeepTogether_data();
    void offsetsAndSubsetsKeepTogether();
    void offsetBeginsAsTheTicketAllows_data();
    void offsetBeginsAsTheTicketAllows();
    void pagesPerSubsetAreStoredWithSubsetsOnly();
    void dialogsOfferWhatIsInstalled_data();
    void dialogsOfferWhatIsInstalled();
    void aFoldThatThePpdLacksIsNotOffered();
    void whatADialogDoesNotOfferIsNamed();
    void okDoesWhatTheMenuDoes();
    void picturesShowWhatComesOut_data();
    void picturesShowWhatComesOut();
    void separatorPicturesFollowTheColor_data();
    void separatorPicturesFollowTheColor();
};

void TestFinishingRules::offsetsAndSubsetsKeepTogether_data()
{
    QTest::addColumn<OffsetSettings>("before");
    QTest::addColumn<int>("offset"); // -1: the switch instead
    QTest::addColumn<bool>("switchOn");
    QTest::addColumn<OffsetSettings>("after");
    QTest::addColumn<bool>("switchEnabled");

    QTest::newRow("sets clear the subsets")
        << OffsetSettings{5, true, 12} << 3 << false << OffsetSettings{3, false, 0} << false;
    QTest::newRow("so does no offset")
        << OffsetSettings{4, true, 12} << 2 << false << OffsetSettings{2, false, 0} << false;
    QTest::newRow("subsets turn the switch on")
        << OffsetSettings{3, false, 0} << 4 << false << OffsetSettings{4, true, 0} << true;
    QTest::newRow("both keep the pages")
        << OffsetSettings{4, true, 12} << 5 << false << OffsetSettings{5, true, 12} << true;
    QTest::newRow("off: subsets become sets")
        << OffsetSettings{4, true, 12} << -1 << false << OffsetSettings{3, false, 0} << false;
    QTest::newRow("off: both become sets")
        << OffsetSettings{5, true, 12} << -1 << false << OffsetSettings{3, false, 0} << false;
    QTest::newRow("off: another offset stays")
        << OffsetSettings{1, true, 12} << -1 << false << OffsetSettings{1, false, 0} << true;
    QTest::newRow("on: another offset stays")
        << OffsetSettings{1, false, 0} << -1 << true << OffsetSettings{1, true, 0} << true;
}

void TestFinishingRules::offsetsAndSubsetsKeepTogether()
{
    QFETCH(OffsetSettings, before);
    QFETCH(int, offset);
    QFETCH(bool, switchOn);
    QFETCH(OffsetSettings, after);
    QFETCH(bool, switchEnabled);

    const OffsetSettings found =
        offset >= 0 ? withOffset(before, offset) : withSubsets(before, switchOn);

    QCOMPARE(found.offset, after.offset);
    QCOMPARE(found.hasSubsets, after.hasSubsets);
    QCOMPARE(found.pagesPerSubset, after.pagesPerSubset);
    QCOMPARE(isSubsetSwitchEnabled(found), switchEnabled);
}

void TestFinishingRules::offsetBeginsAsTheTicketAllows_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("subsets");
    QTest::addColumn<int>("pages");
    QTest::addColumn<OffsetSettings>("shown");

    QTest::newRow("pages without subsets") << 1 << 0 << 7 << OffsetSettings{1, false, 0};
    QTest::newRow("subsets") << 4 << 1 << 7 << OffsetSettings{4, true, 7};
    QTest::newRow("sets, and subsets as well") << 3 << 1 << 7 << OffsetSettings{3, false, 0};
    QTest::newRow("subsets without the switch") << 5 << 0 << 7 << OffsetSettings{5, true, 0};
    QTest::newRow("too many pages") << 4 << 1 << 100'000 << OffsetSettings{4, true, 99'999};
    QTest::newRow("fewer than none") << 4 << 1 << -1 << OffsetSettings{4, true, 0};
}

void TestFinishingRules::offsetBeginsAsTheTicketAllows()
{
    QFETCH(int, offset);
    QFETCH(int, subsets);
    QFETCH(int, pages);
    QFETCH(OffsetSettings, shown);
    Finishing finishing;
    finishing.offset = offset;
    finishing.offsetSubsetEnabled = subsets;
    finishing.pagesPerSubset = pages;
    QCOMPARE(offsetOf(finishing), shown);
}

void TestFinishingRules::pagesPerSubsetAreStoredWithSubsetsOnly()
{
    Finishing finishing;
    finishing.pagesPerSubset = 7;
    storeOffset(finishing, {kOffsetSets, false, 0});
    QCOMPARE(finishing.offset, kOffsetSets);
    QCOMPARE(finishing.offsetSubsetEnabled, 0);
    QCOMPARE(finishing.pagesPerSubset, 7);
    storeOffset(finishing, {kOffsetBoth, true, 0});
    QCOMPARE(finishing.offsetSubsetEnabled, 1);
    QCOMPARE(finishing.pagesPerSubset, 0);
}

void TestFinishingRules::dialogsOfferWhatIsInstalled_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QList<int>>("values");

    QTest::newRow("1 staple") << QByteArray("full") << Kind::SingleStaple << QList<int>{1, 5};
    QTest::newRow("2 staples") << QByteArray("full") << Kind::DualStaple << QList<int>{1, 10};
    QTest::newRow("holes") << QByteArray("full") << Kind::HolePunch << QList<int>{1, 3, 4, 5};
    QTest::newRow("fold") << QByteArray("full") << Kind::Fold << QList<int>{1, 19, 20};
    QTest::newRow("advanced fold")
        << QByteArray("full") << Kind::AdvancedFold << QList<int>{1, 43, 53, 19, 20, 36};
    QTest::newRow("Z-fold") << QByteArray("full") << Kind::ZFold << QList<int>{1, 20, 36};
    QTest::newRow("bind") << QByteArray("full") << Kind::Bind << QList<int>{1, 2, 3, 4};
    QTest::newRow("one stapler only") << QByteArray("mid") << Kind::DualStaple << QList<int>{1};
    QTest::newRow("two holes only") << QByteArray("mid") << Kind::HolePunch << QList<int>{1, 3};
    QTest::newRow("no folder") << QByteArray("mid") << Kind::AdvancedFold << QList<int>{1};
    QTest::newRow("no binder") << QByteArray("mid") << Kind::Bind << QList<int>{1};
}

void TestFinishingRules::dialogsOfferWhatIsInstalled()
{
    QFETCH(QByteArray, device);
    QFETCH(Kind, kind);
    QFETCH(QList<int>, values);
    const auto ppd = openDevice(device.constData());
    QVERIFY(ppd);
    QCOMPARE(valuesOf(finishingChoices(kind, ppd.get())), values);
}

void TestFinishingRules::aFoldThatThePpdLacksIsNotOffered()
{
    const auto full = openDevice("full"); // its features stay loaded
    const auto bare = PpdFile::open(devicePpd("bare"));
    QVERIFY(full && bare);
    QCOMPARE(valuesOf(finishingChoices(Kind::Fold, bare.value().get())), QList<int>{1});
    QCOMPARE(valuesOf(finishingChoices(Kind::Fold, nullptr)), QList<int>{1});
}

void TestFinishingRules::whatADialogDoesNotOfferIsNamed()
{
    const auto ppd = openDevice("full");
    QVERIFY(ppd);
    const auto staples = finishingChoices(Kind::SingleStaple, ppd.get());
    const Finishing dual = stapledAndPunched(kStapleDual, kPunchNone);
    QCOMPARE(initialChoice(Kind::SingleStaple, staples, dual), 0U);
    QCOMPARE(replacedFinishing(Kind::SingleStaple, staples, dual), "2 Staples");
    const Finishing single = stapledAndPunched(kStapleSingle, kPunchNone);
    QCOMPARE(initialChoice(Kind::SingleStaple, staples, single), 1U);
    QVERIFY(!replacedFinishing(Kind::SingleStaple, staples, single));

    const auto folds = finishingChoices(Kind::Fold, ppd.get());
    const Finishing half = stapledAndPunched(kStapleNone, kPunchNone, kFoldZHalfSheet);
    QCOMPARE(replacedFinishing(Kind::Fold, folds, half), "Z Fold Half Sheet");
    const Finishing unknown = stapledAndPunched(kStapleNone, kPunchNone, -1);
    QVERIFY(!replacedFinishing(Kind::Fold, folds, unknown));
}

void TestFinishingRules::okDoesWhatTheMenuDoes()
{
    const auto ppd = openDevice("full");
    QVERIFY(ppd);
    for (const Kind kind :
         {Kind::SingleStaple, Kind::DualStaple, Kind::HolePunch, Kind::AdvancedFold, Kind::ZFold}) {
        for (const FinishingChoice &choice : finishingChoices(kind, ppd.get())) {
            _PaperOutputContext byMenu;
            byMenu.booklet = kBookletOn;
            byMenu.finishing = stapledAndPunched(kStapleDual, kPunchTwoHoles, kFoldC);
            _PaperOutputContext byDialog;
            byDialog.booklet = byMenu.booklet;
            byDialog.finishing = byMenu.finishing;
            const bool saysBookletEnds = endsBooklet(kind, byDialog);
            QVERIFY(applyFinishingCommand(byMenu, choice.command, choice.value));
            applyFinishingChoice(byDialog, choice);
            QVERIFY2(byDialog.finishing == byMenu.finishing, choice.key);
            QCOMPARE(byDialog.isBooklet(), byMenu.isBooklet());
            QCOMPARE(saysBookletEnds, !byDialog.isBooklet());
        }
    }
    _PaperOutputContext context;
    context.booklet = kBookletOn;
    const auto folds = finishingChoices(Kind::AdvancedFold, ppd.get());
    applyFinishingChoice(context, folds[2]);
    QCOMPARE(context.finishing.fold, kFoldBiAndStaple);
    applyFinishingChoice(context, finishingChoices(Kind::Bind, ppd.get())[2]);
    QCOMPARE(context.finishing.bind, kBindRight);
    QVERIFY(context.isBooklet());
}

void TestFinishingRules::picturesShowWhatComesOut_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("choice"); // place in the pop-up
    QTest::addColumn<int>("staple"); // before
    QTest::addColumn<int>("punch");
    QTest::addColumn<QString>("picture");

    QTest::newRow("two holes alone") << Kind::HolePunch << 1 << 1 << 1 << "OfficeFinishing_2Hp.gif";
    QTest::newRow("two holes beside a staple")
        << Kind::HolePunch << 1 << 5 << 1 << "OfficeFinishing_1St&2Hp.gif";
    QTest::newRow("holes taken from staples")
        << Kind::HolePunch << 0 << 10 << 4 << "OfficeFinishing_2St.gif";
    QTest::newRow("a staple beside holes")
        << Kind::SingleStaple << 1 << 1 << 5 << "OfficeFinishing_1St&4Hp.gif";
    QTest::newRow("nothing left") << Kind::SingleStaple << 0 << 10 << 1
                                  << "OfficeFinishing_None.gif";
    QTest::newRow("a stapled fold")
        << Kind::AdvancedFold << 2 << 1 << 1 << "OfficeFinishing_BKlt_Fold&Stple.gif";
    QTest::newRow("bound on the right") << Kind::Bind << 2 << 5 << 1 << "Finishing_Bind_Right.gif";
}

void TestFinishingRules::picturesShowWhatComesOut()
{
    QFETCH(Kind, kind);
    QFETCH(int, choice);
    QFETCH(int, staple);
    QFETCH(int, punch);
    QFETCH(QString, picture);
    const auto ppd = openDevice("full");
    QVERIFY(ppd);
    _PaperOutputContext context;
    context.finishing = stapledAndPunched(staple, punch);
    const Finishing before = context.finishing;

    const auto choices = finishingChoices(kind, ppd.get());
    QCOMPARE(finishingChoicePicture(kind, context, choices.at(choice)), picture);
    QVERIFY(context.finishing == before);
}

void TestFinishingRules::separatorPicturesFollowTheColor_data()
{
    QTest::addColumn<int>("separators");
    QTest::addColumn<int>("color");
    QTest::addColumn<QString>("picture");

    QTest::newRow("none") << 1 << 2 << "";
    QTest::newRow("blank") << 2 << 8 << "Paper_TransparencySeparators_BlnkSeps-Goldenrod.gif";
    QTest::newRow("printed") << 3 << 13 << "Paper_TransparencySeparators_PrntSeps-Orange.gif";
    QTest::newRow("clear paper") << 2 << 6 << "Paper_TransparencySeparators_BlnkSeps-White.gif";
    QTest::newRow("unknown color") << 2 << 99 << "Paper_TransparencySeparators_BlnkSeps-White.gif";
}

void TestFinishingRules::separatorPicturesFollowTheColor()
{
    QFETCH(int, separators);
    QFETCH(int, color);
    QFETCH(QString, picture);
    QCOMPARE(separatorPicture(separators, color), picture);
}

QTEST_GUILESS_MAIN(TestFinishingRules)
#include "test_finishing_rules.moc"
