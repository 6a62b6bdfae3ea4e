#include "address_book_service.h"
#include "kelvo_print.h"
#include "sample_ppds.h"
#include "table.h"

#include <QDir>
#include <QTest>

// Drives the dialogs of the sample devices as their users do: each script in this
// folder is a row. Its first line names the device, the user's locale and, where the
// dialog begins with one, a ticket: "# full en_US: what it shows",
// "# mid en_US foreign.plist: what it shows". Cards of the script's name lie where it runs.
class TestDialogScripts : public QObject
{
    Q_OBJECT

private slots:
    void goesAsWritten_data();
    void goesAsWritten();
    void aGroupThatWasSavedIsFoundAgain();
    void aLibraryThatCannotBeKeptNamesItsFile();
    void aDialogThatCannotBeMadeSaysSo_data();
    void aDialogThatCannotBeMadeSaysSo();
    void aPanelThatCannotBeMadeSaysSo_data();
    void aPanelThatCannotBeMadeSaysSo();
};

namespace {

// The program at this desk has a bundle of its own, without that description of a
// window; its path.
QString withoutDescription(Desk &desk, const QString &window)
{
    const QString bundle = desk.path("KelvoPDE.pde");
    const QString description = bundle + "/Resources/dialogs/" + window + ".ui";
    if (QProcess::execute("cp", {"-rs", KELVO_BUILD_DIR "/lib/KelvoPDE.pde", bundle}) != 0
        || !QFile::remove(description)) // the link
        qFatal("no bundle without %s", qPrintable(window));
    desk.set("KELVO_BUNDLE", bundle);
    return description;
}

} // namespace

void TestDialogScripts::goesAsWritten_data()
{
    const Table<QString> row{"path"};
    const QDir folder(QStringLiteral(KELVO_SOURCE_DIR "/tests/dialogs"));
    for (const QFileInfo &script : folder.entryInfoList({"*.kps"}))
        row(qPrintable(script.completeBaseName()), script.filePath());
}

void TestDialogScripts::goesAsWritten()
{
    QFETCH(QString, path);
    const QString first = QString::fromUtf8(bytesOf(path).split('\n').first());
    const QStringList words = first.section(u':', 0, 0).split(u' ');
    QVERIFY2(words.size() >= 3 && words.first() == "#", qPrintable(first));
    QStringList arguments{"--no-window", "--script",   path,    "--to",
                          "out",         documentPath, "--ppd", samplePpd(words[1])};
    if (words.size() > 3)
        arguments << "--ticket-in" << QFileInfo(path).dir().filePath(words[3]);
    Desk desk;
    const QString cards = QFileInfo(path).completeBaseName() + QStringLiteral(".vcf");
    QFile::copy(QFileInfo(path).dir().filePath(cards), desk.path(cards)); // of most there are none
    desk.set(QStringLiteral("LC_ALL"), words[2] + QStringLiteral(".UTF-8"));
    const Run run = desk.run(arguments);
    QENDED(run, 0);
    QVERIFY2(!run.out.contains("STRING NOT FOUND"), qPrintable(run.out));
}

// In the desktop's own address book, by another run.
void TestDialogScripts::aGroupThatWasSavedIsFoundAgain()
{
    AddressBookService service;
    QCOMPARE(service.start(), QString());
    Desk desk;
    desk.set(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), service.address());
    const auto run = [&desk](const QByteArray &lines) {
        putFile(desk.path("s.kps"), "tab 1\nchoose @jobType key Fax\n" + lines);
        return desk.run({"--demo", "--no-window", "--script", "s.kps"});
    };
    QENDED(run("click @addRecipient\ntype @recipientFirstName \"Ann\"\n"
               "type @recipientLastName \"Lee\"\ntype @recipientFaxNumber \"555\"\n"
               "type @recipientMailbox \"17\"\nclick @okButton\n"
               "click @saveGroup\ntype @groupName \"Sales\"\nclick @okButton\n"
               "expect-window @lanFax\nclick @okButton\n"
               "expect-ticket com.kelvo.print.FaxRecipientList/0/LastName Lee\n"),
           0);
    // The person was saved with the first name alone.
    QENDED(run("click @addFromAddressBook\nexpect @peopleList items 2\n"
               "expect @peopleList cell 1 1 Sales\nexpect @peopleList cell 2 1 Ann\n"
               "type @peopleSearch \"sal\"\nclick @addPeople\n"
               "expect @peopleAdded text \"1 recipient was added.\"\n"
               "click @cancelButton\nclick @okButton\n"
               "expect-ticket com.kelvo.print.FaxRecipientList/0/FirstName Ann\n"
               "expect-ticket com.kelvo.print.FaxRecipientList/0/LastName absent\n"
               "expect-ticket com.kelvo.print.FaxRecipientList/0/FaxNumber 555\n"
               "expect-ticket com.kelvo.print.FaxRecipientList/0/FaxNumberLabel work\n"
               "expect-ticket com.kelvo.print.FaxRecipientList/0/Mailbox 17\n"),
           0);
}

void TestDialogScripts::aLibraryThatCannotBeKeptNamesItsFile()
{
    Desk desk;
    desk.set(QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("/dev/null"));
    putFile(
        desk.path("s.kps"),
        "tab 1\nitem @stockButton 'Sadv'\nclick @saveInLibrary\ntype @libraryStockName \"Card\"\n"
        "click @okButton\n"
        "expect-notice \"/dev/null/kelvo/com.kelvo.print.stocks.plist\"\nanswer 1\n"
        "cancel\ncancel\n");
    QENDED(desk.run({"--demo", "--no-window", "--script", "s.kps"}), 0);
}

