#include "session_fixture.h"

#include "private_cups.h"
#include "session_presets.h"
#include "standard_error.h"
#include "unreliable_server.h"

#include <QSignalSpy>

using namespace kelvo;

using Stage = DialogSession::Stage;

// A job's settings and its printer, from the first question to another device.
class TestSession : public QObject
{
    Q_OBJECT

private slots:
    void whyThereAreNoPanels();
    void whatWasSetComesBack();
    void aPresetIsWhatWasSaved();
    void panelsKnowTheFirstPrintedPage();
    void aSearchCanBeTriedAgain();
    void settingsComeBackWithTheirPrinter();
    void printersComeAndGoBehindTheChosenOne();
};

void TestSession::whyThereAreNoPanels()
{
    auto begin = sampleBeginning();
    begin.bundleProblem = QStringLiteral("Not installed.");
    NotedPanels gone, broken;
    gone.loadProblem = QStringLiteral("Gone.so");
    broken.beginProblem = QStringLiteral("No pane");
    const StandardError standardError;
    for (const auto &[panels, says] :
         {std::pair(&gone, "loaded: Gone.so"),
          {&broken, "The panels could not start (No pane). Installing them again may help."},
          {static_cast<NotedPanels *>(nullptr), "Not installed."}}) {
        DialogSession session(begin, panels);
        session.start();
        QVERIFY(session.stage() == Stage::Ready && !session.hasPanels());
        const SessionMessage &message = session.message();
        QVERIFY(message.header.contains(begin.printer.device->modelName()) && !message.canRetry);
        QVERIFY2(message.text.contains(says), qPrintable(message.text));
        QVERIFY(message.text.endsWith("orientation work as usual."));
    }
    QCOMPARE(standardError.text().count("Gone.so"), 1); // for the administrator's log, too
}

void TestSession::whatWasSetComesBack()
{
    auto begin = sampleBeginning();
    begin.job.options = {{"KVPunch", "2HolePunch"}};
    begin.job.ticketIn = TicketFile();
    begin.job.ticketIn->unknown = {{"Other", "kept"}};
    Running run(begin);
    QVERIFY(!run.job().isChanged());
    run.panels.note = "mine";
    run.choose("Duplex", "DuplexTumble");
    const auto before = run.job().snapshot();
    const TicketFile ticket = run.job().ticket();
    const TicketFile preset = run.job().preset();
    const QSignalSpy reloaded(&run.session, &DialogSession::reloaded);

    run.panels.note = "another";
    run.choose("KVPunch", "None");
    run.job().usePreset(nullptr);
    QVERIFY(!run.job().isChanged());
    QVERIFY(run.job().preset() != preset);
    run.job().restore(before);

    QCOMPARE(run.panels.note, "mine");
    run.job().writeAll();
    QCOMPARE(run.job().ticket(), ticket);
    QCOMPARE(run.job().preset(), preset);
    QVERIFY(run.job().isChanged());
    QCOMPARE(reloaded.size(), 2); // the preset, and what was before it
}

void TestSession::aPresetIsWhatWasSaved()
{
    PresetStore store;
    TicketFile file;
    file.unknown = {{"One", "kept"}, {"com.kelvo.print.TicketNonce", QByteArray("0123")}};
    QVERIFY(store.save("One", file, {}, false));
    auto begin = sampleBeginning();
    begin.job.preset = store.read("One").value();
    Running run(begin);
    SessionPresets presets(run.job(), {"One"}, std::nullopt);
    run.panels.note = "mine";
    QVERIFY(presets.save("One", std::nullopt));
    QVERIFY(!run.job().isChanged());
    QCOMPARE(store.read("One").value().unknown, (Dictionary{{"One", "kept"}}));

    // A new one begins without what belongs to another.
    presets.chooseDefaults();
    QCOMPARE(run.panels.note, "default");
    QVERIFY(presets.save("New", false));
    QCOMPARE(store.read("New").value().unknown, Dictionary());
    QVERIFY(presets.remove());

    QVERIFY(presets.choose("One"));
    QCOMPARE(run.panels.note, "mine");
    QVERIFY(presets.rename("Two & more"));
    QVERIFY(!presets.choose("One"));
    QCOMPARE(presets.chosen()->name, "Two & more");
    // The settings stay without it, and are not the defaults.
    QVERIFY(presets.remove());
    QVERIFY(presets.all().empty() && !presets.chosen());
    QCOMPARE(run.panels.note, "mine");
    QVERIFY(run.job().isChanged());
}

void TestSession::panelsKnowTheFirstPrintedPage()
{
    auto begin = sampleBeginning();
    begin.job.pages = "3-";
    Running run(begin);
    DocumentPage page;
    PMPrintSession session = &run.job().tickets();
    QCOMPARE(PMSessionGetFirstPage(session, &page), kPMKeyNotFound); // it is still read
    QVERIFY(run.waitUntilIdle());
    const auto firstPage = [&] {
        return PMSessionGetFirstPage(session, &page) == noErr
                && page.pdfPath == run.session.document().document().pdfPath()
            ? page.page
            : 0;
    };
    QCOMPARE(firstPage(), 3);

    const auto before = run.job().snapshot();
    JobSettings settings = run.job().settings();
    settings.pageRanges = "5,2";
    run.job().change(settings);
    QCOMPARE(firstPage(), 5);
    settings.pageRanges = "99"; // typed, and not yet told to be wrong
    run.job().change(settings);
    QCOMPARE(firstPage(), 1);
    run.job().restore(before);
    QCOMPARE(firstPage(), 3);
}

