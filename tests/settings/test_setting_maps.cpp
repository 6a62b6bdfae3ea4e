#include "device.h"
#include "installed_features.h"
#include "keyword_map.h"
#include "ppd_choices.h"
#include "sample_ppds.h"
#include "setting_maps.h"
#include "table.h"
#include "ticket_values.h"

#include <QTest>

#include <set>

using namespace kelvo;

namespace {

constexpr std::int32_t kujn = 0x4b756a6e; // 'Kujn'

using MapRef = const SettingMap *; // test data takes no arrays

// clang-format off
const SettingMap *const allMaps[] = {
    OnOffMap, OPIPrescanMap, OPISubsitutionMap, PrinterEmulationMap, OutputOptionsMap,
    RotateImageMap, BookletLayoutOrderMap, CoverOptionMap, InsertOptionMap,
    BookletWatermarkBackgroundFormsMap, PageBordersMap, EnabledDisabledMap, WatermarkOptionsMap,
    WatermarkMap, FaxResolutionMap, FaxSendSpeedMap, ConfirmationSheetMap, CoverSheetMap,
    CoverSheetRecipientMap, CoverSheetSenderMap, CoverSheetImageMap, TabStockSetupMap,
    TabStockRadioMap, SavedJobSaveOptionRadioMap, FolderNameMap, JobNameMap, SavedJobNameMap,
    LoginNameMap, FaxCoverSizeMap, SeparatorOptionMap, JobTypeMap, ResolutionMap, PlexMap,
    CoverSidesImagedMap,
};

constexpr SettingMap contextMap[] = {
    {"Simplex", 1},
    {"Duplex",  kUnset},
    kEndOfMap,
};
constexpr SettingMap untilZeroMap[] = {
    {"On",   1},
    {"None", 0},
    {"Off",  2},
    kEndOfMap,
};
constexpr SettingMap withoutFaxMap[] = {
    {"Normal", 1, kNoCommand, "FaxKey", false},
    {"Fax",    2, fourCharCode("FaxC"), "FaxKey", true},
    kEndOfMap,
};
constexpr SettingMap emptyMap[] = {kEndOfMap};

constexpr InstalledFeature faxAlways[] = {
    {"FaxKey", nullptr, nullptr, nullptr, 0},
    {nullptr,  nullptr, nullptr, nullptr, 0},
};
// clang-format on

void installFax()
{
    const auto ppd = PpdFile::open(samplePpd("bare"));
    LoadInstallableOptions(ppd.value().get(), faxAlways);
}

// "Key|value|command" of every row.
QStringList described(const Menu &menu)
{
    QStringList items;
    for (const MenuItem &item : menu.items)
        items << QStringLiteral("%1|%2|%3").arg(item.text).arg(item.reference).arg(item.command);
    return items;
}

} // namespace

class TestSettingMaps : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const auto opened = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/tests/settings.pde"));
        QVERIFY2(opened, qPrintable(opened ? QString() : opened.error().text()));
        m_bundle = opened.value();
    }
    void cleanup() { UnloadInstallableOptions(); }

    void rowsSayWhatTicketsSay_data();
    void rowsSayWhatTicketsSay();
    void everyKeyHasAText();
    void findsRowsByValue_data();
    void findsRowsByValue();
    void findsAGatedRowOnlyWhenItsFeatureIsInItsState();
    void countsSkippedRowsToo();
    void saysUnsetInTheWordsOfItsContext();
    void marksDividersAndKeepsTheMap();
    void translatesPpdChoicesBothWays_data();
    void translatesPpdChoicesBothWays();
    void knowsTheChoicesOfTheFullDevice();

private:
    CFBundleRef m_bundle = nullptr;
};

// Maps whose order or values a hand could easily get wrong.
void TestSettingMaps::rowsSayWhatTicketsSay_data()
{
    // rows: value and command of each
    const Table<MapRef, QString> row{"map", "rows"};

    const auto command = [](const char(&code)[5]) { return QString::number(fourCharCode(code)); };
    row("covers skip 4", MapRef(CoverOptionMap), "1/0 2/0 3/0 5/0");
    row("fax resolutions", MapRef(FaxResolutionMap), "1/0 2/0 4/0 3/0");
    row("fax speeds", MapRef(FaxSendSpeedMap), "4/0 2/0 5/0");
    row("printed covers first", MapRef(CoverSidesImagedMap), "4/0 1/0");
    row("job types", MapRef(JobTypeMap), "1/0 6/0 8/0 7/0 3/0 5/0");
    row("one value for all", MapRef(OPIPrescanMap),
        QStringLiteral("%1/0 %1/0 %1/0 %1/0").arg(kujn));
    row("radio rows have no values", MapRef(SavedJobSaveOptionRadioMap), "0/0 0/0");
    row("cover sheet images", MapRef(CoverSheetImageMap),
        "1/" + command("KWmX") + " -5/0 -6/" + command("KWmO") + " -7/" + command("LFin") + " -8/"
            + command("LFie") + " -9/" + command("LFid"));
    row("watermark options", MapRef(WatermarkOptionsMap),
        "1/" + command("KWmB") + " 2/" + command("KWmL") + " 3/" + command("KWmF") + " -5/0 4/"
            + command("KWmA") + " 5/" + command("KWm1"));
    row("background forms", MapRef(BookletWatermarkBackgroundFormsMap),
        "1/" + command("BfCn") + " 2/0 3/" + command("BfCs"));
}

