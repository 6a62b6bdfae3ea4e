#include "window_walk.h"

#include "application_look.h"
#include "files.h"
#include "help_window.h"
#include "inspector.h"
#include "print_dialog.h"
#include "sample_ppds.h"
#include "script_parser.h"
#include "script_runner.h"
#include "texts.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QStyle>
#include <QTimer>

using namespace kelvo;

namespace {

constexpr qint64 paintMs = 5000; // for a page of the document and the like
constexpr int tickMs = 5;

QString sharedFile(const QString &name)
{
    return QStringLiteral(KELVO_BUILD_DIR "/share/kelvo-print/") + name;
}

// Null where there is none of that name.
std::shared_ptr<PpdFile> deviceNamed(const QString &name, const QTemporaryDir &folder)
{
    QString path = samplePpd(name);
    if (name == QLatin1String("other")) {
        path = folder.filePath(QStringLiteral("other.ppd"));
        putFile(path,
                bytesOf(samplePpd(QStringLiteral("mid")))
                    .replace("*Manufacturer: \"Kelvo\"", "*Manufacturer: \"Other\""));
    }
    const auto device = PpdFile::open(path);
    return device ? device.value() : nullptr;
}

// What stands in front, or beside the print dialog.
QWidget *openedWindow(QWidget *dialog)
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window != dialog && window->isVisible())
            return window;
    }
    return dialog;
}

// What is laid out late, read and drawn on threads, is there, as far as it comes.
void waitUntilPainted(const PrintDialog &dialog, QWidget *window)
{
    QElapsedTimer waited;
    waited.start();
    do
        QApplication::processEvents(QEventLoop::AllEvents, tickMs);
    while ((dialog.isDrawing(&dialog) || inspector::isUnfinished(window))
           && waited.elapsed() < paintMs);
    window->grab(); // lays out
    QApplication::processEvents();
}

// One after the other: each has an event loop of its own, which ends before the one below it
// goes on.
void closeAll(QEventLoop &loop, QWidget *dialog)
{
    if (auto *modal = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
        modal->reject();
        QTimer::singleShot(0, dialog, [&loop, dialog] { closeAll(loop, dialog); });
        return;
    }
    for (QWidget *window = openedWindow(dialog); window != dialog; window = openedWindow(dialog))
        window->hide();
    loop.quit();
}

} // namespace

WindowWalk::WindowWalk()
{
    loadTexts(sharedFile(QStringLiteral("strings")), QLocale().uiLanguages());
    QLocale::setDefault(withDigitsOfTexts(QLocale()));
    QApplication::setApplicationName(QStringLiteral("kelvo-print")); // the About box says so
    dressApplication();
    const auto bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    if (!bundle) {
        m_problem = bundle.error().text();
        return;
    }
    m_bundle = bundle.value();
    addHelpFolder(m_bundle->resourcesPath() + QStringLiteral("/help"));
    m_problem = m_addressBook.start();
    QDir::setCurrent(QStringLiteral(KELVO_SOURCE_DIR "/tests/walk"));
}

QStringList WindowWalk::scripts()
{
    QStringList paths;
    const QDir folder(QStringLiteral(KELVO_SOURCE_DIR "/tests/walk"));
    for (const QFileInfo &script : folder.entryInfoList({QStringLiteral("*.kps")}))
        paths << script.filePath();
    return paths;
}

// Of all kinds that the list of printers shows.
QString WindowWalk::startPrintServer()
{
    if (m_cups)
        return {};
    m_cups = std::make_unique<PrivateCups>();
    const QString mid = samplePpd(QStringLiteral("mid"));
    QList<PrivateCups::Queue> queues{
        {.name = "Hall-3",
         .info = "Printer in the hall",
         .location = "Ground floor, hall 3",
         .ppd = samplePpd(QStringLiteral("full"))},
        {.name = "Accounting",
         .location = "Second floor, room 214",
         .ppd = mid,
         .state = "Stopped",
         .stateMessage = "Toner and drum are on order until Thursday",
         .reason = "media-jam-error"},
        {.name = "Print-Centre-Basement-North-Wing-Plotter-And-Large-Formats-0042",
         .location = "Basement, north wing",
         .ppd = mid},
        {.name = "Archive", .reason = "toner-low-warning"},
        {.name = "Tokyo", .location = QStringLiteral("東京支社 3階"), .ppd = mid},
        {.name = "Cairo", .location = QStringLiteral("القاهرة، الطابق 2"), .ppd = mid},
    };
    for (int i = 1; i <= 6; ++i)
        queues.append({.name = QStringLiteral("Office-%1").arg(i),
                       .location = QStringLiteral("Room %1").arg(100 + i)});
    m_cups->setQueues(queues);
    return m_cups->start();
}

