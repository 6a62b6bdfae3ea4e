#include "device_session.h"
#include "files.h"
#include "folders.h"
#include "preferences.h"
#include "property_list.h"
#include "standard_error.h"
#include "table.h"
#include "watermark_store.h"

#include <QTest>

#include <thread>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

QString path(const QString &fileName = kWatermarksFile)
{
    return CopyPreferenceFileURL(fileName).value();
}

Dictionary stored()
{
    const auto list = readPropertyList(path());
    return list ? dictionary(list.value()).value_or(Dictionary()) : Dictionary();
}

QStringList storedNames()
{
    QStringList names;
    loadWatermarkList(kWatermarksFile, &names);
    return names;
}

_WatermarkData text(const QString &words, std::int32_t angle = 30)
{
    _WatermarkData watermark = newWatermark();
    watermark.isText = 1;
    watermark.angle = angle;
    setText(watermark.textString, words);
    return watermark;
}

_WatermarkData picture(const QString &file)
{
    _WatermarkData watermark = newWatermark();
    setText(watermark.filename, file);
    setText(watermark.filePath, u"/pictures/"_s + file);
    return watermark;
}

std::int32_t angleOf(const QString &name)
{
    _WatermarkData watermark;
    return loadWatermarkData(kWatermarksFile, name, &watermark) ? watermark.angle : -1;
}

} // namespace

class TestWatermarkStore : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QDir(localApplicationSupportFolder() + u"/Kelvo"_s).removeRecursively(); }

    void keepsARecordAsItIs();
    void cutsTextsBetweenCharacters_data();
    void cutsTextsBetweenCharacters();
    void leavesFieldsOfMissingKeys();
    void zeroesARecordThatIsNotThere();
    void makesTheDefaultsOnce();
    void leavesOutAnEmptyFirstOne();
    void changesListAndRecordTogether();
    void losesNothingOfOtherDialogs();
    void keepsFontsOnlyInAStore();
    void refusesNames_data();
    void refusesNames();
    void setsADamagedStoreAside();
    void writesNothingThatCannotBeReadAgain();
};

void TestWatermarkStore::keepsARecordAsItIs()
{
    _WatermarkData watermark = text(u"TOP SECRET"_s);
    watermark.xOffset = 0.1F;
    watermark.yOffset = -2.5F;
    watermark.wellColorRed = 0.3F;
    watermark.fontColorGreen = 0.7F;
    watermark.xPos = 280.627441;
    watermark.units = kWatermarkMillimetres;
    saveWatermarkData(kWatermarksFile, watermark);

    const Dictionary record = dictionary(stored(), u"TOP SECRET"_s).value();
    QCOMPARE(record.size(), 21);
    QCOMPARE(integer32(record, u"angle"_s), 30);
    QCOMPARE(real(record, u"xPos"_s), 280.627441);
    QCOMPARE(string(record, u"fontName"_s), u"ArialMT"_s);

    _WatermarkData loaded;
    QVERIFY(loadWatermarkData(kWatermarksFile, u"TOP SECRET"_s, &loaded));
    QCOMPARE(asDictionary(loaded), asDictionary(watermark));
    QCOMPARE(loaded.isText, 0); // the caller's
}

void TestWatermarkStore::cutsTextsBetweenCharacters_data()
{
    const Table<QString, int> row{"text", "bytes"};
    row("what fits", QString(511, u'a'), 511);
    row("one more", QString(512, u'a'), 511);
    row("two bytes each", QString(300, QChar(0xE9)), 510);
    row("four bytes each", QString::fromUcs4(U"\U0001F600").repeated(150), 508);
}

void TestWatermarkStore::cutsTextsBetweenCharacters()
{
    QFETCH(QString, text);
    QFETCH(int, bytes);
    _WatermarkData watermark;
    setText(watermark.textString, text);
    QCOMPARE(int(qstrnlen(watermark.textString, sizeof watermark.textString)), bytes);
    QVERIFY(text.startsWith(textOf(watermark.textString)));
}

void TestWatermarkStore::leavesFieldsOfMissingKeys()
{
    const Dictionary store{{u"half"_s,
                            Dictionary{{u"textString"_s, u"half"_s},
                                       {u"fontName"_s, QString(600, u'f')}, // cannot be a name
                                       {u"density"_s, 40.7},
                                       {u"scale"_s, u"100"_s}}}};
    putFile(path(), CFPropertyListCreateXMLData(store).value());
    _WatermarkData watermark;
    watermark.angle = 17;
    watermark.scale = 55;
    watermark.isText = 1;
    setText(watermark.fontName, u"Before"_s);
    QVERIFY(loadWatermarkData(kWatermarksFile, u"half"_s, &watermark));
    QCOMPARE(textOf(watermark.textString), u"half"_s);
    QCOMPARE(watermark.angle, 17);
    QCOMPARE(watermark.density, 40);
    QCOMPARE(watermark.scale, 55); // a text is no number
    QCOMPARE(watermark.isText, 1);
    QCOMPARE(textOf(watermark.fontName), QString());
}

