#include "kelvo_print.h"
#include "long_date.h"
#include "sample_ppds.h"
#include "table.h"
#include "values.h"

#include <QTest>

using namespace kelvo;

// What people do on the device's tabs, from the window to the job.
class TestPanelStories : public QObject
{
    Q_OBJECT

private slots:
    void holdsBackASecurePrintWithoutCode();
    void waitsForTheNextTimeOfADelayedJob();
    void saysThatAWatermarkIsNotHere();
    void carriesEverythingThroughATicket_data();
    void carriesEverythingThroughATicket();
    void endsWhileAPanelAsks();
    void saysWhatWillBeMissing();
    void keepsWhatWasSetLast_data();
    void keepsWhatWasSetLast();
    void letsAnOptionBeatATicket();
};

namespace {

Dictionary jobTypeIn(const TicketFile &ticket)
{
    const auto entry = ticket.printSettings.entries.find(QStringLiteral("com.kelvo.print.JobType"));
    return entry == ticket.printSettings.entries.end()
        ? Dictionary()
        : dictionary(entry->second.value).value_or(Dictionary());
}

} // namespace

void TestPanelStories::holdsBackASecurePrintWithoutCode()
{
    const Desk desk;
    const QString folder = desk.path("out");
    const Run run =
        desk.run({"--demo", "--no-window", "--script", script("secure-print-missing.kps"), "--to",
                  folder, "--ticket-out", "locked.plist"});
    QENDED(run, 0);
    QVERIFY(!QFile::exists(folder));

    // Who has no script is not told a script's words.
    const Run alone =
        desk.run({"--demo", "--no-window", "--ticket-in", "locked.plist", "--to", folder});
    QENDED(alone, 6);
    QCOMPARE(alone.messages(),
             QStringList("kelvo-print: nothing was sent. Check the passcode: The job needs a "
                         "passcode of 1 to 12 digits, the same in both fields under “Set Up…” "
                         "beside the job type. It is printed when the passcode is entered at the "
                         "device. Set it in the window (leave out --no-window), or with --script "
                         "FILE, which takes what is secret from "
                         "--secret NAME=FILE."));
    QVERIFY(!QFile::exists(folder));
}

