#include "device_session.h"
#include "dialog_steps.h"
#include "files.h"
#include "paper_view.h"
#include "popup_button.h"
#include "preferences.h"
#include "watermark_editor.h"
#include "watermark_store.h"

#include <QFileDialog>
#include <QPainter>
#include <QTest>

using namespace kelvo;
using namespace dialog_steps;

// The editor as its user drives it: each step comes from the event loop of what is open then.
class TestWatermarkEditor : public QObject
{
    Q_OBJECT

private slots:
    void aNewTextIsWrittenPlacedAndColored();
    void cancelLeavesTheRecord();
    void aPictureTurnsOffWhatItDoesNotHave();
    void aNameThatCannotBeIsRefused();
    void anotherOneOfThatNameIsReplacedOnlyWhenAsked();
    void aFontThatIsNotInstalledStays();
    void aPictureThatCannotBeReadIsRefused();
    void thePageShowsBelow();
};

namespace {

class Editor : public DialogSteps
{
public:
    // On `watermark`.
    DialogResult run(const std::vector<Step> &steps)
    {
        return DialogSteps::run(
            [this] {
                return RunModalWatermarkEditor(currentDevice(m_session.bundle), &watermark, editing,
                                               nullptr);
            },
            steps);
    }

    _WatermarkData watermark = newWatermark();
    WatermarkEditing editing{.fileName = kWatermarksFile,
                             .titleKey = QStringLiteral("Watermark Editor"),
                             .firstPage = {},
                             .isCoverImage = false};

private:
    DeviceSession m_session{QStringLiteral("full")};
};

} // namespace

void TestWatermarkEditor::aNewTextIsWrittenPlacedAndColored()
{
    Editor editor;
    QCOMPARE(editor.run({
                 type("watermarkText", "TOP SECRET"),
                 set("watermarkFontSize", 36),
                 set("watermarkAngle", 330),
                 expect("watermarkAngle", "value", "-30"),
                 expect("watermarkAngleDial", "value", "-30"),
                 set("watermarkAngleDial", 30),
                 set("watermarkDensity", 60),
                 type("watermarkColor", "#ff80"),
                 click("okButton"),
                 expectNotice("six digits"),
                 type("watermarkColor", "#ff8000"),
                 expect("watermarkFontColor", "text", "#0000FF"),
                 set("watermarkX", 5),
                 [] { done(inspector::drag(control("watermarkEditorPreview"), 72, 36)); },
                 expect("watermarkX", "value", "15"),
                 expect("watermarkY", "value", "-5"),
                 [] {
                     done(inspector::choose(control("watermarkUnits"),
                                            {inspector::ItemName::By::Key, 0, "Millimetres", 0}));
                 },
                 expect("watermarkX", "value", "38"),
                 [] {
                     control("watermarkEditorPreview")->setFocus();
                     done(inspector::pressKey(front(), "Shift+Up"));
                     done(inspector::pressKey(front(), "Left"));
                 },
                 expect("watermarkX", "value", "37"),
                 expect("watermarkY", "value", "-3"),
                 expect("watermarkScale", "enabled", "false"),
                 click("okButton"),
             }),
             DialogResult::OK);
    QVERIFY(editor.isDone());
    const _WatermarkData &made = editor.watermark;
    QCOMPARE(watermarkName(made), "TOP SECRET");
    QCOMPARE(made.fontSize, 36);
    QCOMPARE(made.angle, 30);
    QCOMPARE(made.density, 60);
    QCOMPARE(made.units, int(kWatermarkMillimetres));
    QCOMPARE(made.xOffset, 37 / 25.4F);
    QCOMPARE(QColor::fromRgbF(made.wellColorRed, made.wellColorGreen, made.wellColorBlue).name(),
             "#ff8000");
    QCOMPARE(made.fontColorBlue, 1.0F);
    QVERIFY(made.xPos > 306 && made.yPos > 0); // where it was drawn
}

void TestWatermarkEditor::cancelLeavesTheRecord()
{
    Editor editor;
    setText(editor.watermark.textString, "Draft");
    const _WatermarkData before = editor.watermark;
    QCOMPARE(editor.run(
                 {type("watermarkText", "Other"), click("watermarkCenter"), click("cancelButton")}),
             DialogResult::Cancel);
    QCOMPARE(asDictionary(editor.watermark), asDictionary(before));
}

void TestWatermarkEditor::aPictureTurnsOffWhatItDoesNotHave()
{
    const QString path = pictureAt("logo.png");
    Editor editor;
    std::vector<Step> steps{type("watermarkText", "Kept"), set("watermarkKind", 2)};
    for (const char *name : {"watermarkText", "watermarkFont", "watermarkColor", "watermarkAngle",
                             "watermarkDensity", "watermarkX", "watermarkCenter"})
        steps.push_back(expect(name, "enabled", "false"));
    for (const Step &step :
         {click("watermarkPicture"), chooseFile(path),
          expect("watermarkPictureName", "text", "logo.png"),
          expect("watermarkPictureHint", "text", "200 by 100 pixels, printed at 2.8 by 1.4 inches"),
          set("watermarkScale", 200),
          expect("watermarkPictureHint", "text", "200 by 100 pixels, printed at 5.6 by 2.8 inches"),
          Step([] {
              QCOMPARE(middleOf(control("watermarkEditorPreview")), QColor(Qt::red));
              (void)inspector::drag(control("watermarkEditorPreview"), 72, 0);
          }),
          expect("watermarkX", "value", "0"), click("okButton")})
        steps.push_back(step);
    QCOMPARE(editor.run(steps), DialogResult::OK);
    QVERIFY(editor.isDone());
    QCOMPARE(watermarkName(editor.watermark), "logo.png");
    QCOMPARE(textOf(editor.watermark.filePath), path);
    QCOMPARE(textOf(editor.watermark.textString), "");
    QCOMPARE(editor.watermark.scale, 200);

    Editor cover;
    cover.editing.isCoverImage = true;
    cover.watermark = editor.watermark;
    QCOMPARE(
        cover.run({expect("watermarkKind", "enabled", "false"), set("watermarkDensity", 0),
                   [] { QCOMPARE(middleOf(control("watermarkEditorPreview")), QColor(Qt::white)); },
                   click("okButton")}),
        DialogResult::OK);
    QVERIFY(cover.isDone());
    QCOMPARE(cover.watermark.density, 0);
}

