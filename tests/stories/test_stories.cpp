#include "kelvo_print.h"
#include "private_cups.h"
#include "property_list.h"
#include "sample_ppds.h"
#include "table.h"
#include "ticket_file.h"
#include "ticket_layers.h"
#include "unreliable_server.h"

#include <QCryptographicHash>
#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include <poppler-qt6.h>

#include <csignal>
#include <fcntl.h>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>

using namespace kelvo;

namespace {

const QString fullPpd = samplePpd("full");
const QString ticketOption = QStringLiteral("kelvo-ticket");
const QString passcode = QStringLiteral("48151623");
const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;

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
    void init() { m_jobsBefore = m_cups.jobs(0).size(); }

    void printsTheBundledDeviceIntoAFolder();
    void takesDocumentsFromStandardInput();
    void saysWhatARawQueueIsTold();
    void sendsDividersToAQueue();
    void cutsPagesOnlyOnce();
    void refusesASecretThatWouldLieOpen();
    void saysThatThereIsNoHelp();
    void printsOtherMakersDevices();
    void readsScriptsFromAPipeToTheirEnd();
    void keepsPagesAcrossPresetsAndPrinters();
    void countsSheetsAsThePrinterDoes();
    void saysWhatItsPanelsLack();
    void saysThatTheDocumentIsDamaged();
    void refusesBrokenInputs_data();
    void refusesBrokenInputs();
    void waitsForADeadServerOnlySoLong();
    void listsQueuesForAShell();
    void printsPlainlyOnlyWhereThereIsNoPpd();
    void endsOnAnInterrupt();
    void waitsForItsJob();
    void beginsNoScriptWithWhatWasUsedLast();
    void keepsWhatTheUserNamed_data();
    void keepsWhatTheUserNamed();
    void tellsOfAnOutputThatIsFull();
    void endsWhereThereAreNoThreads();
    void endsWhereStandardInputIsClosed();
    void seesHowChildrenEndWhereTheCallerDoesNotLook();
    void asksForADocumentWhereNoneIsNamed();
    void saysThatNoWindowCanBeShown_data();
    void saysThatNoWindowCanBeShown();
    void hearsShortcutsAfterASetUp();
    void saysThatAPresetCannotBeKept();
    void leavesEachQueueItsOwnDefaults();
    void keepsWhatIsChosenAsItIsShown_data();
    void keepsWhatIsChosenAsItIsShown();
    void missesOfAnotherDevicesTicketWhatWasAsked();
    void refusesToPrintAConflict();
    void laterSettingsBeatEarlierOnes();
    void refusesWhatCannotBeDone_data();
    void refusesWhatCannotBeDone();
    void makesPictures();

private:
    // The one job that a test has sent to a queue; an empty one where there is not one.
    PrivateCups::Job sentJob()
    {
        const auto jobs = m_cups.jobs(static_cast<int>(m_jobsBefore) + 1);
        return jobs.size() == m_jobsBefore + 1 ? jobs.back() : PrivateCups::Job();
    }

    PrivateCups m_cups;
    std::size_t m_jobsBefore = 0;
};

void TestStories::initTestCase()
{
    QCOMPARE(m_cups.start(), QString());
    QCOMPARE(m_cups.addQueue(QStringLiteral("Hall-3"), fullPpd), QString());
    QCOMPARE(m_cups.addQueue(QStringLiteral("No-Ticket"), ppdWithoutTicket()), QString());
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
    QCOMPARE(ticketProblem(bytesOf(folder + "/document.pdf"), options.value(ticketOption), "none"),
             QString());
    QCOMPARE(attachmentIn(bytesOf(folder + "/document.pdf"), "kelvo-ticket.plist"),
             bytesOf(folder + "/ticket.plist"));
}

void TestStories::takesDocumentsFromStandardInput()
{
    const Desk desk;
    const QString folder = desk.path("out");
    const QStringList arguments{"--ppd", fullPpd, "--no-window", "--to", folder};
    const Run pages = desk.run(arguments + QStringList{"-P", "2,5-", "-n", "3", "-t", "Quarter"},
                               bytesOf(documentPath));
    QENDED(pages, 0);
    QCOMPARE(pages.out, folder + " Quarter\n");
    QCOMPARE(optionsIn(folder + "/options").values("copies"), QStringList("3"));
    QCOMPARE(Poppler::Document::load(folder + "/document.pdf")->numPages(), 3);

    const Run text = desk.run(arguments, "One line.\n");
    QENDED(text, 0);
    QCOMPARE(text.out, folder + " (stdin)\n");
    QCOMPARE(Poppler::Document::load(folder + "/document.pdf")->numPages(), 1);
}