void TestWatermarkStore::zeroesARecordThatIsNotThere()
{
    for (const bool hasStore : {false, true}) {
        if (hasStore)
            saveWatermarkData(kWatermarksFile, text(u"other"_s));
        _WatermarkData watermark = text(u"asked"_s);
        QVERIFY(!loadWatermarkData(kWatermarksFile, u"asked"_s, &watermark));
        QCOMPARE(asDictionary(watermark), asDictionary(_WatermarkData()));
        QCOMPARE(watermark.isText, 0);
    }
}

void TestWatermarkStore::makesTheDefaultsOnce()
{
    const DeviceSession device(u"full"_s);
    const QStringList names = loadOrCreateWatermarks(device.bundle);
    QCOMPARE(names, QStringList({u"Draft"_s, u"Confidential"_s, u"Copy"_s}));
    QCOMPARE(storedNames(), names);
    _WatermarkData draft;
    QVERIFY(loadWatermarkData(kWatermarksFile, names.first(), &draft));
    QCOMPARE(draft.angle, 45);
    QCOMPARE(draft.density, 25);
    QCOMPARE(draft.fontSize, 72);
    QCOMPARE(draft.fontColorRed, 0.75F);
    QCOMPARE(draft.wellColorRed, 0.0F);
    QCOMPARE(draft.yPos, 311.049927);

    // A list that the user has emptied stays empty.
    for (const QString &name : names)
        QVERIFY(deleteWatermark(kWatermarksFile, name));
    QCOMPARE(loadOrCreateWatermarks(device.bundle), QStringList());
    QCOMPARE(CreateDefaultWatermarks(device.bundle), noErr);
    QCOMPARE(storedNames(), QStringList());
}

void TestWatermarkStore::leavesOutAnEmptyFirstOne()
{
    const QStringList names{u"gone"_s, u"also gone"_s, u"there"_s};
    saveWatermarkList(kWatermarksFile, &names);
    saveWatermarkData(kWatermarksFile, text(u"there"_s));
    QCOMPARE(loadOrCreateWatermarks(nullptr), names.mid(1));
    QCOMPARE(storedNames(), names);
    saveWatermarkData(kWatermarksFile, text(u"gone"_s));
    QCOMPARE(loadOrCreateWatermarks(nullptr), names);
}

void TestWatermarkStore::changesListAndRecordTogether()
{
    for (const char *name : {"one", "two", "three"})
        QVERIFY(addWatermark(kWatermarksFile, text(QLatin1String(name))));
    // A picture takes the place of the text with its name.
    QCOMPARE(addWatermark(kWatermarksFile, picture(u"two"_s)).value(),
             QStringList({u"one"_s, u"two"_s, u"three"_s}));
    _WatermarkData two;
    QVERIFY(loadWatermarkData(kWatermarksFile, u"two"_s, &two));
    QCOMPARE(textOf(two.filePath), u"/pictures/two"_s);
    QCOMPARE(textOf(two.textString), QString());

    QCOMPARE(replaceWatermark(kWatermarksFile, u"two"_s, text(u"zwei"_s, 2)).value(),
             QStringList({u"one"_s, u"zwei"_s, u"three"_s}));
    QVERIFY(!stored().contains(u"two"_s));
    QCOMPARE(angleOf(u"zwei"_s), 2);
    QCOMPARE(replaceWatermark(kWatermarksFile, u"zwei"_s, text(u"one"_s, 3)).value(),
             QStringList({u"one"_s, u"three"_s}));
    QCOMPARE(angleOf(u"one"_s), 3);
    // Another dialog has removed what this one edits.
    QCOMPARE(replaceWatermark(kWatermarksFile, u"zwei"_s, text(u"new"_s)).value(),
             QStringList({u"one"_s, u"three"_s, u"new"_s}));
    // A ticket could not tell them apart.
    QCOMPARE(replaceWatermark(kWatermarksFile, u"new"_s, text(u"NEW"_s)).value(),
             QStringList({u"one"_s, u"three"_s, u"NEW"_s}));
    QCOMPARE(addWatermark(kWatermarksFile, text(u"new"_s)).value(),
             QStringList({u"one"_s, u"three"_s, u"new"_s}));
    QVERIFY(!stored().contains(u"NEW"_s));
    QCOMPARE(deleteWatermark(kWatermarksFile, u"three"_s).value(),
             QStringList({u"one"_s, u"new"_s}));
    QCOMPARE(stored().size(), 3);

    // The cover images are others.
    QStringList covers;
    QVERIFY(!loadWatermarkList(kFaxImagesFile, &covers));
    QVERIFY(addWatermark(kFaxImagesFile, picture(u"logo.png"_s)));
    QVERIFY(loadWatermarkList(kFaxImagesFile, &covers));
    QCOMPARE(covers, QStringList(u"logo.png"_s));
    QVERIFY(!stored().contains(u"logo.png"_s));
}

