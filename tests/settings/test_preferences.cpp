#include "files.h"
#include "folders.h"
#include "input_history.h"
#include "preferences.h"
#include "standard_error.h"
#include "table.h"

#include <QLocale>
#include <QTest>

using namespace kelvo;

namespace {

const QString key = QStringLiteral("jobNotesJobName");

QString preferencePath(const QString &name)
{
    return userPreferencesFolder() + QLatin1Char('/') + name;
}

} // namespace

class TestPreferences : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QDir(userPreferencesFolder()).removeRecursively();
        QDir(localApplicationSupportFolder()).removeRecursively();
        QLocale::setDefault(QLocale::c());
    }

    void readsMissingAndDamagedFilesAsEmpty();
    void writesWholeFiles();
    void saysWhyAndWhereWritingFailed();
    void makesTheMakersFolder();
    void readsSharedFilesAndReportsDamage();
    void keepsTheNewestTexts_data();
    void keepsTheNewestTexts();
    void keepsWhatIsNoText();
    void savesWhatIsNewOnly();
    void offersValidItemsOnly_data();
    void offersValidItemsOnly();
};

void TestPreferences::readsMissingAndDamagedFilesAsEmpty()
{
    const QString name = QStringLiteral("com.kelvo.print.test.plist");
    QCOMPARE(CopyUserPreferences(name), std::optional(Dictionary()));
    for (const char *content : {"", "no property list", "<plist><array/></plist>"}) {
        putFile(preferencePath(name), content);
        const StandardError quiet;
        QCOMPARE(CopyUserPreferences(name), std::optional(Dictionary()));
        QCOMPARE(quiet.text(), QByteArray());
        QCOMPARE(bytesOf(preferencePath(name)), QByteArray(content)); // a reader moves nothing
    }
}

void TestPreferences::writesWholeFiles()
{
    const QString name = QStringLiteral("com.kelvo.print.test.plist");
    QVERIFY(WriteUserPreferences(name, {{"a", 1}, {"b", 2}}));
    QVERIFY(WriteUserPreferences(name, {{"b", QVariantList{"x & y"}}}));
    QCOMPARE(CopyUserPreferences(name), std::optional(Dictionary{{"b", QVariantList{"x & y"}}}));
    QVERIFY(bytesOf(preferencePath(name)).startsWith("<?xml"));

    putFile(preferencePath(name), "damaged by hand");
    const StandardError says;
    QVERIFY(WriteUserPreferences(name, {{"a", 3}}));
    QCOMPARE(bytesOf(preferencePath(name) + ".damaged-1"), QByteArray("damaged by hand"));
}

void TestPreferences::saysWhyAndWhereWritingFailed()
{
    const StandardError captured;
    putFile(userPreferencesFolder(), "in the way");
    QVERIFY(!WriteUserPreferences("a.plist", {}));
    QVERIFY(!saveHistory(key, "text", 5));
    QFile::remove(userPreferencesFolder());
    QVERIFY(!WriteUserPreferences("a.plist", {{"a", QVariant::fromValue(QSize(1, 2))}}));
    const QByteArray folder = QFile::encodeName(userPreferencesFolder());
    const QByteArray notAFolder = "WriteUserPreferences() failed (" + QByteArray::number(ENOTDIR)
        + ")\n" + folder + "/.%.lock: Not a directory\n";
    const QByteArray noList = "WriteUserPreferences() failed (" + QByteArray::number(EINVAL) + ")\n"
        + folder + "/a.plist: a: ";
    const QByteArray text = captured.text();
    const QByteArray expected = QByteArray(notAFolder).replace("%", "a.plist")
        + QByteArray(notAFolder).replace("%", "com.kelvo.print.inputhistory.plist") + noList;
    QVERIFY2(text.startsWith(expected) && text.size() > expected.size(), text.constData());
}

void TestPreferences::makesTheMakersFolder()
{
    const QString folder = localApplicationSupportFolder() + QStringLiteral("/Kelvo");
    QVERIFY(!QFileInfo::exists(folder));
    QCOMPARE(CopyPreferenceFileURL("a.plist"), std::optional(folder + "/a.plist"));
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(CopyPreferenceFileURL("a.plist"), std::optional(folder + "/a.plist"));

    QDir(folder).removeRecursively();
    putFile(folder, "in the way");
    QCOMPARE(CopyPreferenceFileURL("a.plist"), std::nullopt);
    QCOMPARE(CopyXMLData("a.plist"), std::nullopt);
}

