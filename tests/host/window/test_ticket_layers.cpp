#include "repeated_choices.h"
#include "ticket_layers.h"

#include <QTest>

using namespace kelvo;

Q_DECLARE_METATYPE(kelvo::TicketFile)

class TestTicketLayers : public QObject
{
    Q_OBJECT

private slots:
    void laterBeatsEarlierEntryByEntry();
    void aChoiceTakesAwayWhatRepeatsIt();
    void settingsLiveThroughAnotherDevice_data();
    void settingsLiveThroughAnotherDevice();
    void onlyWhatIsAskedForCounts_data();
    void onlyWhatIsAskedForCounts();
};

namespace {

using Values = QMap<QString, QVariant>;

TicketFile ticket(const Values &values, const PPDDictionary &choices = {})
{
    TicketFile file;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        file.printSettings.entries[value.key()] = {value.value(), QStringLiteral("K")};
    file.printSettings.ppdChoices = choices;
    return file;
}

} // namespace

void TestTicketLayers::laterBeatsEarlierEntryByEntry()
{
    PrintSession session;
    layOver(ticket({{"a", 1}, {"b", 1}}, {{"Duplex", "None"}, {"KVPunch", "None"}}), session);
    layOver(ticket({{"b", 2}, {"c", 2}}, {{"Duplex", "DuplexTumble"}}), session);

    QCOMPARE(
        ticketFileFrom(session),
        ticket({{"a", 1}, {"b", 2}, {"c", 2}}, {{"Duplex", "DuplexTumble"}, {"KVPunch", "None"}}));
}

void TestTicketLayers::aChoiceTakesAwayWhatRepeatsIt()
{
    const RepeatedChoices repeated{{"Duplex", {"a", "b"}}, {"KVFold", {"c"}}};
    Ticket settings = ticket({{"a", 2}, {"b", 2}, {"c", 1}, {"d", 2}}).printSettings;

    dropRepeats(settings, {{"Duplex", "None"}, {"KVPunch", "None"}}, repeated);

    QCOMPARE(settings, ticket({{"c", 1}, {"d", 2}}).printSettings);
}

void TestTicketLayers::settingsLiveThroughAnotherDevice_data()
{
    QTest::addColumn<TicketFile>("came");
    QTest::addColumn<TicketFile>("settled");
    QTest::addColumn<TicketFile>("left");
    QTest::addColumn<TicketFile>("expected");

    const TicketFile stapled = ticket({{"staple", 2}}, {{"KVStaple", "TopLeft"}});
    const TicketFile plain = ticket({{"staple", 0}}, {{"KVStaple", "None"}});
    QTest::newRow("nothing happens") << stapled << stapled << stapled << stapled;
    QTest::newRow("the device replaced it") << stapled << plain << plain << stapled;
    QTest::newRow("the device dropped it") << stapled << ticket({}) << ticket({}) << stapled;
    QTest::newRow("the device added what nobody asked for")
        << ticket({}) << plain << plain << ticket({});
    QTest::newRow("the user chose after the device")
        << stapled << plain << ticket({{"staple", 5}}, {{"KVStaple", "Dual"}})
        << ticket({{"staple", 5}}, {{"KVStaple", "Dual"}});
    QTest::newRow("the user removed what the device kept")
        << stapled << stapled << ticket({}) << ticket({});
    QTest::newRow("the user set something new")
        << stapled << plain << ticket({{"staple", 0}, {"new", 1}}, {{"KVStaple", "None"}})
        << ticket({{"staple", 2}, {"new", 1}}, {{"KVStaple", "TopLeft"}});
}

void TestTicketLayers::settingsLiveThroughAnotherDevice()
{
    QFETCH(TicketFile, came);
    QFETCH(TicketFile, settled);
    QFETCH(TicketFile, left);
    QFETCH(TicketFile, expected);

    QCOMPARE(carriedOn(came, settled, left), expected);
    std::swap(came.printSettings, came.pageFormat);
    std::swap(settled.printSettings, settled.pageFormat);
    std::swap(left.printSettings, left.pageFormat);
    std::swap(expected.printSettings, expected.pageFormat);
    QCOMPARE(carriedOn(came, settled, left), expected);
}

void TestTicketLayers::onlyWhatIsAskedForCounts_data()
{
    QTest::addColumn<TicketFile>("other");
    QTest::addColumn<bool>("same");

    const Values values = {{"a", 1}};
    TicketFile byAnother = ticket(values);
    byAnother.printSettings.entries[QStringLiteral("a")].client = QStringLiteral("L");
    QTest::newRow("written by another") << byAnother << true;
    QTest::newRow("other pages and name")
        << ticket({{"a", 1}, {kPMPageRangesKey, "2-3"}, {kPMJobNameKey, "x"}}) << true;
    QTest::newRow("another value") << ticket({{"a", 2}}) << false;
    QTest::newRow("a value more") << ticket({{"a", 1}, {"b", 1}}) << false;
    QTest::newRow("a choice more") << ticket(values, {{"Duplex", "None"}}) << false;
}

void TestTicketLayers::onlyWhatIsAskedForCounts()
{
    QFETCH(TicketFile, other);
    QFETCH(bool, same);

    QCOMPARE(asksForTheSame(ticket({{"a", 1}}), other), same);
}

QTEST_APPLESS_MAIN(TestTicketLayers)
#include "test_ticket_layers.moc"
