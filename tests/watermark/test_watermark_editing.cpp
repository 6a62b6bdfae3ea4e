#include "table.h"
#include "watermark_editing.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace kelvo;

Q_DECLARE_METATYPE(kelvo::WatermarkFields)
Q_DECLARE_METATYPE(kelvo::PictureState)
Q_DECLARE_METATYPE(kelvo::NameProblem)
Q_DECLARE_METATYPE(kelvo::WatermarkProblem)

class TestWatermarkEditing : public QObject
{
    Q_OBJECT

private slots:
    void offsetsAreShownAndMovedInTheUsersUnits_data();
    void offsetsAreShownAndMovedInTheUsersUnits();
    void whatIsOffDependsOnTheKind();
    void aStoredRecordComesWithinTheLimits();
    void whatCannotBeKeptIsRefused_data();
    void whatCannotBeKeptIsRefused();
};

namespace {

_WatermarkData record(const char *text, const char *file)
{
    _WatermarkData watermark = newWatermark();
    setText(watermark.textString, text);
    setText(watermark.filename, file);
    setText(watermark.filePath, QStringLiteral("/pictures/") + file);
    return watermark;
}

} // namespace

void TestWatermarkEditing::offsetsAreShownAndMovedInTheUsersUnits_data()
{
    // shown: as the field has it; moved, nudged: shown after 30 points, after 3 steps
    const Table<float, int, int, int, int> row{"inches", "units", "shown", "moved", "nudged"};
    const int in = kWatermarkInches, mm = kWatermarkMillimetres;
    row("nothing", 0, in, 0, 4, 3);
    row("nothing, millimetres", 0, mm, 0, 11, 3);
    row("an inch", 1, in, 10, 14, 13);
    row("an inch, millimetres", 1, mm, 25, 36, 28);
    row("half a tenth", -0.06F, in, -1, 4, 2);
    row("at the edge", 20, in, 200, 200, 200);
    row("at the edge, millimetres", 20, mm, 508, 508, 508);
    row("far off", -1e30F, in, -200, -200, -197);
    row("no number", std::numeric_limits<float>::quiet_NaN(), mm, 0, 0, 3);
}

void TestWatermarkEditing::offsetsAreShownAndMovedInTheUsersUnits()
{
    QFETCH(float, inches);
    QFETCH(int, units);
    QTEST(shownOffset(inches, units), "shown");
    QTEST(shownOffset(movedOffset(inches, 30, units), units), "moved");
    QTEST(shownOffset(nudgedOffset(inches, 3, units), units), "nudged");
    // What is shown comes back as it is, whatever the rounding.
    const int shown = shownOffset(inches, units);
    QCOMPARE(shownOffset(offsetOf(shown, units), units), shown);
}

void TestWatermarkEditing::whatIsOffDependsOnTheKind()
{
    const auto fields = [](const _WatermarkData &watermark, bool isCover) {
        return fieldsFor(readyToEdit(watermark, isCover), isCover);
    };
    const WatermarkFields ofText{.kind = true, .text = true, .place = true, .density = true};
    const WatermarkFields ofPicture{.kind = true, .picture = true};
    const WatermarkFields ofCover{.density = true, .picture = true};
    QVERIFY(fields(record("Draft", ""), false) == ofText);
    QVERIFY(fields(record("", ""), false) == ofText);
    QVERIFY(fields(record("", "logo.png"), false) == ofPicture);
    QVERIFY(fields(record("Draft", "logo.png"), false) == ofText); // as it would be drawn
    QVERIFY(fields(record("Draft", ""), true) == ofCover);

    // The other kind is kept while it is edited, and not in what comes of it.
    _WatermarkData both = readyToEdit(record("Draft", "logo.png"), false);
    QCOMPARE(textOf(edited(both).filename) + textOf(edited(both).filePath), "");
    QCOMPARE(watermarkName(edited(both)), "Draft");
    both.isText = 0;
    QCOMPARE(textOf(edited(both).textString), "");
    QCOMPARE(watermarkName(edited(both)), "logo.png");
}

void TestWatermarkEditing::aStoredRecordComesWithinTheLimits()
{
    _WatermarkData wild = record("Draft", "");
    wild.fontSize = std::numeric_limits<std::int32_t>::min();
    wild.density = 101;
    wild.scale = 0;
    wild.units = 7;
    wild.xOffset = std::numeric_limits<float>::infinity();
    wild.yOffset = std::numeric_limits<float>::quiet_NaN();
    wild.wellColorRed = -2;
    wild.wellColorGreen = 2;
    const _WatermarkData ready = readyToEdit(wild, false);
    QCOMPARE(ready.fontSize, 1);
    QCOMPARE(ready.density, 100);
    QCOMPARE(ready.scale, 1);
    QCOMPARE(ready.units, int(kWatermarkInches));
    QCOMPARE(ready.xOffset, 20.0F);
    QCOMPARE(ready.yOffset, 0.0F);
    QCOMPARE(ready.wellColorRed, 0.0F);
    QCOMPARE(ready.wellColorGreen, 1.0F);
}

void TestWatermarkEditing::whatCannotBeKeptIsRefused_data()
{
    using enum WatermarkProblem;
    const Table<bool, PictureState, NameProblem, WatermarkProblem> row{"isText", "picture", "name",
                                                                       "problem"};
    const auto none = PictureState::None, read = PictureState::Read;
    row("a text", true, none, NameProblem::None, None);
    row("a text without words", true, none, NameProblem::Empty, NoText);
    row("a text named as the list", true, none, NameProblem::Reserved, NameReserved);
    row("a text named as a font", true, none, NameProblem::IsFont, NameIsFont);
    row("a text; the picture is nobody's", true, PictureState::Unreadable, NameProblem::None, None);
    row("a picture", false, read, NameProblem::None, None);
    row("no picture", false, none, NameProblem::Empty, NoPicture);
    row("a picture on its way", false, PictureState::Reading, NameProblem::None, PictureIsRead);
    row("a damaged picture", false, PictureState::Unreadable, NameProblem::None, PictureUnreadable);
    row("a picture named as a font", false, read, NameProblem::IsFont, NameIsFont);
}

void TestWatermarkEditing::whatCannotBeKeptIsRefused()
{
    QFETCH(bool, isText);
    QFETCH(PictureState, picture);
    QFETCH(NameProblem, name);
    _WatermarkData watermark = newWatermark();
    watermark.isText = isText;
    QTEST(findProblem(watermark, picture, name), "problem");
}

QTEST_GUILESS_MAIN(TestWatermarkEditing)
#include "test_watermark_editing.moc"