// Every window that a button of the panels opens.
void TestDialogScripts::aDialogThatCannotBeMadeSaysSo_data()
{
    // lines: that open it; open: dialogs behind it
    const Table<QByteArray, int> table{"lines", "open"};
    const QByteArray advanced = "item @stockButton 'Sadv'\n";
    const QByteArray insert = "panel SpecialPages\nclick @addInserts\n";
    const QByteArray exception = "panel SpecialPages\nclick @addExceptions\n";
    const auto row = [&](const char *window, const QByteArray &lines, int open = 0) {
        table(window, lines, open);
    };
    row("JobTypes/SecurePrint", "choose @jobType key SecurePrint");
    row("JobTypes/DelayedPrint", "choose @jobType key DelayedPrint");
    row("JobTypes/SavedJob", "choose @jobType key \"Save to Mailbox Command\"");
    const QByteArray fax = "choose @jobType key Fax\n";
    row("LANFAX/LANFAX", fax);
    row("LANFAX/FaxPreferences", fax + "click @faxPreferences", 1);
    row("LANFAX/Recipient", fax + "click @addRecipient", 1);
    row("LANFAX/AddressBook", fax + "click @addFromAddressBook", 1);
    row("LANFAX/CoverSheet",
        fax
            + "set @faxTabs 3\nchoose @coverSheet key \"Print a Cover "
              "Sheet...\"",
        1);
    row("FinishingDialogs/ChoiceDialog", "item @moreFinishing 'Fst1'");
    row("FinishingDialogs/OffsetDialog", "item @moreFinishing 'Foff'");
    row("FinishingDialogs/CustomFinishing", "item @moreFinishing 'Fcus'");
    row("JobNotes/JobNotesPrefs", "panel JobNotes\nclick @jobNotesPreferences");
    row("BookletCreation/BookletFinishingOptions", "item @finishingButton 'Bkcr'");
    row("WatermarkEditor/Window", "panel BookletWatermark\nitem @watermark 'KWmN'");
    row("Separators/Separators", "click @separatorsButton");
    row("SpecialPages/Basic Covers", "click @coversButton");
    row("SpecialPages/Basic Inserts", insert);
    row("SpecialPages/Basic Exceptions", exception);
    row("StockTypeSetupDialogs/TabStockSetup",
        exception + "item @exceptionStockButton 'Styp' key TabStock", 1);
    row("CustomStockSize/CustomStockSize", insert + "item @insertStockButton 'Ssiz' key Custom", 1);
    row("AdvancedStockSelection/AdvancedStockSelection", advanced);
    row("AdvancedStockSelection/SaveInLibrary", advanced + "click @saveInLibrary", 1);
    row("StockDescription/StockDescription", advanced + "click @advancedStockDescription", 1);
    row("StockType/StockType", advanced + "click @advancedStockType", 1);
    row("PreCutTabStockSetup/PreCutTabStockSetup",
        advanced + "click @advancedStockType\nchoose @stockType 6\nclick @stockTabs", 2);
}

void TestDialogScripts::aDialogThatCannotBeMadeSaysSo()
{
    QFETCH(QByteArray, lines);
    QFETCH(int, open);
    Desk desk;
    const QByteArray window = QTest::currentDataTag();
    const QString description = withoutDescription(desk, window);
    for (const auto &[damage, reason] :
         {std::pair("", "no such window description"),
          {"<ui", ".ui"},
          {"<ui version=\"4.0\"><widget class=\"QWidget\" name=\"w\"/></ui>",
           "lacks controls that the window needs: K"}}) {
        if (*damage)
            putFile(description, damage);
        putFile(desk.path("s.kps"),
                lines + "\nexpect-notice \"" + window + "\"\nexpect-notice \"" + reason
                    + "\"\nanswer 1\n" + QByteArray("cancel\n").repeated(open));
        QENDED(desk.run({"--demo", "--no-window", "--script", "s.kps"}), 0);
    }
}

// On standard output, as dialogs have always read it.
void TestDialogScripts::aPanelThatCannotBeMadeSaysSo_data()
{
    // description null: none
    const Table<QByteArray, QString> row{"description", "message"};
    const QByteArray empty = "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"w\">";
    const QByteArray pane = "<property name=\"controlID\" stdset=\"0\"><string "
                            "notr=\"true\">KPDE 1</string></property>";
    const QByteArray end = "</widget></ui>";
    row("no description", {}, "!! Failed to load nib from bundle.\n");
    row("a damaged one", "<ui", "!! Failed to create window from nib.\n");
    row("one without the pane", empty + end, "!! Failed to get user pane control reference.\n");
    row("one with an empty pane", empty + pane + end, "!! Failed to get control reference.\n");
}

void TestDialogScripts::aPanelThatCannotBeMadeSaysSo()
{
    QFETCH(QByteArray, description);
    QFETCH(QString, message);
    Desk desk;
    const QString path = withoutDescription(desk, "SpecialPages/SpecialPages");
    if (!description.isNull())
        putFile(path, description);
    // It goes on without that panel.
    putFile(desk.path("s.kps"), "panel SpecialPages\nshow @panelNotMade\nprint\n");
    const Run run = desk.run({"--demo", "--no-window", "--script", "s.kps", "--to", "out"});
    QENDED(run, 0);
    QVERIFY2(run.out.contains(message), qPrintable(run.out));
    QVERIFY2(run.out.contains("SpecialPages/SpecialPages"), qPrintable(run.out));
}

QTEST_GUILESS_MAIN(TestDialogScripts)
#include "test_dialog_scripts.moc"
