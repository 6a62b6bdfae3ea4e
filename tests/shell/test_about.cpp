#include "about.h"
#include "about_dialog.h"
#include "device_pictures.h"
#include "device_session.h"
#include "dialog_steps.h"
#include "files.h"
#include "table.h"

#include <QClipboard>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace kelvo;
using namespace dialog_steps;
using namespace Qt::StringLiterals;

class TestAbout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tellsWhatTheDeviceIs_data();
    void tellsWhatTheDeviceIs();
    void knowsThePpdByItsOwnName();
    void drawsWhatIsFitted_data();
    void drawsWhatIsFitted();
    void namesAllThatIsLinked();
    void copiesWhatHelpersAsk();
};

void TestAbout::initTestCase()
{
    QCoreApplication::setApplicationName(u"print-host"_s);
    QCoreApplication::setApplicationVersion(u"7.5"_s);
}

void TestAbout::tellsWhatTheDeviceIs_data()
{
    const Table<QString, QString, QString> row{"device", "printer", "text"};

    row("full", "full", "Hall-3",
        "Device: Kelvo Corvane C90\n"
        "Printer: Hall-3\n"
        "Description file: KVFULL.PPD · version 1.0\n"
        "What is fitted: B-class finisher · Multi-position stapler · Hole punch unit: 2-, 3- "
        "and 4-hole punch · Folding unit: C-fold, Z-fold and Z-fold half sheet · Booklet maker · "
        "Tape binder · Post-print inserter · Automatic output tray switching · Stacker trays: Two "
        "trays · Side tray · Fax kit\n"
        "Paper trays: Tray 1 · Tray 2 · Tray 3 · Tray 4 · Tray 5 · Tray 6 · Bypass tray\n"
        "Output trays: Top tray · Side tray · Middle tray · Second middle tray · Stacker tray 1 "
        "(upper) · Stacker tray 2 (lower) · Stacker, any tray · Booklet tray · Envelope folder "
        "tray · Square-back booklet tray\n");
    row("mid", "mid", "Kelvo Corvane C50", // no queue
        "Device: Kelvo Corvane C50\n"
        "Description file: KVMID.PPD · version 1.0\n"
        "What is fitted: A-class finisher · Hole punch unit: 2-hole punch · Automatic output "
        "tray switching · Stacker trays: One tray · Side tray\n"
        "Paper trays: Tray 1 · Tray 2 · Tray 3 · Bypass tray\n"
        "Output trays: Top tray · Side tray · Stacker tray 1 (upper)\n");
    row("bare", "bare", "",
        "Device: Kelvo Corvane M20\n"
        "Description file: KVBARE.PPD · version 1.0\n"
        "What is fitted: none\n"
        "Paper trays: Tray 1 · Bypass tray\n"
        "Output trays: Top tray\n"); // the other one needs the catch tray
    row("no PPD", "", "Hall-3", "Device: not known\nPrinter: Hall-3\n");
}

void TestAbout::tellsWhatTheDeviceIs()
{
    QFETCH(QString, device);
    QFETCH(QString, printer);
    const DeviceSession session(device);
    QTEST(aboutText(currentDevice(), aboutDevice(currentDevice(), printer)), "text");
}

void TestAbout::knowsThePpdByItsOwnName()
{
    QByteArray ppd = bytesOf(samplePpd(u"bare"_s));
    ppd.replace("*NickName: \"Kelvo Corvane M20\"", "*NickName: \"Corvane  M20, PS v3\"");
    const auto opened = PpdFile::fromBytes(ppd, u"x.ppd"_s);
    QVERIFY(opened);
    const DeviceSession texts(QString{});
    const std::vector<AboutLine> lines =
        aboutDevice(deviceWith(texts.bundle, opened.value().get()), {});
    QCOMPARE(lines.at(0).value, u"Kelvo Corvane M20"_s);
    QCOMPARE(lines.at(1).value, u"Corvane M20, PS v3 · KVBARE.PPD · version 1.0"_s);
}

void TestAbout::drawsWhatIsFitted_data()
{
    const Table<QString, QString> row{"device", "pictures"}; // without "Device_" and ".gif"

    row("no PPD", "", "Base");
    row("bare", "bare", "Base");
    row("mid", "mid", "Base Tray2 Tray3 Finisher CatchTray Stapler HolePunch OneStackerTray");
    row("full", "full",
        "Base Tray2 Tray3 Tray4 Finisher CatchTray Fax Stapler HolePunch OneStackerTray "
        "TwoStackerTrays BookletMaker Inserter Folder");
}

void TestAbout::drawsWhatIsFitted()
{
    QFETCH(QString, device);
    const DeviceSession session(device);
    QString shown = devicePictures(currentDevice()).join(u' ');
    shown.remove(u"Device_"_s).remove(u".gif"_s);
    QTEST(shown, "pictures");
}

