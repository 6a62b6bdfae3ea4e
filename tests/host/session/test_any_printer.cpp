#include "conflicts.h"
#include "delivery.h"
#include "driverless_printer.h"
#include "panel_options.h"
#include "ppd_words.h"
#include "printers.h"
#include "private_cups.h"
#include "sample_ppds.h"
#include "session_job.h"
#include "table.h"

#include <QSignalSpy>
#include <QTest>

using namespace kelvo;

using Attributes = QMap<QString, QString>;

// Printers that no panels are made for: what is chosen of their options arrives as they want it.
class TestAnyPrinter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void driverlessPrintersAreToldInTheirWords_data();
    void driverlessPrintersAreToldInTheirWords();
    void whatIsNotOfferedIsRefused_data();
    void whatIsNotOfferedIsRefused();
    void optionsOfPpdsArrive_data();
    void optionsOfPpdsArrive();
    void settingsGoAlong();
    void panelsOfferWhatThePrinterHas();

private:
    std::shared_ptr<PpdFile> ppdOf(const QString &queue);
    // The job of a queue with these options; null where one was refused, with the reason.
    std::unique_ptr<SessionJob> begin(const QString &queue, const QList<AskedOption> &options);
    void print(const QString &queue, SessionJob &job);

    PrivateCups m_cups;
    DriverlessPrinter m_printer;
    QTemporaryDir m_folder;
    QString m_refusal;
    int m_printed = 0;
};

static QString makersPpd()
{
    return QStringLiteral(KELVO_SOURCE_DIR "/tests/data/ppds/nordlicht.ppd");
}

void TestAnyPrinter::initTestCase()
{
    QCOMPARE(m_cups.start(), QString());
    QCOMPARE(m_printer.start(), QString());
    const QStringList printer{"-v", m_printer.uri()};
    QCOMPARE(m_cups.addQueue("Described", {}, printer + QStringList{"-m", "everywhere"}),
             QString());
    QCOMPARE(m_cups.addQueue("Handed-on", {}, printer), QString());
    QCOMPARE(m_cups.addQueue("Maker", makersPpd()), QString());
    const QString generic = sampleDriver("generic", m_folder.path());
    QVERIFY(!generic.isEmpty());
    QCOMPARE(m_cups.addQueue("Generic", generic, {"-o", "Option1=True"}), QString());
    // The server asks the printer by and by, and the queue stands still until then.
    QVERIFY(QTest::qWaitFor([this] { return ppdOf("Described") != nullptr; }, 10000));
}

std::shared_ptr<PpdFile> TestAnyPrinter::ppdOf(const QString &queue)
{
    PrinterDirectory directory;
    QSignalSpy fetched(&directory, &PrinterDirectory::ppdFetched);
    directory.fetchPpd(queue);
    return fetched.wait(5000) ? fetched.first()[1].value<std::shared_ptr<PpdFile>>() : nullptr;
}

std::unique_ptr<SessionJob> TestAnyPrinter::begin(const QString &queue,
                                                  const QList<AskedOption> &options)
{
    const auto printers = listPrinters(5000).value();
    const auto printer = std::ranges::find(printers, queue, &Printer::name);
    auto job =
        std::make_unique<SessionJob>(SessionJob::Wishes{.options = options}, nullptr, nullptr);
    const auto begun = job->beginOn({queue, ppdOf(queue), printer->defaults});
    m_refusal = begun ? QString() : begun.error().text();
    if (!begun)
        return nullptr;
    job->settle();
    return job;
}

void TestAnyPrinter::print(const QString &queue, SessionJob &job)
{
    const auto printers = listPrinters(5000).value();
    JobRequest request;
    request.document =
        documentFromPdf(QStringLiteral(KELVO_BUILD_DIR "/share/kelvo-print/demo/document.pdf"), "x")
            .value();
    request.ticket = job.ticket();
    request.settings = job.settings();
    request.ppd = job.ppd();
    request.queueDefaults = std::ranges::find(printers, queue, &Printer::name)->defaults;
    const auto prepared = prepareJob(request);
    QVERIFY2(prepared, qPrintable(prepared.reason()));
    const std::atomic_bool cancelled = false;
    const auto sent = deliverToQueue(prepared.value(), queue, "Title", 10000, cancelled);
    QVERIFY2(sent, qPrintable(sent.reason()));
}

