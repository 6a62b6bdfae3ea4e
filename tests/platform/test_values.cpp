#include "table.h"
#include "values.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace kelvo;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(std::optional<std::int64_t>)
Q_DECLARE_METATYPE(std::optional<std::int32_t>)
Q_DECLARE_METATYPE(std::optional<double>)

class TestValues : public QObject
{
    Q_OBJECT

private slots:
    void readsNumbersWithoutChangingThem_data();
    void readsNumbersWithoutChangingThem();
    void readsOtherTypesOnlyAsStored();
    void countsWrongEntriesAsMissing();
};

void TestValues::readsNumbersWithoutChangingThem_data()
{
    using Wide = std::optional<std::int64_t>;
    using Narrow = std::optional<std::int32_t>;
    using Real = std::optional<double>;
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    constexpr qint64 least = std::numeric_limits<qint64>::min();
    constexpr qint64 exact = Q_INT64_C(1) << 53;
    const Table<QVariant, Wide, Narrow, Real> row{"value", "wide", "narrow", "number"};
    const auto none = std::nullopt;

    row("int", 7, 7, 7, 7.0);
    row("short", QVariant::fromValue<short>(-7), -7, -7, -7.0);
    row("unsigned 32 bits", 0xFFFFFFFFU, 0xFFFFFFFFLL, none, 4294967295.0);
    row("least 32 bits", qint64(-2147483648LL), -2147483648LL, -2147483647 - 1, -2147483648.0);
    row("below 32 bits", qint64(-2147483649LL), -2147483649LL, none, -2147483649.0);
    row("above 32 bits", qint64(2147483648LL), 2147483648LL, none, 2147483648.0);
    row("2^40", qint64(1) << 40, Wide(Q_INT64_C(1) << 40), none, std::ldexp(1.0, 40));
    row("2^53 + 1", exact + 1, exact + 1, none, none);
    row("greatest", most, most, none, none);
    row("least", least, least, none, std::ldexp(-1.0, 63));
    row("2^63 unsigned", quint64(1) << 63, none, none, none);
    row("whole real", 3.0, 3, 3, 3.0);
    row("float", 0.5F, none, none, 0.5);
    row("fraction", 2.7, none, none, 2.7);
    row("2^63 real", std::ldexp(1.0, 63), none, none, std::ldexp(1.0, 63));
    row("-2^63 real", std::ldexp(-1.0, 63), least, none, std::ldexp(-1.0, 63));
    row("infinity", std::numeric_limits<double>::infinity(), none, none,
        std::numeric_limits<double>::infinity());
    row("text", u"12"_s, none, none, none);
    row("boolean", true, none, none, none);
    row("nothing", QVariant(), none, none, none);
}

void TestValues::readsNumbersWithoutChangingThem()
{
    QFETCH(QVariant, value);
    QTEST(integer64(value), "wide");
    QTEST(integer32(value), "narrow");
    QTEST(real(value), "number");
}

void TestValues::readsOtherTypesOnlyAsStored()
{
    QCOMPARE(boolean(QVariant(false)), std::optional(false));
    QVERIFY(!boolean(QVariant(1)));
    QCOMPARE(string(QVariant(u"a"_s)), std::optional(u"a"_s));
    QVERIFY(!string(QVariant(1)));
    QVERIFY(!string(QVariant(QByteArray("a"))));
    QVERIFY(!data(QVariant(u"a"_s)));
    QVERIFY(!dictionary(QVariant(Array())));
    QCOMPARE(array(QVariant(QStringList{u"a"_s})), std::optional(Array{u"a"_s}));
    QVERIFY(!array(QVariant(u"a"_s)));
}

void TestValues::countsWrongEntriesAsMissing()
{
    const Dictionary in{{u"n"_s, u"12"_s}, {u"m"_s, 12}};
    QVERIFY(!integer32(in, u"n"_s));
    QVERIFY(!integer32(in, u"absent"_s));
    QCOMPARE(integer32(in, u"m"_s), std::optional(12));
}

QTEST_GUILESS_MAIN(TestValues)
#include "test_values.moc"
