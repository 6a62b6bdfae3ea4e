#include "kelvo_print.h"
#include "private_cups.h"
#include "property_list.h"
#include "ticket_file.h"
#include "ticket_layers.h"
#include "unreliable_server.h"

#include <QCryptographicHash>
#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include <poppler-qt6.h>

#include <fcntl.h>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>

using namespace kelvo;

namespace {

const QString fullPpd = QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd");
const QString testPpds = QStringLiteral(KELVO_TEST_DATA "/ppds/");
const QString ticketOption = QStringLiteral("kelvo-ticket");
const QString passcode = QStringLiteral("48151623");

QString clientOf(const TicketFile &ticket, const char *key)
{
    const auto entry =
        ticket.printSettings.entries.find(QLatin1String("com.kelvo.print.") + QLatin1String(key));
    return entry == ticket.printSettings.entries.end() ? QString() : entry->second.client;
}

TicketFile ticketWith(const PPDDictionary &choices)
{
    TicketFile ticket;
    ticket.printSettings.ppdChoices = choices;
    return ticket;
}

// A ticket file whose job type has a passcode; its path.
QString secureTicket(const Desk &desk)
{
    TicketFile ticket = ticketWith({{QStringLiteral("Jog"), QStringLiteral("EndOfSet")}});
    const Dictionary jobType{{QStringLiteral("JobType"), 6},
                             {QStringLiteral("SecurePrintPassword"), passcode}};
    ticket.printSettings.entries[QStringLiteral("com.kelvo.print.JobType")] = {
        jobType, QStringLiteral("com.kelvo.printingmanager")};
    const QString path = desk.path(QStringLiteral("secure.plist"));
    return writeTicketFile(path, ticket) ? path : QString();
}

// The attachment of that name in a PDF.
QByteArray attachmentIn(const QByteArray &pdf, const QString &name)
{
    const auto document = Poppler::Document::loadFromData(pdf);
    const auto files = document ? document->embeddedFiles() : QList<Poppler::EmbeddedFile *>();
    QByteArray found;
    for (Poppler::EmbeddedFile *file : files) {
        if (file->name() == name)
            found = file->data();
    }
    return found;
}

QByteArray sha256(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

// The job's PDF carries the ticket that its option names by its SHA-256.
QString ticketProblem(const QByteArray &pdf, const QString &option, const QString &flags)
{
    const QByteArray ticket = attachmentIn(pdf, QStringLiteral("kelvo-ticket.plist"));
    if (ticket.isEmpty())
        return QStringLiteral("no ticket in the PDF of %1 bytes").arg(pdf.size());
    const QString wanted =
        QStringLiteral("1:%1:%2").arg(QString::fromLatin1(sha256(ticket)), flags);
    return option == wanted ? QString() : option + QStringLiteral(" is not ") + wanted;
}

} // namespace

class TestStories : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void printsTheBundledDeviceIntoAFolder();
    void takesDocumentsFromStandardInput();
    void saysWhyAPrinterDoesNotPrint();
    void saysWhatARawQueueIsTold();
    void sendsDividersToAQueue();
    void cutsPagesOnlyOnce();
    void refusesASecretThatWouldLieOpen_data();
    void refusesASecretThatWouldLieOpen();
    void saysThatThereIsNoHelp();
    void printsOtherMakersDevicesWithoutPanels_data();
    void printsOtherMakersDevicesWithoutPanels();
    void readsScriptsFromAPipeToTheirEnd();
    void keepsPagesAcrossPresetsAndPrinters();
    void countsSheetsAsThePrinterDoes();
    void saysThatItsPanelsAreDamaged();
    void saysWhatItsPanelsLack();
    void saysThatTheDocumentIsDamaged();
    void refusesBrokenInputs_data();
    void refusesBrokenInputs();
    void waitsForADeadServerOnlySoLong_data();
    void waitsForADeadServerOnlySoLong();
    void printsPlainlyOnlyWhereThereIsNoPpd();
    void endsOnAnInterrupt();
    void keepsWhatTheUserNamed_data();
    void keepsWhatTheUserNamed();
    void tellsOfAnOutputThatIsFull();
    void endsWhereThereAreNoThreads();
    void endsWhereStandardInputIsClosed();
    void hearsShortcutsAfterASetUp();
    void keepsPresets();
    void keepsNoDefaultsInPresets();
    void leavesEachQueueItsOwnDefaults_data();
    void leavesEachQueueItsOwnDefaults();
    void keepsWhatIsChosenAsItIsShown_data();
    void keepsWhatIsChosenAsItIsShown();
    void missesOfAnotherDevicesTicketWhatWasAsked();
    void refusesToPrintAConflict();
    void laterSettingsBeatEarlierOnes();
    void refusesWhatCannotBeDone_data();
    void refusesWhatCannotBeDone();
    void makesPictures_data();
    void makesPictures();

private:
    PrivateCups m_cups;
};

void TestStories::initTestCase()
{
    QCOMPARE(m_cups.start(), QString());
    QCOMPARE(m_cups.addQueue(QStringLiteral("Hall-3"), fullPpd), QString());
    QCOMPARE(m_cups.addQueue(QStringLiteral("No-Ticket"), testPpds + "no-ticket.ppd"), QString());
    QCOMPARE(m_cups.addQueue(QStringLiteral("Raw"), {}), QString());
}

void TestStories::printsTheBundledDeviceIntoAFolder()
{
    const Desk desk;
    const QString folder = desk.path("out");
    const Run run =
        desk.run({"--demo", "--no-window", "--script", script("advanced.kps"), "--to", folder});
    QENDED(run, 0);
    QCOMPARE(run.out, folder + " document.pdf\n");
    QCOMPARE(run.messages(), QStringList());

    const auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner;
    const auto rights = [](const QString &path) {
        return QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
    };
    QCOMPARE(rights(folder), ownerOnly | QFile::ExeOwner);
    for (const char *name : {"document.pdf", "options", "ticket.plist"})
        QCOMPARE(rights(folder + '/' + name), ownerOnly);

    const TicketFile ticket = ticketIn(folder);
    for (const char *key : {"KPIFOptions", "ControllerInformation.ControllerFamily",
                            "ControllerInformation.ControllerVersion", "ClientInformation.UserName",
                            "ClientInformation.ComputerName"})
        QVERIFY2(clientOf(ticket, key) == "K", key);
    QCOMPARE(clientOf(ticket, "AdvancedBookletLayoutOrderStr"), "com.kelvo.printingmanager");
    const PPDDictionary &choices = ticket.printSettings.ppdChoices;
    const auto options = optionsIn(folder + "/options");
    for (const auto &[option, choice] : {std::pair("JCLBanner", "True"),
                                         {"Jog", "EndOfSet"},
                                         {"KVFeedEdge", "ShortEdge"},
                                         {"PageSize", "A4"}}) {
        QCOMPARE(choices.value(option), choice);
        QCOMPARE(options.values(option), QStringList(choice));
    }
    QCOMPARE(options.keys().size(), options.uniqueKeys().size());
    QCOMPARE(ticketProblem(contents(folder + "/document.pdf"), options.value(ticketOption), "none"),
             QString());
    QCOMPARE(attachmentIn(contents(folder + "/document.pdf"), "kelvo-ticket.plist"),
             contents(folder + "/ticket.plist"));

    // Another user, another dialog, the same settings.
    const Desk fresh;
    const Run again = fresh.run({"--demo", "--no-window", "--ticket-in", folder + "/ticket.plist",
                                 "--script", script("advanced-again.kps")});
    QENDED(again, 0);
}

