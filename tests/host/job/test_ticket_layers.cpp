#include "asked_settings.h"
#include "sample_ppds.h"
#include "table.h"
#include "ticket_layers.h"

#include <QTest>

using namespace kelvo;

Q_DECLARE_METATYPE(kelvo::TicketFile)

class TestTicketLayers : public QObject
{
    Q_OBJECT

private slots:
    void differAndComeBack_data();
    void differAndComeBack();
    void areLaidOverOneAnother_data();
    void areLaidOverOneAnother();
    void areCompleted_data();
    void areCompleted();

    void presetsKeepWhatWasAskedFor_data();
    void presetsKeepWhatWasAskedFor();
    void settingsLiveThroughAnotherDevice();
    void onlyWhatIsSetIsAChange_data();
    void onlyWhatIsSetIsAChange();
};

namespace {

using Values = QMap<QString, QVariant>;
using Kind = AskedSettings::Kind;

const RepeatedChoices repeated{{"Duplex", {"repeat"}}};

TicketFile ticket(const Values &values, const PPDDictionary &choices = {})
{
    TicketFile file;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        file.printSettings.entries[value.key()] = {value.value(), QStringLiteral("K")};
    file.printSettings.ppdChoices = choices;
    return file;
}

// A part of a ticket; `removed` are places such as "Settings/key" or "Choices/option".
TicketFile partOf(const Values &values, const PPDDictionary &choices = {},
                  const QStringList &removed = {})
{
    TicketFile file = ticket(values, choices);
    file.isPart = true;
    for (const QString &place : removed) {
        TicketPlace steps = place.split(u'/');
        steps.first() = steps.first() == "Settings" ? kPMPrintSettingsTicket : kPPDChoices;
        file.removed.insert(steps);
    }
    return file;
}

TicketFile onPaper(const QString &choice, const QString &name)
{
    TicketFile file =
        ticket({}, choice.isEmpty() ? PPDDictionary() : PPDDictionary{{"PageSize", choice}});
    if (!name.isEmpty()) {
        file.pageFormat.entries[kPMPaperNameKey] = {name, "K"};
        file.pageFormat.entries[kPMPaperSizeKey] = {Array{1.0, 2.0}, "K"};
    }
    return file;
}

QStringList listed(const TicketPlaces &places)
{
    QStringList list;
    for (const TicketPlace &place : places)
        list << place.join(u'/');
    return list;
}

} // namespace

void TestTicketLayers::differAndComeBack_data()
{
    // expected: the part of `to` that differs
    const Table<TicketFile, TicketFile, TicketFile> row{"from", "to", "expected"};

    const Dictionary deep{{"a", Dictionary{{"b", 1}, {"c", 1}}}, {"d", 1}};
    const Dictionary deeper{{"a", Dictionary{{"b", 2}, {"c", 1}}}, {"d", 1}};
    row("the same", ticket({{"x", deep}}, {{"o", "c"}}), ticket({{"x", deep}}, {{"o", "c"}}),
        partOf({}));
    row("values and choices", ticket({{"x", 1}, {"y", 1}}, {{"o", "c"}, {"p", "c"}}),
        ticket({{"x", 2}, {"y", 1}, {"z", 1}}, {{"o", "d"}, {"p", "c"}, {"q", ""}}),
        partOf({{"x", 2}, {"z", 1}}, {{"o", "d"}, {"q", ""}}));
    row("a key deep inside", ticket({{"x", deep}}), ticket({{"x", deeper}}),
        partOf({{"x", Dictionary{{"a", Dictionary{{"b", 2}}}}}}));
    row("an array is one value", ticket({{"x", Array{1, 2, deep}}}),
        ticket({{"x", Array{1, 2, deeper}}}), partOf({{"x", Array{1, 2, deeper}}}));
    row("what went", ticket({{"x", deep}, {"y", deep}, {"z", 1}}, {{"o", "c"}}),
        ticket({{"x", Dictionary{{"d", 1}}}, {"y", 1}}),
        partOf({{"y", 1}}, {}, {"Settings/x/a", "Settings/z", "Choices/o"}));
    row("empty is not nothing", ticket({}),
        ticket({{"x", Dictionary()}, {"y", Array()}, {"z", ""}}),
        partOf({{"x", Dictionary()}, {"y", Array()}, {"z", ""}}));
    TicketFile byAnother = ticket({{"x", 1}});
    byAnother.printSettings.entries["x"].client = "L";
    row("who wrote it does not count", ticket({{"x", 1}}), byAnother, partOf({}));
}

