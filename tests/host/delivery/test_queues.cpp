#include "delivery.h"
#include "files.h"
#include "pdf_samples.h"
#include "printers.h"
#include "private_cups.h"
#include "sample_ppds.h"
#include "table.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cups/http.h>
#include <dlfcn.h>

using namespace kelvo;
using Code = Error::Code;

// Whether the server counts as one on this machine: libcups asks this function
// of the program before its own.
static bool isServerFarAway = false;
extern "C" int httpAddrLocalhost(const http_addr_t *address)
{
    static const auto real =
        reinterpret_cast<int (*)(const http_addr_t *)>(::dlsym(RTLD_NEXT, "httpAddrLocalhost"));
    return isServerFarAway ? 0 : real(address);
}

// Jobs and printers of a real print server.
class TestQueues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void printersAreListed();
    void ppdsAreFetched();
    void jobsArriveAsTheyWerePrepared();
    void jobsArriveWithoutTicketWhereNoneIsRead();
    void largeJobsArriveWhole();
    void titlesArriveInOneLine();
    void jobsAreRefused_data();
    void jobsAreRefused();
    void secretsStayWhereTheNetworkIsOpen();
    void secretsGoThroughTls();
    void secretsStayWhereTheQueueIsAnother_data();
    void secretsStayWhereTheQueueIsAnother();
    void jobsCanBeCancelledBeforeTheyAreSent();

private:
    Result<PreparedJob> prepare(const QString &ppd, qsizetype filler = 0);
    Result<SentJob> deliver(const PreparedJob &job, const QString &queue,
                            const QString &title = "Title");

    PrivateCups m_cups;
    QTemporaryDir m_folder;
    JobRequest m_request;
    std::shared_ptr<PpdFile> m_ppd;
};

static const QString reads = samplePpd("full");
static const QString readsNot = ppdWithoutTicket();

