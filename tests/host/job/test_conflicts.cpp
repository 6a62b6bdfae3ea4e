#include "conflicts.h"
#include "files.h"
#include "sample_ppds.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

// Settings that contradict one another, on sample devices.
class TestConflicts : public QObject
{
    Q_OBJECT

private slots:
    void areNamedAndMended_data();
    void areNamedAndMended();
    void changeOnlyWhatTheFixSays();
    void neverChangeTheEquipment();
    void listWhatTheDeviceLacks_data();
    void listWhatTheDeviceLacks();
};

static std::shared_ptr<PpdFile> device(const QString &name)
{
    return PpdFile::open(samplePpd(name)).value();
}

// The full device without its folding unit, and with `rule` about it.
static std::shared_ptr<PpdFile>
unfolded(const QByteArray &rule = "*cupsUIConstraints: \"*KVFolder None *KVFold C\"\n")
{
    QByteArray bytes = bytesOf(device(QStringLiteral("full"))->path());
    bytes.replace("*DefaultKVFolder: Full", "*DefaultKVFolder: None");
    bytes.replace("*cupsUIConstraints: \"*KVFolder None *KVFold C\"\n", rule);
    const auto ppd = PpdFile::fromBytes(bytes, QStringLiteral("unfolded.ppd"));
    return ppd ? ppd.value() : nullptr;
}

void TestConflicts::areNamedAndMended_data()
{
    const Table<QString, PpdSelection, QString, QStringList, QStringList> row{
        "model", "choices", "keep", "sentences", "fixWords"};

    row("nothing chosen", "full", {}, "", {}, {});
    row("equipment that a job asks for", "unfolded", {{"KVFolder", "Full"}, {"KVFold", "C"}},
        "KVFold",
        {"“Folding: C-fold” cannot be used on this printer (Folding unit: Not installed)."},
        {"Set “Folding” to “No fold”"});
    row("what the device lacks", "full", {{"StapleLocation", "Golden"}, {"Glitter", "On"}}, "", {},
        {});
    const QString clash =
        "“Paper type: Transparency” and “Stapling: 2 staples, portrait” cannot be used together.";
    const PpdSelection stapled{{"StapleLocation", "DualPortrait"}, {"MediaType", "Transparency"}};
    row("the paper is kept", "full", stapled, "MediaType", {clash},
        {"Set “Stapling” to “No staple”"});
    row("and before a staple", "full", stapled, "StapleLocation", {clash},
        {"Set “Stapling” to “No staple”"});
    row("what was set last is kept", "full",
        {{"KVEconomode", "Draft"}, {"KVOutputMode", "HighQuality"}}, "KVEconomode",
        {"“Image quality: High quality” and “Toner saver: Use less toner” cannot be used "
         "together."},
        {"Set “Image quality” to “Standard”"});
    row("three of them", "full",
        {{"KVFeedEdge", "LongEdge"}, {"InputSlot", "Bypass"}, {"PageSize", "A3"}}, "PageSize",
        {"“Paper size: A3 (297 × 420 mm)”, “Paper source: Bypass tray” and “Bypass feed edge: Long "
         "edge first” cannot be used together."},
        {});
    row("two at once", "full",
        {{"StapleLocation", "DualPortrait"},
         {"MediaType", "Transparency"},
         {"Duplex", "DuplexTumble"}},
        "MediaType",
        {"“Paper type: Transparency” and “Two-sided printing: 2-sided print, flip on short edge” "
         "cannot be used together.",
         clash},
        {"Set “Two-sided printing” to “1-sided print”", "Set “Stapling” to “No staple”"});
    row("equipment that is not there", "unfolded", {{"KVFold", "C"}}, "KVFold",
        {"“Folding: C-fold” cannot be used on this printer (Folding unit: Not installed)."},
        {"Set “Folding” to “No fold”"});
}

