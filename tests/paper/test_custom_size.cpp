#include "custom_size.h"
#include "tab_shift.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

// The numbers of the custom size and the tab shift, exactly as tickets have them.
class TestCustomSize : public QObject
{
    Q_OBJECT

private slots:
    void firstUnitIsTheLocales();
    void limitsAreRoundedToTheUnit_data();
    void limitsAreRoundedToTheUnit();
    void fieldsBecomeLengthsAndBack_data();
    void fieldsBecomeLengthsAndBack();
    void unitsConvertWithRounding();

    void tabShiftBeginsWithTheLocalesUnit_data();
    void tabShiftBeginsWithTheLocalesUnit();
    void tabShiftConverts_data();
    void tabShiftConverts();
    void tabShiftIsStoredInMillimetres_data();
    void tabShiftIsStoredInMillimetres();
};

void TestCustomSize::firstUnitIsTheLocales()
{
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    QCOMPARE(currentSizeUnit(), SizeUnit::Inches);
    // What was in use stays, whatever the locale.
    setCurrentSizeUnit(SizeUnit::Millimetres);
    QCOMPARE(currentSizeUnit(), SizeUnit::Millimetres);
}

void TestCustomSize::limitsAreRoundedToTheUnit_data()
{
    const Table<CustomPageLimits, SizeUnit, SizeFieldLimits> row{"points", "unit", "limits"};

    const CustomPageLimits usual{432, 432, 864, 864};
    row("inches", usual, SizeUnit::Inches, SizeFieldLimits{600, 1200, 600, 1200});
    row("millimetres", usual, SizeUnit::Millimetres, SizeFieldLimits{1524, 3048, 1524, 3048});
    row("rounded", CustomPageLimits{279, 420, 612, 1008}, SizeUnit::Inches,
        SizeFieldLimits{388, 850, 583, 1400});
    row("beyond 32 bits", CustomPageLimits{0, 0, 1e300, 1e10}, SizeUnit::Millimetres,
        SizeFieldLimits{0, 2147483647, 0, 2147483647});
}

void TestCustomSize::limitsAreRoundedToTheUnit()
{
    QFETCH(CustomPageLimits, points);
    QFETCH(SizeUnit, unit);
    QTEST(sizeFieldLimits(points, unit), "limits");
}

void TestCustomSize::fieldsBecomeLengthsAndBack_data()
{
    const Table<SizeUnit, int, int> row{"unit", "field", "length"};

    row("8.50 in", SizeUnit::Inches, 850, 21590);
    row("11.69 in, rounded down", SizeUnit::Inches, 1169, 29693);
    row("8.27 in, rounded up", SizeUnit::Inches, 827, 21006);
    row("215.9 mm", SizeUnit::Millimetres, 2159, 21590);
}

void TestCustomSize::fieldsBecomeLengthsAndBack()
{
    QFETCH(SizeUnit, unit);
    QFETCH(int, field);
    QFETCH(int, length);
    QCOMPARE(lengthOfField(field, unit), length);
    QCOMPARE(fieldOfLength(length, unit), field);
}

void TestCustomSize::unitsConvertWithRounding()
{
    QCOMPARE(convertedField(850, SizeUnit::Millimetres), 2159);
    QCOMPARE(convertedField(2159, SizeUnit::Inches), 850);
    // 297.0 mm comes back as 296.9 mm: each direction rounds.
    QCOMPARE(convertedField(2970, SizeUnit::Inches), 1169);
    QCOMPARE(convertedField(1169, SizeUnit::Millimetres), 2969);
    // What the largest field would be does not run over.
    QCOMPARE(convertedField(2147483647, SizeUnit::Millimetres), 2147483647);
}

void TestCustomSize::tabShiftBeginsWithTheLocalesUnit_data()
{
    const Table<QLocale::MeasurementSystem, int, int, TabShift> row{"system", "option", "x1",
                                                                    "shift"};

    const auto us = QLocale::ImperialUSSystem;
    const auto metric = QLocale::MetricSystem;
    const auto other = QLocale::ImperialUKSystem;
    row("none", us, kUnset, 13, TabShift{1, 1, 0, 20, 1});
    row("template, inches", us, 1, 13, TabShift{2, 1, 0, 20, 1});
    row("template, millimetres", metric, 1, 13, TabShift{3, 2, 0, 50, 0});
    row("custom, millimetres", metric, 1, 20, TabShift{4, 2, 20, 50, 0});
    row("custom, inches", us, 1, 20, TabShift{4, 1, 8, 20, 1});
    row("negative, inches", us, 1, -20, TabShift{4, 1, -8, 20, 1});
    row("no unit of its own", other, 1, 0, TabShift{4, 2, 0, 0, 0});
}

void TestCustomSize::tabShiftBeginsWithTheLocalesUnit()
{
    QFETCH(QLocale::MeasurementSystem, system);
    QFETCH(int, option);
    QFETCH(int, x1);
    _IS_Options options;
    options.option = option;
    options.x1 = x1;
    QTEST(tabShiftOf(options, system, kTabUnitMillimetres), "shift");
}

void TestCustomSize::tabShiftConverts_data()
{
    // back: in millimetres again
    const Table<int, int, int> row{"millimetres", "tenths", "back"};

    // One inch is 25 mm, halves go away from zero.
    row("nothing", 0, 0, 0);
    row("an inch", 25, 10, 25);
    row("below half a tenth", 1, 0, 0);
    row("up", 2, 1, 3);
    row("the most", 50, 20, 50);
    row("negative, towards zero", -1, 0, 0);
    row("negative, away from zero", -2, -1, -3);
}

void TestCustomSize::tabShiftConverts()
{
    QFETCH(int, millimetres);
    QFETCH(int, tenths);
    const TabShift metric{kTabShiftCustom, kTabUnitMillimetres, millimetres, 50, 0};
    const TabShift inches = withUnit(metric, kTabUnitInches);
    QCOMPARE(inches, (TabShift{kTabShiftCustom, kTabUnitInches, tenths, 20, 1}));
    QCOMPARE(withUnit(inches, kTabUnitInches), inches);
    QTEST(withUnit(inches, kTabUnitMillimetres).value, "back");
}

void TestCustomSize::tabShiftIsStoredInMillimetres_data()
{
    const Table<TabShift, int, bool, int> row{"shift", "option", "inches", "x1"};

    row("none keeps the rest", TabShift{1, 1, 8, 20, 1}, kUnset, true, 7);
    row("half an inch", TabShift{2, 1, 8, 20, 1}, 1, false, 13);
    row("12.7 mm", TabShift{3, 2, 8, 50, 0}, 1, false, 13);
    row("custom inches", TabShift{4, 1, 5, 20, 1}, 1, false, 13);
    row("custom millimetres", TabShift{4, 2, 30, 50, 0}, 1, false, 30);
}

void TestCustomSize::tabShiftIsStoredInMillimetres()
{
    QFETCH(TabShift, shift);
    QFETCH(int, option);
    QFETCH(bool, inches);
    QFETCH(int, x1);
    _IS_Options options;
    options.inches = true;
    options.x1 = 7;
    storeTabShift(options, shift);
    QCOMPARE(options.option, option);
    QCOMPARE(options.inches, inches);
    QCOMPARE(options.x1, x1);
}

QTEST_GUILESS_MAIN(TestCustomSize)
#include "test_custom_size.moc"