void TestQueues::initTestCase()
{
    QString problem = m_cups.start();
    for (const auto &[name, ppd] : {std::pair{"Hall-3", reads}, {"Office", readsNot}}) {
        if (problem.isEmpty())
            problem = m_cups.addQueue(name, ppd);
    }
    if (problem.isEmpty())
        problem = m_cups.administer(
            {"-p", "Office", "-c", "Offices", "-D", "The office", "-L", "Floor 2"});
    for (const char *member : {"Hall-3", "Office"}) {
        if (problem.isEmpty())
            problem = m_cups.administer({"-p", member, "-c", "Mixed"});
    }
    if (problem.isEmpty())
        problem = m_cups.addQueue("Raw", {});
    if (problem.isEmpty()) // without -E a queue takes no jobs
        problem = m_cups.administer({"-p", "Closed", "-v", "kvtest://test", "-P", reads});
    if (problem.isEmpty())
        problem = m_cups.administer({"-d", "Office"});
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestQueues::init()
{
    isServerFarAway = false;
}

Result<PreparedJob> TestQueues::prepare(const QString &ppd, qsizetype filler)
{
    const QString path = m_folder.filePath("sample.pdf");
    writePdf(path, 3, {}, filler);
    m_ppd = PpdFile::open(ppd).value();
    m_request = {};
    m_request.document = documentFromPdf(path, QStringLiteral("sample")).value();
    m_request.ppd = m_ppd.get();
    m_request.secretKeys = {{"Job/Password"}, {}};
    if (ppd == reads) {
        m_request.ticket.printSettings.entries["Job"] = {Dictionary{{"Password", "1234"}}, "test"};
        m_request.ticket.printSettings.ppdChoices = {{"StapleLocation", "DualPortrait"},
                                                     {"KVOutputOption", "False"},
                                                     {"JCLBanner", "True"},
                                                     {"Duplex", "DuplexTumble"},
                                                     {"PageSize", "Custom.300x400"}};
        m_request.queueDefaults = {{"sides", "two-sided-long-edge"}};
        m_request.settings.copies = 2;
    } else {
        m_request.ticket.printSettings.ppdChoices = {{"MediaType", "Transparency"}};
    }
    return prepareJob(m_request);
}

Result<SentJob> TestQueues::deliver(const PreparedJob &job, const QString &queue,
                                    const QString &title)
{
    const std::atomic_bool cancelled = false;
    return deliverToQueue(job, queue, title, 10000, cancelled);
}

void TestQueues::printersAreListed()
{
    PrinterDirectory directory;
    QSignalSpy found(&directory, &PrinterDirectory::printersFound);
    QSignalSpy failed(&directory, &PrinterDirectory::printersFailed);
    directory.refresh(10000);
    QCOMPARE(found.size(), 0); // never from within the call
    QVERIFY(found.wait(10000));
    QVERIFY(failed.isEmpty());
    const auto printers = found.first().first().value<QList<Printer>>();
    QStringList names;
    for (const Printer &printer : printers)
        names << printer.name;
    QCOMPARE(names, (QStringList{"Office", "Closed", "Hall-3", "Mixed", "Offices", "Raw"}));
    for (const Printer &printer : printers) {
        QCOMPARE(printer.isDefault, printer.name == "Office");
        const bool isEnabled = !QStringList{"Closed", "Mixed", "Offices"}.contains(printer.name);
        QCOMPARE(printer.state, isEnabled ? Printer::State::Idle : Printer::State::Stopped);
        QCOMPARE(printer.acceptsJobs, isEnabled);
    }
    QCOMPARE(printers.first().info, QStringLiteral("The office"));
    QCOMPARE(printers.first().location, QStringLiteral("Floor 2"));
    QCOMPARE(printers.first().makeAndModel, QStringLiteral("Kelvo Corvane N10"));
}

void TestQueues::ppdsAreFetched()
{
    PrinterDirectory directory;
    QSignalSpy fetched(&directory, &PrinterDirectory::ppdFetched);
    QSignalSpy unreadable(&directory, &PrinterDirectory::ppdUnreadable);
    QSignalSpy failed(&directory, &PrinterDirectory::ppdFailed);
    // A class has the PPD of its first member.
    for (const auto &[printer, ppd] :
         {std::pair{"Hall-3", reads}, {"Hall-3/draft", reads}, {"Offices", readsNot}}) {
        directory.fetchPpd(printer, 10000);
        QVERIFY2(fetched.wait(10000), printer);
        QCOMPARE(fetched.last().at(0).toString(), QString(printer));
        const auto file = fetched.last().at(1).value<std::shared_ptr<PpdFile>>();
        QCOMPARE(file->modelName(), PpdFile::open(ppd).value()->modelName());
    }
    for (const char *name : {"Nowhere", "Raw", "two words", ""}) {
        directory.fetchPpd(name, 10000);
        QVERIFY2(failed.wait(10000), name);
        QCOMPARE(failed.last().at(1).value<Error>().code, Code::NotFound);
    }
    QCOMPARE(failed.size(), 4);

    // What was fetched ahead is for the first who asks; the next one gets what the server has.
    QSignalSpy found(&directory, &PrinterDirectory::printersFound);
    directory.refresh(10000, PrinterDirectory::Ahead::PpdOfFirst);
    QVERIFY(found.wait(10000));
    directory.fetchPpd("Office", 10000);
    QVERIFY(fetched.wait(10000));
    QVERIFY(m_cups.damagePpd("Office", "*PPD"));
    directory.fetchPpd("Office", 10000);
    QVERIFY(unreadable.wait(10000));
    QCOMPARE(unreadable.last().at(1).value<Error>().where, QStringLiteral("Office"));
    QCOMPARE(unreadable.last().at(1).value<Error>().code, Code::Damaged);
    QVERIFY(m_cups.damagePpd("Office", bytesOf(readsNot)));
}

void TestQueues::jobsArriveAsTheyWerePrepared()
{
    const auto job = prepare(reads);
    QVERIFY2(job, qPrintable(job.reason()));
    const std::size_t before = m_cups.jobs(0).size();
    const auto delivered = deliver(job.value(), "Hall-3/draft", "Budget 2026");
    QVERIFY2(delivered, qPrintable(delivered.reason() + m_cups.log()));
    const auto jobs = m_cups.jobs(static_cast<int>(before) + 1);
    QCOMPARE(jobs.size(), before + 1);
    const PrivateCups::Job &arrived = jobs.back();
    QCOMPARE(delivered.value().name(), "Hall-3-" + arrived.id);
    QCOMPARE(arrived.title, QStringLiteral("Budget 2026"));
    QCOMPARE(arrived.copies, QStringLiteral("2"));
    QCOMPARE(arrived.document, bytesOf(job.value().pdfPath));

    const PPDDictionary &choices = m_request.ticket.printSettings.ppdChoices;
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice)
        QCOMPARE(arrived.options[choice.key()], QStringList{choice.value()});
    QCOMPARE(arrived.options["sides"], QStringList{"two-sided-short-edge"});
    QVERIFY(!arrived.options.contains("page-ranges"));

    const QString path = m_folder.filePath("arrived.pdf");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(arrived.document) > 0);
    file.close();
    const QByteArray ticket = attachmentsOf(path)["kelvo-ticket.plist"];
    QVERIFY(ticket.contains("1234"));
    QCOMPARE(arrived.options["kelvo-ticket"],
             QStringList{"1:" + QCryptographicHash::hash(ticket, QCryptographicHash::Sha256).toHex()
                         + ":passcode"});
    for (const QStringList &values : arrived.options) {
        for (const QString &value : values)
            QVERIFY(value != QLatin1String("1234"));
    }
}