void TestAnyPrinter::driverlessPrintersAreToldInTheirWords_data()
{
    const Table<QString, QList<AskedOption>, Attributes> row{"queue", "options", "told"};
    const QList<AskedOption> many{{"sides", "two-sided-short-edge"},
                                  {"media", "A4,tray-2"},
                                  {"print-color-mode", "monochrome"},
                                  {"print-quality", "5"},
                                  {"finishings", "20,74"},
                                  {"output-bin", "mailbox-3"}};
    const Attributes told{{"sides", "two-sided-short-edge"},
                          {"print-color-mode", "monochrome"},
                          {"print-quality", "high"},
                          {"finishings", "punch-dual-left,staple-top-left"},
                          {"output-bin", "mailbox-3"}};
    row("by a PPD of the server", "Described", many, told);
    Attributes ours = told;
    ours["print-scaling"] = "none"; // with a PPD it is for the filters alone
    ours["media-col"] = "{media-size={x-dimension=21000 y-dimension=29700} media-source=tray-2}";
    row("by what it says itself", "Handed-on", many, ours);
    // A queue that knows nothing of its printer says that all is black and white.
    row("nothing chosen", "Handed-on", {},
        {{"print-color-mode", "color"},
         {"media", "iso_a4_210x297mm"},
         {"sides", {}},
         {"print-scaling", "none"},
         {"finishings", "none"}});
    row("a paper of any size", "Handed-on", {{"media", "Custom.100x200mm"}},
        {{"media-col", "{media-size={x-dimension=10000 y-dimension=20000}}"}, {"media", {}}});
    row("without borders", "Handed-on", {{"PageSize", "A4.Borderless"}},
        {{"media-col",
          "{media-bottom-margin=0 media-left-margin=0 media-right-margin=0 "
          "media-size={x-dimension=21000 y-dimension=29700} media-top-margin=0}"}});
    row("a maker's own", "Handed-on",
        {{"media-type", "com.nordlicht.papyrus"}, {"finishing-template", "nordlicht-brochure"}},
        {{"media-col",
          "{media-size={x-dimension=21000 y-dimension=29700} media-type=com.nordlicht.papyrus}"},
         {"finishings-col", "{finishing-template=nordlicht-brochure}"}});
}

static QString sorted(const QString &list)
{
    QStringList parts = list.split(u',');
    parts.sort();
    return parts.join(u',');
}

void TestAnyPrinter::driverlessPrintersAreToldInTheirWords()
{
    QFETCH(QString, queue);
    QFETCH(QList<AskedOption>, options);
    QFETCH(Attributes, told);
    const auto job = begin(queue, options);
    QVERIFY2(job, qPrintable(m_refusal));
    print(queue, *job);
    Attributes arrived = m_printer.job(++m_printed);
    QVERIFY2(!arrived.isEmpty(), qPrintable(m_cups.log()));
    if (arrived.contains("finishings")) // in any order
        arrived["finishings"] = sorted(arrived["finishings"]);
    for (auto attribute = told.cbegin(); attribute != told.cend(); ++attribute)
        QCOMPARE(attribute.key() + u'=' + arrived.value(attribute.key()),
                 attribute.key() + u'=' + *attribute);
    if (queue == "Described") // the server makes the collection, with margins and a name
        QVERIFY2(arrived["media-col"].contains("media-source=tray-2"),
                 qPrintable(arrived["media-col"]));
}

void TestAnyPrinter::whatIsNotOfferedIsRefused_data()
{
    const Table<QString, AskedOption, QString> row{"queue", "option", "says"};
    row("color", "Handed-on", {"print-color-mode", "bi-level"}, "there is no such value");
    row("tray", "Handed-on", {"media", "A4,tray-9"}, "no paper tray-9, did you mean");
    row("finishing", "Handed-on", {"finishings", "20,5"}, "StapleTopLeft");
    row("size", "Handed-on", {"media", "Custom.10x10mm"}, "widths from 76.2 to 297 mm");
    row("no such option", "Maker", {"output-bin", "top"}, "does not have this option");
    row("unknown", "Handed-on", {"sheets", "5"}, "neither this printer nor kelvo-print");
}

void TestAnyPrinter::whatIsNotOfferedIsRefused()
{
    QFETCH(QString, queue);
    QFETCH(AskedOption, option);
    QFETCH(QString, says);
    QVERIFY(!begin(queue, {option}));
    QVERIFY2(m_refusal.contains(says), qPrintable(m_refusal));
}

