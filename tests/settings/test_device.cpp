#include "device_profile.h"
#include "installed_features.h"
#include "pde_session.h"
#include "ppd_choices.h"
#include "print_session.h"
#include "sample_ppds.h"
#include "standard_error.h"
#include "table.h"
#include "ticket_values.h"

#include <QTest>

using namespace kelvo;

namespace {

const QString fullPpd = samplePpd("full");
const QString midPpd = samplePpd("mid");
const QString barePpd = samplePpd("bare");

// `options` between a head and a tail that libcups takes.
std::shared_ptr<PpdFile> ppdWith(const QByteArray &options)
{
    const QByteArray text = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*PCFileName: "KVTEST.PPD"
*Manufacturer: "Kelvo"
*Product: "(Corvane T1)"
*ModelName: "Kelvo Corvane T1"
*ShortNickName: "Kelvo Corvane T1"
*NickName: "Kelvo Corvane T1"
*PSVersion: "(3010.000) 1"
*OpenUI *PageSize/Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*CloseUI: *PageSize
*DefaultPageRegion: A4
*OpenUI *PageRegion/Size: PickOne
*PageRegion A4/A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "12 12 583 830"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
)PPD" + options;
    const auto opened = PpdFile::fromBytes(text, QStringLiteral("test.ppd"));
    return opened ? opened.value() : nullptr;
}

QByteArray option(const QByteArray &keyword, const QByteArray &defaultChoice,
                  const QList<QByteArray> &choices)
{
    QByteArray lines = "*OpenUI *" + keyword + ": PickOne\n";
    if (!defaultChoice.isEmpty())
        lines += "*Default" + keyword + ": " + defaultChoice + '\n';
    for (const QByteArray &choice : choices)
        lines += '*' + keyword + ' ' + choice + "/Text of " + choice + ": \"\"\n";
    return lines + "*CloseUI: *" + keyword + '\n';
}

QByteArray installable(const QByteArray &group, const QByteArray &options)
{
    return "*OpenGroup: " + group + "/Installed\n" + options + "*CloseGroup: " + group + '\n';
}

// "choice value" of every item.
QStringList described(const Menu &menu)
{
    QStringList items;
    for (const MenuItem &item : menu.items)
        items << QStringLiteral("%1 %2").arg(item.key).arg(item.reference);
    return items;
}

QString installedFeatures()
{
    QStringList found;
    for (const InstalledFeature *row = InstalledFeatures; row->feature; ++row) {
        const QString name = QString::fromUtf8(row->feature);
        if (getInstalledFeature(row->feature) && !found.contains(name))
            found << name;
    }
    return found.join(QLatin1Char(' '));
}

} // namespace

class TestDevice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const auto opened = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/tests/settings.pde"));
        QVERIFY2(opened, qPrintable(opened ? QString() : opened.error().text()));
        m_bundle = opened.value();
    }
    void cleanup()
    {
        setCurrentPrintSession(nullptr);
        PPDCloseCurrent();
        UnloadInstallableOptions();
        KDPFinalize();
    }

    void opensTheSessionsPpdOnceAndTriesAgainAfterAFailure();
    void readsTextsAndDefaults();
    void takesTheTicketsChoiceBeforeTheDefault_data();
    void takesTheTicketsChoiceBeforeTheDefault();
    void fillsMenusInThePpdsOrder();
    void leavesOutWhatConflictsAndKeepsTheMarks();
    void reportsWhatItCannotShow();
    void findsTheFeaturesOfTheSampleDevices();
    void findsFeaturesByChoice_data();
    void findsFeaturesByChoice();
    void firstLoadWinsUntilItIsUnloaded();
    void loadsNothingWithoutTheGroup();
    void namesInstalledFeaturesOnly();
    void readsMediaLimits();
    void answersFromTheDeviceProfile();

private:
    CFBundleRef m_bundle = nullptr;
};

