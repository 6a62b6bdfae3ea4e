#include "file_store.h"
#include "files.h"
#include "folders.h"
#include "job_timing.h"
#include "presets.h"
#include "property_list.h"
#include "table.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace kelvo;
using Code = Error::Code;

// Presets in the folders of run-isolated, which are empty at first.
class TestPresets : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void comeBackUnderTheirNames_data();
    void comeBackUnderTheirNames();
    void refuseNames_data();
    void refuseNames();
    void leaveOutWhatIsOfOneJob();
    void hideTheSitesPresetOfTheirName();
    void ofAnEarlierSiteFolderBeatLaterOnes();
    void nameTheNearestOne();
    void areRenamedAndRemoved();
    void ofTheSiteAreReadOnly();
    void thatAreDamagedAreListedAndKept();
    void areNeverWrittenOverOtherFiles();
    void startJobsFromTheSitesDefaults();

private:
    PresetStore m_store;
};

static QString ownFolder()
{
    return userPreferencesFolder() + QStringLiteral("/presets");
}

static QString sitePresets()
{
    return siteFolders().first() + QStringLiteral("/presets");
}

static TicketFile ticketWith(const QString &staple)
{
    TicketFile file;
    file.printSettings.entries["Job"] = {Dictionary{{"Password", "1234"}, {"Name", "Ann"}}, "test"};
    file.printSettings.ppdChoices["StapleLocation"] = staple;
    return file;
}

static const SecretKeys keys{{"Job/Password"}, {}};

static QStringList names(const std::vector<Preset> &presets)
{
    QStringList list;
    for (const Preset &preset : presets)
        list << (preset.isSite ? preset.name + " (site)" : preset.name);
    return list;
}

void TestPresets::cleanup()
{
    QDir(ownFolder()).removeRecursively();
    QDir(sitePresets()).removeRecursively();
}

void TestPresets::comeBackUnderTheirNames_data()
{
    const Table<QString> row{"name"};
    for (const char *name :
         {"Draft", "Über 2 Seiten", "a/b", "../escape", ".hidden", "50%", "<b>&amp;"})
        row(name, QString::fromUtf8(name));
    row("long", QString(300, u'n'));
}

void TestPresets::comeBackUnderTheirNames()
{
    QFETCH(QString, name);
    QVERIFY(m_store.save("Other", ticketWith("None"), keys, true));
    const auto saved = m_store.save(name, ticketWith("DualPortrait"), keys, true);
    QVERIFY2(saved, qPrintable(saved.reason()));
    const auto read = m_store.read(name);
    QVERIFY2(read, qPrintable(read.reason()));
    QCOMPARE(read.value(), ticketWith("DualPortrait"));
    QCOMPARE(m_store.presets().size(), 2U);
    for (const Preset &preset : m_store.presets()) {
        QCOMPARE(QFileInfo(preset.path).path(), ownFolder());
        QCOMPARE(
            QFile::permissions(preset.path)
                & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
            QFile::Permissions());
    }

    QVERIFY(m_store.save(name, ticketWith("None"), keys, true));
    QCOMPARE(m_store.presets().size(), 2U);
    QCOMPARE(m_store.read(name).value(), ticketWith("None"));
}

void TestPresets::refuseNames_data()
{
    const Table<QString> row{"name"};
    row("empty", "");
    row("blanks", "  ");
    row("two lines", "a\nb");
    row("null character", QString(QChar(0)));
}

void TestPresets::refuseNames()
{
    QFETCH(QString, name);
    QVERIFY(m_store.save("Draft", {}, keys, false));
    QCOMPARE(m_store.save(name, {}, keys, false).error().code, Code::Refused);
    QCOMPARE(m_store.rename("Draft", name).error().code, Code::Refused);
    QCOMPARE(names(m_store.presets()), QStringList{"Draft"});
}

void TestPresets::leaveOutWhatIsOfOneJob()
{
    TicketFile file = ticketWith("None");
    file.printSettings.entries[kPMPageRangesKey] = {"1-3", "test"};
    file.printSettings.entries[kJobHoldUntilKey] = {"evening", "test"};
    file.printSettings.entries[kPMJobNameKey] = {"Budget", "test"};
    file.printSettings.entries[kPMCopiesKey] = {qint64(2), "test"};
    QVERIFY(m_store.save("Draft", file, keys, false));
    TicketFile expected = withoutSecrets(ticketWith("None"), keys);
    expected.printSettings.entries[kPMCopiesKey] = {qint64(2), "test"};
    QCOMPARE(m_store.read("Draft").value(), expected);
    QVERIFY(!bytesOf(m_store.presets().front().path).contains("1234"));
}

void TestPresets::hideTheSitesPresetOfTheirName()
{
    QVERIFY(QDir().mkpath(sitePresets()));
    QVERIFY(writeTicketFile(sitePresets() + "/Draft.plist", ticketWith("SinglePortrait")));
    QVERIFY(writeTicketFile(sitePresets() + "/Report.plist", ticketWith("SingleLandscape")));
    QCOMPARE(names(m_store.presets()), (QStringList{"Draft (site)", "Report (site)"}));
    QVERIFY(m_store.save("Draft", ticketWith("None"), keys, true));
    QCOMPARE(names(m_store.presets()), (QStringList{"Draft", "Report (site)"}));
    QCOMPARE(m_store.read("Draft").value(), ticketWith("None"));
    QVERIFY(m_store.remove("Draft"));
    QCOMPARE(m_store.read("Draft").value(), ticketWith("SinglePortrait"));
}