void TestAnyPrinter::optionsOfPpdsArrive_data()
{
    const Table<QString, QList<AskedOption>, Attributes> row{"queue", "options", "told"};
    row("a maker's", "Maker",
        {{"sides", "two-sided-long-edge"},
         {"InputSlot", "tray2"},
         {"print-color-mode", "monochrome"}},
        {{"Duplex", "DuplexNoTumble"},
         {"InputSlot", "Tray2"},
         {"ColorModel", "Gray"},
         {"print-scaling", "none"}});
    row("generic", "Generic", {{"sides", "two-sided-short-edge"}, {"media", "A4,Upper"}},
        {{"Duplex", "DuplexTumble"},
         {"InputSlot", "Upper"},
         {"PageSize", "A4"},
         {"print-scaling", "none"}});
}

void TestAnyPrinter::optionsOfPpdsArrive()
{
    QFETCH(QString, queue);
    QFETCH(QList<AskedOption>, options);
    QFETCH(Attributes, told);
    static int arrivals = 0;
    const auto job = begin(queue, options);
    QVERIFY2(job, qPrintable(m_refusal));
    print(queue, *job);
    const auto jobs = m_cups.jobs(++arrivals);
    QCOMPARE(int(jobs.size()), arrivals);
    for (auto option = told.cbegin(); option != told.cend(); ++option)
        QCOMPARE(jobs.back().options.value(option.key()), QStringList(*option));
}

// To a printer that has the same under the same name, whoever made its PPD, and back from one that
// has not.
void TestAnyPrinter::settingsGoAlong()
{
    const auto job = begin("Handed-on",
                           {{"sides", "two-sided-short-edge"},
                            {"media-source", "tray-2"},
                            {"output-bin", "mailbox-3"}});
    QVERIFY2(job, qPrintable(m_refusal));
    const auto goTo = [&](const QString &queue) {
        job->leave();
        QVERIFY(job->beginOn({queue, ppdOf(queue), {}}));
        job->settle();
    };
    const auto choice = [&](const char *option) {
        return job->ticket().printSettings.ppdChoices.value(QLatin1String(option));
    };
    goTo("Described");
    QCOMPARE(job->missing(), QStringList());
    QCOMPARE(choice("InputSlot"), "Tray2");
    goTo("Maker");
    QCOMPARE(job->missing(), QStringList{"Output destination: Mailbox 3"});
    QCOMPARE(choice("Duplex"), "DuplexTumble");
    goTo("Handed-on");
    QCOMPARE(job->missing(), QStringList());
    QCOMPARE(choice("OutputBin"), "Mailbox3");
}

static QStringList linesOf(const std::vector<PanelSection> &sections)
{
    QStringList lines;
    for (const PanelSection &section : sections) {
        lines << "- " + section.title;
        for (const PanelOption &option : section.options) {
            QStringList choices;
            for (const MenuItem &item : option.menu.items)
                choices << item.text;
            lines << option.label + ": " + choices.join(", ") + (option.isFixed ? " fixed" : "");
        }
    }
    return lines;
}

void TestAnyPrinter::panelsOfferWhatThePrinterHas()
{
    // What the equipment rules out is not offered, and neither is the equipment.
    QCOMPARE(linesOf(panelSections(*PpdFile::open(makersPpd()).value())),
             (QStringList{"- General", "Duplex Printing: Off, Long Edge, Short Edge",
                          "Colour: Colour, Black and White", "Tray: Auto Select, Tray 2",
                          "- Trays and Media", "Weight: 60-105 g, 106-220 g"}));
    const QString generic = sampleDriver("generic", m_folder.path());
    QCOMPARE(linesOf(panelSections(*PpdFile::open(generic).value())).at(1),
             "2-Sided Printing: Off (1-Sided) fixed");
    const QStringList lines = linesOf(panelSections(*ppdOf("Handed-on")));
    const QByteArray all = lines.join("\n").toUtf8();
    QVERIFY2(lines.contains("Paper source: Automatic, Tray 1, Tray 2, Bypass tray"),
             all.constData());
    QVERIFY2(lines.contains("Stapling: None, 1 staple, 1 staple, top left, 1 staple, top right"),
             all.constData());
    // A preset of finishings and a finishing cannot be told together.
    const auto job =
        begin("Handed-on", {{"finishings", "20"}, {"finishing-template", "nordlicht-brochure"}});
    const ConflictReport conflicts = job->conflicts();
    QCOMPARE(conflicts.conflicts.size(), 1U);
    QVERIFY(!conflicts.fix.isEmpty());
}

QTEST_GUILESS_MAIN(TestAnyPrinter)
#include "test_any_printer.moc"