// A queue without a PPD: the words, the window and the job agree.
void TestStories::saysWhatARawQueueIsTold()
{
    QCOMPARE(m_cups.addQueue("Raw", {}), QString());
    const Desk desk;
    QVERIFY(writeTicketFile(desk.path("t.plist"), ticketWith({{"Duplex", "DuplexTumble"}})));
    putFile(desk.path("raw.kps"),
            "expect @waitingText text \"The print server has no description of its settings.\\n"
            "Copies and pages work as usual. Paper size, orientation and collating are passed on; "
            "whether they are heeded is up to the printer.\"\n"
            "expect @paper text \"A4\"\nexpect @paper enabled false\n"
            "expect @summary text \"6 pages, 6 sheets\"\n"
            "expect @conflictText text \"Not sent, for the print server has no description of this "
            "printer: Duplex: DuplexTumble. It is kept, and comes back with a printer that has "
            "it.\"\nsummary\nprint\n");

    const Run run = desk.run({"-d", "Raw", "--no-window", "--script", "raw.kps", "--ticket-in",
                              "t.plist", "-o", "media=A4", documentPath});
    QENDED(run, 0);
    QVERIFY(!sentJob().id.isEmpty()); // or the next would count it
    QVERIFY(run.out.contains("Paper size: A4 – passed on"));
    const QString unknown = "the print server has no description of this printer";
    QVERIFY(run.out.contains("Not sent:\n  Duplex: DuplexTumble – " + unknown));
    QCOMPARE(run.messages(),
             QStringList("kelvo-print: Duplex: DuplexTumble: not sent, " + unknown));
}

void TestStories::sendsDividersToAQueue()
{
    const Desk desk;
    const QString example = QStringLiteral(KELVO_SOURCE_DIR "/docs/examples/dividers.kps");
    const Run run = desk.run({"-d", "Hall-3", "--no-window", "--script", example, documentPath});
    QENDED(run, 0);
    QCOMPARE(run.messages(), QStringList());
    for (const char *words :
         {"Front cover source: Tray 1", "Inserts: after page 2 (Sheets [1]; Blue), ",
          "Exception pages: 5 (Yellow)\n"})
        QVERIFY2(run.out.contains(words), qPrintable(run.out));

    const PrivateCups::Job job = sentJob();
    QVERIFY2(run.out.endsWith("Hall-3-" + job.id + " document.pdf\n"), qPrintable(run.out));
    QCOMPARE(job.title, "document.pdf");
    for (const char *option : {"KVFrontCoverSheet", "KVBackCoverSheet"})
        QCOMPARE(job.options.value(option), QStringList("Tray1"));
    QCOMPARE(job.options.value(ticketOption).size(), 1);
    QCOMPARE(ticketProblem(job.document, job.options.value(ticketOption).first(), "none"),
             QString());
}

// A queue's defaults are read once; its filters do not apply them again.
void TestStories::cutsPagesOnlyOnce()
{
    QCOMPARE(m_cups.addQueue("Half", fullPpd,
                             {"-o", "page-ranges-default=2-3", "-o", "mirror-default=true", "-o",
                              "outputorder-default=reverse"}),
             QString());
    const Desk desk;
    const Run run = desk.run({"-d", "Half", "--no-window", documentPath});
    QENDED(run, 0);

    const PrivateCups::Job job = sentJob();
    QCOMPARE(job.options.value("page-ranges"), QStringList("1-2147483647"));
    QCOMPARE(job.options.value("mirror"), QStringList("false"));
    QCOMPARE(job.options.value("outputorder"), QStringList("normal"));
    const auto pdf = Poppler::Document::loadFromData(job.document);
    QVERIFY(pdf);
    QCOMPARE(pdf->numPages(), 2);

    // All, once chosen, outlasts the queue's default and a preset.
    putFile(desk.path("s.kps"),
            "choose @pagesChoice key all\nchoose @preset row 1\n"
            "expect @pagesChoice text \"All\"\n");
    QENDED(desk.run({"-d", "Half", "--no-window", "--script", "s.kps", documentPath}), 0);
}

void TestStories::refusesASecretThatWouldLieOpen()
{
    const QStringList queue{"-d", "No-Ticket"};
    const QStringList folder{"--ppd", ppdWithoutTicket(), "--to", "out"};
    const Desk desk;
    putFile(desk.path("look.kps"), "summary\nprint\n");
    for (const QStringList &device : {queue, folder}) {
        const Run run = desk.run(device
                                 + QStringList{"--no-window", "--script", "look.kps", "--ticket-in",
                                               secureTicket(desk), documentPath});
        QENDED(run, 3);
        QVERIFY(!run.out.contains(passcode) && !run.err.contains(passcode));
        QVERIFY(run.out.contains("••••"));
        QCOMPARE(run.messages().size(), 1);
        QVERIFY2(run.err.contains("passcode") && run.err.contains("*KelvoTicket"),
                 qPrintable(run.err));
        QVERIFY(!QFile::exists(desk.path("out")));
    }
    QTest::qWait(200); // for a job that must not come
    QCOMPARE(m_cups.jobs(0).size(), m_jobsBefore);
}

void TestStories::saysThatThereIsNoHelp()
{
    Desk desk;
    desk.set("KELVO_BUNDLE", "gone"); // the pages lie in it
    putFile(
        desk.path("help.kps"),
        "click @help\nexpect-notice \"The folder with the help pages is missing.\"\nanswer 1\n");
    QENDED(desk.run({"--demo", "--no-window", "--script", "help.kps"}), 0);
}