void TestStories::takesDocumentsFromStandardInput()
{
    const Desk desk;
    const QString folder = desk.path("out");
    const QStringList arguments{"--ppd", fullPpd, "--no-window", "--to", folder};
    const Run pages = desk.run(arguments + QStringList{"-P", "2,5-", "-n", "3", "-t", "Quarter"},
                               contents(documentPath));
    QENDED(pages, 0);
    QCOMPARE(pages.out, folder + " Quarter\n");
    QCOMPARE(optionsIn(folder + "/options").values("copies"), QStringList("3"));
    QCOMPARE(Poppler::Document::load(folder + "/document.pdf")->numPages(), 3);

    const Run text = desk.run(arguments, "One line.\n");
    QENDED(text, 0);
    QCOMPARE(text.out, folder + " (stdin)\n");
    QCOMPARE(Poppler::Document::load(folder + "/document.pdf")->numPages(), 1);
}

void TestStories::saysWhyAPrinterDoesNotPrint()
{
    for (const char *queue : {"Stopped", "Closed"})
        QCOMPARE(m_cups.addQueue(queue, fullPpd), QString());
    QCOMPARE(m_cups.administer({"-r", "Toner is on order", "Stopped"}, "cupsdisable"), QString());
    QCOMPARE(m_cups.administer({"-r", "Moving house", "Closed"}, "cupsreject"), QString());
    const Desk desk;

    const Run stopped = desk.run({"-d", "Stopped", "--no-window", documentPath});
    QENDED(stopped, 0);
    QVERIFY(stopped.out.startsWith("Stopped-"));
    QCOMPARE(stopped.messages().size(), 1);
    QVERIFY(stopped.messages().front().startsWith(
        "kelvo-print: caution: “Stopped” is stopped: Toner is on order. "));

    const Run closed = desk.run({"-d", "Closed", "--no-window", documentPath});
    QENDED(closed, 1);
    QCOMPARE(closed.out, QString());
    QVERIFY(closed.err.contains("kelvo-print: “Closed” takes no jobs: Moving house. "));
}

// A queue without a PPD: the words, the window and the job agree.
void TestStories::saysWhatARawQueueIsTold()
{
    QCOMPARE(m_cups.addQueue("Raw", {}), QString());
    const Desk desk;
    QVERIFY(writeTicketFile(desk.path("t.plist"), ticketWith({{"Duplex", "DuplexTumble"}})));
    write(desk.path("raw.kps"),
          "expect @waitingText text \"The print server has no description of its settings.\\n"
          "Copies and pages work as usual. Paper, orientation and collating are passed on; "
          "whether they are heeded is up to the printer.\"\n"
          "expect @paper text \"A4\"\nexpect @paper enabled false\n"
          "expect @summary text \"6 pages, 6 sheets\"\n"
          "expect @conflictText text \"Not sent, for the print server has no description of this "
          "printer: Duplex: DuplexTumble. They are kept, and come back with a printer that has "
          "them.\"\nsummary\nprint\n");

    const int before = static_cast<int>(m_cups.jobs(0).size());
    const Run run = desk.run({"-d", "Raw", "--no-window", "--script", "raw.kps", "--ticket-in",
                              "t.plist", "-o", "media=A4", documentPath});
    QENDED(run, 0);
    QVERIFY(static_cast<int>(m_cups.jobs(before + 1).size())
            > before); // or the next would count it
    QVERIFY(run.out.contains("Paper: A4 – passed on"));
    const QString unknown = "the print server has no description of this printer";
    QVERIFY(run.out.contains("Not sent:\n  Duplex: DuplexTumble – " + unknown));
    QCOMPARE(run.messages(),
             QStringList("kelvo-print: Duplex: DuplexTumble: not sent, " + unknown));
}

void TestStories::sendsDividersToAQueue()
{
    const Desk desk;
    const std::size_t before = m_cups.jobs(0).size();
    const QString example = QStringLiteral(KELVO_SOURCE_DIR "/docs/examples/dividers.kps");
    const Run run = desk.run({"-d", "Hall-3", "--no-window", "--script", example, documentPath});
    QENDED(run, 0);
    QCOMPARE(run.messages(), QStringList());
    for (const char *words :
         {"Front Cover Source: Tray 1", "Inserts: after page 2 (Sheets [1]; Blue), ",
          "Exception pages: 5 (Yellow)\n"})
        QVERIFY2(run.out.contains(words), qPrintable(run.out));

    const auto jobs = m_cups.jobs(static_cast<int>(before) + 1);
    QCOMPARE(jobs.size(), before + 1);
    const PrivateCups::Job &job = jobs.back();
    QVERIFY2(run.out.endsWith("Hall-3-" + job.id + " document.pdf\n"), qPrintable(run.out));
    QCOMPARE(job.title, "document.pdf");
    for (const char *option : {"KVFrontCoverSheet", "KVBackCoverSheet"})
        QCOMPARE(job.options.value(option), QStringList("Tray1"));
    QCOMPARE(job.options.value(ticketOption).size(), 1);
    QCOMPARE(ticketProblem(job.document, job.options.value(ticketOption).first(), "none"),
             QString());
    write(desk.path("arrived.plist"), attachmentIn(job.document, "kelvo-ticket.plist"));
    const auto ticket = readTicketFile(desk.path("arrived.plist"));
    QVERIFY(ticket);
    QStringList pages;
    for (const char *list : {"InsertList", "ExceptionList"}) {
        const auto entry = ticket.value().printSettings.entries.find(
            QStringLiteral("com.kelvo.print.SpecialPages.") + QLatin1String(list));
        QVERIFY(entry != ticket.value().printSettings.entries.end());
        for (const QVariant &page : array(entry->second.value).value_or(Array()))
            pages << page.toMap().value("StartPage").toString();
    }
    QCOMPARE(pages.join(u' '), "2 4 5");
}

// A queue's defaults are read once; its filters do not apply them again.
void TestStories::cutsPagesOnlyOnce()
{
    QCOMPARE(m_cups.addQueue("Half", fullPpd,
                             {"-o", "page-ranges-default=2-3", "-o", "mirror-default=true", "-o",
                              "outputorder-default=reverse"}),
             QString());
    const Desk desk;
    const std::size_t before = m_cups.jobs(0).size();
    const Run run = desk.run({"-d", "Half", "--no-window", documentPath});
    QENDED(run, 0);

    const auto jobs = m_cups.jobs(static_cast<int>(before) + 1);
    QCOMPARE(jobs.size(), before + 1);
    const PrivateCups::Job &job = jobs.back();
    QCOMPARE(job.options.value("page-ranges"), QStringList("1-2147483647"));
    QCOMPARE(job.options.value("mirror"), QStringList("false"));
    QCOMPARE(job.options.value("outputorder"), QStringList("normal"));
    const auto pdf = Poppler::Document::loadFromData(job.document);
    QVERIFY(pdf);
    QCOMPARE(pdf->numPages(), 2);

    // All, once chosen, outlasts the queue's default and a preset.
    write(desk.path("s.kps"),
          "choose @pagesChoice key all\nchoose @preset row 1\n"
          "expect @pagesChoice text \"All\"\n");
    QENDED(desk.run({"-d", "Half", "--no-window", "--script", "s.kps", documentPath}), 0);
}