void TestWatermarkEditor::aNameThatCannotBeIsRefused()
{
    saveWatermarkList(kWatermarksFile, nullptr);
    const QStringList none;
    saveWatermarkList(kWatermarksFile, &none); // there is a store
    storeFontData(kWatermarksFile, "DejaVuSans", "font");
    Editor editor;
    QCOMPARE(
        editor.run({click("okButton"), expectNotice("Type the words"),
                    type("watermarkText", "WatermarkListEntries"), click("okButton"),
                    expectNotice("WatermarkListEntries"), type("watermarkText", "DejaVuSans"),
                    click("okButton"), expectNotice("a font that is kept"), set("watermarkKind", 2),
                    click("okButton"), expectNotice("Choose the picture"), click("cancelButton")}),
        DialogResult::Cancel);
    QVERIFY(editor.isDone());
    const QString longText(600, QChar(0x00FC));
    QCOMPARE(editor.run({[&] { (void)inspector::type(control("watermarkText"), longText); },
                         click("okButton")}),
             DialogResult::OK);
    QCOMPARE(textOf(editor.watermark.textString), longText.left(255)); // 510 bytes
}

void TestWatermarkEditor::anotherOneOfThatNameIsReplacedOnlyWhenAsked()
{
    const QStringList names{"Draft", "Copy"};
    saveWatermarkList(kWatermarksFile, &names);
    Editor editor;
    setText(editor.watermark.textString, "Draft");
    QCOMPARE(editor.run({type("watermarkText", "Copy"), click("okButton"),
                         expectNotice("Replace “Copy”?", 2), type("watermarkText", "Draft"),
                         click("okButton")}),
             DialogResult::OK);
    QVERIFY(editor.isDone());
    QCOMPARE(watermarkName(editor.watermark), "Draft"); // itself: no question
    QCOMPARE(editor.run({type("watermarkText", "Copy"), click("okButton"),
                         expectNotice("Replace “Copy”?", 1)}),
             DialogResult::OK);
    QVERIFY(editor.isDone());
}

void TestWatermarkEditor::aFontThatIsNotInstalledStays()
{
    Editor editor;
    setText(editor.watermark.textString, "Draft");
    setText(editor.watermark.fontName, "NoSuchFont-Bold");
    QCOMPARE(editor.run({expect("watermarkFont", "text", "NoSuchFont-Bold (not installed)"),
                         set("watermarkDensity", 30), click("okButton")}),
             DialogResult::OK);
    QCOMPARE(textOf(editor.watermark.fontName), "NoSuchFont-Bold");
    QCOMPARE(editor.run({[] {
                             done(inspector::choose(
                                 control("watermarkFont"),
                                 {inspector::ItemName::By::Key, 0, "DejaVuSans-Bold", 0}));
                         },
                         expect("watermarkFontHint", "text", ""), click("okButton")}),
             DialogResult::OK);
    QVERIFY(editor.isDone());
    QCOMPARE(textOf(editor.watermark.fontName), "DejaVuSans-Bold");
}

void TestWatermarkEditor::aPictureThatCannotBeReadIsRefused()
{
    putFile("damaged.png", "\x89PNG\r\n\x1a\nnothing of it");
    const QString good = pictureAt("good.png");
    Editor editor;
    QCOMPARE(editor.run({set("watermarkKind", 2), click("watermarkPicture"),
                         chooseFile(QDir::current().absoluteFilePath("damaged.png")),
                         [] {
                             const auto hint =
                                 inspector::property(control("watermarkPictureHint"), "text");
                             QVERIFY(!hint.value().isEmpty());
                             QVERIFY2(!hint.value().contains("pixels"), qPrintable(hint.value()));
                         },
                         click("okButton"), expectNotice("damaged.png"), click("watermarkPicture"),
                         chooseFile(good), click("okButton")}),
             DialogResult::OK);
    QVERIFY(editor.isDone());
    QCOMPARE(watermarkName(editor.watermark), "good.png");
}

void TestWatermarkEditor::thePageShowsBelow()
{
    Editor editor;
    editor.editing.firstPage = {QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf"), 1};
    const auto darkPixels = [] {
        const QImage seen = control("watermarkEditorPreview")->grab().toImage();
        int dark = 0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x)
                dark += qGray(seen.pixel(x, y)) < 100 ? 1 : 0;
        }
        return dark;
    };
    int withPage = 0, without = 0;
    QCOMPARE(editor.run({[&] { withPage = darkPixels(); },
                         [] { done(inspector::check(control("watermarkOverPage"), false)); },
                         [&] { without = darkPixels(); }, click("cancelButton")}),
             DialogResult::Cancel);
    QVERIFY2(withPage > without + 100,
             qPrintable(QStringLiteral("%1 %2").arg(withPage).arg(without)));
}

QTEST_MAIN(TestWatermarkEditor)
#include "test_watermark_editor.moc"