void TestQueues::jobsArriveWithoutTicketWhereNoneIsRead()
{
    const auto job = prepare(readsNot);
    QVERIFY2(job, qPrintable(job.reason()));
    const std::size_t before = m_cups.jobs(0).size();
    const auto delivered = deliver(job.value(), "Office");
    QVERIFY2(delivered, qPrintable(delivered.reason()));
    const auto arrived = m_cups.jobs(static_cast<int>(before) + 1).back();
    QCOMPARE(arrived.options["MediaType"], QStringList{"Transparency"});
    QVERIFY(!arrived.options.contains("kelvo-ticket"));
    QVERIFY(!arrived.document.contains("kelvo-ticket"));
    QCOMPARE(arrived.document, bytesOf(job.value().pdfPath));
}

void TestQueues::largeJobsArriveWhole()
{
    const auto job = prepare(readsNot, 20'000'000);
    QVERIFY2(job, qPrintable(job.reason()));
    const std::size_t before = m_cups.jobs(0).size();
    const auto delivered = deliver(job.value(), "Office");
    QVERIFY2(delivered, qPrintable(delivered.reason()));
    const auto arrived = m_cups.jobs(static_cast<int>(before) + 1).back();
    QVERIFY(arrived.document.size() > 20'000'000);
    QVERIFY(arrived.document == bytesOf(job.value().pdfPath));
}

void TestQueues::titlesArriveInOneLine()
{
    const auto job = prepare(readsNot);
    QVERIFY(job);
    const std::size_t before = m_cups.jobs(0).size();
    const QString title = "two\nlines " + QString(300, u'ä');
    const auto delivered = deliver(job.value(), "Office", title);
    QVERIFY2(delivered, qPrintable(delivered.reason()));
    const QString arrived = m_cups.jobs(static_cast<int>(before) + 1).back().title;
    QVERIFY(arrived.startsWith("two lines ää") && arrived.endsWith(u'ä'));
}

void TestQueues::jobsAreRefused_data()
{
    const Table<QString, Code> row{"queue", "code"};
    row("unknown queue", "Nowhere", Code::NotFound);
    row("no name", "", Code::NotFound);
    row("odd name", "a b", Code::NotFound);
    row("queue that takes no jobs", "Closed", Code::Refused);
}

