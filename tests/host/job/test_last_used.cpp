#include "files.h"
#include "folders.h"
#include "job_timing.h"
#include "last_used.h"
#include "presets.h"
#include "table.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

using namespace kelvo;
using Beginning = LastUsed::Beginning;

// What was printed with last, in the folders of run-isolated, which are empty at first.
class TestLastUsed : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void whatIsOfOneJobDoesNotComeBack();
    void aFaxDoesNotComeBack();
    void whatIsNotKnownStaysAsItIsKept();
    void whatCannotBeReadIsNotKnown_data();
    void whatCannotBeReadIsNotKnown();
    void theSiteSaysWhetherItIsKept();
};

static QString path()
{
    return userPreferencesFolder() + QStringLiteral("/com.kelvo.print.lastused.plist");
}

static QString sitePreferences()
{
    return siteFolders().first() + QStringLiteral("/preferences.plist");
}

static const SecretKeys keys{{"Job/Password"}, {"Fax"}, {{"Job/Type", 5}}, {"Job/Name", "Fax"}};

static TicketFile stapled()
{
    TicketFile file;
    file.isPart = true;
    file.printSettings.ppdChoices = {{"StapleLocation", "SinglePortrait"}};
    file.printSettings.entries[kPMCollateKey] = {false, "test"};
    return file;
}

void TestLastUsed::cleanup()
{
    QFile::remove(path());
    QFile::remove(sitePreferences());
}

void TestLastUsed::whatIsOfOneJobDoesNotComeBack()
{
    TicketFile preset = stapled();
    TicketFile expected = preset;
    expected.printSettings.entries["Job"] = {Dictionary{{"Type", qint64(6)}}, "test"};
    preset.printSettings.entries["Job"] = {
        Dictionary{{"Password", "1234"}, {"Name", "Ann"}, {"Type", qint64(6)}}, "test"};
    preset.printSettings.entries["Fax"] = {Array{"555"}, "test"};
    preset.printSettings.entries[kPMCopiesKey] = {qint64(30), "test"};
    preset.printSettings.entries[kPMPageRangesKey] = {"1-3", "test"};
    preset.printSettings.entries[kJobHoldUntilKey] = {"evening", "test"};
    preset.printSettings.entries[kJobPriorityKey] = {qint64(100), "test"};
    preset.printSettings.ppdChoices["PageSize"] = "A3";
    preset.pageFormat.entries[kPMPaperNameKey] = {"A3", "test"};
    preset.pageFormat.entries[kPMOrientationKey] = {qint64(2), "test"};
    QCOMPARE(lastUsedFrom(preset, keys), expected);
}

void TestLastUsed::aFaxDoesNotComeBack()
{
    TicketFile fax = stapled();
    fax.printSettings.entries["Job"] = {Dictionary{{"Type", qint64(5)}}, "test"};
    fax.printSettings.entries["Fax"] = {Array{"555"}, "test"};
    QCOMPARE(lastUsedFrom(fax, keys), std::nullopt);
}

void TestLastUsed::whatIsNotKnownStaysAsItIsKept()
{
    QCOMPARE(readLastUsed(), LastUsed());
    LastUsed used{"Hall-3", stapled(), Beginning::Preset, "Draft"};
    QVERIFY(keepLastUsed(used));
    QCOMPARE(readLastUsed(), used);
    QCOMPARE(QFileInfo(path()).permissions() & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
    QVERIFY(keepLastUsed({"Office", std::nullopt, std::nullopt, "Letters"})); // a fax, say
    used.printer = "Office";
    QCOMPARE(readLastUsed(), used);
    QVERIFY(keepLastUsed({{}, std::nullopt, Beginning::Defaults, {}}));
    QCOMPARE(readLastUsed(), (LastUsed{"Office", stapled(), Beginning::Defaults, {}}));
}

void TestLastUsed::whatCannotBeReadIsNotKnown_data()
{
    const Table<QByteArray, QString> row{"bytes", "printer"};
    row("nothing", "", "");
    row("no property list", "Hall-3", "");
    row("no dictionary", "<plist version=\"1.0\"><string>Hall-3</string></plist>", "");
    row("other things in it",
        "<plist version=\"1.0\"><dict><key>Printer</key><string>Hall-3</string>"
        "<key>Settings</key><integer>3</integer><key>BeginsWith</key><string>x</string>"
        "</dict></plist>",
        "Hall-3");
}

void TestLastUsed::whatCannotBeReadIsNotKnown()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, printer);
    QVERIFY(QDir().mkpath(userPreferencesFolder()));
    putFile(path(), bytes);
    QCOMPARE(readLastUsed(), (LastUsed{printer, std::nullopt, std::nullopt, {}}));
    // And is no hindrance.
    QVERIFY(keepLastUsed({"Office", stapled(), std::nullopt, {}}));
    QCOMPARE(readLastUsed(), (LastUsed{"Office", stapled(), std::nullopt, {}}));
}

void TestLastUsed::theSiteSaysWhetherItIsKept()
{
    QVERIFY(keepLastUsed({"Hall-3", stapled(), std::nullopt, {}}));
    QVERIFY(QDir().mkpath(siteFolders().first()));
    putFile(sitePreferences(),
            "<plist version=\"1.0\"><dict><key>KeepLastUsed</key><false/></dict></plist>");
    QCOMPARE(readLastUsed(), LastUsed());
    QVERIFY(QFile::remove(path()));
    QVERIFY(keepLastUsed({"Hall-3", stapled(), std::nullopt, {}}));
    QVERIFY(!QFile::exists(path()));
}

QTEST_GUILESS_MAIN(TestLastUsed)
#include "test_last_used.moc"
