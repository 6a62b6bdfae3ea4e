#include "files.h"
#include "job_options.h"
#include "sample_ppds.h"
#include "table.h"

#include <QTest>

using namespace kelvo;
using Code = Error::Code;

// From settings to options, without any server.
class TestJobOptions : public QObject
{
    Q_OBJECT

private slots:
    void sayEachSettingOnce_data();
    void sayEachSettingOnce();
    void standInTheOrderOfThePpd();
    void refuseWhatCannotBeSaid_data();
    void refuseWhatCannotBeSaid();
    void refusePapersThatCannotBeSaid();
    void nameTheTicket_data();
    void nameTheTicket();
};

using Defaults = QMap<QString, QString>;

static std::shared_ptr<PpdFile> device(const QString &name)
{
    if (name.isEmpty())
        return nullptr;
    return PpdFile::open(name == "no-ticket" ? ppdWithoutTicket() : samplePpd(name)).value();
}

static QStringList lines(const std::vector<JobOption> &options)
{
    QStringList list;
    for (const JobOption &option : options)
        list << option.name + u'=' + option.value;
    return list;
}

void TestJobOptions::sayEachSettingOnce_data()
{
    const Table<QString, PPDDictionary, JobSettings, Defaults, QStringList> row{
        "ppd", "choices", "settings", "defaults", "expected"};
    const char *full = "full";
    const JobSettings plain;
    const JobSettings landscape{1, true, {}, {}, Orientation::Landscape};

    row("nothing chosen", full, {}, plain, {}, {"copies=1"});
    row("no page ranges", full, {}, {1, true, "2-3"}, {}, {"copies=1"});
    row("paper of the settings", full, {}, {1, true, {}, "A3"}, {}, {"PageSize=A3", "copies=1"});
    row("the ticket's paper goes first", full, {{"PageSize", "A5"}}, {1, true, {}, "A3"}, {},
        {"PageSize=A5", "copies=1"});
    row("paper once", full, {{"PageSize", "A5"}, {"PageRegion", "A4"}}, plain, {},
        {"PageSize=A5", "copies=1"});
    row("own paper", full, {{"PageSize", "Custom.300x400"}}, plain, {},
        {"PageSize=Custom.300x400", "copies=1"});
    row("what the PPD lacks", full, {{"Glitter", "On"}, {"StapleLocation", "Gold"}}, plain, {},
        {"copies=1"});
    row("nothing asked of what the PPD lacks", "bare",
        {{"KVFold", "None"}, {"KVPunch", "2HolePunch"}, {"Jog", "Sideways"}}, plain, {},
        {"copies=1"});
    row("the queue's default of what is not chosen", full, {{"Duplex", "DuplexTumble"}}, plain,
        {{"KVPunch", "2HolePunch"}, {"Jog", "None"}, {"Duplex", "None"}, {"KVFinisher", "None"}},
        {"Duplex=DuplexTumble", "KVPunch=None", "copies=1"});
    row("copies, collated", full, {}, {3, true}, {},
        {"copies=3", "multiple-document-handling=separate-documents-collated-copies",
         "Collate=True"});
    row("copies, uncollated", full, {}, {3, false}, {},
        {"copies=3", "multiple-document-handling=separate-documents-uncollated-copies",
         "Collate=False"});

    row("one copy where the queue says otherwise", full, {}, plain,
        {{"multiple-document-handling", "separate-documents-uncollated-copies"}},
        {"copies=1", "multiple-document-handling=separate-documents-collated-copies"});

    const PPDDictionary duplex{
        {"Duplex", "DuplexTumble"}, {"OutputBin", "EnvFolder"}, {"PageSize", "A4"}};
    row("no twins without defaults", full, duplex, plain, {},
        {"PageSize=A4", "Duplex=DuplexTumble", "OutputBin=EnvFolder", "copies=1"});
    row("twins where defaults say otherwise", full, duplex, plain,
        {{"sides", "one-sided"}, {"media", "na_letter_8.5x11in"}, {"output-bin", "top"}},
        {"PageSize=A4", "Duplex=DuplexTumble", "OutputBin=EnvFolder", "copies=1",
         "sides=two-sided-short-edge", "media=A4", "output-bin=env-folder"});
    row("no twins where defaults agree", full, {{"Duplex", "DuplexTumble"}}, plain,
        {{"sides", "two-sided-short-edge"}, {"number-up", "1"}},
        {"Duplex=DuplexTumble", "copies=1"});
    row("a default for what is not chosen stays", full, {}, plain, {{"sides", "one-sided"}},
        {"copies=1"});
    row("pages are laid out already", full, {}, plain, {{"number-up", "2"}, {"page-set", "even"}},
        {"copies=1", "number-up=1", "page-set=all"});

    row("and cut, in their order", full, {}, plain,
        {{"page-ranges", "1-2"}, {"mirror", "true"}, {"outputorder", "reverse"}},
        {"copies=1", "page-ranges=1-2147483647", "mirror=false", "outputorder=normal"});
    row("a reader of tickets turns pages itself", full, {}, landscape, {}, {"copies=1"});
    row("and is not turned by a default", full, {}, landscape, {{"orientation-requested", "5"}},
        {"copies=1", "orientation-requested=3"});
    row("others get them turned", "no-ticket", {{"Jog", "EndOfSet"}}, landscape,
        {{"fit-to-page", "true"}},
        {"Jog=EndOfSet", "copies=1", "print-scaling=none", "fit-to-page=false"});
    row("no PPD", "", {{"Duplex", "None"}}, {2, true, {}, "A4", Orientation::ReversePortrait}, {},
        {"copies=2", "multiple-document-handling=separate-documents-collated-copies",
         "Collate=True", "print-scaling=none", "media=A4"});
}