// What differs is found, and laid over the first makes the second.
void TestTicketLayers::differAndComeBack()
{
    QFETCH(TicketFile, from);
    QFETCH(TicketFile, to);
    QFETCH(TicketFile, expected);
    for (int turn = 0; turn < 2; ++turn) {
        const TicketFile found = part(to, differences(from, to));
        if (turn == 0)
            QCOMPARE(found, expected);
        QVERIFY(differences(to, laid(found, from, {}, {})).empty());
        const auto stored = ticketFileFromPropertyList(propertyListFrom(found), "stored");
        QVERIFY2(stored, qPrintable(stored.reason()));
        QCOMPARE(stored.value(), found);
        // The same of the page format, which has no choices.
        for (TicketFile *file : {&from, &to}) {
            std::swap(file->printSettings, file->pageFormat);
            std::swap(file->printSettings.ppdChoices, file->pageFormat.ppdChoices);
        }
    }
}

void TestTicketLayers::areLaidOverOneAnother_data()
{
    const Table<TicketFile, TicketFile, TicketFile> row{"under", "over", "expected"};

    const Dictionary below{{"a", 1}, {"b", 1}}, above{{"b", 2}};
    row("entry by entry, choice by choice", ticket({{"x", 1}, {"y", 1}}, {{"o", "c"}, {"p", "c"}}),
        ticket({{"y", 2}, {"z", 2}}, {{"p", "d"}}),
        ticket({{"x", 1}, {"y", 2}, {"z", 2}}, {{"o", "c"}, {"p", "d"}}));
    row("a whole ticket's dictionary is whole", ticket({{"x", below}}), ticket({{"x", above}}),
        ticket({{"x", above}}));
    row("a part's is not", ticket({{"x", below}}), partOf({{"x", above}}),
        ticket({{"x", Dictionary{{"a", 1}, {"b", 2}}}}));
    row("and begins as the panels would", ticket({}), partOf({{"begun", above}}),
        ticket({{"begun", Dictionary{{"b", 2}, {"c", 9}}}}));
    row("what a part removes", ticket({{"x", below}, {"y", 1}, {"z", 1}}, {{"o", "c"}}),
        partOf({}, {},
               {"Settings/x/a", "Settings/y", "Settings/z/a", "Settings/none/a", "Choices/o"}),
        ticket({{"x", Dictionary{{"b", 1}}}, {"z", 1}}));
    row("a part over a part", partOf({{"x", below}}, {}, {"Settings/y", "Choices/o"}),
        partOf({{"y", 1}}, {{"p", "c"}}, {"Settings/x/a"}),
        partOf({{"x", Dictionary{{"b", 1}}}, {"y", 1}}, {{"p", "c"}},
               {"Settings/x/a", "Choices/o"}));
    row("a choice takes away what repeats it",
        ticket({{"repeat", 2}, {"x", 2}}, {{"Duplex", "Long"}}), ticket({}, {{"Duplex", "None"}}),
        ticket({{"x", 2}}, {{"Duplex", "None"}}));
    row("so does one that is removed", ticket({{"repeat", 2}}, {{"Duplex", "Long"}}),
        partOf({}, {}, {"Choices/Duplex"}), ticket({}));
    row("a choice of paper beats a page format", onPaper("A4", "A4"), onPaper("A5", {}),
        onPaper("A5", {}));
    row("a page format beats a choice", onPaper("A4", "A4"), onPaper({}, "A5"), onPaper({}, "A5"));
}

