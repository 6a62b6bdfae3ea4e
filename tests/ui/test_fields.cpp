#include "event_log.h"
#include "history_field.h"
#include "spin_field.h"
#include "table.h"
#include "time_field.h"

#include <QLineEdit>
#include <QTest>

#include <limits>

using namespace kelvo;

class TestFields : public QObject
{
    Q_OBJECT

private slots:
    void typedTextBecomesAValue_data();
    void typedTextBecomesAValue();
    void aWrongCharacterIsNotTakenIn_data();
    void aWrongCharacterIsNotTakenIn();
    void theGreatestNumberIsShownExactly();
    void stepsStayInsideTheRange();
    void withoutClampingWhatWasTypedStays();
    void aStepStartsFromWhatWasTyped();
    void returnTakesTheTypedText();
    void aTimeKeepsTheSecondsItDoesNotShow();
    void okTakesWhatWasTypedLast();
    void aHistoryFieldKeepsWhatWasTyped();
};

namespace {

void leave(QWidget *field)
{
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(field, &out);
}

} // namespace

void TestFields::typedTextBecomesAValue_data()
{
    // value: range -100 to 2000, 500 before
    const Table<QString, int, QString, int, QString> row{"locale", "decimals", "typed", "value",
                                                         "shown"};

    row("whole number", "de_DE", 0, "12", 12, "12 mm");
    row("with its unit", "de_DE", 0, "12 mm", 12, "12 mm");
    row("half a unit left", "de_DE", 0, "12 m", 12, "12 mm");
    row("blanks around", "de_DE", 0, " 12 ", 12, "12 mm");
    row("comma", "de_DE", 2, "12,34", 1234, "12,34 mm");
    row("comma at the end", "de_DE", 2, "12,", 1200, "12,00 mm");
    row("comma at the start", "de_DE", 2, ",5", 50, "0,50 mm");
    row("point in a point locale", "en_US", 2, "12.3", 1230, "12.30 mm");
    row("negative", "de_DE", 2, "-0,05", -5, "-0,05 mm");
    row("typographic minus", "de_DE", 0, QString(QChar(0x2212)) + "5", -5, "-5 mm");
    row("leading zeros", "de_DE", 0, "007", 7, "7 mm");
    row("at the maximum", "de_DE", 0, "2000", 2000, "2000 mm");
    row("one above", "de_DE", 0, "2001", 2000, "2000 mm");
    row("far above 32 bits", "de_DE", 2, "9999999999", 2000, "20,00 mm");
    row("a plus", "de_DE", 0, "+42", 42, "42 mm");
    row("at the minimum", "de_DE", 0, "-100", -100, "-100 mm");
    row("one below", "de_DE", 0, "-101", -100, "-100 mm");
    row("nothing", "de_DE", 0, "", 500, "500 mm");
    row("a minus alone", "de_DE", 0, "-", 500, "500 mm");
    row("a comma alone", "de_DE", 2, ",", 500, "5,00 mm");
    row("the unit alone", "de_DE", 0, "mm", 500, "500 mm");
}

void TestFields::typedTextBecomesAValue()
{
    QFETCH(QString, locale);
    QFETCH(int, decimals);
    QFETCH(QString, typed);
    QFETCH(int, value);
    SpinField field;
    field.setLocale(QLocale(locale));
    field.setDecimals(decimals);
    field.setMinimum(-100);
    field.setMaximum(2000);
    field.setSuffix(QStringLiteral(" mm"));
    field.setValue(500);

    QVERIFY(field.typeText(typed));
    QCOMPARE(field.value(), 500); // not before it is left
    leave(&field);
    QCOMPARE(field.value(), value);
    QTEST(field.text(), "shown");
}

void TestFields::aWrongCharacterIsNotTakenIn_data()
{
    const Table<int, QString, QString> row{"decimals", "typed", "left"};
    row("letter", 0, "1x2", "12");
    row("comma in a whole number", 0, "1,5", "15");
    row("thousands separator", 2, "1.5", "15");
    row("second comma", 2, "1,5,5", "1,55");
    row("third decimal", 2, "1,555", "1,55");
    row("plus where none is negative", 0, "+5", "5");
    row("minus where none is negative", 0, "-5", "5");
    row("eleventh digit", 0, "12345678901", "1234567890");
    row("exponent", 2, "1e5", "15");
}

void TestFields::aWrongCharacterIsNotTakenIn()
{
    QFETCH(int, decimals);
    QFETCH(QString, typed);
    SpinField field;
    field.setLocale(QLocale(QStringLiteral("de_DE")));
    field.setDecimals(decimals);
    field.setMaximum(2000);
    QVERIFY(!field.typeText(typed));
    QTEST(field.text(), "left");
}

void TestFields::theGreatestNumberIsShownExactly()
{
    SpinField field;
    field.setMaximum(std::numeric_limits<int>::max());
    field.setDecimals(6);
    field.setValue(std::numeric_limits<int>::max());
    field.setLocale(QLocale(QStringLiteral("de_DE")));
    QCOMPARE(field.text(), QStringLiteral("2147,483647"));
    field.takeTypedText(); // what it shows is what it means
    QCOMPARE(field.value(), std::numeric_limits<int>::max());
}