void TestSettingMaps::rowsSayWhatTicketsSay()
{
    QFETCH(MapRef, map);
    QStringList found;
    for (int i = 1; i <= CountMaps(map); ++i)
        found << QStringLiteral("%1/%2").arg(UIToTicket(map, i)).arg(map[i - 1].commandID);
    QTEST(found.join(QLatin1Char(' ')), "rows");
}

void TestSettingMaps::everyKeyHasAText()
{
    std::set<QString> keys = {QStringLiteral("PrinterDefault"), QStringLiteral("UseJobSetting")};
    for (const SettingMap *map : allMaps) {
        QVERIFY(CountMaps(map) > 0);
        for (int i = 0; i < CountMaps(map); ++i)
            keys.insert(QString::fromUtf8(map[i].localizedKey));
    }
    for (const InstalledFeature *row = InstalledFeatures; row->feature; ++row) {
        if (row->localizedKey)
            keys.insert(QString::fromUtf8(row->localizedKey));
    }
    for (const QString &key : keys)
        QVERIFY2(localizedText(m_bundle, key) != QLatin1String("STRING NOT FOUND"),
                 qPrintable(key));
    QCOMPARE(localizedText(m_bundle, QStringLiteral("0.5\" (8.5x11\" Template)")),
             QStringLiteral("0.5 in (8.5 × 11 in template)"));
}

void TestSettingMaps::findsRowsByValue_data()
{
    // key empty: none
    const Table<MapRef, int, int, QString> row{"map", "value", "row", "key"};

    row("first row of 0 answers for all", MapRef(OutputOptionsMap), 1, 1, "Face Down");
    row("before the row of 0", MapRef(untilZeroMap), 1, 1, "On");
    row("behind the row of 0", MapRef(untilZeroMap), 2, 2, "None");
    row("nowhere, with a row of 0", MapRef(untilZeroMap), 7, 2, "None");
    row("nowhere", MapRef(PlexMap), 4, -1, {});
    row("0 in a map without it", MapRef(PlexMap), 0, -1, {});
    row("first of equal values", MapRef(RotateImageMap), kujn, 1, "PrinterDefault");
    row("negative", MapRef(WatermarkMap), -8, 5, "Edit...");
    row("unset", MapRef(contextMap), kUnset, 2, "Duplex");
    row("in an empty map", MapRef(emptyMap), 1, -1, {});
}

void TestSettingMaps::findsRowsByValue()
{
    QFETCH(MapRef, map);
    QFETCH(int, value);
    QTEST(TicketToUI(map, value), "row");
    QTEST(QString::fromUtf8(LocalizedKeyForTicketValue(map, value)), "key");
}

void TestSettingMaps::findsAGatedRowOnlyWhenItsFeatureIsInItsState()
{
    QCOMPARE(TicketToUI(JobTypeMap, 5), -1);
    QCOMPARE(TicketToUI(withoutFaxMap, 1), 1);
    const Device device = currentDevice(m_bundle);
    installFax();
    QCOMPARE(TicketToUI(JobTypeMap, 5), 6);
    QCOMPARE(TicketToUI(withoutFaxMap, 1), -1);
    // What is asked of a device is not answered for the current one.
    QCOMPARE(textOfValue(device, JobTypeMap, 5), QString());
    QCOMPARE(textOfValue(device, PlexMap, 1), localizedText(m_bundle, QStringLiteral("Simplex")));
    Menu menu;
    PopulateMenuFromMap(device, menu, JobTypeMap, kJobContextJob, kNoCommand);
    QCOMPARE(menu.items.size(), std::size_t(5));
}

void TestSettingMaps::countsSkippedRowsToo()
{
    Menu menu;
    QCOMPARE(PopulateMenuFromMap(m_bundle, menu, JobTypeMap, kJobContextJob, kNoCommand), 6);
    QCOMPARE(menu.items.size(), std::size_t(5));
    QCOMPARE(menu.items.back().key, QStringLiteral("Save to Mailbox Command"));

    installFax();
    Menu withFax;
    QCOMPARE(PopulateMenuFromMap(m_bundle, withFax, withoutFaxMap, kJobContextJob, kNoCommand), 2);
    QCOMPARE(described(withFax), QStringList{QStringLiteral("Fax|2|%1").arg(fourCharCode("FaxC"))});
}