QString WindowWalk::visit(const QString &script, const std::function<void(QWidget *)> &look)
{
    if (!m_problem.isEmpty())
        return m_problem;
    const QTemporaryDir folder; // of the user
    qputenv("XDG_CONFIG_HOME", folder.filePath(QStringLiteral("config")).toLocal8Bit());
    qputenv("KELVO_SUPPORT_DIR", folder.filePath(QStringLiteral("support")).toLocal8Bit());
    auto lines = readScript(script);
    if (!lines)
        return lines.error().text();
    const QString first = QString::fromUtf8(bytesOf(script).split('\n').first());
    const QStringList words = first.section(u':', 0, 0).split(u' ');
    DialogOptions options;
    if (words.value(1) == QLatin1String("queues")) {
        if (const QString problem = startPrintServer(); !problem.isEmpty())
            return problem;
    } else {
        options.session.printer.device = deviceNamed(words.value(1), folder);
        if (!options.session.printer.device)
            return script + QStringLiteral(": its first line names no device");
    }
    options.session.bundle = m_bundle;
    if (words.size() > 2) {
        auto ticket = readTicketFile(words[2]);
        if (!ticket)
            return ticket.error().text();
        options.session.job.ticketIn = std::move(ticket).value();
    }
    options.session.documents.sources = {
        DocumentSource{sharedFile(QStringLiteral("demo/document.pdf")), {}}};
    options.plan.elsewhere = folderDestination(folder.filePath(QStringLiteral("job")));
    PrintDialog dialog(std::move(options));
    dialog.setDriven(true);
    if (m_dialogSize.isValid())
        dialog.resize(m_dialogSize);
    ScriptRunner runner(dialog, std::move(lines).value(),
                        {.file = script, .leavesDialogsOpen = true});
    QEventLoop loop;
    QString problem;
    QObject::connect(&runner, &ScriptRunner::ended, &dialog, [&](ExitStatus status) {
        QTimer::singleShot(0, &dialog, [&, status] {
            QWidget *window = openedWindow(&dialog);
            if (status == ExitStatus::Printed) {
                waitUntilPainted(dialog, window);
                look(window);
            } else {
                problem = script + QStringLiteral(": standard error says what was wrong");
            }
            closeAll(loop, &dialog);
        });
    });
    dialog.start();
    runner.start();
    loop.exec();
    return problem;
}

std::vector<Theme> themes()
{
    const auto made = [](QColor window, QColor base, QColor text, QColor button, QColor faded,
                         QColor mark, QColor marked, QColor link) {
        QPalette palette(button, window);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                QPalette::BrightText, QPalette::ToolTipText}) {
            palette.setColor(role, text);
            palette.setColor(QPalette::Disabled, role, faded);
        }
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::AlternateBase, window);
        palette.setColor(QPalette::ToolTipBase, base);
        palette.setColor(QPalette::PlaceholderText, faded);
        palette.setColor(QPalette::Highlight, mark);
        palette.setColor(QPalette::HighlightedText, marked);
        palette.setColor(QPalette::Link, link);
        palette.setColor(QPalette::LinkVisited, link);
        return palette;
    };
    return {{QStringLiteral("light"), QApplication::style()->standardPalette()},
            {QStringLiteral("dark"),
             made(QColor(0x2d, 0x2d, 0x30), QColor(0x1e, 0x1e, 0x20), QColor(0xe6, 0xe6, 0xe6),
                  QColor(0x3a, 0x3a, 0x3e), QColor(0x80, 0x80, 0x80), QColor(0x2a, 0x82, 0xda),
                  Qt::white, QColor(0x6a, 0xb0, 0xf3))},
            {QStringLiteral("contrast"),
             made(Qt::black, Qt::black, Qt::white, Qt::black, QColor(0x80, 0xff, 0x80), Qt::yellow,
                  Qt::black, Qt::cyan)}};
}