void TestStories::refusesASecretThatWouldLieOpen_data()
{
    QTest::addColumn<QStringList>("device");
    QTest::addColumn<bool>("withSecret");
    QTest::addColumn<int>("status");

    const QStringList openQueue{"-d", "No-Ticket"}, queue{"-d", "Hall-3"};
    const QStringList openDevice{"--ppd", testPpds + "no-ticket.ppd", "--to", "out"};
    QTest::newRow("a queue that reads no tickets") << openQueue << true << 3;
    QTest::newRow("the same without a secret") << openQueue << false << 0;
    QTest::newRow("a folder for such a device") << openDevice << true << 3;
    QTest::newRow("a queue that reads tickets") << queue << true << 0;
}

void TestStories::refusesASecretThatWouldLieOpen()
{
    QFETCH(QStringList, device);
    QFETCH(bool, withSecret);
    QFETCH(int, status);
    const Desk desk;
    const std::size_t before = m_cups.jobs(0).size();
    write(desk.path("look.kps"), "summary\nprint\n");
    QStringList arguments = device + QStringList{"--no-window", "--script", "look.kps"};
    if (withSecret)
        arguments << "--ticket-in" << secureTicket(desk);

    const Run run = desk.run(arguments << documentPath);
    QENDED(run, status);
    QVERIFY(!run.out.contains(passcode));
    QVERIFY(!run.err.contains(passcode));
    QCOMPARE(run.out.contains("••••"), withSecret);
    if (status != 0) {
        QCOMPARE(run.messages().size(), 1);
        QVERIFY2(run.err.contains("passcode") && run.err.contains("*KelvoTicket"),
                 qPrintable(run.err));
        QVERIFY(!QFile::exists(desk.path("out")));
        QTest::qWait(200); // for a job that must not come
        QCOMPARE(m_cups.jobs(0).size(), before);
        return;
    }
    const auto jobs = m_cups.jobs(static_cast<int>(before) + 1);
    QCOMPARE(jobs.size(), before + 1);
    const PrivateCups::Job &job = jobs.back();
    for (const QStringList &values : job.options)
        QVERIFY(!values.join(' ').contains(passcode));
    QVERIFY(!job.title.contains(passcode));
    if (withSecret)
        QCOMPARE(ticketProblem(job.document, job.options.value(ticketOption).value(0), "passcode"),
                 QString());
    else
        QVERIFY(!job.options.contains(ticketOption));
}

void TestStories::saysThatThereIsNoHelp()
{
    Desk desk;
    desk.set("KELVO_BUNDLE", "gone"); // the pages lie in it
    write(desk.path("help.kps"),
          "click @help\nexpect-notice \"The folder with the help pages is missing.\"\nanswer 1\n");
    QENDED(desk.run({"--demo", "--no-window", "--script", "help.kps"}), 0);
}

void TestStories::printsOtherMakersDevicesWithoutPanels_data()
{
    QTest::addColumn<QByteArray>("maker");
    QTest::addColumn<bool>("readsTickets");

    QTest::newRow("another maker") << QByteArray("Ostrava Print") << false;
    QTest::newRow("a maker that begins like ours") << QByteArray("Kelvodyne") << true;
}

void TestStories::printsOtherMakersDevicesWithoutPanels()
{
    QFETCH(QByteArray, maker);
    QFETCH(bool, readsTickets);
    const Desk desk;
    QByteArray ppd = contents(testPpds + "other-maker.ppd").replace("Ostrava Print", maker);
    if (readsTickets)
        ppd.replace("*Manufacturer:", "*KelvoTicket: \"1\"\n*Manufacturer:");
    write(desk.path("device.ppd"), ppd);
    const QStringList device{"--ppd", "device.ppd", "--no-window"};
    const QString statusLine = "Initialize()::GetTicketFromSession() failed.";

    const Run told =
        desk.run(device + QStringList{"--script", script("foreign.kps"), documentPath});
    QENDED(told, 0);
    QCOMPARE(told.messages().count(statusLine), 1);
    write(desk.path("show.kps"), "show @waitingText\n");
    const Run shown = desk.run(device + QStringList{"--script", "show.kps", documentPath});
    QVERIFY2(shown.out.contains("not made for this device") && shown.out.contains(maker),
             qPrintable(shown.out));

    const Run printed = desk.run(device + QStringList{"--to", "out", documentPath});
    QENDED(printed, 0);
    QCOMPARE(printed.messages(), QStringList(statusLine));
    QCOMPARE(optionsIn(desk.path("out/options")).values("PageSize"), QStringList("A4"));
    QCOMPARE(Poppler::Document::load(desk.path("out/document.pdf"))->numPages(), 6);
    // The ticket goes only where the PPD asks for it, whoever made the device.
    QCOMPARE(optionsIn(desk.path("out/options")).contains(ticketOption), readsTickets);
    QCOMPARE(!attachmentIn(contents(desk.path("out/document.pdf")), "kelvo-ticket.plist").isEmpty(),
             readsTickets);
}

void TestStories::readsScriptsFromAPipeToTheirEnd()
{
    const Desk desk;
    QByteArray lines;
    for (int i = 0; i < 9000; ++i)
        lines += "# as long as no pipe is at once\n";
    lines += "expect @copies value 77\n";
    const Run run = desk.run({"--demo", "--no-window", "--script", "-"}, lines);
    QENDED(run, 2);
    QVERIFY2(run.err.contains("(stdin):9001: "), qPrintable(run.err));
}

void TestStories::keepsPagesAcrossPresetsAndPrinters()
{
    const Desk desk;
    const std::size_t before = m_cups.jobs(0).size();
    write(desk.path("s.kps"),
          "choose @pagesChoice key range\ntype @pages \"2-3\"\nchoose @preset row 1\n"
          "choose @printer key No-Ticket\n"
          "expect @bannerSheet visible false\n" // a hidden tab's, and there
          "print\n");
    const Run run = desk.run({"-d", "Hall-3", "--no-window", "--script", "s.kps", documentPath});
    QENDED(run, 0);
    const auto jobs = m_cups.jobs(static_cast<int>(before) + 1);
    QCOMPARE(jobs.size(), before + 1);
    QCOMPARE(Poppler::Document::loadFromData(jobs.back().document)->numPages(), 2);
}

void TestStories::countsSheetsAsThePrinterDoes()
{
    const Desk desk;
    QByteArray ppd = contents(fullPpd);
    ppd.replace("*DefaultDuplex: None", "*DefaultDuplex: DuplexNoTumble");
    write(desk.path("two-sided.ppd"), ppd);
    write(desk.path("s.kps"), "expect @summary text \"6 pages, 3 sheets\"\n");
    QENDED(desk.run({"--ppd", "two-sided.ppd", "--no-window", "--script", "s.kps", documentPath}),
           0);

    TicketFile ticket = ticketWith({{"KVFrontCoverSheet", "Tray2"}});
    auto &entries = ticket.printSettings.entries;
    entries["com.kelvo.print.SpecialPages.InsertList"].value =
        Array{Dictionary{{"StartPage", 1}, {"Quantity", 2}}};
    entries["com.kelvo.print.SpecialPages.ExceptionList"].value =
        Array{Dictionary{{"StartPage", 5}, {"EndPage", 6}, {"SidesImaged", 1}}};
    QVERIFY(writeTicketFile(desk.path("special.plist"), ticket));
    write(desk.path("s.kps"),
          "expect @summary text \"6 pages, 8 sheets\"\n"
          "expect @previewPage text \"Sheet 2, front · page 1 of 6\"\nsummary\n");
    const Run run = desk.run({"--ppd", "two-sided.ppd", "--no-window", "--ticket-in",
                              "special.plist", "--script", "s.kps", documentPath});
    QENDED(run, 0);
    QVERIFY2(run.out.contains("Inserts: after page 1 (Sheets [2])\n"
                              "  Exception pages: 5–6 (1-sided print)\n"),
             qPrintable(run.out));
}