void TestDevice::opensTheSessionsPpdOnceAndTriesAgainAfterAFailure()
{
    QCOMPARE(PPDGetCurrent(), nullptr); // no session
    PrintSession session;
    setCurrentPrintSession(&session);
    QCOMPARE(PPDGetCurrent(), nullptr); // no PPD
    session.setPrinter({QStringLiteral("hall"), QStringLiteral("/nowhere/none.ppd")});
    QCOMPARE(PPDGetCurrent(), nullptr);

    session.setPrinter({QStringLiteral("hall"), midPpd});
    PpdFile *ppd = PPDGetCurrent();
    QVERIFY(ppd);
    QCOMPARE(ppd->modelName(), QStringLiteral("Kelvo Corvane C50"));
    session.setPrinter({QStringLiteral("hall"), fullPpd});
    QCOMPARE(PPDGetCurrent(), ppd); // until it is closed
    PPDCloseCurrent();
    QCOMPARE(PPDGetCurrent()->modelName(), QStringLiteral("Kelvo Corvane C90"));
    PPDCloseCurrent();
    const auto opened = PpdFile::open(midPpd).value();
    session.setPrinter({QStringLiteral("hall"), {}, opened});
    QCOMPARE(PPDGetCurrent(), opened.get()); // not once more
}

void TestDevice::readsTextsAndDefaults()
{
    const auto ppd =
        ppdWith("*OpenUI *Jog/Versatz: PickOne\n*Jog None/Ohne <c3bc>ber: \"\"\n*CloseUI: *Jog\n"
                + option("Duplex", "None", {"None"}));
    QVERIFY(ppd);
    const auto text = [&](const char *keyword, const char *choice) {
        return PPDCopyChoiceText(ppd.get(), keyword, choice).value_or(QStringLiteral("none"));
    };
    QCOMPARE(text("Jog", "None"), QStringLiteral("Ohne über"));
    QCOMPARE(text("Jog", "Off"), QStringLiteral("none"));
    QCOMPARE(text("Jib", "None"), QStringLiteral("none"));
    QCOMPARE(PPDCopyDefaultChoice(ppd.get(), "Duplex"), std::optional(QStringLiteral("None")));
    QCOMPARE(PPDCopyDefaultChoice(ppd.get(), "Jib"), std::nullopt);
    QCOMPARE(PPDCopyDefaultChoice(nullptr, "Duplex"), std::nullopt);
}

void TestDevice::takesTheTicketsChoiceBeforeTheDefault_data()
{
    // ticketChoice empty: none; value 99: left alone
    const Table<QString, QString, int> row{"keyword", "ticketChoice", "value"};

    row("in the ticket", "Duplex", "DuplexTumble", 3);
    row("the default", "Duplex", {}, 2);
    row("in the ticket, not in the PPD", "KVFold", "Z", 20);
    row("nowhere", "KVFold", {}, 99);
    row("unknown to the map", "Duplex", "Sideways", -1);
    row("default unknown to the map", "KVPunch", {}, -1);
    row("keyword unknown to the map", "KVFinisher", "BClass", -1);
}

void TestDevice::takesTheTicketsChoiceBeforeTheDefault()
{
    QFETCH(QString, keyword);
    QFETCH(QString, ticketChoice);
    const auto ppd = ppdWith(option("Duplex", "DuplexNoTumble", {"None", "DuplexNoTumble"})
                             + option("KVPunch", "Star", {"Star"}));
    PrintSession session;
    const PMTicketRef ticket = session.printSettingsTicket();
    if (!ticketChoice.isEmpty())
        PPDSetCurrentChoice(ticket, keyword, ticketChoice);
    PPDSetCurrentChoice(ticket, keyword, std::nullopt); // changes nothing
    QCOMPARE(PPDCopyCurrentChoice(ticket, keyword).value_or(QString()), ticketChoice);

    std::int32_t out = 99;
    PPDGetTicketValueForChoiceOrDefault(ppd.get(), ticket, keyword, &out);
    QTEST(out, "value");
}