void TestWatermarkStore::losesNothingOfOtherDialogs()
{
    constexpr int dialogs = 4, each = 10;
    std::vector<std::thread> threads;
    for (int dialog = 0; dialog < dialogs; ++dialog) {
        threads.emplace_back([dialog] {
            for (int at = 0; at < each; ++at)
                (void)addWatermark(kWatermarksFile, text(u"%1-%2"_s.arg(dialog).arg(at), at));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(storedNames().size(), dialogs * each);
    QCOMPARE(angleOf(u"3-9"_s), 9);
}

void TestWatermarkStore::keepsFontsOnlyInAStore()
{
    const QString font = u"LiberationSans"_s;
    storeFontData(kWatermarksFile, font, "program");
    QVERIFY(QDir(QFileInfo(path()).path())
                .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    saveWatermarkData(kWatermarksFile, text(u"draft"_s));
    QVERIFY(!storedFontSize(kWatermarksFile, font));
    storeFontData(kWatermarksFile, font, "program");
    QCOMPARE(storedFontSize(kWatermarksFile, font), 7);
    QByteArray program = "before ";
    loadFontData(kWatermarksFile, font, &program);
    QCOMPARE(program, "before program");
    loadFontData(kWatermarksFile, u"draft"_s, &program);
    loadFontData(kWatermarksFile, u"missing"_s, &program);
    QCOMPARE(program, "before program");
    // A font that has a watermark's name does not take its place.
    storeFontData(kWatermarksFile, u"draft"_s, "program");
    QCOMPARE(angleOf(u"draft"_s), 30);
    removeWatermarkData(kWatermarksFile, u"draft"_s);
    QCOMPARE(angleOf(u"draft"_s), -1);
    QCOMPARE(stored().keys(), QStringList(font));
}

void TestWatermarkStore::refusesNames_data()
{
    const Table<QString, int> row{"name", "problem"};
    row("a name", u"Draft"_s, int(NameProblem::None));
    row("nothing", u""_s, int(NameProblem::Empty));
    row("blanks", u" \t"_s, int(NameProblem::Empty));
    row("the list's", u"WatermarkListEntries"_s, int(NameProblem::Reserved));
    row("a font's", u"LiberationSans"_s, int(NameProblem::IsFont));
    row("nearly a font's", u"liberationsans"_s, int(NameProblem::None));
}

void TestWatermarkStore::refusesNames()
{
    QFETCH(QString, name);
    QFETCH(int, problem);
    const QStringList names{u"first"_s};
    saveWatermarkList(kWatermarksFile, &names);
    storeFontData(kWatermarksFile, u"LiberationSans"_s, "program");
    QCOMPARE(int(problemOfName(kWatermarksFile, name)), problem);
    if (problem == int(NameProblem::Empty) || problem == int(NameProblem::Reserved)) {
        _WatermarkData watermark = text(name.trimmed());
        QCOMPARE(addWatermark(kWatermarksFile, watermark).value(), names);
        QCOMPARE(storedNames(), names);
    }
}

void TestWatermarkStore::setsADamagedStoreAside()
{
    const QByteArray damaged = "<plist><dict><key>half";
    putFile(path(), damaged);
    const StandardError quiet;
    QStringList names{u"before"_s};
    QVERIFY(!loadWatermarkList(kWatermarksFile, &names));
    QCOMPARE(names, QStringList(u"before"_s));
    storeFontData(kWatermarksFile, u"Font"_s, "program");
    removeWatermarkData(kWatermarksFile, u"half"_s);
    QCOMPARE(bytesOf(path()), damaged); // who only changes leaves it alone
    QVERIFY(addWatermark(kWatermarksFile, text(u"new"_s)));
    QCOMPARE(storedNames(), QStringList(u"new"_s));
    QCOMPARE(bytesOf(path() + u".damaged-1"_s), damaged);
}

void TestWatermarkStore::writesNothingThatCannotBeReadAgain()
{
    saveWatermarkData(kWatermarksFile, text(u"draft"_s));
    const StandardError said;
    storeFontData(kWatermarksFile, u"Huge"_s, QByteArray(100 * 1024 * 1024, 'x'));
    QVERIFY(said.text().contains("more than 134217728 bytes"));
    QVERIFY(!storedFontSize(kWatermarksFile, u"Huge"_s));
    QCOMPARE(angleOf(u"draft"_s), 30);
}

QTEST_GUILESS_MAIN(TestWatermarkStore)
#include "test_watermark_store.moc"