void TestTicketLayers::areLaidOverOneAnother()
{
    QFETCH(TicketFile, under);
    QFETCH(TicketFile, over);
    const TicketFile beginning = ticket({{"begun", Dictionary{{"b", 9}, {"c", 9}}}});
    QTEST(laid(over, under, beginning, repeated), "expected");
}

void TestTicketLayers::areCompleted_data()
{
    const Table<TicketFile, QStringList> row{"file", "expected"};
    const QStringList paper = listed(paperPlaces());
    row("the choice speaks for what repeats it", ticket({{"repeat", 1}}, {{"Duplex", "None"}}),
        {"PPDChoices/Duplex"});
    row("nothing but a repeat", ticket({{"repeat", 1}}), {});
    row("the choice of paper", onPaper("A4", {}), paper);
    row("the paper of the page format", onPaper({}, "A4"), paper);
}

void TestTicketLayers::areCompleted()
{
    QFETCH(TicketFile, file);
    QTEST(listed(completed(placesOf(file), repeated)), "expected");
}

// The device's own: two-sided by its queue's default, and what panels write of it.
static const TicketFile queueDefault = ticket({}, {{"Duplex", "Long"}});
static const Values byPanels{{"repeat", 2}, {"job", Dictionary{{"type", 1}, {"time", 1}}}};
static const PPDDictionary panelChoices{{"Duplex", "Long"}, {"Bin", "Auto"}};

void TestTicketLayers::presetsKeepWhatWasAskedFor_data()
{
    // tickets: as they stand one after the other
    const Table<TicketFile, TicketFile, QList<TicketFile>, TicketFile> row{"given", "chosen",
                                                                           "tickets", "expected"};

    const TicketFile begun = ticket(byPanels, panelChoices);
    const auto with = [](const TicketFile &file, const Values &values,
                         const PPDDictionary &choices = {}) {
        return laid(partOf(values, choices), file, {}, {});
    };
    const QList<TicketFile> untouched{begun};
    row("nothing of the device's own", TicketFile(), TicketFile(), untouched, partOf({}));
    row("what the user sets, and what follows from it", TicketFile(), TicketFile(),
        QList{begun, with(begun, {{"job", Dictionary{{"type", 6}}}}, {{"Staple", "One"}})},
        partOf({{"job", Dictionary{{"type", 6}}}}, {{"Staple", "One"}}));
    row("what the user sets and takes back", TicketFile(), TicketFile(),
        QList{begun, with(begun, {{"repeat", 1}}, {{"Duplex", "None"}}), begun},
        partOf({}, {{"Duplex", "Long"}}));
    row("what the user removes", TicketFile(), TicketFile(),
        QList{begun,
              ticket({{"repeat", 2}, {"job", Dictionary{{"type", 1}}}}, {{"Duplex", "Long"}})},
        partOf({}, {}, {"Settings/job/time", "Choices/Bin"}));
    row("a default that was chosen", TicketFile(), ticket({}, {{"Duplex", "Long"}}), untouched,
        partOf({}, {{"Duplex", "Long"}}));
    row("no default of a ticket that was given", with(begun, {}, {{"Staple", "One"}}), TicketFile(),
        QList{with(begun, {}, {{"Staple", "One"}})}, partOf({}, {{"Staple", "One"}}));
    // Of its own the other device had the staple's place and the long edge.
    TicketFile ofAnother = with(begun, {{"gold", 1}}, {{"Staple", "Gold"}, {"Bin", "Top"}});
    ofAnother.asked = TicketPlaces{{kPPDChoices, "Bin"}, {kPMPrintSettingsTicket, "gold"}};
    row("what was asked for on another device", ofAnother, TicketFile(),
        QList{with(begun, {}, {{"Staple", "Gold"}, {"Bin", "Top"}})},
        partOf({{"gold", 1}}, {{"Bin", "Top"}}));
    row("and what is set after it", ofAnother, TicketFile(),
        QList{with(begun, {}, {{"Staple", "Gold"}, {"Bin", "Top"}}),
              with(begun, {}, {{"Staple", "One"}, {"Bin", "Top"}})},
        partOf({{"gold", 1}}, {{"Bin", "Top"}, {"Staple", "One"}}));
    row("what this device lacks", TicketFile(), ticket({{"gold", 1}}, {{"Staple", "Gold"}}),
        QList{with(begun, {}, {{"Staple", "None"}})}, partOf({{"gold", 1}}, {{"Staple", "Gold"}}));
    row("but what was chosen after it", TicketFile(), ticket({}, {{"Staple", "Gold"}}),
        QList{with(begun, {}, {{"Staple", "None"}}), with(begun, {}, {{"Staple", "One"}})},
        partOf({}, {{"Staple", "One"}}));
    row("no pages and no name of one job", TicketFile(),
        ticket({{kPMPageRangesKey, "1-2"}, {kPMJobNameKey, "x"}}),
        QList{begun, with(begun, {{kPMPageRangesKey, "3"}})}, partOf({}));
}