void TestStories::printsOtherMakersDevices()
{
    const Desk desk;
    const QByteArray maker = "Kelvodyne"; // begins like ours
    QByteArray ppd = bytesOf(ppdWithoutTicket());
    putFile(desk.path("plain.ppd"), ppd.replace("\"Kelvo\"", '"' + maker + '"'));
    putFile(desk.path("ticket.ppd"),
            ppd.replace("*Manufacturer:", "*KelvoTicket: \"1\"\n*Manufacturer:"));
    putFile(desk.path("show.kps"), bytesOf(script("foreign.kps")) + "summary\n");
    const QStringList device{"--no-window", documentPath, "--ppd"};

    const Run told = desk.run(device + QStringList{"plain.ppd", "--script", "show.kps"});
    QENDED(told, 0);
    QVERIFY2(told.out.contains("Paper Source: Bypass Tray"), qPrintable(told.out));

    // The ticket goes only where the PPD asks for it, whoever made the device.
    for (const bool readsTickets : {false, true}) {
        const Run printed = desk.run(
            device + QStringList{readsTickets ? "ticket.ppd" : "plain.ppd", "--to", "out"});
        QENDED(printed, 0);
        QCOMPARE(printed.messages(), QStringList());
        QCOMPARE(optionsIn(desk.path("out/options")).values("PageSize"), QStringList("A4"));
        const QByteArray pdf = bytesOf(desk.path("out/document.pdf"));
        QCOMPARE(Poppler::Document::loadFromData(pdf)->numPages(), 6);
        QCOMPARE(optionsIn(desk.path("out/options")).contains(ticketOption), readsTickets);
        QCOMPARE(!attachmentIn(pdf, "kelvo-ticket.plist").isEmpty(), readsTickets);
    }
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
    putFile(desk.path("s.kps"),
            "choose @pagesChoice key range\ntype @pages \"2-3\"\nchoose @preset row 1\n"
            "choose @printer key No-Ticket\n"
            "expect @bannerSheet visible false\n" // a hidden tab's, and there
            "print\n");
    const Run run = desk.run({"-d", "Hall-3", "--no-window", "--script", "s.kps", documentPath});
    QENDED(run, 0);
    const PrivateCups::Job job = sentJob();
    QCOMPARE(Poppler::Document::loadFromData(job.document)->numPages(), 2);
}

void TestStories::countsSheetsAsThePrinterDoes()
{
    const Desk desk;
    QByteArray ppd = bytesOf(fullPpd);
    ppd.replace("*DefaultDuplex: None", "*DefaultDuplex: DuplexNoTumble");
    putFile(desk.path("two-sided.ppd"), ppd);
    TicketFile ticket = ticketWith({{"KVFrontCoverSheet", "Tray2"}});
    ticket.printSettings.entries["com.kelvo.print.SpecialPages.InsertList"].value =
        Array{Dictionary{{"StartPage", 1}, {"Quantity", 2}}};
    QVERIFY(writeTicketFile(desk.path("special.plist"), ticket));
    putFile(desk.path("s.kps"),
            "expect @summary text \"6 pages, 7 sheets\"\n"
            "expect @previewPage text \"Sheet 2, front · page 1 of 6\"\n");
    QENDED(desk.run({"--ppd", "two-sided.ppd", "--no-window", "--ticket-in", "special.plist",
                     "--script", "s.kps", documentPath}),
           0);

    // Four pages of a booklet come on a sheet, made to fit: none is larger than the paper.
    TicketFile booklet;
    booklet.printSettings.entries["com.kelvo.print.BookletLayout"].value = true;
    QVERIFY(writeTicketFile(desk.path("booklet.plist"), booklet));
    putFile(desk.path("s.kps"),
            "expect @summary text \"6 pages, 2 sheets\"\n"
            "expect @previewPage text \"Sheet 1, front · page 1 of 6, one blank\\nshown left to "
            "right; the printer decides\"\n"
            "expect @conflictText visible false\n");
    QENDED(desk.run({"--ppd", "two-sided.ppd", "--no-window", "--ticket-in", "booklet.plist", "-o",
                     "media=A5", "--script", "s.kps", documentPath}),
           0);
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
        putFile(path, bytesOf(path).replace('>' + *control + '<', ">KPDE 9999<"));
    }
    putFile(desk.path("show.kps"),
            "panel ImageOptions\npanel Advanced\npanel SpecialPages\nprint\n");
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
    putFile(desk.path("damaged.pdf"), bytesOf(documentPath).replace("startxref", "startxxxx"));
    const Run run = desk.run({"--ppd", fullPpd, "--no-window", "--to", "out", "damaged.pdf"});
    QENDED(run, 0);
    QVERIFY2(run.err.contains("caution: The document is damaged"), qPrintable(run.err));

    // Also where nothing is printed.
    putFile(desk.path("no.pdf"), "%PDF-1.7\n");
    putFile(desk.path("look.kps"), "summary\n");
    const Run looked =
        desk.run({"--ppd", fullPpd, "--no-window", "--script", "look.kps", "no.pdf"});
    QENDED(looked, 0);
    QVERIFY2(looked.out.contains("The document cannot be opened: no.pdf"), qPrintable(looked.out));
}