void TestConflicts::areNamedAndMended()
{
    QFETCH(QString, model);
    QFETCH(PpdSelection, choices);
    QFETCH(QString, keep);
    QFETCH(QStringList, fixWords);

    const auto ppd = model == "unfolded" ? unfolded() : device(model);
    QVERIFY(ppd);
    PrintSession session;
    session.printSettings().ppdChoices = choices;
    const ConflictReport report = findConflicts(session, *ppd, {"Jog", keep, "KVOutputMode"});
    QStringList said;
    for (const Conflict &conflict : report.conflicts)
        said << conflict.sentence;
    QTEST(said, "sentences");
    if (!fixWords.isEmpty())
        QCOMPARE(report.fixWords, fixWords);
    if (!report.isEmpty()) {
        QVERIFY(!report.fix.isEmpty());
        QVERIFY(!report.fix.contains(keep) || fixWords.size() == 1);
    }
    applyFix(report, session);
    QVERIFY(findConflicts(session, *ppd).isEmpty());
}

void TestConflicts::changeOnlyWhatTheFixSays()
{
    const auto ppd = device(QStringLiteral("full"));
    PrintSession session;
    const PPDDictionary before{{"StapleLocation", "DualPortrait"},
                               {"MediaType", "Transparency"},
                               {"OutputBin", "Top"},
                               {"Glitter", "On"}};
    session.printSettings().ppdChoices = before;
    applyFix(findConflicts(session, *ppd, {"MediaType"}), session);
    PPDDictionary expected = before;
    expected[QStringLiteral("StapleLocation")] = QStringLiteral("None");
    QCOMPARE(session.printSettings().ppdChoices, expected);
}

void TestConflicts::neverChangeTheEquipment()
{
    // A PPD whose own way out is to fit a folding unit.
    const auto ppd = unfolded("*cupsUIConstraints fold: \"*KVFolder None *KVFold C\"\n"
                              "*cupsUIResolver fold: \"*KVFolder Full\"\n");
    QVERIFY(ppd);
    const PpdSelection choices{{"KVFold", "C"}};
    QVERIFY(ppd->resolve(choices)->contains("KVFolder")); // else this proves nothing

    PrintSession session;
    session.printSettings().ppdChoices = choices;
    const ConflictReport report = findConflicts(session, *ppd, {"KVFold"});
    QCOMPARE(report.fix, (PpdSelection{{"KVFold", "None"}}));
}

void TestConflicts::listWhatTheDeviceLacks_data()
{
    // paper: of the page format
    const Table<PPDDictionary, QString, bool, QStringList> row{"choices", "paper", "hasPpd",
                                                               "expected"};

    const PPDDictionary staple{{"StapleLocation", "Dual"}};
    row("options and choices", {{"Glitter", "On"}, {"MediaType", "Standard"}, {"Jog", "Sideways"}},
        "A4", true, {"Glitter: On", "Request offset: Sideways"});
    row("nothing is asked of what it lacks", {{"KVFold", "None"}, {"Glitter", "False"}}, {}, true,
        {});
    row("in the words of the device that has it", staple, {}, true, {"Stapling: 2 staples"});
    row("a choice of paper", {{"PageSize", "Custom.1x1"}}, "A4", true, {"Paper size: Custom.1x1"});
    row("a paper of the page format", {}, "Custom.1x1", true, {"Paper size: Custom.1x1"});
    row("without a PPD", {{"StapleLocation", "Dual"}, {"PageSize", "A4"}}, "A4", false,
        {"Stapling: 2 staples"});
}

void TestConflicts::listWhatTheDeviceLacks()
{
    QFETCH(PPDDictionary, choices);
    QFETCH(QString, paper);
    QFETCH(bool, hasPpd);
    const auto bare = device(QStringLiteral("bare"));
    TicketFile asked;
    asked.printSettings.ppdChoices = choices;
    if (!paper.isEmpty())
        asked.pageFormat.entries[kPMPaperNameKey] = {paper, QStringLiteral("test")};
    asked.choiceWords = {{"StapleLocation=Dual", "Stapling:\n2 staples"}};

    QTEST(missingOnDevice(asked, hasPpd ? bare.get() : nullptr), "expected");
}

QTEST_GUILESS_MAIN(TestConflicts)
#include "test_conflicts.moc"
