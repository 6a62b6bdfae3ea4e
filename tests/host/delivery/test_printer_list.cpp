#include "files.h"
#include "printers.h"
#include "private_avahi.h"
#include "private_cups.h"
#include "sample_ppds.h"
#include "table.h"

#include <QDBusConnection>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cups/cups.h>

#include <algorithm>

using namespace kelvo;

// The list of printers has what libcups' own has, though the server is asked for less and
// nobody else is asked at all.
class TestPrinterList : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void asksTheServerAlone(); // first: libcups keeps the bus that it first asks
    void isAsLibcupsHasIt_data();
    void isAsLibcupsHasIt();
    void theLastPrinterBeatsTheServersDefault_data();
    void theLastPrinterBeatsTheServersDefault();

private:
    PrivateCups m_cups;
    QTemporaryDir m_folder;
};

void TestPrinterList::initTestCase()
{
    // libcups keeps these from its first call on.
    qputenv("HOME", m_folder.path().toUtf8());
    qputenv("CUPS_SERVERROOT", m_folder.filePath("site").toUtf8());
    QString problem = m_cups.start();
    for (const char *queue : {"Hall-3", "Hall-3-b", "office"}) {
        if (problem.isEmpty())
            problem = m_cups.addQueue(queue, samplePpd("full"));
    }
    for (const QStringList &arguments :
         {QStringList{"-p", "Hall-3",
                      "-D", "It’s  \"the\" hall",
                      "-L", "Floor \\2",
                      "-o", "sides-default=two-sided-short-edge",
                      "-o", "finishings-default=4,5",
                      "-o", "print-quality-default=5",
                      "-o", "job-sheets-default=standard,none",
                      "-o", "media-default=na_letter_8.5x11in",
                      "-o", "copies-default=3",
                      "-o", "printer-resolution-default=300dpi",
                      "-o", "StapleLocation-default=Single",
                      "-o", "note-default=a b,c",
                      "-o", "number-up-default=2"},
          {"-p", "Raw", "-E", "-v", "kvtest://test"},
          {"-p", "office", "-c", "Offices"},
          {"-p", "Closed", "-v", "kvtest://test", "-P", samplePpd("bare")},
          {"-d", "Hall-3-b"}}) {
        if (problem.isEmpty())
            problem = m_cups.administer(arguments);
    }
    if (problem.isEmpty())
        problem = m_cups.administer({"-r", "Paper jam", "office"}, "cupsdisable");
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

static QString lineOf(const Printer &printer)
{
    QStringList parts{printer.name,
                      printer.info,
                      printer.location,
                      printer.makeAndModel,
                      QString::number(int(printer.state)),
                      printer.acceptsJobs ? "accepts" : "",
                      printer.stateMessage,
                      printer.isDefault ? "default" : ""};
    for (auto option = printer.defaults.cbegin(); option != printer.defaults.cend(); ++option)
        parts << option.key() + u'=' + *option;
    return parts.join(u'|');
}

// One line for each printer, the default one first, as libcups' list has them.
static QStringList judgedLines()
{
    cups_dest_t *destinations = nullptr;
    const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &destinations);
    QList<Printer> printers;
    for (int i = 0; i < count; ++i) {
        const cups_dest_t &destination = destinations[i];
        const auto option = [&destination](const char *name) {
            return QString::fromUtf8(
                       cupsGetOption(name, destination.num_options, destination.options))
                .simplified();
        };
        Printer &printer = printers.emplace_back();
        printer.name = destination.name;
        if (destination.instance)
            printer.name += u'/' + QString(destination.instance);
        printer.info = option("printer-info");
        printer.location = option("printer-location");
        printer.makeAndModel = option("printer-make-and-model");
        printer.state =
            option("printer-state") == "5" ? Printer::State::Stopped : Printer::State::Idle;
        printer.acceptsJobs = option("printer-is-accepting-jobs") == "true";
        // Of a queue's own words libcups' list has nothing.
        printer.stateMessage = printerCondition(printer.name, 10000).value().stateMessage;
        printer.isDefault = destination.is_default != 0;
        for (int at = 0; at < destination.num_options; ++at) {
            const QString name = destination.options[at].name;
            const QStringList notOfJobs{"printer-", "marker-", "job-", "auth-info-", "device-uri"};
            if (std::ranges::none_of(notOfJobs, [&](auto &part) { return name.startsWith(part); }))
                printer.defaults[name] = QString::fromUtf8(destination.options[at].value);
        }
    }
    cupsFreeDests(count, destinations);
    // libcups forgets the server's default where the user has options for it.
    const auto isDefault = [](const Printer &printer) { return printer.isDefault; };
    if (std::ranges::none_of(printers, isDefault)) {
        const QString name = cupsGetDefault2(CUPS_HTTP_DEFAULT);
        for (Printer &printer : printers)
            printer.isDefault = printer.name == name;
    }
    std::stable_partition(printers.begin(), printers.end(), isDefault);
    QStringList lines;
    for (const Printer &printer : printers)
        lines << lineOf(printer);
    return lines;
}

