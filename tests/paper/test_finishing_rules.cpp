#include "device_session.h"

#include "finishing_choices.h"
#include "finishing_offset.h"
#include "paper_output_settings.h"
#include "sample_ppds.h"
#include "separator_picture.h"
#include "separators.h"
#include "table.h"

#include <QTest>

using namespace kelvo;
using Kind = FinishingDialogKind;

Q_DECLARE_METATYPE(kelvo::OffsetSettings)
Q_DECLARE_METATYPE(kelvo::FinishingDialogKind)

namespace {

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
    void offsetsAndSubsetsKeepTogether_data();
    void offsetsAndSubsetsKeepTogether();
    void offsetBeginsAsTheTicketAllows_data();
    void offsetBeginsAsTheTicketAllows();
    void pagesPerSubsetAreStoredWithSubsetsOnly();
    void choicesAreInstalledAndInThePpd();
    void whatADialogDoesNotOfferIsNamed();
    void okDoesWhatTheMenuDoes();
    void picturesShowWhatComesOut_data();
    void picturesShowWhatComesOut();
    void separatorPicturesFollowTheColor_data();
    void separatorPicturesFollowTheColor();
};

void TestFinishingRules::offsetsAndSubsetsKeepTogether_data()
{
    // offset -1: the switch instead
    const Table<OffsetSettings, int, bool, OffsetSettings, bool> row{"before", "offset", "switchOn",
                                                                     "after", "switchEnabled"};

    row("sets clear the subsets", OffsetSettings{5, true, 12}, 3, false,
        OffsetSettings{3, false, 0}, false);
    row("no offset leaves them", OffsetSettings{4, true, 12}, 2, false, OffsetSettings{2, true, 12},
        true);
    row("subsets turn the switch on", OffsetSettings{3, false, 0}, 4, false,
        OffsetSettings{4, true, 0}, true);
    row("both keep the pages", OffsetSettings{4, true, 12}, 5, false, OffsetSettings{5, true, 12},
        true);
    row("off: subsets become sets", OffsetSettings{4, true, 12}, -1, false,
        OffsetSettings{3, false, 0, 4}, true);
    row("off: both become sets", OffsetSettings{5, true, 12}, -1, false,
        OffsetSettings{3, false, 0, 5}, true);
    row("on again: both come back", OffsetSettings{3, false, 0, 5}, -1, true,
        OffsetSettings{5, true, 0}, true);
    row("sets, chosen after the switch", OffsetSettings{3, false, 0, 5}, 3, false,
        OffsetSettings{3, false, 0}, false);
    row("off: another offset stays", OffsetSettings{1, true, 12}, -1, false,
        OffsetSettings{1, false, 0}, true);
    row("on: another offset stays", OffsetSettings{1, false, 0}, -1, true,
        OffsetSettings{1, true, 0}, true);
}

void TestFinishingRules::offsetsAndSubsetsKeepTogether()
{
    QFETCH(OffsetSettings, before);
    QFETCH(int, offset);
    QFETCH(bool, switchOn);

    const OffsetSettings found =
        offset >= 0 ? withOffset(before, offset) : withSubsets(before, switchOn);

    QTEST(found, "after");
    QTEST(isSubsetSwitchEnabled(found), "switchEnabled");
}

void TestFinishingRules::offsetBeginsAsTheTicketAllows_data()
{
    const Table<int, int, int, OffsetSettings> row{"offset", "subsets", "pages", "shown"};

    row("pages without subsets", 1, 0, 7, OffsetSettings{1, false, 0});
    row("subsets", 4, 1, 7, OffsetSettings{4, true, 7});
    row("sets, and subsets as well", 3, 1, 7, OffsetSettings{3, false, 0});
    row("subsets without the switch", 5, 0, 7, OffsetSettings{5, true, 0});
    row("too many pages", 4, 1, 100'000, OffsetSettings{4, true, 99'999});
    row("fewer than none", 4, 1, -1, OffsetSettings{4, true, 0});
}