void TestQueues::jobsAreRefused()
{
    QFETCH(QString, queue);
    QFETCH(Code, code);
    const auto job = prepare(reads);
    QVERIFY(job);
    const std::size_t before = m_cups.jobs(0).size();
    const auto delivered = deliver(job.value(), queue);
    QVERIFY(!delivered);
    QVERIFY2(delivered.error().code == code, qPrintable(delivered.reason()));
    QCOMPARE(delivered.error().where, queue);
    QCOMPARE(m_cups.jobs(0).size(), before);
}

void TestQueues::secretsStayWhereTheNetworkIsOpen()
{
    isServerFarAway = true;
    const std::size_t before = m_cups.jobs(0).size();
    const auto secret = prepare(reads);
    QVERIFY(secret);
    const auto refused = deliver(secret.value(), "Hall-3");
    QVERIFY(!refused);
    QVERIFY2(refused.error().code == Code::Refused, qPrintable(refused.reason()));
    QVERIFY2(refused.error().detail.contains("TLS"), qPrintable(refused.reason()));
    QCOMPARE(m_cups.jobs(0).size(), before);

    const auto open = prepare(readsNot);
    QVERIFY(open);
    QVERIFY(deliver(open.value(), "Office"));
    QCOMPARE(m_cups.jobs(static_cast<int>(before) + 1).size(), before + 1);
}

void TestQueues::secretsGoThroughTls()
{
    const QByteArray plainServer = qgetenv("CUPS_SERVER");
    PrivateCups secure;
    QString problem = secure.start(PrivateCups::Encryption::IfRequested);
    if (problem.isEmpty())
        problem = secure.addQueue("Hall-3", reads);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const auto job = prepare(reads);
    QVERIFY(job);
    isServerFarAway = true;
    const auto delivered = deliver(job.value(), "Hall-3");
    qputenv("CUPS_SERVER", plainServer);
    QVERIFY2(delivered, qPrintable(delivered.reason() + secure.log()));
    const auto jobs = secure.jobs(1);
    QCOMPARE(jobs.size(), 1U);
    QVERIFY(jobs.back().document == bytesOf(job.value().pdfPath));
}

void TestQueues::secretsStayWhereTheQueueIsAnother_data()
{
    const Table<QString> row{"queue"};
    row("reads no tickets", "Office");
    row("a class that reads none", "Offices");
    row("a class of which one reads none", "Mixed");
    row("no PPD", "Raw");
}

void TestQueues::secretsStayWhereTheQueueIsAnother()
{
    // The job was prepared for a PPD that was given by hand, say.
    QFETCH(QString, queue);
    for (const bool isFax : {false, true}) {
        auto job = prepare(reads);
        QVERIFY(job);
        job.value().hasPasscode = !isFax;
        job.value().isFax = isFax;
        const std::size_t before = m_cups.jobs(0).size();
        const auto delivered = deliver(job.value(), queue);
        QVERIFY(!delivered);
        QVERIFY2(delivered.error().code == Code::Unsupported, qPrintable(delivered.reason()));
        QVERIFY2(delivered.error().detail.contains("KelvoTicket"), qPrintable(delivered.reason()));
        QCOMPARE(m_cups.jobs(0).size(), before);
    }
}

void TestQueues::jobsCanBeCancelledBeforeTheyAreSent()
{
    const auto job = prepare(readsNot);
    QVERIFY(job);
    const std::size_t before = m_cups.jobs(0).size();
    const std::atomic_bool cancelled = true;
    const auto delivered = deliverToQueue(job.value(), "Office", "Title", 10000, cancelled);
    // The server may have been faster than the look at the flag.
    if (!delivered)
        QCOMPARE(delivered.error().code, Code::Cancelled);
    else
        QCOMPARE(m_cups.jobs(static_cast<int>(before) + 1).size(), before + 1);
}

QTEST_GUILESS_MAIN(TestQueues)
#include "test_queues.moc"
