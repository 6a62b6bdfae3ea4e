#include "conflicts.h"
#include "job_words.h"
#include "sample_ppds.h"
#include "secret_keys.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

// What is a secret, and that words never show one.
class TestSecrets : public QObject
{
    Q_OBJECT

private slots:
    void areFoundByTheirPaths_data();
    void areFoundByTheirPaths();
    void areTakenOutWithTheirKeys();
    void makeAFax_data();
    void makeAFax();
    void neverStandInWords();
    void areSaidInTheSummary_data();
    void areSaidInTheSummary();
    void wordsStayOnTheirLines();
    void wordsStayInBounds();
};

static const Dictionary sample{
    {"Job", Dictionary{{"Password", "1234"}, {"Name", "Ann"}, {"Pin", 77}, {"Empty", ""}}},
    {"People", Array{Dictionary{{"Code", "c0de"}, {"Fax", "030"}}, Dictionary{{"Code", "42"}}}},
    {"Plain", "open"},
};

static TicketFile ticketOf(const Dictionary &entries)
{
    TicketFile file;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        file.printSettings.entries[entry.key()] = {entry.value(), QStringLiteral("test")};
    return file;
}

static QVariant valueOf(const TicketFile &file, const QString &key)
{
    const auto found = file.printSettings.entries.find(key);
    return found == file.printSettings.entries.end() ? QVariant() : found->second.value;
}

void TestSecrets::areFoundByTheirPaths_data()
{
    const Table<QString, QStringList> row{"path", "secrets"};
    row("in a dictionary", "Job/Password", {"1234"});
    row("a number", "Job/Pin", {"77"});
    row("an empty one is none", "Job/Empty", {});
    row("of every element", "People/*/Code", {"c0de", "42"});
    row("of one element", "People/1/Code", {"42"});
    row("of an element that is not there", "People/2/Code", {});
    row("every entry", "Job/*", {"Ann", "1234", "77"});
    row("all below", "People", {"c0de", "030", "42"});
    row("a whole entry", "Plain", {"open"});
    row("below a text", "Plain/Password", {});
    row("in lists where a dictionary was meant", "People/Code", {"c0de", "42"});
    row("unknown", "Nothing/Password", {});
    row("empty path", "", {});
}

void TestSecrets::areFoundByTheirPaths()
{
    QFETCH(QString, path);
    QFETCH(QStringList, secrets);
    const SecretKeys keys{{path}, {}};
    for (const bool inPageFormat : {false, true}) {
        TicketFile file = ticketOf(sample);
        if (inPageFormat)
            std::swap(file.printSettings.entries, file.pageFormat.entries);
        QCOMPARE(secretValues(file, keys), secrets);
        QCOMPARE(holdsSecret(file, keys), !secrets.isEmpty());

        const QStringList left = secretValues(masked(file, keys), keys);
        QCOMPARE(left, secrets.isEmpty() ? QStringList() : QStringList{kMask});
        QVERIFY(!holdsSecret(withoutSecrets(file, keys), keys));
    }
}

void TestSecrets::areTakenOutWithTheirKeys()
{
    const TicketFile file = ticketOf(sample);
    const SecretKeys keys{{"Job/Password", "People/*/Code", "Plain"}, {}};
    const TicketFile open = withoutSecrets(file, keys);
    QCOMPARE(valueOf(open, "Job"),
             QVariant(Dictionary{{"Name", "Ann"}, {"Pin", 77}, {"Empty", ""}}));
    QCOMPARE(valueOf(open, "People"), QVariant(Array{Dictionary{{"Fax", "030"}}, Dictionary{}}));
    QCOMPARE(open.printSettings.entries.count("Plain"), 0U);

    const TicketFile hidden = masked(file, keys);
    QCOMPARE(
        valueOf(hidden, "Job"),
        QVariant(Dictionary{{"Name", "Ann"}, {"Pin", 77}, {"Empty", ""}, {"Password", kMask}}));
    QCOMPARE(hidden.printSettings.entries.at("Job").client, QStringLiteral("test"));
}

void TestSecrets::makeAFax_data()
{
    const Table<QVariant, bool> row{"recipients", "isFax"};
    row("no entry", {}, false);
    row("nobody", QVariant(Array{}), false);
    row("somebody", QVariant(Array{Dictionary{{"Fax", "030"}}}), true);
    row("somebody of another form", QVariant("030"), true);
}

void TestSecrets::makeAFax()
{
    QFETCH(QVariant, recipients);
    QFETCH(bool, isFax);
    TicketFile file;
    if (recipients.isValid())
        file = ticketOf({{"Recipients", recipients}});
    QCOMPARE(kelvo::isFax(file, {{}, {"Recipients"}}), isFax);
    // Where they say more, recipients alone are no fax: the job may be printed after all.
    const SecretKeys keys{{}, {"Recipients"}, {{"Job/Type", 5}}};
    QVERIFY(!kelvo::isFax(file, keys));
    file.printSettings.entries["Job"].value = Dictionary{{"Type", 1}};
    QVERIFY(!kelvo::isFax(file, keys));
    file.printSettings.entries["Job"].value = Dictionary{{"Type", 5}};
    QCOMPARE(kelvo::isFax(file, keys), isFax);
}

