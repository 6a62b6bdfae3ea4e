#include "print_flow.h"
#include "sample_ppds.h"
#include "session_fixture.h"
#include "table.h"

#include "private_cups.h"
#include "session_cautions.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>
#include <thread>
#include <utility>

using namespace kelvo;

// From a press of Print to what became of it, without a window.
class TestPrintFlow : public QObject
{
    Q_OBJECT

private slots:
    void aFixThatDoesNotHelpIsTakenBack();
    void whoeverAskedGetsThePreparedJob();
    void whatIsOnTheWayCanBeCancelled();
    void theServersWordComesFirst_data();
    void theServersWordComesFirst();
};

namespace {

// Somebody else's place for jobs: keeps what comes.
struct Keeper : Destination
{
    PrintOutcome deliver(const PreparedJob &job, const std::atomic_bool &cancelled) const override
    {
        while (waits && !cancelled)
            std::this_thread::yield();
        if (cancelled)
            return {ExitStatus::Cancelled, {}, QStringLiteral("in time")};
        kept = job;
        return {ExitStatus::Printed, QStringLiteral("Answer-1"), {}};
    }
    QString onTheWay() const override { return {}; }
    QString arrived(const QString &) const override { return {}; }

    bool waits = false;
    mutable std::optional<PreparedJob> kept; // read when the flow has told of it
};

enum class To { Keeper, Printer };

// A flow with somebody who says yes to whatever is asked.
struct Printing : Running, PrintQuestions
{
    explicit Printing(SessionBeginning begin, To to = To::Keeper,
                      std::optional<QString> ticketOut = {})
        : Running(std::move(begin))
        , cautions(session, to == To::Printer)
        , flow(session, cautions, {to == To::Keeper ? keeper : nullptr, std::move(ticketOut), {}})
    {
        flow.setQuestions(this);
    }

    bool fixesConflicts(const QString &, const ConflictReport &) override { return true; }
    bool printsAnyway(const Caution &) override { return true; }

    bool waitUntilOver()
    {
        return QTest::qWaitFor([this] { return !flow.isPrinting(); }, 15000);
    }
    bool isPrinted()
    {
        return waitUntilIdle() && (flow.press(), waitUntilOver()) && printed.size() == 1;
    }
    // What is told of a press that prints nothing.
    PrintRefusal refusalOfPress()
    {
        const QSignalSpy refused(&flow, &PrintFlow::refused);
        const bool isOver = waitUntilIdle() && (flow.press(), waitUntilOver());
        return isOver && refused.size() == 1 && printed.isEmpty() ? *flow.refusal()
                                                                  : PrintRefusal();
    }

    std::shared_ptr<Keeper> keeper = std::make_shared<Keeper>();
    SessionCautions cautions;
    PrintFlow flow;
    QSignalSpy printed{&flow, &PrintFlow::printed};
};

} // namespace

void TestPrintFlow::aFixThatDoesNotHelpIsTakenBack()
{
    auto begin = sampleBeginning();
    begin.job.options = {{"StapleLocation", "SinglePortrait"},
                         {"MediaType", "Transparency"},
                         {"Jog", "EndOfSet"},
                         {"OutputBin", "Side"}};
    Printing print(begin);
    print.panels.insistsOn = {{"StapleLocation", "SinglePortrait"}};
    QVERIFY(print.waitUntilIdle());
    print.job().writeAll();
    const TicketFile before = print.job().ticket();

    const PrintRefusal refusal = print.refusalOfPress();

    QCOMPARE(refusal.status, ExitStatus::NotOffered);
    QCOMPARE(refusal.problem, print.job().conflicts().sentences().join('\n'));
    QCOMPARE(print.job().ticket(), before);
}

void TestPrintFlow::whoeverAskedGetsThePreparedJob()
{
    const QTemporaryDir folder;
    const QString out = folder.filePath("later/out.plist");
    auto begin = sampleBeginning();
    begin.job.copies = 2;
    Printing print(begin, To::Keeper, out);
    // The settings' files come first, or nothing goes out.
    const PrintRefusal refusal = print.refusalOfPress();
    QVERIFY2(refusal.problem.contains("out.plist"), qPrintable(refusal.problem));
    QVERIFY(QDir(folder.path()).mkdir("later"));
    print.panels.note = "typed last";

    QVERIFY(print.isPrinted());

    QCOMPARE(print.printed[0][0].toString(), "Answer-1");
    QVERIFY(readFile(print.keeper->kept->pdfPath, 10'000'000).value().startsWith("%PDF"));
    QVERIFY(std::ranges::count(print.keeper->kept->options, JobOption{"copies", "2"}) == 1);
    QVERIFY(print.keeper->kept->ticket.contains("typed last"));
    QVERIFY(readFile(out, 1'000'000).value().contains("typed last"));
}

void TestPrintFlow::whatIsOnTheWayCanBeCancelled()
{
    Printing print(sampleBeginning());
    print.keeper->waits = true;
    QVERIFY(print.waitUntilIdle());
    print.flow.press();
    QVERIFY(print.flow.isPrinting());
    print.flow.cancel();
    QVERIFY(print.waitUntilOver());
    QCOMPARE(print.flow.refusal()->status, ExitStatus::Cancelled);
    QVERIFY(print.printed.isEmpty());
}

// What a queue turns out to be between the look at it and the press.
void TestPrintFlow::theServersWordComesFirst_data()
{
    // ppd: on the server by then; empty: as before
    const Table<QByteArray, ExitStatus, QString> row{"ppd", "status", "says"};

    row("reads no tickets", readFile(ppdWithoutTicket(), 1'000'000).value(), ExitStatus::NotOffered,
        "*KelvoTicket");
    row("damaged", "*PPD", ExitStatus::NoDestination, "damaged");
    // Told as the user knows it, with what the server says behind.
    row("takes no jobs", {}, ExitStatus::Failed,
        "“Hall-3” takes no jobs: Closed again. Choose another printer, or wait until it takes "
        "jobs again. (Hall-3: the print server at ");
}

void TestPrintFlow::theServersWordComesFirst()
{
    QFETCH(QByteArray, ppd);
    QFETCH(ExitStatus, status);
    QFETCH(QString, says);
    PrivateCups cups;
    QCOMPARE(cups.start(), QString());
    QCOMPARE(cups.addQueue("Hall-3", samplePpd("full")), QString());
    auto begin = queueBeginning({}); // nobody named it, and whoever sits before it sees it
    begin.job.ticketIn = TicketFile();
    begin.job.ticketIn->printSettings.entries["com.kelvo.print.JobType"] = {
        Dictionary{{"JobType", 6}, {"SecurePrintPassword", "4815"}}, "com.kelvo.printingmanager"};
    Printing print(begin, To::Printer);
    QVERIFY(print.waitUntilIdle());
    QVERIFY(ppd.isEmpty() || cups.damagePpd("Hall-3", ppd));
    QCOMPARE(cups.administer({"-r", "Closed again", "Hall-3"},
                             ppd.isEmpty() ? "cupsreject" : "cupsaccept"),
             QString());

    const PrintRefusal refusal = print.refusalOfPress();

    QVERIFY2(refusal.problem.contains(says), qPrintable(refusal.problem));
    QCOMPARE(refusal.status, status);
    QCOMPARE(cups.jobs(0).size(), 0U);
}

QTEST_GUILESS_MAIN(TestPrintFlow)
#include "test_print_flow.moc"