void TestStories::refusesBrokenInputs_data()
{
    const Table<QString, QString, int> row{"kind", "damage", "status"};

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
            row(name.constData(), kind, damage, (isUnknown ? 2 : status));
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
    putFile(paths["ppd"], bytesOf(fullPpd));
    putFile(paths["document"], bytesOf(documentPath));
    putFile(paths["script"], "tab 4\nexpect @preset text \"Sets\"\nprint\n");
    QVERIFY(writeTicketFile(paths["ticket"], ticket));
    QVERIFY(writeTicketFile(paths["preset"], ticket));
    const QStringList arguments{"--ppd",       "device.ppd", "--ticket-in", "job.plist",
                                "--preset",    "Sets",       "--script",    "job.kps",
                                "--no-window", "--to",       "out",         "Budget.pdf"};
    QENDED(desk.run(arguments), 0); // all is well with them
    const auto stood = filesIn(desk.path("out"));
    QCOMPARE(stood.size(), 3);

    const QString path = paths.value(kind);
    const QByteArray whole = bytesOf(path);
    QVERIFY(QFile::remove(path));
    if (damage == "empty") {
        putFile(path, {});
    } else if (damage == "truncated") {
        // In the middle of a text; libcups takes any whole line of a PPD for its end.
        putFile(path, whole.left(kind == "script" ? 28 : kind == "ppd" ? 15 : whole.size() / 2));
    } else if (damage == "binary") {
        QByteArray bytes(5000, '\0');
        for (qsizetype i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<char>((i * 7919 >> 3) ^ i);
        putFile(path, bytes);
    } else if (damage == "huge") {
        putFile(path, {});
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

void TestStories::waitsForADeadServerOnlySoLong()
{
    const UnreliableServer server(UnreliableServer::Trouble::NeverAnswers);
    Desk desk;
    desk.set("CUPS_SERVER", server.address());
    putFile(desk.path("cancel.kps"), "cancel\n");
    const QStringList list{"--list-printers"}, print{"-d", "Hall-3", "--no-window", documentPath};
    const QStringList cancel{"--no-window", "--script", "cancel.kps", documentPath};
    for (const QStringList &arguments : {list, print, cancel}) {
        const Run run = desk.run(QStringList{"--timeout", "2"} + arguments);
        QENDED(run, arguments == cancel ? 0 : 4);
        QVERIFY2(run.ms < 6000, qPrintable(QString::number(run.ms)));
        QVERIFY2(arguments == cancel
                     || (run.err.startsWith("kelvo-print: ") && run.err.contains(server.address())),
                 qPrintable(run.err));
    }
}

void TestStories::listsQueuesForAShell()
{
    QCOMPARE(m_cups.addQueue("Zz.1_cellar~", {}, {"-L", "Back  room\tleft", "-D", " "}), QString());
    QCOMPARE(m_cups.administer({"Zz.1_cellar~"}, "cupsdisable"), QString());
    QCOMPARE(m_cups.administer({"No-Ticket"}, "cupsreject"), QString());
    Desk desk;
    desk.set("LPDEST", "Hall-3");
    desk.under({"sh", "-c",
                "\"$@\" | while read -r name state default rest; do "
                "echo \"[$name][$state][$default][$rest]\"; done",
                "sh"});
    const Run run = desk.run({"--list-printers"});
    QCOMPARE(m_cups.administer({"No-Ticket"}, "cupsaccept"), QString());
    QCOMPARE(m_cups.administer({"-x", "Zz.1_cellar~"}), QString());
    QENDED(run, 0);
    for (const char *line : {"[Hall-3][idle][default][Kelvo Corvane C90\t-]\n",
                             "[No-Ticket][rejecting][-][Kelvo Corvane N10\t-]\n",
                             "[Raw][idle][-][Local Raw Printer\t-]\n",
                             "[Zz.1_cellar~][stopped][-][Local Raw Printer\tBack room left]\n"})
        QVERIFY2(run.out.contains(QLatin1String(line)), qPrintable(run.out));
}

void TestStories::printsPlainlyOnlyWhereThereIsNoPpd()
{
    const Desk desk;
    QVERIFY(m_cups.damagePpd("Hall-3", bytesOf(fullPpd).left(20'000)));
    const Run damaged = desk.run({"-d", "Hall-3", "--no-window", documentPath});
    QVERIFY(m_cups.damagePpd("Hall-3", bytesOf(fullPpd)));
    QENDED(damaged, 4);
    QVERIFY2(damaged.err.contains("damaged"), qPrintable(damaged.err));

    QENDED(desk.run({"-d", "Raw", "--no-window", documentPath}), 0);
    QVERIFY(!sentJob().id.isEmpty());
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

    // Nor is it lost silently with the display.
    QProcess display;
    display.start(KELVO_XVFB, {"-displayfd", "1"});
    QVERIFY(display.waitForReadyRead(10'000));
    desk.unset("QT_QPA_PLATFORM");
    desk.set("DISPLAY", u':' + QString::fromLatin1(display.readAllStandardOutput().trimmed()));
    putFile(desk.path("print.kps"), "print\n");
    QProcess window;
    desk.prepare(window, {"-d", "Hall-3", "--script", "print.kps", documentPath});
    window.start();
    QVERIFY(!window.waitForFinished(2500));
    display.kill();
    QVERIFY(display.waitForFinished() && window.waitForFinished(10'000));
    QCOMPARE(window.exitCode(), 1);
    const QByteArray told = window.readAllStandardError();
    QVERIFY2(told.contains("the display has gone away") && told.contains("may have been accepted"),
             told.constData());

    const Run ready = Desk().interrupt({"--demo"}, 700);
    QENDED(ready, 130);
    QVERIFY2(ready.ms < 4000, qPrintable(QString::number(ready.ms)));
    QCOMPARE(ready.messages(), QStringList());
}

void TestStories::waitsForItsJob()
{
    const Desk desk;
    const QStringList held{"-d",   "Hall-3", "--no-window", "--wait",    "-H",
                           "hold", "-q",     "70",          documentPath};
    const Run printed = desk.run({"-d", "Hall-3", "--no-window", "--wait", documentPath});
    QENDED(printed, 0);
    QCOMPARE(printed.messages().last(),
             "kelvo-print: " + printed.out.section(' ', 0, 0) + ": printed");

    // Who is interrupted leaves the job alone.
    const Run left = desk.interrupt(held, QByteArray("held until"));
    QENDED(left, 130);
    const QString job = left.out.section(' ', 0, 0);
    QVERIFY2(left.err.contains(job + " goes on without this program"), qPrintable(left.err));
    QCOMPARE(QProcess::execute("cancel", {job}), 0);

    QProcess process;
    desk.prepare(process, held);
    process.start();
    process.setReadChannel(QProcess::StandardError);
    QVERIFY(process.waitForReadyRead(15'000));
    QCOMPARE(QProcess::execute("cancel", {"-a"}), 0);
    QVERIFY(process.waitForFinished(15'000));
    QCOMPARE(process.exitCode(), 130);
    QVERIFY(process.readAllStandardError().trimmed().endsWith(": cancelled"));
}

// What people printed with last is where their windows begin, and nothing else.
void TestStories::beginsNoScriptWithWhatWasUsedLast()
{
    const Desk desk;
    const QString folder = QFileInfo(desk.presetFolder()).path();
    QVERIFY(QDir().mkpath(folder));
    const QByteArray used = "<plist version=\"1.0\"><dict><key>Printer</key><string>Gone</string>"
                            "<key>Settings</key><dict><key>FormatVersion</key><integer>1</integer>"
                            "<key>IsPart</key><true/><key>PMPrintSettingsTicket</key><dict/>"
                            "<key>PPDChoices</key><dict><key>StapleLocation</key>"
                            "<string>SinglePortrait</string></dict></dict></dict></plist>";
    const QString path = folder + "/com.kelvo.print.lastused.plist";
    putFile(path, used);
    putFile(desk.path("print.kps"), "print\n");
    for (const QStringList &driven : {QStringList{"--no-window"}, {"--script", "print.kps"}}) {
        const int before = int(m_cups.jobs(0).size());
        const Run run = desk.run(
            QStringList{"-d", "Hall-3", "-o", "KVPunch=2HolePunch", documentPath} + driven);
        QENDED(run, 0);
        const auto options = m_cups.jobs(before + 1).back().options;
        QCOMPARE(options.value("KVPunch"), QStringList("2HolePunch"));
        QVERIFY(options.value("StapleLocation") != QStringList("SinglePortrait"));
        QCOMPARE(bytesOf(path), used);
    }
}

// Nothing that the user named is lost to what the program writes.
void TestStories::keepsWhatTheUserNamed_data()
{
    const Table<QStringList, int, QString> table{"arguments", "status", "message"};
    const auto row = [&](const QStringList &arguments, int status, const char *message) {
        table(qPrintable(arguments.join(u' ')), arguments, status, message);
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
        "kelvo-print: --ticket-in: keep.txt is not a ticket file (line 1: syntax error); name one "
        "that --ticket-out or --preset-out wrote");
    row({"--ticket-in", "other.plist", "keep.txt"}, 6,
        "kelvo-print: --ticket-in: other.plist is not a ticket file (FormatVersion: missing); name "
        "one that --ticket-out or --preset-out wrote");
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
    putFile(desk.path("document.pdf"), bytesOf(documentPath));
    QVERIFY(QFile::link(desk.path("document.pdf"), desk.path("link.pdf")));
    putFile(desk.path("keep.txt"), "years of work\n");
    putFile(desk.path("run.kps"), "print\n");
    putFile(desk.path("other.plist"), "<plist><dict/></plist>");
    QVERIFY(QDir().mkpath(desk.path("busy/options")));
    putFile(desk.path("busy/ticket.plist"), "an older one\n");
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

// What a caller ignores is ignored in what it runs, and the kernel forgets how children end then.
void TestStories::seesHowChildrenEndWhereTheCallerDoesNotLook()
{
    Desk desk;
    desk.atStart([] { std::signal(SIGCHLD, SIG_IGN); });
    putFile(desk.path("half.ps"), "%!PS\nshowpage\nnoSuchOperator\n");
    QENDED(desk.run({"--demo", "--no-window", "--to", "out", "half.ps"}), 1);
    QVERIFY(!QFile::exists(desk.path("out/document.pdf")));
    QENDED(desk.run({"--demo", "--no-window", "--to", "out"}), 0);
}

// As a menu of the desktop starts it, or somebody in a terminal.
void TestStories::asksForADocumentWhereNoneIsNamed()
{
    Desk desk;
    desk.atStart([] {
        const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
        ::unlockpt(terminal);
        ::dup2(::open(::ptsname(terminal), O_RDWR | O_NOCTTY), STDIN_FILENO);
    });
    desk.set("QT_LOGGING_RULES", "qt.accessibility.cache.debug=true"); // tells of each window
    const Run chooser = desk.interrupt({"--ppd", fullPpd}, QByteArray("\"documentChooser\""));
    QENDED(chooser, 130);
    QVERIFY2(!chooser.err.contains("kelvo-print: "), qPrintable(chooser.err));

    const Run nobodyToAsk = desk.run({"--ppd", fullPpd, "--no-window", "--to", "out"});
    QENDED(nobodyToAsk, 2);
    QVERIFY2(nobodyToAsk.err.contains("there is no document"), qPrintable(nobodyToAsk.err));
}

// Qt would abort.
void TestStories::saysThatNoWindowCanBeShown_data()
{
    using Variables = QMap<QString, QString>;
    // reason: Qt's own, which tells a wrong name from a library that is missing
    const Table<Variables, QString, QString> row{"display", "message", "reason"};
    row("none", Variables(), "there is no display to show the dialog on", "");
    row("unknown platform", Variables{{"QT_QPA_PLATFORM", "nonsense"}}, "QT_QPA_PLATFORM=nonsense",
        "find the Qt platform plugin \"nonsense\"");
    row("no X server", Variables{{"DISPLAY", "127.0.0.1:9999"}}, "DISPLAY=127.0.0.1:9999;",
        "(could not connect to display 127.0.0.1:9999; ");
    row("no compositor", Variables{{"WAYLAND_DISPLAY", "wayland-77"}},
        "WAYLAND_DISPLAY=wayland-77;", "the Qt platform plugin \"wayland\"");
    row("neither of both", Variables{{"DISPLAY", "127.0.0.1:9999"}, {"WAYLAND_DISPLAY", "w\n"}},
        "WAYLAND_DISPLAY=w\\n, DISPLAY=127.0.0.1:9999;", "the Qt platform plugin \"xcb\"");
}

void TestStories::saysThatNoWindowCanBeShown()
{
    using Variables = QMap<QString, QString>;
    QFETCH(Variables, display);
    QFETCH(QString, message);
    QFETCH(QString, reason);
    Desk desk;
    for (const char *name :
         {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE", "QT_LOGGING_RULES"})
        desk.unset(name);
    for (auto variable = display.cbegin(); variable != display.cend(); ++variable)
        desk.set(variable.key(), variable.value());
    const Run window = desk.run({"--demo"});
    QENDED(window, 1);
    QCOMPARE(window.messages().size(), 1);
    QVERIFY2(window.err.contains(message) && window.err.contains("--no-window")
                 && window.err.contains(reason),
             qPrintable(window.err));

    const Run job = desk.run({"--demo", "--no-window", "--to", "out"});
    QENDED(job, 0);
    QCOMPARE(job.err, QString());
    QENDED(desk.run({"--list-controls"}), 0);
}

void TestStories::hearsShortcutsAfterASetUp()
{
    const Desk desk;
    putFile(desk.path("keys.kps"),
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

void TestStories::saysThatAPresetCannotBeKept()
{
    const Desk locked;
    QFile::setPermissions(locked.presetFolder(), QFile::ReadOwner | QFile::ExeOwner);
    QENDED(locked.run({"--demo", "--no-window", "--script", script("preset-not-saved.kps"), "--to",
                       "out"}),
           0);
    QFile::setPermissions(locked.presetFolder(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(filesIn(locked.presetFolder()).size(), 0);
}

// A site's preset says what was set in it, and nothing else.
void TestStories::leavesEachQueueItsOwnDefaults()
{
    QCOMPARE(m_cups.addQueue("Bare", samplePpd("bare")), QString());
    // The server lists "sides=one-sided" beside it, which it takes from the PPD.
    QCOMPARE(m_cups.addQueue("Mid", samplePpd("mid"), {"-o", "Duplex-default=DuplexNoTumble"}),
             QString());
    const Desk desk;
    putFile(desk.path("staple.kps"), "tab 1\nitem @finishingButton 'Stp1'\n");
    QENDED(
        desk.run({"--demo", "--no-window", "--preset-out", "site.plist", "--script", "staple.kps"}),
        0);
    QCOMPARE(QFile::permissions(desk.path("site.plist")) & others, QFile::Permissions());
    QVERIFY(QFile::copy(desk.path("site.plist"), desk.sitePresetFolder() + "/default.plist"));

    QENDED(desk.run({"-d", "Mid", "--no-window", documentPath}), 0);
    const PrivateCups::Job job = sentJob();
    QCOMPARE(job.options.value("Duplex"), QStringList("DuplexNoTumble"));
    QCOMPARE(job.options.value("StapleLocation"), QStringList("SinglePortrait"));
    const Run bare = desk.run({"-d", "Bare", "--no-window", documentPath});
    QENDED(bare, 0);
    QVERIFY2(bare.err.contains(
                 "kelvo-print: Stapling: 1 staple: not sent, this printer does not have it\n"),
             qPrintable(bare.err));
}

void TestStories::keepsWhatIsChosenAsItIsShown_data()
{
    const Table<QByteArray, QStringList> row{"lines", "expected"};
    const QString settings = "PMPrintSettingsTicket/", pages = "PMPageFormatTicket/";
    row("the dialog's own", "set @copies 1\nchoose @orientation key portrait\n",
        {pages + kPMOrientationKey, settings + kPMCopiesKey});
    row("pop-ups and menus",
        "tab 1\nchoose @jobType key Normal\nchoose @twoSided row 1\n"
        "item @stockButton 'Sclr' key White\ntab 4\nchoose @bookletOrder row 2\n",
        {settings + "com.kelvo.print.AdvancedBookletLayoutOrderStr",
         settings + "com.kelvo.print.JobType/JobType", "PPDChoices/Duplex",
         "PPDChoices/MediaColor"});
    row("menus that name what is set",
        "tab 1\nitem @finishingButton 'Stp0'\nitem @finishingButton 'Fld0'\n"
        "click @coversButton\nchoose @coverOptions 1\nclick @okButton\n",
        {"PPDChoices/KVBackCoverSheet", "PPDChoices/KVFold", "PPDChoices/KVFrontCoverSheet",
         "PPDChoices/StapleLocation"});
    row("boxes and numbers",
        "tab 2\ncheck @mirrorImage off\ncheck @tonerSaver off\n"
        "set @lightenDarken 0\n",
        {settings + "com.kelvo.print.InvertImageOptions/MirrorImage", "PPDChoices/KVEconomode",
         "PPDChoices/KVImageQuality"});
    const QByteArray offset = "tab 1\nitem @moreFinishing 'Foff'\nchoose @offset row 1\n";
    row("in a dialog, with OK", offset + "click @okButton\n",
        {settings + "com.kelvo.print.FinishingOffset"});
    row("in a dialog, with Cancel", offset + "click @cancelButton\n", {});
    row("of a picture alone",
        "tab 1\nclick @separatorsButton\nchoose @separatorOption 2\n"
        "choose @separatorColor key White\nclick @okButton\n",
        {"PPDChoices/KVSlipSheetPrint"});
    row("seen and not chosen", "tab 1\ntab 2\ntab 4\n", {});
}

// In the next job the device's default may be another.
void TestStories::keepsWhatIsChosenAsItIsShown()
{
    QFETCH(QByteArray, lines);
    const Desk desk;
    putFile(desk.path("choose.kps"), lines);
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
    putFile(desk.path("ask.kps"),
            "tab 1\nchoose @outputDestination key Auto\ntab 2\ncheck @mirrorImage on\nprint\n");
    QENDED(desk.run({"--demo", "--no-window", "-o", "KVOutputMode=Enhanced", "-o", "Duplex=None",
                     "--script", "ask.kps", "--ticket-out", "full.plist", "--to", "full"}),
           0);
    const Run bare =
        desk.run({"--ppd", samplePpd("bare"), "--no-window", "--ticket-in", "full.plist",
                  "--ticket-out", "bare.plist", "--to", "bare", documentPath});
    QENDED(bare, 0);
    QStringList messages = bare.messages();
    messages.removeIf([](const QString &line) { return line.startsWith("Expected PPD option"); });
    QCOMPARE(messages,
             QStringList("kelvo-print: Image quality: Enhanced: not sent, this printer "
                         "does not have it"));
    // And back: the second device adds nothing of its own.
    const auto full = readTicketFile(desk.path("full.plist"));
    const auto again = readTicketFile(desk.path("bare.plist"));
    QVERIFY(full && again);
    QVERIFY(full.value().asked && !full.value().asked->empty());
    QCOMPARE(again.value().asked, full.value().asked);
    QCOMPARE(again.value().choiceWords, full.value().choiceWords);

    const Run untold = desk.run({"--ppd", ppdWithoutTicket(), "--no-window", "--ticket-in",
                                 "full.plist", "--to", "untold", documentPath});
    QENDED(untold, 0);
    QVERIFY2(untold.err.contains("Mirror image: not sent, this printer reads no tickets\n"),
             qPrintable(untold.err));

    // The whole record of a job leaves nothing to the site's preset.
    putFile(desk.sitePresetFolder() + "/default.plist",
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
    putFile(desk.path("clash.kps"),
            "tab 4\nchoose @requestOffset key EndOfSet\n"
            "choose @paper key Env10\nprint\n");
    const Run scripted =
        desk.run({"--demo", "--no-window", "--script", "clash.kps", "--to", "out"});
    QENDED(scripted, 3);
    QVERIFY2(scripted.err.contains("clash.kps:4: ") && scripted.err.contains("Request offset"),
             qPrintable(scripted.err));
    const Run plain = desk.run(
        {"--demo", "--no-window", "-o", "Jog=EndOfSet", "-o", "PageSize=Env10", "--to", "out"});
    QENDED(plain, 3);
    QVERIFY2(plain.err.contains("No. 10 envelope"), qPrintable(plain.err));
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
        const QStringList lower[] = {{},
                                     {"Buff", "Middle", "1200x600dpi", "Light"},
                                     {"Middle2", "1200x1200dpi", "Recycled"},
                                     {"200x200dpi", "Letterhead"}};
        for (int i = first; i < names.size(); ++i)
            choices.insert(names[i], i == first ? words[i] : lower[first].value(i - 1));
        return choices;
    };
    const Desk desk;
    QVERIFY(QDir().mkpath(desk.path("../home/.cups")));
    putFile(desk.path("../home/.cups/lpoptions"),
            "Dest Hall-3 InputSlot=Tray2 MediaColor=Red OutputBin=Side Resolution=200x100dpi "
            "MediaType=Rough PageSize=A6\n");
    TicketFile site = ticketWith(layer(1));
    site.printSettings.ppdChoices.insert("PageSize", "A5");
    QVERIFY(writeTicketFile(desk.sitePresetFolder() + "/default.plist", site));
    QVERIFY(writeTicketFile(desk.presetFolder() + "/Own.plist", ticketWith(layer(2))));
    QVERIFY(writeTicketFile(desk.path("job.plist"), ticketWith(layer(3))));
    putFile(desk.path("last.kps"), "choose @paper key Letter\nprint\n");

    const Run run = desk.run({"-d", "Hall-3", "--no-window", "--preset", "Own", "--ticket-in",
                              "job.plist", "-o", "MediaType=Bond", "-o", "PageSize=A3", "--script",
                              "last.kps", documentPath});
    QENDED(run, 0);
    const PrivateCups::Job job = sentJob();
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(job.options.value(names[i]), QStringList(words[i]));
    QCOMPARE(job.options.value("PageSize"), QStringList("Letter"));
}

void TestStories::refusesWhatCannotBeDone_data()
{
    // lines: of a script; empty: there is none
    // message: a part of it
    const Table<QByteArray, QStringList, int, QString> table{"lines", "arguments", "status",
                                                             "message"};

    const auto row = [&](const char *name, const char *lines, int status, const char *message,
                         const QStringList &arguments = {"--demo", "--to", "out"}) {
        table(name, lines, arguments, status, message);
    };
    const QStringList hall{"-d", "Hall-3", documentPath};
    row("panel not shown yet", "click KPDE 1000\n", 3,
        "KPDE 1000 is not in the window; it is in panel SpecialPages");
    row("dialog not open", "click KPDE 8542\n", 3,
        "KPDE 8542 is not in the window; it is in the dialog “");
    row("one of several dialogs", "click @okButton\n", 3,
        "@okButton is not in the window; it is in dialogs that are not open");
    row("unknown panel", "panel Advancd\n", 2, "s.kps:1: Advancd: there is no such panel");
    row("expectation", "expect @copies value 2\n", 2, "s.kps:1: value of @copies is “1”");
    // Its loop is below that of the label whose letter opens it.
    row("menu that a label has opened", "tab 3\nkey \"Alt+M\"\n", 2,
        "s.kps:2: a menu or list is open");
    row("pages out of range", "choose @pagesChoice key range\ntype @pages \"9\"\nprint\n", 2,
        "s.kps:3: Pages: The document has pages 1 to 6.");
    row("notice not met", "item @presetMenu 'PsSA'\ntype @presetName \"\"\nclick @ok\n", 1,
        "A preset cannot have this name");
    row("cancelled, in spite of --print", "cancel\n", 0, "", {"--demo", "--to", "out", "--print"});
    row("no queue", "print\n", 4, "s.kps:1: ", {"--demo"});
    row("no server", "print\n", 4,
        "no print server can be reached at 127.0.0.1:1:", {documentPath});
    row("no default printer", "print\n", 4, "Name one with -d", {documentPath});
    row("unknown destination", "", 4, "Hall-3", {"-d", "Hal-3", documentPath});
    row("unknown option name", "", 2, "Jogg", hall + QStringList{"-o", "Jogg=None"});
    row("unknown name alone", "", 2, "job-name", hall + QStringList{"-o", "job-name"});
    row("choice that is not offered", "", 3, "EndOfSet", hall + QStringList{"-o", "Jog=EndOfSe"});
    row("option that is not offered", "", 3, "1, 2, 4, 6, 9 or 16",
        hall + QStringList{"-o", "number-up=3"});
    row("option of another of these devices", "", 3, "StapleLocation",
        {"--ppd", samplePpd("bare"), "--to", "out", documentPath, "-o", "noStapleLocation"});
    row("equipment", "", 3, "lpadmin", hall + QStringList{"-o", "KVFinisher=None"});
    row("no such switch", "", 2, "--ticket-in", hall + QStringList{"--tiket-in", "x"});
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
    putFile(desk.path("open.txt"), passcode.toUtf8());
    QFile::setPermissions(desk.path("open.txt"), QFile::ReadOwner | QFile::ReadOther);
    putFile(desk.path("s.kps"), lines);
    if (!lines.isEmpty())
        arguments << "--script"
                  << "s.kps";
    const Run run = desk.run(arguments << "--no-window");
    QENDED(run, status);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QVERIFY(!run.err.contains(passcode));
    QCOMPARE(run.out, QString());
    QVERIFY(!QFile::exists(desk.path("out")));
    QCOMPARE(m_cups.jobs(0).size(), m_jobsBefore);
}

void TestStories::makesPictures()
{
    for (const int scale : {1, 2}) {
        Desk desk;
        // A screen with room for the window at that scale.
        putFile(desk.path("screen.json"),
                "{\"screens\": [{\"name\": \"S\", \"x\": 0, \"y\": 0, \"width\": 3840, \"height\": "
                "2400, \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}");
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
        QCOMPARE(QFile::permissions(desk.path("window.png")) & others, QFile::Permissions());
        for (const char *name : {"about.png", "details.png"})
            QVERIFY2(QImage(desk.path(name)).width() > 200 * scale, name);
    }
}

QTEST_GUILESS_MAIN(TestStories)
#include "test_stories.moc"