void TestDevice::fillsMenusInThePpdsOrder()
{
    const auto ppd = ppdWith(option("OutputBin", "Top", {"Top", "Bottom", "PrinterDefault"}));
    Menu menu;
    menu.items.resize(3); // all go
    QCOMPARE(PPDPopulateMenuWithChoices(menu, ppd.get(), "OutputBin", fourCharCode("OBin"), false),
             3);
    QCOMPARE(described(menu), QStringList({"Top 2", "Bottom 5", "PrinterDefault -2147483648"}));
    QCOMPARE(menu.items[1].text, QStringLiteral("Text of Bottom"));
    QCOMPARE(menu.items[1].command, fourCharCode("OBin"));
}

void TestDevice::leavesOutWhatConflictsAndKeepsTheMarks()
{
    const auto ppd =
        ppdWith(option("KVFold", "None", {"None", "C", "Z"})
                + option("StapleLocation", "SinglePortrait", {"None", "SinglePortrait"})
                + "*UIConstraints: *KVFold C *StapleLocation SinglePortrait\n"
                  "*UIConstraints: *StapleLocation SinglePortrait *KVFold C\n");
    Menu menu;
    PPDPopulateMenuWithChoices(menu, ppd.get(), "KVFold", kNoCommand, true);
    QCOMPARE(described(menu), QStringList({"None 1", "Z 20"}));
    QCOMPARE(ppd->markedChoice("KVFold"), std::optional(QStringLiteral("Z")));

    // Without constraints the marks are neither asked nor touched.
    ppd->mark("StapleLocation", "None");
    PPDPopulateMenuWithChoices(menu, ppd.get(), "KVFold", kNoCommand, false);
    QCOMPARE(described(menu), QStringList({"None 1", "C 19", "Z 20"}));
    QCOMPARE(ppd->markedChoice("StapleLocation"), std::optional(QStringLiteral("None")));

    // With them, what was marked before is forgotten.
    PPDPopulateMenuWithChoices(menu, ppd.get(), "KVFold", kNoCommand, true);
    QCOMPARE(described(menu), QStringList({"None 1", "Z 20"}));
    QCOMPARE(ppd->markedChoice("StapleLocation"), std::optional(QStringLiteral("SinglePortrait")));
}

void TestDevice::reportsWhatItCannotShow()
{
    const auto ppd = ppdWith(option("Jog", "None", {"None", "Spiral"})
                             + option("KVImageQuality", "Normal", {"Lighten1", "Normal"})
                             + option("KVFinisher", "None", {"None"}));
    QVERIFY(ppd);
    Menu menu;
    menu.items.resize(1);
    const StandardError captured;
    QCOMPARE(PPDPopulateMenuWithChoices(menu, ppd.get(), "Jog", kNoCommand, false), 1);
    QCOMPARE(PPDPopulateMenuWithChoices(menu, ppd.get(), "KVImageQuality", kNoCommand, true), 1);
    QCOMPARE(PPDPopulateMenuWithChoices(menu, ppd.get(), "KVFinisher", kNoCommand, false), 0);
    QCOMPARE(PPDPopulateMenuWithChoices(menu, ppd.get(), "KVFold", kNoCommand, false), 0);
    QCOMPARE(PPDPopulateMenuWithChoices(menu, nullptr, "Duplex", kNoCommand, true), 0);
    QVERIFY(menu.items.empty());
    QCOMPARE(captured.text(),
             QByteArray("Skipped unrecognized choice in PPD: Spiral\n"
                        "Skipped unrecognized choice in PPD: None\n"
                        "Expected PPD option not found: KVFold\n"
                        "Expected PPD option not found: Duplex\n"));
}