void TestStories::saysThatItsPanelsAreDamaged()
{
    Desk desk;
    const QString bundle = desk.path("KelvoPDE.pde");
    QCOMPARE(QProcess::execute("cp", {"-r", KELVO_BUILD_DIR "/lib/KelvoPDE.pde", bundle}), 0);
    QVERIFY(QDir(bundle + "/Resources/dialogs").removeRecursively());
    desk.set("KELVO_BUNDLE", bundle);
    write(desk.path("show.kps"), "show @waitingText\n");
    const Run run = desk.run({"--ppd", fullPpd, "--no-window", "--script", "show.kps"});
    QENDED(run, 0);
    QVERIFY2(run.out.contains("could not start") && !run.out.contains("not made for"),
             qPrintable(run.out));
}

void TestStories::saysWhatItsPanelsLack()
{
    Desk desk;
    const QString bundle = desk.path("KelvoPDE.pde");
    QCOMPARE(QProcess::execute("cp", {"-r", KELVO_BUILD_DIR "/lib/KelvoPDE.pde", bundle}), 0);
    desk.set("KELVO_BUNDLE", bundle);
    const QMap<QString, QByteArray> lost{{"PaperOutputPanel/PaperOutput", "KPDE 128"},
                                         {"ImageOptionsPanel/ImageOptions", "KPDE 1202"},
                                         {"AdvancedPanel/Advanced", "KPDE 602"},
                                         {"SpecialPages/SpecialPages", "KPDE 1000"}};
    for (auto control = lost.cbegin(); control != lost.cend(); ++control) {
        const QString path = bundle + "/Resources/dialogs/" + control.key() + ".ui";
        write(path, contents(path).replace('>' + *control + '<', ">KPDE 9999<"));
    }
    write(desk.path("show.kps"), "panel ImageOptions\npanel Advanced\npanel SpecialPages\nprint\n");
    const Run run = desk.run(
        {"--ppd", fullPpd, "--no-window", "--script", "show.kps", "--to", "out", documentPath});
    QENDED(run, 0);
    for (auto control = lost.cbegin(); control != lost.cend(); ++control) {
        const QString message = control.key()
            + ": the window cannot be made: The description lacks controls that the window needs: "
            + *control;
        QVERIFY2(run.messages().contains(message), qPrintable(message));
    }
}

void TestStories::saysThatTheDocumentIsDamaged()
{
    const Desk desk;
    write(desk.path("damaged.pdf"), contents(documentPath).replace("startxref", "startxxxx"));
    const Run run = desk.run({"--ppd", fullPpd, "--no-window", "--to", "out", "damaged.pdf"});
    QENDED(run, 0);
    QVERIFY2(run.err.contains("caution: The document is damaged"), qPrintable(run.err));

    // Also where nothing is printed.
    write(desk.path("no.pdf"), "%PDF-1.7\n");
    write(desk.path("look.kps"), "summary\n");
    const Run looked =
        desk.run({"--ppd", fullPpd, "--no-window", "--script", "look.kps", "no.pdf"});
    QENDED(looked, 0);
    QVERIFY2(looked.out.contains("The document cannot be opened: no.pdf"), qPrintable(looked.out));
}

void TestStories::refusesBrokenInputs_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("damage");
    QTest::addColumn<int>("status");

    const QList<std::pair<const char *, int>> kinds = {
        {"ppd", 4}, {"document", 1}, {"ticket", 6}, {"preset", 6}, {"script", 2}};
    for (const auto &[kind, status] : kinds) {
        for (const char *damage : {"missing", "empty", "truncated", "binary", "huge", "a folder"}) {
            const QByteArray name = QByteArray(kind) + ": " + damage;
            // A script without a line has nothing wrong with it.
            if (name == "script: empty")
                continue;
            // A folder is no preset.
            const bool isUnknown = name == "preset: missing" || name == "preset: a folder";
            QTest::newRow(name.constData()) << kind << damage << (isUnknown ? 2 : status);
        }
    }
}

void TestStories::refusesBrokenInputs()
{
    QFETCH(QString, kind);
    QFETCH(QString, damage);
    QFETCH(int, status);
    const Desk desk;
    const TicketFile ticket = ticketWith({{"Jog", "EndOfSet"}});
    QMap<QString, QString> paths{{"ppd", "device.ppd"},
                                 {"document", "Budget.pdf"},
                                 {"ticket", "job.plist"},
                                 {"script", "job.kps"}};
    for (QString &path : paths)
        path = desk.path(path);
    paths.insert("preset", desk.presetFolder() + "/Sets.plist");
    write(paths["ppd"], contents(fullPpd));
    write(paths["document"], contents(documentPath));
    write(paths["script"], "tab 4\nexpect @preset text \"Sets\"\nprint\n");
    QVERIFY(writeTicketFile(paths["ticket"], ticket));
    QVERIFY(writeTicketFile(paths["preset"], ticket));
    const QStringList arguments{"--ppd",       "device.ppd", "--ticket-in", "job.plist",
                                "--preset",    "Sets",       "--script",    "job.kps",
                                "--no-window", "--to",       "out",         "Budget.pdf"};
    QENDED(desk.run(arguments), 0); // all is well with them
    const auto stood = filesIn(desk.path("out"));
    QCOMPARE(stood.size(), 3);

    const QString path = paths.value(kind);
    const QByteArray whole = contents(path);
    QVERIFY(QFile::remove(path));
    if (damage == "empty") {
        write(path, {});
    } else if (damage == "truncated") {
        // In the middle of a text; libcups takes any whole line of a PPD for its end.
        write(path, whole.left(kind == "script" ? 28 : kind == "ppd" ? 15 : whole.size() / 2));
    } else if (damage == "binary") {
        QByteArray bytes(5000, '\0');
        for (qsizetype i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<char>((i * 7919 >> 3) ^ i);
        write(path, bytes);
    } else if (damage == "huge") {
        write(path, {});
        QVERIFY(QFile::resize(path, 200 << 20));
    } else if (damage == "a folder") {
        QVERIFY(QDir().mkpath(path));
    }

    const Run run = desk.run(arguments);
    QENDED(run, status);
    QVERIFY2(run.ms < 15'000, qPrintable(QString::number(run.ms)));
    QCOMPARE(run.out, QString());
    const QStringList messages = run.messages();
    QVERIFY2(messages.size() == 1, qPrintable(run.err));
    const QString name = kind == "preset" ? "Sets" : QFileInfo(path).fileName();
    QVERIFY2(messages.first().contains(name) && messages.first().size() > name.size() + 10,
             qPrintable(run.err));
    QCOMPARE(filesIn(desk.path("out")), stood);
}

void TestStories::waitsForADeadServerOnlySoLong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");

    QTest::newRow("list") << QStringList{"--list-printers"} << 4;
    QTest::newRow("print") << QStringList{"-d", "Hall-3", "--no-window", documentPath} << 4;
    QTest::newRow("no destination") << QStringList{"--no-window", documentPath} << 4;
    QTest::newRow("cancel in a script")
        << QStringList{"--no-window", "--script", "cancel.kps", documentPath} << 0;
}

void TestStories::waitsForADeadServerOnlySoLong()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    const UnreliableServer server(UnreliableServer::Trouble::NeverAnswers);
    Desk desk;
    desk.set("CUPS_SERVER", server.address());
    write(desk.path("cancel.kps"), "cancel\n");
    const Run run = desk.run(QStringList{"--timeout", "2"} + arguments);
    QENDED(run, status);
    QVERIFY2(run.ms < 6000, qPrintable(QString::number(run.ms)));
    if (status != 0) {
        QVERIFY2(run.err.startsWith("kelvo-print: ") && run.err.contains(server.address()),
                 qPrintable(run.err));
    }
}