void TestFields::stepsStayInsideTheRange()
{
    SpinField field;
    EventLog log(&field);
    field.setMaximum(25);
    field.setSingleStep(2);
    QTest::keyClick(&field, Qt::Key_Up);
    QCOMPARE(field.value(), 2);
    QTest::keyClick(&field, Qt::Key_PageUp);
    QCOMPARE(field.value(), 22);
    QTest::keyClick(&field, Qt::Key_PageUp);
    QCOMPARE(field.value(), 25);
    QCOMPARE(log.take().size(), 3);
    field.setMaximum(20); // takes the value along, silently
    QCOMPARE(field.value(), 20);
    QTest::keyClick(&field, Qt::Key_Up);
    QCOMPARE(log.take(), QStringList());
    field.setMinimum(std::numeric_limits<int>::min());
    field.setSingleStep(std::numeric_limits<int>::max());
    QTest::keyClick(&field, Qt::Key_PageDown);
    QCOMPARE(field.value(), std::numeric_limits<int>::min());
}

void TestFields::withoutClampingWhatWasTypedStays()
{
    SpinField field;
    field.setClamping(false);
    field.setMinimum(10);
    field.setMaximum(20);
    QCOMPARE(field.value(), 0); // as it began
    field.typeText(QStringLiteral("200"));
    QVERIFY(field.willTakeTypedText());
    QTest::keyClick(&field, Qt::Key_Return);
    leave(&field);
    QCOMPARE(field.value(), 200);
    QCOMPARE(field.text(), "200");
    QVERIFY(!field.isInRange());
    field.stepBy(1);
    QCOMPARE(field.value(), 20);
    QVERIFY(field.isInRange());
}

void TestFields::aStepStartsFromWhatWasTyped()
{
    SpinField field;
    EventLog log(&field);
    field.typeText(QStringLiteral("40"));
    QCOMPARE(log.take(), (QStringList{"TextChanged", "TextChanged", "TextChanged"}));
    field.stepBy(1);
    QCOMPARE(field.value(), 41);
    QCOMPARE(log.take(), QStringList{"ControlHit"});
}

void TestFields::returnTakesTheTypedText()
{
    SpinField field;
    EventLog log(&field);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, "42");
    log.take();
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(field.value(), 42);
    QCOMPARE(log.take(), QStringList{"ControlHit"});
    leave(&field);
    QCOMPARE(log.take(), QStringList{"FocusChanged"});
}

void TestFields::aTimeKeepsTheSecondsItDoesNotShow()
{
    TimeField field;
    field.setLocale(QLocale(QStringLiteral("de_DE")));
    field.setValue(QTime(23, 4, 56));
    QCOMPARE(field.text(), "23:04");
    QCOMPARE(field.value(), QTime(23, 4, 56));
    field.setLocale(QLocale(QStringLiteral("en_US")));
    QVERIFY2(field.text().contains("11:04"), qPrintable(field.text()));
    QCOMPARE(field.value(), QTime(23, 4, 56));
    QVERIFY(!field.choose(QTime()));
    EventLog log(&field);
    field.stepBy(-1);
    QCOMPARE(log.take(), QStringList{"ControlHit"});
}

void TestFields::okTakesWhatWasTypedLast()
{
    QWidget window;
    auto *spin = new SpinField(&window);
    auto *time = new TimeField(&window);
    time->setLocale(QLocale(QStringLiteral("de_DE")));
    time->setValue(QTime(8, 0));
    spin->typeText(QStringLiteral("17"));
    auto *line = time->findChild<QLineEdit *>();
    line->selectAll();
    line->insert(QStringLiteral("17:45"));
    EventLog log(&window);
    commitTypedValues(&window);
    QCOMPARE(spin->value(), 17);
    QCOMPARE(time->value(), QTime(17, 45));
    QCOMPARE(log.take(), (QStringList{"ControlHit", "ControlHit"}));
}

void TestFields::aHistoryFieldKeepsWhatWasTyped()
{
    HistoryField field;
    field.setText(QStringLiteral("typed"));
    QVERIFY(field.appendItem(QStringLiteral("First")));
    QVERIFY(field.appendItem(QStringLiteral("Second")));
    QCOMPARE(field.text(), "typed");
    QCOMPARE(field.items(), (QStringList{"First", "Second"}));

    // Neither Return nor leaving turns it into an item that is nearly the same,
    // and nothing is completed.
    field.lineEdit()->clear();
    QTest::keyClicks(&field, "first");
    QTest::keyClick(&field, Qt::Key_Return);
    EventLog log(&field);
    leave(&field);
    QCOMPARE(log.take(), QStringList{"FocusChanged"});
    QCOMPARE(field.text(), "first");
    QCOMPARE(field.items().size(), 2);

    sendControlEvents(&field); // it sends by itself
    QTest::keyClick(&field, Qt::Key_Down);
    QCOMPARE(field.text(), "First");
    QCOMPARE(log.take(), QStringList{"ControlHit"});
}

QTEST_MAIN(TestFields)
#include "test_fields.moc"