void TestPreferences::readsSharedFilesAndReportsDamage()
{
    const StandardError captured;
    QCOMPARE(CopyXMLData("a.plist"), std::nullopt);
    QCOMPARE(captured.text(), QByteArray()); // nothing to say of a file that is not there

    const QString path = CopyPreferenceFileURL("a.plist").value();
    putFile(path, "<plist version=\"1.0\"><array><integer>3</integer></array></plist>");
    QCOMPARE(CopyXMLData("a.plist"), std::optional(QVariant(QVariantList{qint64(3)})));

    putFile(path, "<plist>\n<dict>");
    QCOMPARE(CopyXMLData("a.plist"), std::nullopt);
    const QByteArray said = captured.text();
    QVERIFY2(said.startsWith("CopyXMLData()::CFPropertyListCreateFromXMLData() error: "),
             said.constData());
    QVERIFY2(said.contains("line 2") && said.count('\n') == 1, said.constData());
}

void TestPreferences::keepsTheNewestTexts_data()
{
    const Table<QString, int, QString> row{"before", "limit", "after"};

    row("first", "", 5, "new");
    row("at the limit", "a b c d e", 5, "new a b c d");
    row("one below", "a b c d", 5, "new a b c d");
    row("far above a limit that went down", "a b c d e", 2, "new a");
    row("without a limit", "a b c d e", 0, "new a b c d e");
}

void TestPreferences::keepsTheNewestTexts()
{
    QFETCH(QString, before);
    QFETCH(int, limit);
    const QStringList stored = before.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVERIFY(
        WriteUserPreferences(kInputHistoryFile, {{key, stored}, {"other", QStringList{"kept"}}}));
    QVERIFY(saveHistory(key, "new", limit));
    QTEST(readHistory(key).join(QLatin1Char(' ')), "after");
    QCOMPARE(readHistory("other"), QStringList{"kept"});
}

void TestPreferences::keepsWhatIsNoText()
{
    const QVariantList before{"a", 7, QVariantMap{{"later", true}}};
    QVERIFY(WriteUserPreferences(kInputHistoryFile, {{key, before}}));
    QVERIFY(saveHistory(key, "new", 0));
    const auto stored = CopyUserPreferences(kInputHistoryFile).value_or(Dictionary());
    QCOMPARE(stored.value(key).toList().size(), 4);
    QCOMPARE(stored.value(key).toList().mid(1).value(2).toMap(), before[2].toMap());
    QCOMPARE(readHistory(key), QStringList({"new", "a"}));
}

void TestPreferences::savesWhatIsNewOnly()
{
    saveHistory(key, "old", 5);
    saveHistory(key, "newer", 5);
    const QByteArray before = bytesOf(preferencePath(kInputHistoryFile));
    QVERIFY(saveHistory(key, "old", 5));
    QCOMPARE(bytesOf(preferencePath(kInputHistoryFile)), before);
    QCOMPARE(readHistory(key), QStringList({"newer", "old"}));
}

void TestPreferences::offersValidItemsOnly_data()
{
    const Table<int, QString, bool> row{"kind", "item", "offered"};

    row("smallest number", 1, "10", true);
    row("one below", 1, "9", false);
    row("greatest number", 1, "5000", true);
    row("one above", 1, "5001", false);
    row("grouped number", 1, "4.999", true);
    row("no number", 1, "abc", false);
    row("shortest text", 2, "ab", true);
    row("one shorter", 2, "a", false);
    row("longest text", 2, "abcab", true);
    row("one longer", 2, "abcabc", false);
    row("one character of two units", 2, "\U0001F5A8", false);
    row("five characters of two units", 2, QStringLiteral("\U0001F5A8").repeated(5), true);
    row("character that is not allowed", 2, "abx", false);
    row("another kind takes all", 3, "", true);
}

void TestPreferences::offersValidItemsOnly()
{
    QFETCH(int, kind);
    QFETCH(QString, item);
    QFETCH(bool, offered);
    QLocale::setDefault(QLocale("de_DE"));
    KComboBoxOptions options;
    options.kind = kind;
    options.minimumLength = 2;
    options.maximumLength = 5;
    options.allowed = QSet<char32_t>{U'a', U'b', U'c', U'\U0001F5A8'};
    options.minimumValue = 10;
    options.maximumValue = 5000;
    QCOMPARE(isValidHistoryItem(item, options), offered);

    if (kind == kComboBoxText && !offered && item == QLatin1String("abx")) {
        options.allowed.reset();
        options.maximumLength = -1;
        QVERIFY(isValidHistoryItem("abx and all else", options));
    }
}

QTEST_GUILESS_MAIN(TestPreferences)
#include "test_preferences.moc"