void TestStories::printsPlainlyOnlyWhereThereIsNoPpd()
{
    Desk desk;
    const QStringList arguments{"-d", "Hall-3", "--no-window", documentPath};
    const std::size_t before = m_cups.jobs(0).size();
    for (const qint64 place : {21, 200, 30'000}) { // in the head of the answer, and in the PPD
        const UnreliableServer server(UnreliableServer::Trouble::CutsPpds, m_cups.port(), place);
        desk.set("CUPS_SERVER", server.address());
        const Run run = desk.run(arguments);
        QENDED(run, 4);
        QVERIFY2(run.err.contains("Hall-3") && run.err.contains("broke off"), qPrintable(run.err));
    }
    desk.set("CUPS_SERVER", m_cups.server());
    QVERIFY(m_cups.damagePpd("Hall-3", contents(fullPpd).left(20'000)));
    const Run damaged = desk.run(arguments);
    QVERIFY(m_cups.damagePpd("Hall-3", contents(fullPpd)));
    QENDED(damaged, 4);
    QVERIFY2(damaged.err.contains("damaged"), qPrintable(damaged.err));
    QCOMPARE(m_cups.jobs(0).size(), before);

    QENDED(desk.run({"-d", "Raw", "--no-window", documentPath}), 0);
    QCOMPARE(m_cups.jobs(static_cast<int>(before) + 1).size(), before + 1);
}

void TestStories::endsOnAnInterrupt()
{
    // The dialog is up while the server is still silent, and goes when it is told.
    const UnreliableServer server(UnreliableServer::Trouble::NeverAnswers);
    Desk desk;
    desk.set("CUPS_SERVER", server.address());
    const Run dead = desk.interrupt({"--no-window", documentPath}, 700);
    QENDED(dead, 130);
    QVERIFY2(dead.ms < 4000, qPrintable(QString::number(dead.ms)));

    // A document that is out may be printed: that is no cancelling.
    const UnreliableServer mute(UnreliableServer::Trouble::LosesAnswers, m_cups.port());
    desk.set("CUPS_SERVER", mute.address());
    desk.set("TMPDIR", desk.path("tmp"));
    QVERIFY(QDir().mkpath(desk.path("tmp")));
    const Run sent = desk.interrupt({"-d", "Hall-3", "--no-window", documentPath}, 2500);
    QENDED(sent, 1);
    QVERIFY2(sent.err.contains("may have been accepted"), qPrintable(sent.err));
    QVERIFY2(sent.ms < 12000, qPrintable(QString::number(sent.ms)));
    QCOMPARE(QDir(desk.path("tmp")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList());

    const Run ready = Desk().interrupt({"--demo"}, 700);
    QENDED(ready, 130);
    QVERIFY2(ready.ms < 4000, qPrintable(QString::number(ready.ms)));
    QCOMPARE(ready.messages(), QStringList());
}

// Nothing that the user named is lost to what the program writes.
void TestStories::keepsWhatTheUserNamed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message");
    const auto row = [](const QStringList &arguments, int status, const char *message) {
        QTest::newRow(qPrintable(arguments.join(u' ')))
            << arguments << status << QString::fromLatin1(message);
    };
    row({"--ticket-out", "document.pdf", "document.pdf"}, 2, "document.pdf is the document itself");
    row({"--ticket-out", "link.pdf", "document.pdf"}, 2, "link.pdf is the document itself");
    row({"--ticket-out", "keep.txt", "document.pdf"}, 2, "not a ticket");
    row({"--ticket-out", "no/t.plist", "document.pdf"}, 2, "the folder no does not exist");
    row({"--preset-out", "keep.txt", "document.pdf"}, 2, "not a ticket");
    row({"--preset-out", "./p.plist", "--ticket-out", "p.plist", "document.pdf"}, 2,
        "--preset-out: ./p.plist is what --ticket-out writes");
    row({"--ticket-out", "run.kps", "--script", "run.kps", "document.pdf"}, 2, "the script itself");
    row({"--to", ".", "document.pdf"}, 2, "./document.pdf is the document itself");
    row({"--to", "busy", "keep.txt"}, 1, "busy/options: this is not a regular file");
    row({"--to", "a/b/c", "keep.txt"}, 1, "the folder a/b does not exist; make it first");
    row({"--to", "keep.txt", "keep.txt"}, 1, "keep.txt: this is not a folder; name another one");
    row({"--to", "shut", "keep.txt"}, 1,
        "shut/document.pdf: Permission denied; change the rights there");
    row({"--to", "shut/in", "keep.txt"}, 1,
        "shut/in: the folder cannot be made (Permission denied); change the rights there");
    row({"--ticket-out", "shut/t.plist", "keep.txt"}, 2,
        "into the folder shut (Permission denied); change the rights there");
    row({"--ticket-in", "no.plist", "keep.txt"}, 6,
        "kelvo-print: --ticket-in: there is no file no.plist; check its name");
    row({"--ticket-in", "keep.txt", "keep.txt"}, 6,
        "kelvo-print: keep.txt is not a ticket file (line 1: syntax error)");
    row({"--ticket-in", "other.plist", "keep.txt"}, 6,
        "kelvo-print: other.plist is not a ticket file (FormatVersion: missing)");
    row({"--script", "no.kps", "keep.txt"}, 2,
        "kelvo-print: --script: there is no file no.kps; check its name");
    row({"--secret", "A=no.txt", "keep.txt"}, 2,
        "kelvo-print: --secret: there is no file no.txt; check its name");
    row({"--preset", "Nightly", "keep.txt"}, 2, "there is no preset of this name, nor any other");
    row({"no.pdf"}, 1, "no.pdf: there is no such document; check its name");
}

void TestStories::keepsWhatTheUserNamed()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, message);
    const Desk desk;
    write(desk.path("document.pdf"), contents(documentPath));
    QVERIFY(QFile::link(desk.path("document.pdf"), desk.path("link.pdf")));
    write(desk.path("keep.txt"), "years of work\n");
    write(desk.path("run.kps"), "print\n");
    write(desk.path("other.plist"), "<plist><dict/></plist>");
    QVERIFY(QDir().mkpath(desk.path("busy/options")));
    write(desk.path("busy/ticket.plist"), "an older one\n");
    QVERIFY(QDir().mkpath(desk.path("shut")));
    QVERIFY(QFile::setPermissions(desk.path("shut"), QFile::ReadOwner | QFile::ExeOwner));
    const auto before = filesIn(desk.path("."));
    const auto busyBefore = filesIn(desk.path("busy"));

    QStringList line{"--no-window", "--ppd", fullPpd};
    if (!arguments.contains("--to"))
        line << "--to"
             << "out";
    const Run run = desk.run(line + arguments);

    QENDED(run, status);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QCOMPARE(filesIn(desk.path(".")), before);
    QCOMPARE(filesIn(desk.path("busy")), busyBefore);
    QVERIFY(!QFile::exists(desk.path("no")) && !QFile::exists(desk.path("a")));
}

// Who reads the result must not take silence for one.
void TestStories::tellsOfAnOutputThatIsFull()
{
    Desk desk;
    desk.atStart([] { ::dup2(::open("/dev/full", O_WRONLY), STDOUT_FILENO); });
    for (const QStringList &arguments :
         {QStringList{"--help"}, QStringList{"--demo", "--no-window", "--to", "out"}}) {
        const Run run = desk.run(arguments);
        QENDED(run, 1);
        QCOMPARE(run.messages(),
                 QStringList{"kelvo-print: standard output cannot be written; what was done "
                             "before stays done"});
    }
    QVERIFY(QFile::exists(desk.path("out/document.pdf")));
}

// Not in terminate(), and not waiting for threads that never came.
void TestStories::endsWhereThereAreNoThreads()
{
    for (const int most : {1, 4}) { // processes of this user, of which there are some already
        Desk desk;
        desk.leaveLeaksAlone();
        desk.atStart([most] {
            rlimit limit = {};
            ::getrlimit(RLIMIT_NPROC, &limit);
            limit.rlim_cur = static_cast<rlim_t>(most);
            ::setrlimit(RLIMIT_NPROC, &limit);
        });
        const Run print = desk.run({"--demo", "--no-window", "--to", "out"});
        QENDED(print, 1);
        QVERIFY2(print.messages().size() == 1 && print.err.contains("ulimit -u"),
                 qPrintable(print.err));
        QVERIFY(!QFile::exists(desk.path("out")));
    }
}

void TestStories::endsWhereStandardInputIsClosed()
{
    Desk desk;
    desk.atStart([] { ::close(STDIN_FILENO); });
    const Run print = desk.run({"--demo", "--no-window", "--to", "out", "-"});
    QENDED(print, 1);
    QVERIFY2(print.err.contains("(stdin): "), qPrintable(print.err));
}

void TestStories::hearsShortcutsAfterASetUp()
{
    const Desk desk;
    write(desk.path("keys.kps"),
          "choose @jobType key SecurePrint\n"
          "type @passcode \"4815\"\n"
          "type @confirmPasscode \"4815\"\n"
          "click @okButton\n"
          "click @whatWillBeSent\n"
          "click @close\n"
          "key Ctrl+P\n");
    QENDED(desk.run({"--demo", "--no-window", "--to", "out", "--script", "keys.kps"}), 0);
    QVERIFY(QFile::exists(desk.path("out/document.pdf")));
}

void TestStories::keepsPresets()
{
    Desk desk;
    QENDED(desk.run({"--demo", "--no-window", "--script", script("save-preset.kps")}), 0);
    QENDED(desk.run({"--demo", "--no-window", "--preset", "Offset sets", "--to", "out"}), 0);
    QCOMPARE(optionsIn(desk.path("out/options")).values("Jog"), QStringList("EndOfSet"));

    Desk locked;
    QFile::setPermissions(locked.presetFolder(), QFile::ReadOwner | QFile::ExeOwner);
    QENDED(locked.run({"--demo", "--no-window", "--script", script("preset-not-saved.kps"), "--to",
                       "out"}),
           0);
    QFile::setPermissions(locked.presetFolder(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(filesIn(locked.presetFolder()).size(), 0);
}

void TestStories::keepsNoDefaultsInPresets()
{
    const Desk desk;
    const auto ownPreset = [&desk](const char *name) {
        return readTicketFile(desk.presetFolder() + u'/' + QLatin1String(name) + ".plist").value();
    };
    // To look at panels is to set nothing, though they write when they are first opened.
    write(desk.path("s.kps"),
          "tab 2\ntab 4\npanel SpecialPages\ntab 1\n"
          "expect @preset text \"Default Settings\"\n"
          "item @presetMenu 'PsSA'\ntype @presetName \"Nothing\"\nclick @ok\n"
          "tab 4\nchoose @requestOffset key EndOfSet\nchoose @requestOffset key None\n"
          "choose @paper key A5\nexpect @preset text \"Nothing*\"\n"
          "item @presetMenu 'PsSA'\ntype @presetName \"Something\"\nclick @ok\n"
          "choose @preset row 1\nexpect @paper text \"A4 (210 × 297 mm)\"\n"
          "choose @preset key Something\nexpect @paper text \"A5 (148 × 210 mm)\"\n"
          "expect @preset text \"Something\"\n");
    QENDED(desk.run({"--demo", "--no-window", "--script", "s.kps"}), 0);
    const TicketFile nothing = ownPreset("Nothing");
    QVERIFY(nothing.isPart && nothing.removed.empty());
    QCOMPARE(nothing.printSettings, Ticket());
    QCOMPARE(nothing.pageFormat, Ticket());
    const TicketFile something = ownPreset("Something");
    QCOMPARE(something.printSettings.ppdChoices,
             (PPDDictionary{{"Jog", "None"}, {"PageSize", "A5"}}));
    QVERIFY(something.printSettings.entries.empty());
    QCOMPARE(something.pageFormat.entries.size(), std::size_t(3)); // of the paper
}

void TestStories::leavesEachQueueItsOwnDefaults_data()
{
    QTest::addColumn<QStringList>("made"); // how the site's preset is made
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("duplex");
    QTest::addColumn<QString>("staple");
    QTest::addColumn<QString>("missing");

    const QStringList staple{"--script", "staple.kps"};
    const QStringList oneSided = staple + QStringList{"-o", "Duplex=None"};
    const QStringList toMid{"--script", "to-mid.kps"};
    const QString lacks = "Stapling: 1 Staple";
    const QString single = "SinglePortrait", both = "DuplexNoTumble";
    QTest::newRow("a device that staples")
        << staple << "Mid" << QStringList() << both << single << "";
    QTest::newRow("one that does not") << staple << "Bare" << QStringList() << ""
                                       << "" << lacks;
    QTest::newRow("a default that was chosen")
        << oneSided << "Mid" << QStringList() << "None" << single << "";
    QTest::newRow("from one to the other") << staple << "Bare" << toMid << both << single << "";
}

// A site's preset says what was set in it, and nothing else.
void TestStories::leavesEachQueueItsOwnDefaults()
{
    QFETCH(QStringList, made);
    QFETCH(QString, queue);
    QFETCH(QStringList, arguments);
    QFETCH(QString, duplex);
    QFETCH(QString, staple);
    QFETCH(QString, missing);
    const QString ppds = KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-";
    QCOMPARE(m_cups.addQueue("Bare", ppds + "bare.ppd"), QString());
    // The server lists "sides=one-sided" beside it, which it takes from the PPD.
    QCOMPARE(m_cups.addQueue("Mid", ppds + "mid.ppd", {"-o", "Duplex-default=DuplexNoTumble"}),
             QString());
    const Desk desk;
    write(desk.path("staple.kps"), "tab 1\nitem @finishingButton 'Stp1'\n");
    write(desk.path("to-mid.kps"), "choose @printer key Mid\nprint\n");
    QENDED(desk.run(QStringList{"--demo", "--no-window", "--preset-out", "site.plist"} + made), 0);
    QCOMPARE(QFile::permissions(desk.path("site.plist"))
                 & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
             QFile::Permissions());
    QVERIFY(QFile::copy(desk.path("site.plist"), desk.sitePresetFolder() + "/default.plist"));

    const std::size_t before = m_cups.jobs(0).size();
    const Run run = desk.run(QStringList{"-d", queue, "--no-window", documentPath} + arguments);
    QENDED(run, 0);
    const auto jobs = m_cups.jobs(static_cast<int>(before) + 1);
    QCOMPARE(jobs.size(), before + 1);
    QCOMPARE(jobs.back().options.value("Duplex").join(u' '), duplex);
    QCOMPARE(jobs.back().options.value("StapleLocation").join(u' '), staple);
    QStringList messages = run.messages();
    messages.removeIf([](const QString &line) { return line.startsWith("Expected PPD option"); });
    QCOMPARE(messages,
             missing.isEmpty() ? QStringList()
                               : QStringList{"kelvo-print: " + missing
                                             + ": not sent, this printer does not have it"});
}

void TestStories::keepsWhatIsChosenAsItIsShown_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QStringList>("expected");
    const QString settings = "PMPrintSettingsTicket/", pages = "PMPageFormatTicket/";
    QTest::newRow("the dialog's own")
        << QByteArray("set @copies 1\nchoose @orientation key portrait\n")
        << QStringList{pages + kPMOrientationKey, settings + kPMCopiesKey};
    QTest::newRow("pop-ups and menus")
        << QByteArray("tab 1\nchoose @jobType key Normal\nchoose @twoSided row 1\n"
                      "item @stockButton 'Sclr' key White\ntab 4\nchoose @bookletOrder row 2\n")
        << QStringList{settings + "com.kelvo.print.AdvancedBookletLayoutOrderStr",
                       settings + "com.kelvo.print.JobType/JobType", "PPDChoices/Duplex",
                       "PPDChoices/MediaColor"};
    QTest::newRow("menus that name what is set")
        << QByteArray("tab 1\nitem @finishingButton 'Stp0'\nitem @finishingButton 'Fld0'\n"
                      "click @coversButton\nchoose @coverOptions 1\nclick @okButton\n")
        << QStringList{"PPDChoices/KVBackCoverSheet", "PPDChoices/KVFold",
                       "PPDChoices/KVFrontCoverSheet", "PPDChoices/StapleLocation"};
    QTest::newRow("boxes and numbers")
        << QByteArray("tab 2\ncheck @mirrorImage off\ncheck @tonerSaver off\n"
                      "set @lightenDarken 0\n")
        << QStringList{settings + "com.kelvo.print.InvertImageOptions/MirrorImage",
                       "PPDChoices/KVEconomode", "PPDChoices/KVImageQuality"};
    const QByteArray offset = "tab 1\nitem @moreFinishing 'Foff'\nchoose @offset row 1\n";
    QTest::newRow("in a dialog, with OK") << offset
            + "click @okButton\n" << QStringList{settings + "com.kelvo.print.FinishingOffset"};
    QTest::newRow("in a dialog, with Cancel") << offset + "click @cancelButton\n" << QStringList();
    QTest::newRow("of a picture alone")
        << QByteArray("tab 1\nclick @separatorsButton\nchoose @separatorOption 2\n"
                      "choose @separatorColor key White\nclick @okButton\n")
        << QStringList{"PPDChoices/KVSlipSheetPrint"};
    QTest::newRow("seen and not chosen") << QByteArray("tab 1\ntab 2\ntab 4\n") << QStringList();
}

// In the next job the device's default may be another.
void TestStories::keepsWhatIsChosenAsItIsShown()
{
    QFETCH(QByteArray, lines);
    const Desk desk;
    write(desk.path("choose.kps"), lines);
    QENDED(desk.run(
               {"--demo", "--no-window", "--preset-out", "preset.plist", "--script", "choose.kps"}),
           0);
    const auto preset = readTicketFile(desk.path("preset.plist"));
    QVERIFY2(preset, preset ? "" : qPrintable(preset.error().text()));
    QStringList places;
    for (const TicketPlace &place : placesOf(preset.value()))
        places << place.join(u'/');
    places.sort();
    QTEST(places, "expected");
}

// What that device has by itself is nobody's loss here, also where it was chosen.
void TestStories::missesOfAnotherDevicesTicketWhatWasAsked()
{
    const Desk desk;
    write(desk.path("ask.kps"),
          "tab 1\nchoose @outputDestination key Auto\ntab 2\ncheck @mirrorImage on\nprint\n");
    QENDED(desk.run({"--demo", "--no-window", "-o", "KVOutputMode=Enhanced", "-o", "Duplex=None",
                     "--script", "ask.kps", "--ticket-out", "full.plist", "--to", "full"}),
           0);
    const QString ppd = KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-bare.ppd";
    const Run bare = desk.run({"--ppd", ppd, "--no-window", "--ticket-in", "full.plist",
                               "--ticket-out", "bare.plist", "--to", "bare", documentPath});
    QENDED(bare, 0);
    QStringList messages = bare.messages();
    messages.removeIf([](const QString &line) { return line.startsWith("Expected PPD option"); });
    QCOMPARE(messages,
             QStringList("kelvo-print: Image Quality: Enhanced: not sent, this printer "
                         "does not have it"));
    // And back: the second device adds nothing of its own.
    const auto full = readTicketFile(desk.path("full.plist"));
    const auto again = readTicketFile(desk.path("bare.plist"));
    QVERIFY(full && again);
    QVERIFY(full.value().asked && !full.value().asked->empty());
    QCOMPARE(again.value().asked, full.value().asked);
    QCOMPARE(again.value().choiceWords, full.value().choiceWords);

    const Run untold = desk.run({"--ppd", testPpds + "no-ticket.ppd", "--no-window", "--ticket-in",
                                 "full.plist", "--to", "untold", documentPath});
    QENDED(untold, 0);
    QVERIFY2(untold.err.contains("Mirror image: not sent, this printer reads no tickets\n"),
             qPrintable(untold.err));

    // The whole record of a job leaves nothing to the site's preset.
    write(desk.sitePresetFolder() + "/default.plist",
          CFPropertyListCreateXMLData(
              propertyListFrom(ticketWith({{"KVPunch", "3HolePunch"}, {"KVOutputMode", "Std"}})))
              .value());
    QENDED(desk.run({"--demo", "--no-window", "--ticket-in", "full.plist", "--to", "same"}), 0);
    auto same = optionsIn(desk.path("same/options")), first = optionsIn(desk.path("full/options"));
    for (auto *options : {&same, &first})
        options->remove(ticketOption); // of one job
    QCOMPARE(same, first);
}

void TestStories::refusesToPrintAConflict()
{
    const Desk desk;
    write(desk.path("clash.kps"),
          "tab 4\nchoose @requestOffset key EndOfSet\n"
          "choose @paper key Env10\nprint\n");
    const Run scripted =
        desk.run({"--demo", "--no-window", "--script", "clash.kps", "--to", "out"});
    QENDED(scripted, 3);
    QVERIFY2(scripted.err.contains("clash.kps:4: ") && scripted.err.contains("Request Offset"),
             qPrintable(scripted.err));
    const Run plain = desk.run(
        {"--demo", "--no-window", "-o", "Jog=EndOfSet", "-o", "PageSize=Env10", "--to", "out"});
    QENDED(plain, 3);
    QVERIFY2(plain.err.contains("No. 10 Envelope"), qPrintable(plain.err));
    QVERIFY(!QFile::exists(desk.path("out")));
}

void TestStories::laterSettingsBeatEarlierOnes()
{
    // Each layer sets the options of all later ones too, and each layer's first
    // option is set by no later one.
    const QStringList names{"InputSlot", "MediaColor", "OutputBin", "Resolution", "MediaType"};
    const QStringList words{"Tray2", "Ivory", "Top", "300x300dpi", "Bond"};
    const auto layer = [&](int first) {
        PPDDictionary choices;
        const QStringList others[] = {{},
                                      {"Buff", "Middle", "1200x600dpi", "Light"},
                                      {"Middle2", "1200x1200dpi", "Recycled"},
                                      {"200x200dpi", "Letterhead"}};
        for (int i = first; i < names.size(); ++i)
            choices.insert(names[i], i == first ? words[i] : others[first].value(i - 1));
        return choices;
    };
    const Desk desk;
    QVERIFY(QDir().mkpath(desk.path("../home/.cups")));
    write(desk.path("../home/.cups/lpoptions"),
          "Dest Hall-3 InputSlot=Tray2 MediaColor=Red OutputBin=Side Resolution=200x100dpi "
          "MediaType=Rough PageSize=A6\n");
    TicketFile site = ticketWith(layer(1));
    site.printSettings.ppdChoices.insert("PageSize", "A5");
    QVERIFY(writeTicketFile(desk.sitePresetFolder() + "/default.plist", site));
    QVERIFY(writeTicketFile(desk.presetFolder() + "/Own.plist", ticketWith(layer(2))));
    QVERIFY(writeTicketFile(desk.path("job.plist"), ticketWith(layer(3))));
    write(desk.path("last.kps"), "choose @paper key Letter\nprint\n");

    const std::size_t before = m_cups.jobs(0).size();
    const Run run = desk.run({"-d", "Hall-3", "--no-window", "--preset", "Own", "--ticket-in",
                              "job.plist", "-o", "MediaType=Bond", "-o", "PageSize=A3", "--script",
                              "last.kps", documentPath});
    QENDED(run, 0);
    const auto jobs = m_cups.jobs(static_cast<int>(before) + 1);
    QCOMPARE(jobs.size(), before + 1);
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(jobs.back().options.value(names[i]), QStringList(words[i]));
    QCOMPARE(jobs.back().options.value("PageSize"), QStringList("Letter"));
}

void TestStories::refusesWhatCannotBeDone_data()
{
    QTest::addColumn<QByteArray>("lines"); // of a script; empty: there is none
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message"); // a part of it

    const auto row = [](const char *name, const char *lines, int status, const char *message,
                        const QStringList &arguments = {"--demo", "--to", "out"}) {
        QTest::newRow(name) << QByteArray(lines) << arguments << status << message;
    };
    const QStringList hall{"-d", "Hall-3", documentPath};
    row("unknown command", "tab 4\nchose @x row 1\n", 2, "s.kps:2: there is no command \"chose\"");
    row("unknown control", "tab 4\nclick @prnt\n", 2, "s.kps:2: @prnt is not in the window");
    row("panel not shown yet", "click KPDE 1000\n", 3,
        "KPDE 1000 is not in the window; it is in panel SpecialPages");
    row("dialog not open", "click KPDE 8542\n", 3,
        "KPDE 8542 is not in the window; it is in the dialog \"");
    row("unknown tab", "tab 7\n", 2, "s.kps:1: 7: there is no such tab");
    row("unknown panel", "panel Advancd\n", 2, "s.kps:1: Advancd: there is no such panel");
    row("expectation", "expect @copies value 2\n", 2, "s.kps:1: value of @copies is \"1\"");
    row("item not offered", "tab 4\nchoose @requestOffset key Spiral\n", 3, "s.kps:2: ");
    row("control disabled", "check @collate off\n", 3, "s.kps:1: @collate");
    row("pages out of range", "choose @pagesChoice key range\ntype @pages \"9\"\nprint\n", 2,
        "s.kps:3: Pages: The document has pages 1 to 6.");
    row("pages backwards", "choose @pagesChoice key range\ntype @pages \"4-2\"\nprint\n", 2,
        "s.kps:3: Pages: The last page comes before the first; write 2-4.");
    row("dialog left open", "tab 4\nclick @aboutButton\n", 2, "s.kps:2: the script ends while");
    row("notice not met", "item @presetMenu 'PsSA'\ntype @presetName \"\"\nclick @ok\n", 1,
        "A preset cannot have this name");
    row("lines after the end", "cancel\nclick @print\n", 2, "s.kps:2: the dialog is closed");
    row("cancelled, in spite of --print", "cancel\n", 0, "", {"--demo", "--to", "out", "--print"});
    row("no queue", "print\n", 4, "s.kps:1: ", {"--demo"});
    row("no server", "print\n", 4,
        "no print server can be reached at 127.0.0.1:1:", {documentPath});
    row("no default printer", "print\n", 4, "Name one with -d", {documentPath});
    row("unknown destination", "", 4, "Hall-3", {"-d", "Hal-3", documentPath});
    row("unknown option name", "", 3, "Jogg", hall + QStringList{"-o", "Jogg=None"});
    row("unknown choice", "", 3, "Jog", hall + QStringList{"-o", "Jog=Spiral"});
    row("no such switch", "", 2, "--ticket-in", hall + QStringList{"--tiket-in", "x"});
    row("copies beyond reason", "", 2, "-n", hall + QStringList{"-n", "10000"});
    row("unknown preset", "", 2, "Nightly", hall + QStringList{"--preset", "Nightly"});
    row("secret that others can read", "print\n", 2, "0600",
        hall + QStringList{"--secret", "code=open.txt"});
}

void TestStories::refusesWhatCannotBeDone()
{
    QFETCH(QByteArray, lines);
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, message);
    Desk desk;
    if (message.contains("127.0.0.1:1:"))
        desk.set("CUPS_SERVER", "127.0.0.1:1");
    const std::size_t before = m_cups.jobs(0).size();
    write(desk.path("open.txt"), passcode.toUtf8());
    QFile::setPermissions(desk.path("open.txt"), QFile::ReadOwner | QFile::ReadOther);
    write(desk.path("s.kps"), lines);
    if (!lines.isEmpty())
        arguments << "--script"
                  << "s.kps";
    const Run run = desk.run(arguments << "--no-window");
    QENDED(run, status);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QVERIFY(!run.err.contains(passcode));
    QCOMPARE(run.out, QString());
    QVERIFY(!QFile::exists(desk.path("out")));
    QCOMPARE(m_cups.jobs(0).size(), before);
}

void TestStories::makesPictures_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("1x") << 1;
    QTest::newRow("2x") << 2;
}

void TestStories::makesPictures()
{
    QFETCH(int, scale);
    Desk desk;
    // A screen with room for the window at that scale.
    write(desk.path("screen.json"),
          "{\"screens\": [{\"name\": \"S\", \"x\": 0, \"y\": 0, \"width\": 3840, \"height\": 2400,"
          " \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}");
    desk.set("QT_QPA_PLATFORM", "offscreen:configfile=" + desk.path("screen.json"));
    desk.set("QT_SCALE_FACTOR", QString::number(scale));
    QENDED(desk.run({"--demo", "--script", script("pictures.kps")}), 0);
    const QImage window(desk.path("window.png"));
    QCOMPARE(window.size(), QSize(900, 660) * scale);
    // The first page is in it, which is drawn later than the window.
    int coloured = 0;
    for (int y = 190; y < 300; ++y)
        coloured += window.pixelColor(QPoint(100, y) * scale).saturation() > 150;
    QVERIFY2(coloured > 20, qPrintable(QString::number(coloured)));
    QCOMPARE(QFile::permissions(desk.path("window.png"))
                 & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
             QFile::Permissions());
    for (const char *name : {"about.png", "details.png"})
        QVERIFY2(QImage(desk.path(name)).width() > 200 * scale, name);
    const QString kept = qEnvironmentVariable("KELVO_KEEP_PICTURES");
    for (const char *name : {"window", "about", "details"})
        if (!kept.isEmpty())
            QFile::copy(desk.path(name + QStringLiteral(".png")),
                        QStringLiteral("%1/%2-%3x.png").arg(kept, QLatin1String(name)).arg(scale));
}

QTEST_GUILESS_MAIN(TestStories)
#include "test_stories.moc"