void TestFinishingRules::offsetBeginsAsTheTicketAllows()
{
    QFETCH(int, offset);
    QFETCH(int, subsets);
    QFETCH(int, pages);
    Finishing finishing;
    finishing.offset = offset;
    finishing.offsetSubsetEnabled = subsets;
    finishing.pagesPerSubset = pages;
    QTEST(offsetOf(finishing), "shown");
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

void TestFinishingRules::choicesAreInstalledAndInThePpd()
{
    const auto bare = PpdFile::open(samplePpd("bare"));
    QVERIFY(bare);
    {
        const DeviceSession mid("mid"); // a punch unit for two holes alone
        QCOMPARE(valuesOf(finishingChoices(Kind::HolePunch, currentDevice())), QList<int>({1, 3}));
    }
    const DeviceSession full("full"); // every unit is there
    Device device = currentDevice();
    for (const PpdFile *ppd : {bare.value().get(), static_cast<PpdFile *>(nullptr)}) {
        device.ppd = ppd;
        QCOMPARE(valuesOf(finishingChoices(Kind::Fold, device)), QList<int>{1});
        QCOMPARE(valuesOf(finishingChoices(Kind::Bind, device)), QList<int>({1, 2, 3, 4}));
    }
}

void TestFinishingRules::whatADialogDoesNotOfferIsNamed()
{
    const DeviceSession device("full");
    const auto staples = finishingChoices(Kind::SingleStaple, currentDevice());
    const Finishing dual = stapledAndPunched(kStapleDual, kPunchNone);
    QCOMPARE(initialChoice(Kind::SingleStaple, staples, dual), 1U);
    QVERIFY(!findSetChoice(Kind::SingleStaple, staples, dual));
    QCOMPARE(replacedFinishing(Kind::SingleStaple, staples, dual), "2 Staples");
    const Finishing single = stapledAndPunched(kStapleSingle, kPunchNone);
    QCOMPARE(initialChoice(Kind::SingleStaple, staples, single), 1U);
    QVERIFY(!replacedFinishing(Kind::SingleStaple, staples, single));
    // Called for a staple, it begins with one; nothing is set for that.
    QCOMPARE(initialChoice(Kind::DualStaple, finishingChoices(Kind::DualStaple, currentDevice()),
                           Finishing()),
             1U);
    QCOMPARE(initialChoice(Kind::SingleStaple, finishingChoices(Kind::SingleStaple, Device()),
                           Finishing()),
             0U); // none to choose
    QCOMPARE(findSetChoice(Kind::SingleStaple, staples, Finishing()),
             std::optional<std::size_t>(0));

    const auto folds = finishingChoices(Kind::Fold, currentDevice());
    const Finishing half = stapledAndPunched(kStapleNone, kPunchNone, kFoldZHalfSheet);
    QCOMPARE(replacedFinishing(Kind::Fold, folds, half), "Z Fold Half Sheet");
    const Finishing unknown = stapledAndPunched(kStapleNone, kPunchNone, -1);
    QVERIFY(!replacedFinishing(Kind::Fold, folds, unknown));
}

void TestFinishingRules::okDoesWhatTheMenuDoes()
{
    const DeviceSession device("full");
    for (const Kind kind :
         {Kind::SingleStaple, Kind::DualStaple, Kind::HolePunch, Kind::AdvancedFold, Kind::ZFold}) {
        for (const FinishingChoice &choice : finishingChoices(kind, currentDevice())) {
            PaperOutputSettings byMenu;
            byMenu.booklet.layout = kBookletOn;
            byMenu.finishing = stapledAndPunched(kStapleDual, kPunchTwoHoles, kFoldC);
            PaperOutputSettings byDialog;
            byDialog.booklet = byMenu.booklet;
            byDialog.finishing = byMenu.finishing;
            const bool saysBookletEnds = endsBooklet(kind, byDialog);
            QVERIFY(applyFinishingCommand(byMenu, choice.command, choice.value));
            applyFinishingChoice(byDialog, choice);
            if (choice.value == kFoldBiAndStaple) // the dialog's own
                byMenu.finishing.options = kFinishingBooklet;
            QVERIFY2(byDialog.finishing == byMenu.finishing, choice.key);
            QCOMPARE(byDialog.isBooklet(), byMenu.isBooklet());
            QCOMPARE(saysBookletEnds, !byDialog.isBooklet());
        }
    }
    PaperOutputSettings context;
    context.booklet.layout = kBookletOn;
    const auto folds = finishingChoices(Kind::AdvancedFold, currentDevice());
    applyFinishingChoice(context, folds[2]);
    QCOMPARE(context.finishing.fold, kFoldBiAndStaple);
    QCOMPARE(context.finishing.options, kFinishingBooklet);
    applyFinishingChoice(context, folds[0]);
    QCOMPARE(context.finishing.options, kFinishingNone);
    applyFinishingChoice(context, finishingChoices(Kind::Bind, currentDevice())[2]);
    QCOMPARE(context.finishing.bind, kBindRight);
    QVERIFY(context.isBooklet());
}

void TestFinishingRules::picturesShowWhatComesOut_data()
{
    // choice: place in the pop-up; staple: before
    const Table<Kind, int, int, int, QString> row{"kind", "choice", "staple", "punch", "picture"};

    row("two holes alone", Kind::HolePunch, 1, 1, 1, "OfficeFinishing_2Hp.gif");
    row("two holes beside a staple", Kind::HolePunch, 1, 5, 1, "OfficeFinishing_1St&2Hp.gif");
    row("a staple beside holes", Kind::SingleStaple, 1, 1, 5, "OfficeFinishing_1St&4Hp.gif");
    row("nothing left", Kind::SingleStaple, 0, 10, 1, "OfficeFinishing_None.gif");
    row("a stapled fold", Kind::AdvancedFold, 2, 1, 1, "OfficeFinishing_BKlt_Fold&Stple.gif");
    row("bound on the right", Kind::Bind, 2, 5, 1, "Finishing_Bind_Right.gif");
}

void TestFinishingRules::picturesShowWhatComesOut()
{
    QFETCH(Kind, kind);
    QFETCH(int, choice);
    QFETCH(int, staple);
    QFETCH(int, punch);
    const DeviceSession device("full");
    PaperOutputSettings context;
    context.finishing = stapledAndPunched(staple, punch);
    const Finishing before = context.finishing;

    const auto choices = finishingChoices(kind, currentDevice());
    QTEST(finishingChoicePicture(kind, context, choices.at(choice)), "picture");
    QVERIFY(context.finishing == before);
}

void TestFinishingRules::separatorPicturesFollowTheColor_data()
{
    const Table<int, int, QString> row{"separators", "color", "picture"};

    row("none", 1, 2, "Paper_TransparencySeparators_None.gif");
    row("blank", 2, 8, "Paper_TransparencySeparators_BlnkSeps-Goldenrod.gif");
    row("printed", 3, 13, "Paper_TransparencySeparators_PrntSeps-Orange.gif");
    row("clear paper", 2, 6, "Paper_TransparencySeparators_BlnkSeps-White.gif");
}

void TestFinishingRules::separatorPicturesFollowTheColor()
{
    QFETCH(int, separators);
    QFETCH(int, color);
    QTEST(separatorPicture(separators, color), "picture");
}

QTEST_GUILESS_MAIN(TestFinishingRules)
#include "test_finishing_rules.moc"