void TestPresets::ofAnEarlierSiteFolderBeatLaterOnes()
{
    const QByteArray ours = qgetenv("KELVO_SITE_DIR");
    const QString first = QDir::homePath() + "/first", second = QDir::homePath() + "/second";
    for (const auto &[folder, staple] : {std::pair(first, "None"), {second, "DualPortrait"}}) {
        QVERIFY(QDir().mkpath(folder + "/kelvo/presets"));
        QVERIFY(writeTicketFile(folder + "/kelvo/presets/default.plist", ticketWith(staple)));
    }
    QVERIFY(writeTicketFile(second + "/kelvo/presets/Report.plist", ticketWith("None")));
    qunsetenv("KELVO_SITE_DIR");
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(first + u':' + second));
    const auto listed = names(m_store.presets());
    const auto defaults = m_store.siteDefaults();
    qputenv("KELVO_SITE_DIR", ours);
    qunsetenv("XDG_CONFIG_DIRS");
    QCOMPARE(listed, (QStringList{"default (site)", "Report (site)"}));
    QCOMPARE(defaults, std::optional(ticketWith("None")));
}

void TestPresets::nameTheNearestOne()
{
    QVERIFY(m_store.save("Handout", {}, keys, false));
    const auto read = m_store.read("Handuot");
    QVERIFY(!read);
    QCOMPARE(read.error().code, Code::NotFound);
    QVERIFY(read.error().detail.contains("Handout"));
}

void TestPresets::areRenamedAndRemoved()
{
    QVERIFY(m_store.save("One", ticketWith("None"), keys, true));
    QVERIFY(m_store.save("Two", ticketWith("DualPortrait"), keys, true));
    QCOMPARE(m_store.rename("One", "Two").error().code, Code::Refused);
    QCOMPARE(m_store.rename("Zero", "Three").error().code, Code::NotFound);
    QVERIFY(m_store.rename("One", "one"));
    QVERIFY(m_store.rename("one", "one"));
    QCOMPARE(names(m_store.presets()), (QStringList{"one", "Two"}));
    QCOMPARE(m_store.read("one").value(), ticketWith("None"));
    QVERIFY(m_store.remove("Two"));
    // Whatever presets were called, one lock is left of them.
    QCOMPARE(QDir(ownFolder()).entryList(QDir::Files | QDir::Hidden),
             (QStringList{".lock", "one.plist"}));
    QCOMPARE(m_store.remove("Two").error().code, Code::NotFound);
    QCOMPARE(names(m_store.presets()), QStringList{"one"});

    // A file that was copied by hand carries the name twice, and neither is lost.
    QVERIFY(QFile::copy(ownFolder() + "/one.plist", ownFolder() + "/copy.plist"));
    QCOMPARE(names(m_store.presets()), (QStringList{"one", "one (one.plist)"}));
    QVERIFY(m_store.rename("one (one.plist)", "three"));
    QCOMPARE(names(m_store.presets()), (QStringList{"one", "three"}));
}

void TestPresets::ofTheSiteAreReadOnly()
{
    QVERIFY(QDir().mkpath(sitePresets()));
    QVERIFY(writeTicketFile(sitePresets() + "/Report.plist", ticketWith("None")));
    QCOMPARE(m_store.remove("Report").error().code, Code::Refused);
    QCOMPARE(m_store.rename("Report", "Mine").error().code, Code::Refused);
    QVERIFY(m_store.save("Mine", {}, keys, false));
    QCOMPARE(m_store.rename("Mine", "Report").error().code, Code::Refused);
    QCOMPARE(names(m_store.presets()), (QStringList{"Mine", "Report (site)"}));
}

void TestPresets::thatAreDamagedAreListedAndKept()
{
    const QString path = ownFolder() + "/Draft.plist";
    putFile(path, "<plist><dict><key>");
    QCOMPARE(names(m_store.presets()), QStringList{"Draft"});
    const auto read = m_store.read("Draft");
    QVERIFY(!read);
    QVERIFY2(read.error().where.contains(path), qPrintable(read.reason()));

    QVERIFY(m_store.save("Draft", ticketWith("None"), keys, true));
    QCOMPARE(m_store.read("Draft").value(), ticketWith("None"));
    QCOMPARE(bytesOf(path + ".damaged-1"), QByteArray("<plist><dict><key>"));
}

void TestPresets::areNeverWrittenOverOtherFiles()
{
    // Such as a preset that a later version of the program wrote.
    const QString path = ownFolder() + "/Draft.plist";
    const Dictionary later{{"FormatVersion", 2}, {"Everything", "new"}};
    QVERIFY(QDir().mkpath(ownFolder()));
    QVERIFY(replaceFile(path, CFPropertyListCreateXMLData(later).value()));
    const QByteArray before = bytesOf(path);
    QCOMPARE(m_store.read("Draft").error().code, Code::Unsupported);
    QCOMPARE(m_store.save("Draft", ticketWith("None"), keys, true).error().code, Code::Refused);
    QCOMPARE(bytesOf(path), before);
}

void TestPresets::startJobsFromTheSitesDefaults()
{
    QVERIFY(!m_store.siteDefaults());
    QVERIFY(
        m_store.save("default", ticketWith("None"), keys, true)); // the user's own is no default
    QVERIFY(!m_store.siteDefaults());
    QVERIFY(QDir().mkpath(sitePresets()));
    QVERIFY(writeTicketFile(sitePresets() + "/default.plist", ticketWith("DualPortrait")));
    QCOMPARE(m_store.siteDefaults(), std::optional(ticketWith("DualPortrait")));
    putFile(sitePresets() + "/default.plist", "<plist>");
    QVERIFY(!m_store.siteDefaults());
}

QTEST_GUILESS_MAIN(TestPresets)
#include "test_presets.moc"