// What our programs and libraries say that they need, by what its files' names begin with.
void TestAbout::namesAllThatIsLinked()
{
    const QList<std::pair<const char *, const char *>> files = {
        {"libQt6", "Qt"},
        {"libcups.", "CUPS"},
        {"libexpat.", "Expat"},
        {"libsystemd.", "libsystemd"},
        {"libfontconfig.", "fontconfig"},
        {"libcairo.", "cairo"},
        {"libpango", "Pango"},
        {"libharfbuzz.", "HarfBuzz"},
        {"libglib-", "GLib"},
        {"libgobject-", "GLib"},
        {"libgio-", "GLib"},
        {"libpoppler-", "poppler"},
        {"libqpdf.", "qpdf"},
        {"libebook-", "evolution-data-server"},
        {"libedataserver-", "evolution-data-server"},
        {"libc.", "GNU C Library"},
        {"libm.", "GNU C Library"},
        {"ld-linux", "GNU C Library"},
        {"libstdc++.", "GNU C++ Library"},
        {"libgcc_s.", "GNU C++ Library"},
        {"libkelvo_", ""},
        {"libasan.", ""}, // of test builds
        {"libubsan.", ""},
        {"libtsan.", ""},
    };
    QStringList ours{u"" KELVO_BUILD_DIR "/bin/kelvo-print"_s,
                     u"" KELVO_BUILD_DIR "/lib/KelvoPDE.pde/KelvoPDE.so"_s};
    for (const QFileInfo &file :
         QDir(u"" KELVO_BUILD_DIR "/lib"_s)
             .entryInfoList({u"libkelvo_*.so"_s, u"kelvo-*"_s}, QDir::Files))
        ours << file.filePath();
    QProcess readelf;
    readelf.start(u"readelf"_s, QStringList{u"--wide"_s, u"--dynamic"_s} + ours);
    QVERIFY(readelf.waitForFinished() && readelf.exitCode() == 0);

    QSet<QString> linked{u"Ghostscript"_s}; // which is started
    auto needed = QRegularExpression(uR"(\(NEEDED\).*\[(.+)\])"_s)
                      .globalMatch(QString::fromLocal8Bit(readelf.readAllStandardOutput()));
    while (needed.hasNext()) {
        const QString name = needed.next().captured(1);
        const auto row = std::ranges::find_if(
            files, [&](const auto &file) { return name.startsWith(QLatin1String(file.first)); });
        QVERIFY2(row != files.end(), qPrintable(name));
        if (*row->second)
            linked << QString::fromLatin1(row->second);
    }
    QSet<QString> named;
    for (const UsedLibrary &library : usedLibraries())
        named << QString::fromUtf8(library.name);
    QCOMPARE(QStringList((linked - named).values()).join(u' '), QString());
    QCOMPARE(QStringList((named - linked).values()).join(u' '), QString());

    const LibraryVersions versions = usedLibraryVersions();
    QVERIFY(versions.size() >= 10);
    const QRegularExpression version(uR"(^\d+(\.\d+)+$)"_s);
    for (auto each = versions.begin(); each != versions.end(); ++each)
        QVERIFY2(named.contains(each.key()) && version.match(each.value()).hasMatch(),
                 qPrintable(each.key() + u' ' + each.value()));
}

void TestAbout::copiesWhatHelpersAsk()
{
    const DeviceSession session(u"bare"_s);
    QWidget window;
    DialogSteps steps;
    steps.run(
        [&window] {
            RunModalAboutDialog(currentDevice(), &window);
            return DialogResult::OK;
        },
        {click("aboutCopy"), expect("aboutCopyHint", "text", "Copied to the clipboard."),
         click("aboutOK")});
    QVERIFY(steps.isDone());
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY2(copied.startsWith(u"Panels: 1.0.0\nProgram: print-host 7.5\n"
                               "Device: Kelvo Corvane M20\nPrinter: bare\n"_s),
             qPrintable(copied));
    const QString libraries = u"Libraries used:\n"_s;
    QCOMPARE(copied.section(libraries, 1),
             aboutLibraries(currentDevice(), usedLibraryVersions()) + u'\n');
    QStringList names;
    for (const QString &line : copied.section(libraries, 0, 0).split(u'\n', Qt::SkipEmptyParts)) {
        names << line.section(u": "_s, 0, 0);
        QVERIFY2(!line.section(u": "_s, 1).isEmpty(), qPrintable(line));
    }
    QCOMPARE(names.mid(4),
             QStringList({"Description file", "What is fitted", "Paper trays", "Output trays",
                          "System", "Language", "Locale", "Window system"}));
}

QTEST_MAIN(TestAbout)
#include "test_about.moc"