// ---- printers

void TestSession::aSearchCanBeTriedAgain()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", samplePpd("full")), QString());
    QVERIFY(cups.damagePpd("Hall-3", "*PPD"));
    UnreliableServer silent(UnreliableServer::Trouble::NeverAnswers, cups.port());
    qputenv("CUPS_SERVER", silent.address().toUtf8());
    auto begin = queueBeginning("Hal-3");
    begin.printer.timeoutMs = 1000;
    Running run(begin);
    const auto isStuckWith = [&run](const QString &part) {
        return run.waitUntilIdle() && run.session.stage() == Stage::Stuck
            && run.session.message().text.contains(part);
    };
    QVERIFY(isStuckWith(silent.address()));
    silent.recover();
    run.session.retry();
    QCOMPARE(run.session.stage(), Stage::Searching);
    QVERIFY(isStuckWith("Hall-3"));
    // Whoever printed all the same would lose every setting.
    run.session.choosePrinter("Hall-3");
    QVERIFY(isStuckWith("damaged"));
    QVERIFY(cups.damagePpd("Hall-3", readFile(samplePpd("full"), 1'000'000).value()));
    run.session.choosePrinter("Hall-3");
    QVERIFY(run.waitUntilIdle());
    QVERIFY(run.session.hasPanels());
}

void TestSession::settingsComeBackWithTheirPrinter()
{
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Full", samplePpd("full")), QString());
    QCOMPARE(cups.addQueue("Bare", samplePpd("bare"), {"-o", "Duplex-default=None"}), QString());
    QCOMPARE(cups.addQueue("Raw", {}), QString());
    auto begin = queueBeginning("Full");
    begin.job.options = {{"KVPunch", "2HolePunch"}};
    Running run(begin);
    QVERIFY(run.waitUntilIdle());
    run.panels.note = "mine";
    run.panels.calls.clear();

    run.session.choosePrinter("Bare");
    QVERIFY(run.waitUntilIdle());
    // What was begun writes and ends before it begins again.
    QCOMPARE(run.panels.calls.mid(0, 3), (QStringList{"write", "end", "begin"}));
    QCOMPARE(run.panels.note, "mine");
    QVERIFY2(run.job().missing().join(' ').contains("2-hole punch"),
             qPrintable(run.job().missing().join(' ')));
    QVERIFY(run.job().isChanged());

    run.session.choosePrinter("Raw");
    QVERIFY(run.waitUntilIdle());
    QVERIFY(run.session.message().text.contains("no description"));
    run.panels.calls.clear();

    // Faster than the server answers: what comes last begins, and once.
    for (const char *printer : {"Bare", "Full", "Full", "Bare", "Full"})
        run.session.choosePrinter(printer);
    QVERIFY(run.waitUntilIdle());
    QTest::qWait(500); // for an answer too many
    QCOMPARE(run.panels.calls.count("begin"), 1);
    QCOMPARE(run.choice("KVPunch"), "2HolePunch");
    QCOMPARE(run.panels.note, "mine");
    QCOMPARE(run.job().missing(), QStringList());
}

void TestSession::printersComeAndGoBehindTheChosenOne()
{
    PrivateCups cups;
    cups.setQueues({{.name = "Hall-3", .ppd = samplePpd("full")}, {.name = "Old"}});
    QCOMPARE(cups.start(), QString());
    Running run(queueBeginning("Hall-3"));
    QVERIFY(run.waitUntilIdle());
    const QSignalSpy news(&run.session, &DialogSession::conditionChanged);
    const auto look = [&run] {
        run.session.lookAtPrinters();
        QStringList lines;
        if (run.waitUntilIdle()) {
            for (const Printer &printer : run.session.search().printers())
                lines << printer.name + (printer.acceptsJobs ? ": " : ", closed: ")
                        + printer.stateMessage;
        }
        return lines;
    };
    QCOMPARE(look(), QStringList({"Hall-3: ", "Old: "}));
    QCOMPARE(news.size(), 0); // none

    QCOMPARE(cups.administer({"-x", "Old"}), QString());
    QCOMPARE(cups.addQueue("New", {}), QString());
    QCOMPARE(cups.administer({"-r", "Toner on order", "New"}, "cupsdisable"), QString());
    QCOMPARE(look(), QStringList({"Hall-3: ", "New: Toner on order"}));

    QCOMPARE(cups.administer({"-x", "Hall-3"}), QString());
    const QStringList gone = look();
    QCOMPARE(gone.size(), 2);
    QVERIFY2(gone.last().startsWith("Hall-3, closed: the print server"), qPrintable(gone.last()));
    QVERIFY(run.session.stage() == Stage::Ready && run.session.hasPanels());
    QCOMPARE(news.size(), 2);

    QCOMPARE(cups.addQueue("Hall-3", samplePpd("full")), QString());
    QVERIFY(look().contains("Hall-3: "));
    run.session.choosePrinter("New");
    QVERIFY(run.waitUntilIdle());
    QCOMPARE(run.session.search().name(), "New");
}

QTEST_GUILESS_MAIN(TestSession)
#include "test_session.moc"