void TestPanelStories::waitsForTheNextTimeOfADelayedJob()
{
    const Desk desk;
    TicketFile old;
    const LongDateTime then = longDateFrom(QDate(2020, 2, 29), QTime(10, 0));
    old.printSettings.entries[QStringLiteral("com.kelvo.print.JobType")] = {
        Dictionary{{"JobType", 7}, {"DelayedPrintTime", qint64(then)}}, QStringLiteral("test")};
    QVERIFY(writeTicketFile(desk.path("old.plist"), old));

    const LongDateTime before = longDateFrom(QDateTime::currentDateTime());
    QENDED(desk.run({"--demo", "--no-window", "--ticket-in", "old.plist", "--to", "out"}), 0);
    const LongDateTime sent =
        jobTypeIn(ticketIn(desk.path("out"))).value("DelayedPrintTime").toLongLong();
    QCOMPARE(timeOf(sent), QTime(10, 0));
    QVERIFY(sent >= before && sent <= before + 2 * 86'400);
}

void TestPanelStories::saysThatAWatermarkIsNotHere()
{
    const Desk desk;
    const QString ticket =
        QStringLiteral(KELVO_SOURCE_DIR "/tests/dialogs/watermark_of_another.plist");
    const Run run = desk.run({"--ppd", samplePpd("full"), "--no-window", documentPath,
                              "--ticket-in", ticket, "--to", desk.path("out")});
    QENDED(run, 0);
    QCOMPARE(
        run.messages(),
        QStringList(
            "kelvo-print: caution: Watermark: “Hall 3 only” is not in your list of watermarks, and "
            "none is printed."));
    const TicketFile sent = ticketIn(desk.path("out"));
    QVERIFY(!sent.printSettings.entries.contains("com.kelvo.print.watermark.Watermark"));
}

void TestPanelStories::carriesEverythingThroughATicket_data()
{
    // name: of the script that sets things, and with "-again" of the one that looks for them
    const Table<QString, QString> row{"device", "name"};

    row("paper, full", "full", "paper-output");
    row("paper, mid", "mid", "paper-output-mid");
    row("image, full", "full", "image-options");
    row("advanced", "full", "advanced");
    row("special pages", "full", "special-pages");
    row("booklet and watermark, full", "full", "booklet-watermark");
    row("booklet and watermark, mid", "mid", "booklet-watermark-mid");
    row("watermark, bare", "bare", "booklet-watermark-bare");
}

void TestPanelStories::carriesEverythingThroughATicket()
{
    QFETCH(QString, device);
    QFETCH(QString, name);
    Desk desk, fresh;
    // A ticket names a watermark, and the user's store has it.
    for (Desk *each : {&desk, &fresh})
        each->set("KELVO_SUPPORT_DIR", desk.path("support"));
    const QString first = desk.path("first"), second = desk.path("second");
    const QString third = desk.path("third"), preset = desk.path("preset.plist");
    const QStringList arguments{"--ppd", samplePpd(device), "--no-window", documentPath};
    QENDED(desk.run(arguments
                    + QStringList{"--script", script(qPrintable(name + ".kps")), "--to", first,
                                  "--preset-out", preset}),
           0);
    QENDED(fresh.run(arguments
                     + QStringList{"--script", script(qPrintable(name + "-again.kps")),
                                   "--ticket-in", first + "/ticket.plist", "--to", second}),
           0);
    QENDED(fresh.run(arguments + QStringList{"--ticket-in", preset, "--to", third}), 0);

    TicketFile one = ticketIn(first), other = ticketIn(second), fromPreset = ticketIn(third);
    QVERIFY(!one.printSettings.entries.empty());
    for (TicketFile *ticket : {&one, &other, &fromPreset})
        ticket->unknown.remove(nonceKey);
    QCOMPARE(other, one);
    // A preset, which is only a part, brings back all but the passcode, and a time that
    // nobody has set.
    for (TicketFile *ticket : {&one, &fromPreset}) {
        Dictionary jobType = jobTypeIn(*ticket);
        for (const char *key : {"DelayedPrintTime", "SecurePrintPassword"})
            jobType.remove(QLatin1String(key));
        if (!jobType.isEmpty())
            ticket->printSettings.entries[QStringLiteral("com.kelvo.print.JobType")].value =
                jobType;
    }
    QCOMPARE(fromPreset, one);
}

void TestPanelStories::endsWhileAPanelAsks()
{
    const QByteArray dialog = "panel SpecialPages\nclick @addInserts\n";
    const QByteArray question =
        dialog + "type @insertPages \"2\"\nclick @okButton\nclick @deleteAll\n";
    const Desk desk;
    for (const QByteArray &lines : {dialog + "expect @insertPages text \"7\"\n",
                                    dialog + "click @okButton\nexpect-notice \"thumb\"\n",
                                    question + "expect-notice \"thumb\"\n"}) {
        putFile(desk.path("ends.kps"), lines);
        QENDED(desk.run({"--demo", "--no-window", "--script", "ends.kps", "--to", "out"}), 2);
    }
}

// A cover without a source is forgotten when another panel is shown, and pages are cut:
// both are said once, and stand in the summary until the end.
void TestPanelStories::saysWhatWillBeMissing()
{
    const Desk desk;
    putFile(desk.path("cover.kps"),
            "panel SpecialPages\nclick @addCovers\nchoose @coverOptions 2\n"
            "item @frontStockButton 'Sclr' key Blue\nclick @okButton\nanswer 2\n"
            "panel PaperOutput\ntab 2\ntab 1\nexpect @conflictBar visible true\nsummary\nprint\n");
    const Run run = desk.run({"--demo", "--no-window", "--script", "cover.kps", "--to", "out", "-o",
                              "PageSize=A5", "-o", "print-scaling=none", "-P", "1,3-4"});
    QENDED(run, 0);
    const QStringList messages = run.messages();
    QCOMPARE(messages.size(), 2);
    QVERIFY(messages[0].startsWith("kelvo-print: caution: The front cover has no paper source"));
    QVERIFY(messages[1].startsWith("kelvo-print: caution: Pages 1 and 3–4 are larger"));
    QVERIFY(run.out.startsWith("Cautions:\n  Pages 1 and 3–4 are larger"));
    QVERIFY(run.out.contains("\n  The front cover has no paper source"));
}

void TestPanelStories::keepsWhatWasSetLast_data()
{
    // kept: of the device's options
    const Table<QString, QString, QString, QString> row{"first", "last", "kept", "choice"};

    const QString quality = QStringLiteral("choose @imageQuality key HighQuality\n");
    const QString toner = QStringLiteral("check @tonerSaver on\n");
    row("toner saver", quality, toner, "KVEconomode", "Draft");
    row("quality", toner, quality, "KVOutputMode", "HighQuality");
    row("what has no part in it set later", quality,
        toner + "choose @outputColorCorrection key sRGB\n", "KVEconomode", "Draft");
    row("but not at the paper's cost", "choose @paper key SRA3\ntab 1\n",
        "item @finishingButton 'Stp2'\n", "PageSize", "SRA3");
}

void TestPanelStories::keepsWhatWasSetLast()
{
    QFETCH(QString, first);
    QFETCH(QString, last);
    QFETCH(QString, kept);
    QFETCH(QString, choice);
    const Desk desk;
    putFile(desk.path("fix.kps"),
            ("tab 2\n" + first + last + "click @fix\nexpect @fix visible false\nprint\n").toUtf8());
    QENDED(desk.run({"--demo", "--no-window", "--script", "fix.kps", "--to", "out"}), 0);
    QCOMPARE(optionsIn(desk.path("out/options")).values(kept), QStringList(choice));
}

// Also what the panels' own entries of the ticket repeat of it.
void TestPanelStories::letsAnOptionBeatATicket()
{
    const Desk desk;
    putFile(desk.path("two.kps"), "tab 1\nchoose @twoSided key Duplex\nprint\n");
    const QStringList arguments{"--demo", "--no-window"};
    QENDED(desk.run(arguments + QStringList{"--script", "two.kps", "--to", "first"}), 0);
    QENDED(desk.run(arguments
                    + QStringList{"--ticket-in", "first/ticket.plist", "-o", "Duplex=None", "--to",
                                  "second"}),
           0);
    QCOMPARE(optionsIn(desk.path("second/options")).values("Duplex"), QStringList("None"));
}

QTEST_GUILESS_MAIN(TestPanelStories)
#include "test_panel_stories.moc"