void TestTicketLayers::presetsKeepWhatWasAskedFor()
{
    QFETCH(TicketFile, given);
    QFETCH(TicketFile, chosen);
    QFETCH(QList<TicketFile>, tickets);
    AskedSettings asked;
    asked.beginOn(queueDefault, repeated);
    asked.setBeginning(ticket(byPanels, panelChoices));
    asked.lay(given, Kind::Given);
    asked.lay(chosen, Kind::Chosen);
    asked.settle(tickets.first());
    for (const TicketFile &each : tickets)
        asked.take(each, nullptr);
    QTEST(asked.preset(tickets.last(), nullptr), "expected");
}

void TestTicketLayers::settingsLiveThroughAnotherDevice()
{
    const TicketFile plain = ticket(byPanels, panelChoices);
    AskedSettings asked;
    asked.beginOn(queueDefault, repeated);
    asked.setBeginning(plain);
    asked.lay(ticket({{"x", 1}}, {{"Staple", "One"}}), Kind::Given);
    asked.settle(plain); // which drops both
    asked.take(laid(partOf({{"y", 1}}, {}, {"Choices/Bin"}), plain, {}, {}), nullptr);

    // The next queue has other defaults, and keeps them.
    asked.beginOn(ticket({}, {{"Duplex", "Short"}, {"Bin", "Top"}}), {});
    QCOMPARE(asked.wanted(),
             ticket({{"x", 1}, {"y", 1}}, {{"Staple", "One"}, {"Duplex", "Short"}}));
    asked.clear();
    QCOMPARE(asked.wanted(), ticket({}, {{"Duplex", "Short"}, {"Bin", "Top"}}));
    QVERIFY(asked.isEmpty());
}

void TestTicketLayers::onlyWhatIsSetIsAChange_data()
{
    const Table<TicketFile, bool> row{"other", "isChange"};

    TicketFile byAnother = ticket({{"a", 1}});
    byAnother.printSettings.entries["a"].client = "L";
    row("written by another", byAnother, false);
    row("other pages and name", ticket({{"a", 1}, {kPMPageRangesKey, "2-3"}, {kPMJobNameKey, "x"}}),
        false);
    row("another value", ticket({{"a", 2}}), true);
    row("a value more", ticket({{"a", 1}, {"b", 1}}), true);
    row("a choice more", ticket({{"a", 1}}, {{"Jog", "EndOfSet"}}), true);
    row("a panel's first write, which is the device's default",
        ticket({{"a", 1}, {"repeat", 1}}, {{"Jog", "None"}}), false);
}

void TestTicketLayers::onlyWhatIsSetIsAChange()
{
    QFETCH(TicketFile, other);
    const auto ppd = PpdFile::open(samplePpd("full"));
    QVERIFY(ppd);
    AskedSettings asked;
    asked.beginOn({}, repeated);
    asked.setBeginning(ticket({{"a", 1}}));
    asked.settle(ticket({{"a", 1}}));
    asked.take(other, ppd.value().get());
    QTEST(asked.isChanged(other), "isChange");
    asked.takeAsUnchanged(other);
    QVERIFY(!asked.isChanged(other));
}

QTEST_APPLESS_MAIN(TestTicketLayers)
#include "test_ticket_layers.moc"