// libcups' list waits for what is announced in the network, which a user would wait for
// before each window; ours has no word with who could tell.
void TestPrinterList::asksTheServerAlone()
{
    PrivateAvahi avahi;
    const QString problem = avahi.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    // Whoever comes to the bus gets the next number.
    const auto nextNumber = [&avahi] {
        static int probe = 0;
        const QString name = QString::number(++probe);
        const QString own = QDBusConnection::connectToBus(avahi.busAddress(), name).baseService();
        QDBusConnection::disconnectFromBus(name);
        return own.section(u'.', -1).toInt();
    };
    const int before = nextNumber();
    QVERIFY(before > 0);
    QVERIFY(listPrinters(10000));
    QCOMPARE(nextNumber(), before + 1);
    QVERIFY(!judgedLines().isEmpty());
    QVERIFY(nextNumber() > before + 2); // it would be seen
}

void TestPrinterList::isAsLibcupsHasIt_data()
{
    const Table<QByteArray, QByteArray, QByteArray, QString> row{"site", "user", "environment",
                                                                 "first"};
    row("nothing set", "", "", "", "Hall-3-b");
    row("options of the user beat the site's and the server's",
        "Dest Hall-3 sides=one-sided media=A5\nDest office Duplex=None\n",
        "Dest Hall-3 media=A3 Resolution=600dpi\n", "", "Hall-3-b");
    row("instances have what their printer has", "", "Dest Hall-3 a=1\nDest Hall-3/draft b=2\n", "",
        "Hall-3-b");
    row("instances of printers without options", "Dest Hall-3/draft a=1\n",
        "Dest office/x/y b=2\nDest Raw/x\n", "", "Hall-3-b");
    row("quotes and escapes", "",
        R"(Dest Hall-3 a="b \"c\" d" e='f g' h=i\ j k={l=m n=o} p=q,'r s' t="\\" )"
        "\nDest Raw \"two words\"=x nox flag yes= =z\n",
        "", "Hall-3-b");
    row("lines of other kinds", "",
        "# Dest Raw a=1\n\n  Dest  \t Raw \t b=2  # c=3\nDEST Closed d=4\nDest\nPrinter Raw e=5\n"
        "Dest Raw\\ x f=6\nDest office a=\\#1\n",
        "", "Hall-3-b");
    row("what a queue says of itself", "", "Dest Raw printer-info=Mine printer-state=5 copies=2\n",
        "", "Hall-3-b");
    row("printers that are gone", "Dest Gone a=1\n", "Default Gone/x b=2\n", "", "Hall-3-b");
    row("names in another case", "", "Dest hall-3 a=1\nDefault OFFICE b=2\n", "", "OFFICE");
    row("the user's default beats the site's", "Default Raw a=1\n", "Default Closed b=2\n", "",
        "Closed");
    row("the site's default", "Default Raw a=1\n", "Dest Raw b=2\n", "", "Raw");
    row("an instance is the default", "", "Default Hall-3/draft b=2\nDest Hall-3 c=3\n", "",
        "Hall-3/draft");
    row("the environment's default", "", "Default Closed b=2\nDest Raw c=3\n", "LPDEST=Raw", "Raw");
    row("in other letters", "", "", "LPDEST=RAW", "Raw");
    row("the older variable", "", "Default Closed\n", "PRINTER=office", "office");
    row("which says nothing", "", "Default Closed\n", "PRINTER=lp", "Closed");
    row("the environment names an instance", "", "Dest Raw/x c=3\n", "LPDEST=Raw/x", "Raw/x");
    row("the environment names none that there is", "", "Default Raw\n", "LPDEST=Gone", "Closed");
}

void TestPrinterList::isAsLibcupsHasIt()
{
    QFETCH(QByteArray, site);
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, environment);
    QFETCH(QString, first);
    putFile(m_folder.filePath("site/lpoptions"), site);
    putFile(m_folder.filePath(".cups/lpoptions"), user);
    const QByteArray variable = environment.left(environment.indexOf('='));
    if (!variable.isEmpty())
        qputenv(variable.constData(), environment.mid(variable.size() + 1));
    const auto listed = listPrinters(10000);
    const QStringList judged = judgedLines();
    qunsetenv("LPDEST");
    qunsetenv("PRINTER");
    QVERIFY2(listed, qPrintable(listed.reason()));
    QStringList lines;
    for (const Printer &printer : listed.value())
        lines << lineOf(printer);
    QCOMPARE(lines, judged);
    QCOMPARE(listed.value().first().name, first);
}

void TestPrinterList::theLastPrinterBeatsTheServersDefault_data()
{
    const Table<QByteArray, QString, QString> row{"user", "preferred", "first"};
    row("the last one", "", "office", "office");
    row("one that is gone", "", "Gone", "Hall-3-b");
    row("the user has chosen one", "Default Raw\n", "office", "Raw");
}

void TestPrinterList::theLastPrinterBeatsTheServersDefault()
{
    QFETCH(QByteArray, user);
    QFETCH(QString, preferred);
    putFile(m_folder.filePath("site/lpoptions"), "");
    putFile(m_folder.filePath(".cups/lpoptions"), user);
    PrinterDirectory directory;
    QSignalSpy found(&directory, &PrinterDirectory::printersFound);
    directory.refresh(10000, PrinterDirectory::Ahead::Nothing, preferred);
    QVERIFY(found.wait(15000));
    const auto printers = found[0][0].value<QList<Printer>>();
    QTEST(printers.first().name, "first");
    QCOMPARE(printers.first().isDefault, printers.first().name != "office");
}

QTEST_GUILESS_MAIN(TestPrinterList)
#include "test_printer_list.moc"