void TestSettingMaps::saysUnsetInTheWordsOfItsContext()
{
    const auto secondText = [this](JobContext context) {
        Menu menu;
        PopulateMenuFromMap(m_bundle, menu, contextMap, context, fourCharCode("Over"));
        return described(menu).value(1);
    };
    const QString tail = QStringLiteral("|-2147483648|%1").arg(fourCharCode("Over"));
    QCOMPARE(secondText(kJobContextJob), QStringLiteral("Printer default") + tail);
    for (const JobContext context : {kJobContextCovers, kJobContextInserts, kJobContextExceptions})
        QCOMPARE(secondText(context), QStringLiteral("Use job setting") + tail);
}

void TestSettingMaps::marksDividersAndKeepsTheMap()
{
    Menu menu;
    menu.items.resize(1); // what stands there stays
    QCOMPARE(PopulateMenuFromMap(m_bundle, menu, WatermarkMap, kJobContextJob, kNoCommand), 6);
    QCOMPARE(menu.reference, static_cast<const void *>(WatermarkMap));
    QCOMPARE(menu.items.size(), std::size_t(7));
    QVERIFY(menu.items[2].divider && menu.items[2].reference == -5);
    QVERIFY(!menu.items[3].divider && menu.items[3].reference == -6);

    Menu empty;
    QCOMPARE(PopulateMenuFromMap(m_bundle, empty, emptyMap, kJobContextJob, kNoCommand), 0);
    QCOMPARE(empty.reference, static_cast<const void *>(emptyMap));
}

void TestSettingMaps::translatesPpdChoicesBothWays_data()
{
    // back: what the value turns into
    const Table<QString, QString, int, QString> row{"keyword", "choice", "value", "back"};

    row("plain", "Duplex", "DuplexTumble", 3, "DuplexTumble");
    row("twin name", "MediaType", "CardStock", 12, "CardStock");
    row("twin name of slip sheets", "KVSlipSheetType", "CardStock", 12, "CardStock");
    row("twin value, upper bin", "OutputBin", "Bottom", 5, "Upper");
    row("twin value, top bin", "OutputBin", "TopTray", 2, "Top");
    row("unset", "OutputBin", "PrinterDefault", int(kUnset), "PrinterDefault");
    row("negative", "KVImageQuality", "Lighten5", -5, "Lighten5");
    row("0", "KVFrontCoverSheet", "Auto", 0, "Auto");
    row("another map's value", "KVEconomode", "None", 2, "None");
    row("custom size", "PageSize", "Custom", 75, "Custom");
    row("another letter case", "Duplex", "duplexTumble", -1, {});
    row("unknown choice", "KVPunch", "2HolePunchLandscape", -1, {});
    row("unknown keyword", "duplex", "None", -1, {});
}

void TestSettingMaps::translatesPpdChoicesBothWays()
{
    QFETCH(QString, keyword);
    QFETCH(QString, choice);
    QFETCH(int, value);
    QCOMPARE(PPDTicketValueForChoice(keyword, choice), value);
    QTEST(PPDChoiceForTicketValue(keyword, value).value_or(QString()), "back");
    QCOMPARE(PPDChoiceForTicketValue(QStringLiteral("MediaType"), 43),
             std::optional(QStringLiteral("CardStock")));
}

// The sample device with everything and the table must not drift apart.
void TestSettingMaps::knowsTheChoicesOfTheFullDevice()
{
    const auto ppd = PpdFile::open(samplePpd("full"));
    QVERIFY(ppd);
    // Other names of bins that the PPD has under "Top" and "Upper".
    const QSet<QString> twins = {"OutputBin TopTray", "OutputBin Center", "OutputBin Bottom"};
    // What panels set by name, without a number.
    const QSet<QString> numberless = {
        "StapleLocation SingleLandscape", "StapleLocation DualPortrait",
        "KVPunch 2HolePunchLandscape",    "KVPunch 3HolePunchLandscape",
        "KVPunch 4HolePunchLandscape",    "KVFrontCoverSheet None",
        "KVBackCoverSheet None"};
    QSet<QString> missing;
    QSet<QString> unknown;
    for (const PpdKeywordMap *row = MainKeywordMap; row->keyword; ++row) {
        const QString keyword = QString::fromUtf8(row->keyword);
        const PpdOption *option = ppd.value()->findOption(keyword);
        QVERIFY2(option, row->keyword);
        for (const PpdChoiceValue *choice = row->choices; choice->choice; ++choice) {
            if (!option->findChoice(QString::fromUtf8(choice->choice)))
                missing.insert(keyword + QLatin1Char(' ') + QString::fromUtf8(choice->choice));
        }
        for (const PpdChoice &choice : option->choices) {
            const PpdChoiceValue *known = row->choices;
            while (known->choice && choice.keyword != QLatin1String(known->choice))
                ++known;
            if (!known->choice)
                unknown.insert(keyword + QLatin1Char(' ') + choice.keyword);
        }
    }
    QCOMPARE(missing, twins);
    QCOMPARE(unknown, numberless);
}

QTEST_GUILESS_MAIN(TestSettingMaps)
#include "test_setting_maps.moc"