void TestDevice::findsTheFeaturesOfTheSampleDevices()
{
    const QString full = "FaxKey SingleStapleKey DualStapleKey MultipleStapleKey DualPunchKey "
                         "TriplePunchKey QuadruplePunchKey CFoldKey ZFoldKey ZFoldHalfSheetKey "
                         "BookletFoldKey TapeBindKey PostPrintInserterKey AutoSwitchTrayKey "
                         "StackerTray1Key StackerTray2Key SimpleCatchTrayKey";
    const QString mid = "SingleStapleKey DualPunchKey AutoSwitchTrayKey StackerTray1Key "
                        "SimpleCatchTrayKey";
    QVERIFY(!getInstalledFeature("FaxKey")); // before loading
    for (const auto &[path, features] :
         {std::pair(fullPpd, full), {midPpd, mid}, {barePpd, QString()}}) {
        const auto ppd = PpdFile::open(path);
        QVERIFY(ppd);
        ppd.value()->mark("KVFinisher", "None"); // what was marked before does not count
        QVERIFY(LoadInstallableOptions(ppd.value().get(), InstalledFeatures));
        QCOMPARE(installedFeatures(), features);
        UnloadInstallableOptions();
    }
}

void TestDevice::findsFeaturesByChoice_data()
{
    const Table<QString, QString> row{"keyword", "features"};

    row("AClass", "KVFinisher", "SingleStapleKey");
    row("BClass", "KVFinisher", "SingleStapleKey DualStapleKey");
    row("bclass", "KVFinisher", "");
    row("Generic", "KVPunchUnit", "GenericPunchKey");
    row("TwoThreeHole", "KVPunchUnit", "DualPunchKey TriplePunchKey");
    row("FourHole", "KVPunchUnit", "QuadruplePunchKey");
    row("CZFold", "KVFolder", "CFoldKey ZFoldKey");
    // It folds booklets and nothing else: no folder counts as installed by it.
    row("True", "KVBookletMaker", "BookletFoldKey");
}

// The row's name is the option's choice.
void TestDevice::findsFeaturesByChoice()
{
    QFETCH(QString, keyword);
    const QByteArray choice = QTest::currentDataTag();
    const auto ppd =
        ppdWith(installable("InstallableOptions", option(keyword.toUtf8(), choice, {choice})));
    QVERIFY(LoadInstallableOptions(ppd.get(), InstalledFeatures));
    QCOMPARE(getInstallableOptionValue(keyword), std::optional(QString::fromUtf8(choice)));
    QTEST(installedFeatures(), "features");
}

void TestDevice::firstLoadWinsUntilItIsUnloaded()
{
    constexpr InstalledFeature other[] = {{"Always", nullptr, nullptr, "On", 12},
                                          {nullptr, nullptr, nullptr, nullptr, 0}};
    const auto full = PpdFile::open(fullPpd);
    const auto bare = PpdFile::open(barePpd);
    QVERIFY(LoadInstallableOptions(full.value().get(), InstalledFeatures));
    QVERIFY(!LoadInstallableOptions(bare.value().get(), other));
    QVERIFY(getInstalledFeature("FaxKey") && !getInstalledFeature("Always"));

    UnloadInstallableOptions();
    QVERIFY(!getInstalledFeature("FaxKey"));
    QCOMPARE(getInstallableOptionValue("KVFax"), std::nullopt);
    QVERIFY(LoadInstallableOptions(bare.value().get(), other));
    QVERIFY(getInstalledFeature("Always") && !getInstalledFeature("FaxKey"));
    QVERIFY(!getInstalledFeature(nullptr));
    QCOMPARE(getInstallableOptionTicketValue("Always"), std::optional<std::int32_t>(12));
    QCOMPARE(getInstallableOptionTicketValue("FaxKey"), std::nullopt);
}

