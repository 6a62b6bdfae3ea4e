// 500 printers beside one: the window's first frame, the list of them, and what is typed to find
// some; and 5,000, which nobody has in one place.
#include "functions.h"
#include "processes.h"

#include "popup_button.h"
#include "printer_chooser.h"
#include "private_cups.h"

#include <QApplication>
#include <QLineEdit>

#include <cstdio>

using namespace kelvo;
using namespace kelvo::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr Row elapsed{Figure::Elapsed}, processor{Figure::Processor}, memory{Figure::Memory};
constexpr int many = 500, tooMany = 5000;

QString nameOf(int printer)
{
    return QStringLiteral("Office-%1").arg(printer, 4, 10, QChar(u'0'));
}

// A print server with as many queues of the full sample device.
QString startServer(PrivateCups &server, int count)
{
    QList<PrivateCups::Queue> queues;
    for (int i = 0; i < count; ++i)
        queues.append(
            {.name = nameOf(i),
             .info = QStringLiteral("Printer %1").arg(i),
             .location = QStringLiteral("Floor %1, room %2").arg(i / 20).arg(i),
             .ppd = QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd")});
    server.setQueues(queues);
    return server.start();
}

Side frameWith(std::string name, const QString &program, const PrivateCups &server,
               const QByteArray &shows, const QStringList &arguments)
{
    const QByteArray address = server.server().toUtf8();
    return firstFrame(std::move(name),
                      {.words = QStringList{program, u"-d"_s, nameOf(0)} + arguments,
                       .prepare = [address] { qputenv("CUPS_SERVER", address); }},
                      shows);
}

Side toItsEnd(std::string name, const QStringList &words, const PrivateCups &server)
{
    const QByteArray address = server.server().toUtf8();
    return wholeProcess(std::move(name), {.words = words, .prepare = [address] {
                                              qputenv("CUPS_SERVER", address);
                                          }});
}

// The pop-up as the window has it, with as many printers.
struct Listed
{
    explicit Listed(int count)
    {
        QList<Printer> printers;
        Menu menu;
        for (int i = 0; i < count; ++i) {
            Printer &printer = printers.emplace_back();
            printer.name = nameOf(i);
            printer.info = QStringLiteral("Printer %1").arg(i);
            printer.location = QStringLiteral("Étage %1, room %2").arg(i / 20).arg(i);
            printer.makeAndModel = QStringLiteral("Kelvo Corvane C90");
            menu.items.push_back({.text = printer.name, .key = printer.name, .reference = i});
        }
        popup.setMenu(menu);
        popup.setOwnList([printers](PopupButton *button) {
            auto *list = new PrinterChooser(button);
            list->setPrinters(printers, nameOf(0));
            return list;
        });
        popup.show();
    }
    // Made anew, up to the painted list.
    void open()
    {
        popup.showPopup();
        popup.ownList()->grab();
    }

    PopupButton popup;
};

// They end with the application object, not with the benchmarks.
Side opening(std::string name, Listed *listed)
{
    return function(std::move(name), [listed](benchmark::State &state) {
        for ([[maybe_unused]] auto _ : state) {
            listed->open();
            listed->popup.hidePopup();
        }
    });
}

// Two keystrokes, each up to the painted list: all are found.
Side typing(std::string name, Listed *listed)
{
    return function(std::move(name), [listed](benchmark::State &state) {
        listed->open();
        auto *field = listed->popup.ownList()->findChild<QLineEdit *>();
        for ([[maybe_unused]] auto _ : state) {
            for (const QString &typed : {u"r"_s, u"room etage"_s}) {
                field->setText(typed);
                listed->popup.ownList()->grab();
            }
        }
        listed->popup.hidePopup();
    });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const auto options = optionsFrom(argc, argv);
    if (!options)
        return 2;
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent");
    PrivateCups small, large;
    for (const auto &[server, count] : {std::pair(&small, 1), {&large, many}}) {
        if (const QString problem = startServer(*server, count); !problem.isEmpty()) {
            std::fprintf(stderr, "bench_printers: %s\n", qUtf8Printable(problem));
            return 2;
        }
    }
    const QByteArray panels("panePDEShell");
    const QString document = QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf");
    const QString &program = options->program;
    Listed nine(9), hundreds(many), thousands(tooMany);
    std::vector<Comparison> comparisons{
        {frameWith("first frame with 500 queues", program, large, panels, {document}),
         frameWith("with one", program, small, panels, {document}),
         {{Figure::Elapsed, 2.0}, processor, memory}},
        {toItsEnd("--list-printers of 500", {program, u"--list-printers"_s}, large),
         toItsEnd("lpstat -a -p of them", {u"lpstat"_s, u"-a"_s, u"-p"_s}, large),
         {{Figure::Elapsed, 0.6}, processor}},
        {opening("opening the list of 500", &hundreds),
         opening("of nine", &nine),
         {{Figure::Processor, 1.5}}},
        {opening("opening the list of 5,000", &thousands),
         opening("of nine", &nine),
         {{Figure::Processor, 1.5}}},
        {typing("finding some of 500", &hundreds),
         typing("of nine", &nine),
         {{Figure::Processor, 1.5}}},
        {typing("finding some of 5,000", &thousands), typing("of nine", &nine), {processor}},
    };
    if (!options->earlier.isEmpty())
        comparisons.push_back(
            {frameWith("first frame with 500 queues", program, large, panels, {document}),
             frameWith("the same, earlier", options->earlier, large, panels, {document}),
             {elapsed, processor, memory}});
    return compare(comparisons, *options);
}
