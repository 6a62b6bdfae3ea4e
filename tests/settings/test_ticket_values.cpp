#include "pde_session.h"
#include "print_session.h"
#include "table.h"
#include "ticket_values.h"
#include "xml_entities.h"

#include <QLocale>
#include <QTest>

using namespace kelvo;

class TestTicketValues : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void readsIndexesAndNothingElse_data();
    void readsIndexesAndNothingElse();
    void formatsNumbersForTheLocale_data();
    void formatsNumbersForTheLocale();
    void countsDigits();
    void unescapesEntities_data();
    void unescapesEntities();
    void unescapesLongTextsInLinearTime();
    void findsTheSessionsTickets();
    void syncsThroughTheShellOnlyWhileThereIsOne();
};

void TestTicketValues::readsIndexesAndNothingElse_data()
{
    const Table<QVariant, bool> row{"value", "readable"};

    row("32 bits", QVariant(12), true);
    row("64 bits", QVariant(qint64(12)), true);
    row("whole real", QVariant(12.0), true);
    row("fraction", QVariant(12.5), false);
    row("text", QVariant("12"), false);
    row("missing", {}, false);
}

void TestTicketValues::readsIndexesAndNothingElse()
{
    QFETCH(QVariant, value);
    QFETCH(bool, readable);
    Dictionary dictionary;
    if (value.isValid())
        dictionary.insert(QStringLiteral("n"), value);
    std::int64_t out = 77;
    QCOMPARE(GetCFIndexFromCFDictionary(dictionary, QStringLiteral("n"), &out), readable);
    QCOMPARE(out, readable ? 12 : 77);

    WriteTicketValue(dictionary, ticketKey("Gutter"), 12);
    const QVariant written = dictionary.value("com.kelvo.print.Gutter");
    QCOMPARE(written, QVariant(qint64(12)));
    QCOMPARE(written.metaType(), QMetaType::fromType<qint64>());
}

void TestTicketValues::formatsNumbersForTheLocale_data()
{
    const Table<QString, int, int, QString> row{"locale", "value", "decimals", "text"};

    row("two decimals", "en_US", 1234, 2, "12.34");
    row("in German", "de_DE", 1234, 2, "12,34");
    row("none", "en_US", 12, 0, "12");
    row("grouped", "de_DE", 1234567, 0, "1.234.567");
    row("zeros that are asked for", "en_US", 1200, 2, "12.00");
    row("below one", "en_US", 5, 2, "0.05");
    row("negative", "en_US", -150, 1, "-15.0");
    row("four decimals", "en_US", 12345, 4, "1.2345");
    // 167772.16 is no 32-bit float: the nearest one is 167772.15625.
    row("more than a float holds", "en_US", 16777217, 2, "167,772.156");
    row("much more than a float holds", "en_US", 2147483647, 1, "214,748,368.0");
    // As a float 70000.0625, which lies in the middle and goes to the even digit.
    row("a tie", "en_US", 70000062, 3, "70,000.062");
    row("unset", "en_US", int(kUnset), 0, "-2,147,483,648");
}

void TestTicketValues::formatsNumbersForTheLocale()
{
    QFETCH(QString, locale);
    QFETCH(int, value);
    QFETCH(int, decimals);
    QLocale::setDefault(QLocale(locale));
    QTEST(CreateLocalizedCFStringFromNumberWithDecimals(value, decimals).value_or(QString()),
          "text");
}

void TestTicketValues::countsDigits()
{
    const QList<std::pair<qint64, int>> rows = {{0, 1},
                                                {9, 1},
                                                {10, 2},
                                                {-999, 3},
                                                {1000, 4},
                                                {999999999999999, 15}, // its logarithm rounds up
                                                {std::numeric_limits<qint64>::min(), 19}};
    for (const auto &[n, digits] : rows)
        QCOMPARE(CountDigits(n), digits);
}

void TestTicketValues::unescapesEntities_data()
{
    const Table<QString, QString> row{"escaped", "text"};

    row("the five", "&lt;a b=&quot;&apos;&quot;&gt;&amp;", "<a b=\"'\">&");
    row("decimal and hexadecimal", "&#65;&#x42;&#x6a;&#x6A;", "ABjj");
    row("beyond 16 bits", "&#x1F5A8;", QString::fromUcs4(U"\U0001F5A8"));
    row("last character", "&#1114111;", QString::fromUcs4(U"\U0010FFFF"));
    row("one too far", "&#1114112;", "&#1114112;");
    row("far too far", "&#99999999999999999999;", "&#99999999999999999999;");
    row("no character", "&#0;&#xD800;", "&#0;&#xD800;");
    row("no digits", "&#;&#x;&;", "&#;&#x;&;");
    row("hexadecimal digit in a decimal", "&#4a;", "&#4a;");
    row("sign", "&#-65;", "&#-65;");
    row("extra", "&nbsp;&hall;", " Hall 3");
    row("an extra like a number", "&#hall;&#65;", "Hall 4A");
    row("the five win", "&lt;", "<");
    row("unknown", "&what;&lt;", "&what;<");
    row("other letter case", "&LT;", "&LT;");
    row("no semicolon", "AT&T &lt", "AT&T &lt");
    row("loose sign before an entity", "R&D &amp; more", "R&D & more");
    row("only once", "&amp;lt;", "&lt;");
    row("what an extra says is not read again", "&deep;", "&amp;");
    row("empty", "", "");
}

void TestTicketValues::unescapesEntities()
{
    QFETCH(QString, escaped);
    const QMap<QString, QString> extra = {
        {"nbsp", " "}, {"hall", "Hall 3"}, {"#hall", "Hall 4"}, {"lt", "no"}, {"deep", "&amp;"}};
    QTEST(XMLCreateStringByUnescapingEntities(escaped, extra), "text");
}

void TestTicketValues::unescapesLongTextsInLinearTime()
{
    // With a search to the end for each "&" this takes minutes.
    const QString text = QString(2'000'000, QLatin1Char('&'));
    QCOMPARE(XMLCreateStringByUnescapingEntities(text), text);
}

void TestTicketValues::findsTheSessionsTickets()
{
    PrintSession session;
    PMTicketRef ticket = 0;
    QCOMPARE(GetTicketFromSession(&session, kPMPrintSettingsTicket, &ticket), noErr);
    QCOMPARE(ticket, session.printSettingsTicket());
    QVERIFY(GetTicketFromSession(&session, QStringLiteral("Other"), &ticket) != noErr);
    QVERIFY(GetTicketFromSession(nullptr, kPMPrintSettingsTicket, &ticket) != noErr);
    QCOMPARE(ticket, session.printSettingsTicket());
}

void TestTicketValues::syncsThroughTheShellOnlyWhileThereIsOne()
{
    PrintSession session;
    QCOMPARE(PDESync(&session, kSyncRead), kPMInvalidParameter);
    setShellSync([](PMPrintSession, std::int32_t direction) { return direction + 5; });
    QCOMPARE(PDESync(&session, kSyncRead), 6);
    setShellSync(nullptr);
    QCOMPARE(PDESync(&session, kSyncRead), kPMInvalidParameter);
}

QTEST_GUILESS_MAIN(TestTicketValues)
#include "test_ticket_values.moc"