void TestDevice::loadsNothingWithoutTheGroup()
{
    // Its name counts, letter by letter; an option without a default is not there.
    const auto ppd = ppdWith(installable("Installableoptions", option("KVFax", "True", {"True"})));
    QVERIFY(!LoadInstallableOptions(ppd.get(), InstalledFeatures));
    QVERIFY(!getInstalledFeature("FaxKey"));
    // Even so it is loaded.
    const auto full = PpdFile::open(fullPpd);
    QVERIFY(!LoadInstallableOptions(full.value().get(), InstalledFeatures));
    UnloadInstallableOptions();
    QVERIFY(!LoadInstallableOptions(nullptr, InstalledFeatures));
    const auto unmarked =
        ppdWith(installable("InstallableOptions", option("KVFax", "Unknown", {"False", "True"})));
    QVERIFY(!LoadInstallableOptions(unmarked.get(), InstalledFeatures));
}

void TestDevice::namesInstalledFeaturesOnly()
{
    const auto full = PpdFile::open(fullPpd);
    LoadInstallableOptions(full.value().get(), InstalledFeatures);
    const auto name = [this](const char *feature) {
        return CopyLocalizedStringForInstalledFeatureFromPlugin(feature, m_bundle);
    };
    QCOMPARE(name("PostPrintInserterKey"), std::optional(QStringLiteral("Post-print inserter")));
    QCOMPARE(name("SingleStapleKey"), std::optional(QStringLiteral("1 staple")));
    QCOMPARE(name("FaxKey"), std::nullopt);          // without a name
    QCOMPARE(name("GenericPunchKey"), std::nullopt); // not installed
    QCOMPARE(CopyLocalizedStringForInstalledFeatureFromPlugin("SingleStapleKey", nullptr),
             std::optional(QStringLiteral("STRING NOT FOUND")));
}

void TestDevice::readsMediaLimits()
{
    double limits[4] = {};
    const auto read = [&limits] {
        GetMediaLimits(&limits[0], &limits[1], &limits[2], &limits[3]);
        return QList<double>(std::begin(limits), std::end(limits));
    };
    QCOMPARE(read(), QList<double>({432, 432, 864, 864}));
    PrintSession session;
    session.setPrinter({QStringLiteral("hall"), fullPpd});
    setCurrentPrintSession(&session);
    QCOMPARE(read(), QList<double>({252, 360, 936, 1368}));
}

void TestDevice::answersFromTheDeviceProfile()
{
    QVERIFY(!KDPGetFeature("Copies"));
    QVERIFY(KDPGetFeaturesWithProperty("Panel").isEmpty());
    KDPInitialize();
    QVERIFY(KDPGetFeature("Copies") && !KDPGetFeature("Scanner"));
    QCOMPARE(KDPGetFeaturesWithProperty("Panel").size(), 2);
    QCOMPARE(KDPGetFeaturesWithPropertyAndValue("Panel", 1).size(), 1); // "1" is no 1

    const Dictionary staple = KDPGetFeature("Staple").value_or(Dictionary());
    QCOMPARE(KDPGetFeatureProperty(staple, "Finisher"), std::optional(QVariant(true)));
    QVERIFY(KDPGetFeatureSyntax(staple, "Keyword") && !KDPGetFeatureSyntax(staple, "Name"));
    const Array twoStaples = KDPGetKeywordsWithPropertyAndValue(staple, "Staples", 2);
    QCOMPARE(twoStaples.size(), 1);
    QVERIFY(!twoStaples[0].toMap().contains("Default"));

    const auto defaultOf = [](const char *feature) {
        QString kind;
        QVariant value;
        const Dictionary found = KDPGetFeature(feature).value_or(Dictionary());
        return KDPGetFeatureDefaultValue(found, &kind, &value)
            ? kind + QLatin1Char(' ') + value.toString()
            : QStringLiteral("none");
    };
    QCOMPARE(defaultOf("Staple"), QStringLiteral("Keyword None"));
    QCOMPARE(defaultOf("Copies"), QStringLiteral("Number 1"));
    QCOMPARE(defaultOf("Owner"), QStringLiteral("none"));
    KDPFinalize();
    QVERIFY(!KDPGetFeature("Copies"));
    QVERIFY(!CreatePropertiesFromXMLFile("file:///nowhere/none.plist"));
}

QTEST_GUILESS_MAIN(TestDevice)
#include "test_device.moc"