void TestSecrets::neverStandInWords()
{
    const auto ppd = PpdFile::open(samplePpd("full"));
    QVERIFY(ppd);
    TicketFile file = ticketOf(sample);
    file.printSettings.ppdChoices = {{"StapleLocation", "DualPortrait"}, {"Glitter", "On"}};
    JobDescription description;
    description.settings = {
        {.place = {kPMPrintSettingsTicket, "Job", "Pin"}, .label = "Pin", .words = "lucky"},
        {.place = {kPPDChoices, "Duplex"}, .label = "Sides", .words = "one", .isDefault = true}};
    description.unspoken = {{kPPDChoices, "InputSlot"}, {kPMPrintSettingsTicket, "Plain"}};
    const JobWords words =
        describeJob(file, {3, false, "2-5", "A4", Orientation::Landscape}, ppd.value().get(),
                    {{"Job/Password", "People/*/Code"}, {}}, description, {"Glitter: On"});
    // Each thing once: as it is described, else in the PPD's words, else as one of so many.
    QCOMPARE(words.settings,
             (QStringList{"Copies: 3, not collated", "Pages: 2-5", "Orientation: Landscape",
                          "Pin: lucky", "Stapling: 2 staples, portrait",
                          "4 entries that the device panels add (see Ticket)"}));
    QCOMPARE(words.defaults.filter("Sides"), QStringList{"Sides: one"});
    QCOMPARE(words.defaults.filter("Paper size").size(), 1);
    QVERIFY(words.defaults.filter("Two-Sided").isEmpty()
            && words.defaults.filter("Paper source").isEmpty());
    QCOMPARE(words.notSent, QStringList{"Glitter: On – this printer does not have it"});
    QVERIFY(words.ticket.contains("Plain = \"open\" (written by test)"));
    const QString text = words.asText();
    QVERIFY(text.contains("Password = \"••••\""));
    for (const char *secret : {"1234", "c0de", "42\""})
        QVERIFY2(!text.contains(QLatin1String(secret)), secret);
}

void TestSecrets::areSaidInTheSummary_data()
{
    const Table<int, int, qint64, bool, QString> row{"pages", "copies", "sheets", "locked",
                                                     "summary"};
    row("one page", 1, 1, 1, false, "1 page, 1 sheet");
    row("copies", 12, 2, 6, true, "12 pages, 6 sheets × 2 copies = 12 sheets, locked");
    row("many", 13, 9999, 999'900'001, false,
        "13 pages, 999900001 sheets × 9999 copies = 9998000109999 sheets");
    row("pages not known", 0, 2, 0, true, "2 copies, locked");
}

void TestSecrets::areSaidInTheSummary()
{
    QFETCH(int, pages);
    QFETCH(int, copies);
    QFETCH(qint64, sheets);
    QFETCH(bool, locked);
    const TicketFile file =
        locked ? ticketOf({{"Job", Dictionary{{"Password", "1"}}}}) : TicketFile();
    JobSettings settings;
    settings.copies = copies;
    const SecretKeys keys{{"Job/Password"}, {}};
    QTEST(shortSummary(file, settings, pages, sheets, keys), "summary");
    const LeadingPage cover{.name = "Cover", .inShort = "with a cover"};
    QCOMPARE(shortSummary(file, settings, pages, sheets, keys, cover),
             shortSummary(file, settings, pages, sheets, keys) + ", with a cover");
}

// A stranger's line break, in a key or in a choice, begins no line of its own.
void TestSecrets::wordsStayOnTheirLines()
{
    TicketFile file = ticketOf({{"A\nB", Dictionary{{"C\nD", "E\nF\x1b"}}}});
    file.printSettings.ppdChoices = {{"Glit\nter", "O\xc2\x9bn"}};
    const JobSettings settings{1, true, "2\n3", "A4\n", Orientation::Portrait};
    const QString text =
        describeJob(file, settings, nullptr, {}, {}, missingOnDevice(file, nullptr)).asText();
    for (const char *line :
         {"  Pages: 2\\n3\n", "  Paper size: A4\\n – ", "  Glit\\nter: O\\x9bn – the print server",
          "  A\\nB = {C\\nD = \"E\\nF\\x1b\"} (written by test)\n"})
        QVERIFY2(text.contains(QString::fromUtf8(line)), qPrintable(text));
}

void TestSecrets::wordsStayInBounds()
{
    Array pages;
    for (int page = 0; page < 99999; ++page)
        pages << Dictionary{{"first", page}, {"name", "two\nlines\u0007"}};
    JobDescription description;
    description.settings = {
        {.place = {kPMPrintSettingsTicket, "Pages"}, .label = "Pages", .words = "many"},
        {.place = {kPMPrintSettingsTicket, "Text"},
         .label = "Text",
         .words = "as ever",
         .isDefault = true},
        {.place = {kPPDChoices, "MediaColor"},
         .label = "Paper",
         .words = "Salmon",
         .isOnlyInTicket = true}};
    const JobWords words = describeJob(ticketOf({{"Pages", pages}, {"Text", QString(600, u'x')}}),
                                       {}, nullptr, {}, description, {});
    QCOMPARE(words.notSent,
             (QStringList{"Pages: many – this printer reads no tickets",
                          "Paper: Salmon – this printer reads no tickets"}));
    QCOMPARE(words.ticket.size(), 2);
    for (const QString &line : words.ticket) {
        QVERIFY(line.size() < 600);
        QVERIFY(line.contains("… (cut)"));
        QVERIFY(!line.contains(u'\n') && !line.contains(u'\u0007'));
    }
}

QTEST_GUILESS_MAIN(TestSecrets)
#include "test_secrets.moc"
