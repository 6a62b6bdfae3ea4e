#include "files.h"
#include "folders.h"
#include "font_conversion.h"
#include "preferences.h"
#include "standard_error.h"
#include "table.h"
#include "watermark_store.h"

#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

const QString font = u"LiberationSans-Bold"_s;

void storeText(const QString &words, const QString &fontName)
{
    _WatermarkData watermark = newWatermark();
    watermark.isText = 1;
    setText(watermark.textString, words);
    setText(watermark.fontName, fontName);
    QVERIFY(addWatermark(kWatermarksFile, watermark));
}

QByteArray program(const QString &fontName)
{
    QByteArray bytes;
    loadFontData(kWatermarksFile, fontName, &bytes);
    return bytes;
}

} // namespace

class TestFontConversion : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QDir(localApplicationSupportFolder() + u"/Kelvo"_s).removeRecursively();
        QDir(userPreferencesFolder()).removeRecursively();
    }

    void keepsTheFontUnderTheWatermarksName_data();
    void keepsTheFontUnderTheWatermarksName();
    void convertsAgainOnlyWhatIsOther();
};

void TestFontConversion::keepsTheFontUnderTheWatermarksName_data()
{
    const Table<QString, QByteArray> row{"fontName", "begins"};
    row("its own name", font, "%!PS-TrueTypeFont-1.0000-");
    row("one as wide", u"ArialMT"_s, "%!PS-TrueTypeFont-1.0000-");
    row("not installed", u"NoSuchFont-Bold"_s, "");
    row("none", {}, "");
}

void TestFontConversion::keepsTheFontUnderTheWatermarksName()
{
    QFETCH(QString, fontName);
    QFETCH(QByteArray, begins);
    storeText(u"Draft"_s, fontName);
    convertFont(u"Draft"_s);
    const QByteArray stored = program(fontName);
    QVERIFY2(stored.startsWith(begins), stored.left(100).constData());
    QCOMPARE(stored.isEmpty(), begins.isEmpty());
    QCOMPARE(stored.contains("/FontName /" + fontName.toUtf8() + " def\n"), !begins.isEmpty());
    QCOMPARE(storedFontSize(kWatermarksFile, fontName).has_value(), !begins.isEmpty());
}

void TestFontConversion::convertsAgainOnlyWhatIsOther()
{
    storeText(u"Draft"_s, font);
    _WatermarkData picture = newWatermark();
    setText(picture.filename, u"logo.png"_s);
    QVERIFY(addWatermark(kWatermarksFile, picture));
    convertFont(u"logo.png"_s); // has a font's name, and needs none
    convertFont(u"not there"_s);
    QVERIFY(program(font).isEmpty());

    convertFont(u"Draft"_s);
    const QByteArray converted = program(font);
    const QByteArray sameSize(converted.size(), 'x');
    storeFontData(kWatermarksFile, font, sameSize);
    convertFont(u"Draft"_s);
    QCOMPARE(program(font), sameSize);

    storeFontData(kWatermarksFile, font, "shorter");
    convertFont(u"Draft"_s);
    QCOMPARE(program(font), converted);

    // A font's file is another one after an update.
    storeFontData(kWatermarksFile, font, sameSize);
    ChangeUserPreferences(kConvertedFontsFile, [](Dictionary &fonts) {
        Dictionary entry = dictionary(fonts, font).value();
        entry.insert(u"Stamp"_s, u"1 2 3 4"_s);
        fonts.insert(font, entry);
        return true;
    });
    convertFont(u"Draft"_s);
    QCOMPARE(program(font), converted);
}

QTEST_GUILESS_MAIN(TestFontConversion)
#include "test_font_conversion.moc"