void TestJobOptions::sayEachSettingOnce()
{
    QFETCH(QString, ppd);
    QFETCH(PPDDictionary, choices);
    QFETCH(JobSettings, settings);
    QFETCH(Defaults, defaults);
    TicketFile ticket;
    ticket.printSettings.ppdChoices = choices;
    const auto file = device(ppd);
    const auto made = jobOptions(ticket, settings, file.get(), defaults);
    QVERIFY2(made, qPrintable(made.reason()));
    QTEST(lines(made.value()), "expected");
}

void TestJobOptions::standInTheOrderOfThePpd()
{
    // Every option of the device, with its last choice.
    const auto ppd = device("full");
    TicketFile ticket;
    QStringList expected;
    for (const PpdGroup &group : ppd->groups()) {
        for (const PpdOption &option : group.options) {
            const QString choice = option.choices.back().keyword;
            ticket.printSettings.ppdChoices[option.keyword] = choice;
            if (option.keyword != QLatin1String("PageRegion"))
                expected << option.keyword + u'=' + choice;
        }
    }
    QVERIFY(expected.size() > 25);
    expected << QStringLiteral("copies=1");
    const auto made = jobOptions(ticket, {}, ppd.get(), {});
    QVERIFY2(made, qPrintable(made.reason()));
    QCOMPARE(lines(made.value()), expected);
}

void TestJobOptions::refuseWhatCannotBeSaid_data()
{
    const Table<QByteArray, QByteArray> row{"option", "choice"};
    row("comma", "Glitter", "a,b");
    row("quote", "Glitter", "a'b");
    row("double quote", "Glitter", "a\"b");
    row("backslash", "Glitter", "a\\b");
    row("collection", "Glitter", "{a=b}");
    row("dropped by the server", "job-hold-until", "Night");
    row("acted on by a filter", "Booklet", "On");
}

void TestJobOptions::refuseWhatCannotBeSaid()
{
    QFETCH(QByteArray, option);
    QFETCH(QByteArray, choice);
    const QString plain = ppdWithoutTicket();
    const QByteArray bytes = bytesOf(plain) + "\n*OpenUI *" + option + "/Odd: PickOne\n*Default"
        + option + ": Plain\n*" + option + " Plain/Plain: \"\"\n*" + option + " " + choice
        + "/Odd One: \"\"\n*CloseUI: *" + option + "\n";
    const auto ppd = PpdFile::fromBytes(bytes, QStringLiteral("odd.ppd"));
    QVERIFY2(ppd, qPrintable(ppd.reason()));
    const PpdOption *odd = ppd.value()->findOption(QString::fromUtf8(option));
    QVERIFY(odd && odd->choices.size() == 2);

    TicketFile ticket;
    ticket.printSettings.ppdChoices[odd->keyword] = odd->choices.back().keyword;
    const auto made = jobOptions(ticket, {}, ppd.value().get(), {});
    QVERIFY(!made);
    QCOMPARE(made.error().code, Code::Refused);
    QVERIFY(made.error().where.startsWith(odd->keyword));
}

void TestJobOptions::refusePapersThatCannotBeSaid()
{
    // Without a PPD a paper's name is what the user wrote.
    for (const char *name : {"a b", "a\nb", "a\u00e4"}) {
        const auto made = jobOptions({}, {1, true, {}, name}, nullptr, {});
        QVERIFY2(!made, name);
        QCOMPARE(made.error().code, Code::Refused);
    }
    const QString longest(4000, u'x');
    QVERIFY(jobOptions({}, {1, true, {}, longest}, nullptr, {}));
    QVERIFY(!jobOptions({}, {1, true, {}, longest + u'x'}, nullptr, {}));
}

void TestJobOptions::nameTheTicket_data()
{
    const Table<bool, bool, QString> row{"hasPasscode", "isFax", "value"};
    row("plain", false, false, "1:00ff:none");
    row("passcode", true, false, "1:00ff:passcode");
    row("fax", false, true, "1:00ff:fax");
    row("both", true, true, "1:00ff:passcode+fax");
}

void TestJobOptions::nameTheTicket()
{
    QFETCH(bool, hasPasscode);
    QFETCH(bool, isFax);
    QFETCH(QString, value);
    QCOMPARE(ticketOption(QByteArray::fromHex("00ff"), hasPasscode, isFax),
             (JobOption{"kelvo-ticket", value}));
}

QTEST_GUILESS_MAIN(TestJobOptions)
#include "test_job_options.moc"
