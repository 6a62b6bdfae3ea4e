#include "damaged_bundle.h"
#include "device_session.h"
#include "dialog_driver.h"

#include "covers_dialog.h"
#include "custom_stock_size_dialog.h"
#include "delayed_print_dialog.h"
#include "dialog_window.h"
#include "exceptions_dialog.h"
#include "finishing_dialogs.h"
#include "inserts_dialog.h"
#include "panel_content.h"
#include "paper_output_settings.h"
#include "popup_button.h"
#include "save_stock_dialog.h"
#include "saved_job_dialog.h"
#include "secure_print_dialog.h"
#include "separators_dialog.h"
#include "stock_dialogs.h"
#include "tab_stock_dialogs.h"
#include "window_loader.h"

#include <QAbstractButton>
#include <QDirIterator>
#include <QLabel>

using namespace kelvo;

namespace {

// What a dialog works on, and must leave alone.
struct Settings
{
    PaperOutputSettings context;
    Stock stock;
    std::int32_t number = kUnset, other = kUnset;
    LongDateTime time = 0;
    std::optional<QString> passcode;
    SavedJobData savedJob;
    _IS_Options shift;
    std::optional<Cover> front, back;
    InsertList inserts;
    ExceptionPageList exceptions;
    DialogResult result = DialogResult::Cancel;
};

using Run = OSStatus (*)(CFBundleRef, Settings &);
struct DialogRow
{
    const char *window; // description/window
    Run run;
};

// Every window of the panels that a button opens.
const DialogRow kDialogs[] = {
    {"JobTypes/SecurePrint",
     [](CFBundleRef bundle, Settings &s) { return RunModalSecurePrintSetup(bundle, &s.passcode); }},
    {"JobTypes/DelayedPrint",
     [](CFBundleRef bundle, Settings &s) { return RunModalDelayedPrintSetup(bundle, &s.time); }},
    {"JobTypes/SavedJob",
     [](CFBundleRef bundle, Settings &s) { return RunModalSavedJobDialog(bundle, &s.savedJob); }},
    {"FinishingDialogs/ChoiceDialog",
     [](CFBundleRef bundle, Settings &s) {
         return RunModal1StapleFinishingDialog(bundle, &s.context, &s.result);
     }},
    {"FinishingDialogs/OffsetDialog",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalOffsetFinishingDialog(bundle, &s.context, &s.result);
     }},
    {"FinishingDialogs/CustomFinishing",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalCustomFinishingDialog(bundle, &s.context, &s.result);
     }},
    {"Separators/Separators",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalSeparatorsDialog(bundle, &s.number, &s.stock, &s.result);
     }},
    {"CustomStockSize/CustomStockSize",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalCustomStockSizeDialog(bundle, &s.result, &s.number, &s.other);
     }},
    {"StockDescription/StockDescription",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalStockDescriptionSetup(bundle, kDialogModeEdit, kJobContextJob, &s.stock,
                                              &s.result);
     }},
    {"StockType/StockType",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalStockTypeSetup(bundle, kDialogModeEdit, kJobContextJob, &s.stock,
                                       &s.result);
     }},
    {"AdvancedStockSelection/AdvancedStockSelection",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalAdvancedStockSelection(bundle, kDialogModeEdit, kJobContextJob,
                                               kNamedPaperLibrary, &s.stock, &s.result);
     }},
    {"AdvancedStockSelection/SaveInLibrary",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalSaveStock(bundle, s.stock, {}, nullptr) ? noErr : kWindowNotMade;
     }},
    {"StockTypeSetupDialogs/TabStockSetup",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalTabStockSetupDialog(bundle, &s.stock, &s.shift, &s.result);
     }},
    {"PreCutTabStockSetup/PreCutTabStockSetup",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalPreCutTabStockSetup(bundle, kDialogModeEdit, kJobContextJob, &s.stock,
                                            &s.result);
     }},
    {"SpecialPages/Basic Covers",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalCoversDialog(bundle, kDialogModeAdd, &s.stock, &s.front, &s.back,
                                     &s.result);
     }},
    {"SpecialPages/Basic Inserts",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalInsertsDialog(bundle, kDialogModeAdd, &s.stock, &s.inserts, nullptr,
                                      &s.result);
     }},
    {"SpecialPages/Basic Exceptions",
     [](CFBundleRef bundle, Settings &s) {
         return RunModalExceptionsDialog(bundle, kDialogModeAdd, &s.stock, 0, &s.exceptions,
                                         nullptr, &s.result);
     }},
};

const QByteArray kButtonAlone =
    "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"w\">"
    "<widget class=\"QPushButton\" name=\"okButton\"><property name=\"command\" stdset=\"0\">"
    "<string notr=\"true\">ok  </string></property></widget></widget></ui>";

} // namespace

// The windows of the panels, and what is said where one is missing or damaged: no button
// does nothing.
class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void windowsCanBeUsedWithoutAMouse_data();
    void windowsCanBeUsedWithoutAMouse();
    void aDialogThatCannotBeMadeSaysSo_data();
    void aDialogThatCannotBeMadeSaysSo();
    void aPanelThatCannotBeMadeSaysSo_data();
    void aPanelThatCannotBeMadeSaysSo();
};

// Every window of the bundle.
void TestWindows::windowsCanBeUsedWithoutAMouse_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("window");

    QDirIterator files(KELVO_SOURCE_DIR "/resources/dialogs", {"*.ui"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        QTest::addRow("%s", qPrintable(file.completeBaseName()))
            << file.dir().dirName() << file.completeBaseName();
    }
}

void TestWindows::windowsCanBeUsedWithoutAMouse()
{
    QFETCH(QString, description);
    QFETCH(QString, window);
    const DeviceSession device("full");
    const auto loaded = createWindowFromDescription(device.bundle, description, window);
    QVERIFY2(loaded, qPrintable(loaded.reason()));
    const std::unique_ptr<QWidget> content(loaded.value());

    const QString page = content->property("helpPage").toString();
    if (!page.isEmpty())
        QVERIFY2(QFile::exists(device.bundle->resourcesPath() + "/help/" + page), qPrintable(page));
    QSet<QChar> mnemonics;
    for (QWidget *control : content->findChildren<QWidget *>()) {
        if (control->focusPolicy() != Qt::NoFocus && controlIDOf(control)
            && !qobject_cast<QAbstractButton *>(control))
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        const QString text = control->property("text").toString();
        QVERIFY2(!text.contains(QLatin1String("Command")), qPrintable(text)); // a key
        const qsizetype at = text.indexOf(u'&');
        if (at < 0)
            continue;
        const QChar letter = text[at + 1].toLower();
        QVERIFY2(!mnemonics.contains(letter), qPrintable(text));
        mnemonics.insert(letter);
    }
}

void TestWindows::aDialogThatCannotBeMadeSaysSo_data()
{
    QTest::addColumn<int>("dialog");
    QTest::addColumn<QByteArray>("description");
    QTest::addColumn<QByteArray>("reason");

    for (int i = 0; i < int(std::size(kDialogs)); ++i) {
        const char *window = kDialogs[i].window;
        QTest::addRow("%s, missing", window)
            << i << QByteArray() << QByteArray("no such window description");
        QTest::addRow("%s, cut off", window) << i << QByteArray("<ui") << QByteArray(".ui");
        QTest::addRow("%s, another's", window)
            << i << kButtonAlone << QByteArray("lacks controls that the window needs: KPDE ");
    }
}

void TestWindows::aDialogThatCannotBeMadeSaysSo()
{
    QFETCH(int, dialog);
    QFETCH(QByteArray, description);
    QFETCH(QByteArray, reason);
    const DialogRow &row = kDialogs[dialog];
    const DeviceSession device("full");
    const DamagedBundle damaged(QString::fromLatin1(row.window), description);
    QVERIFY(damaged.bundle);
    Settings settings;
    const DialogDriver driver({[&row] {
                                   QVERIFY2(frontNotice().message.contains(row.window),
                                            qPrintable(frontNotice().message));
                               },
                               answerNoticeWith(reason.constData())});
    QCOMPARE(row.run(damaged.bundle, settings), kWindowNotMade);
    QCOMPARE(settings.result, DialogResult::Cancel);
}

void TestWindows::aPanelThatCannotBeMadeSaysSo_data()
{
    QTest::addColumn<QByteArray>("description");
    QTest::addColumn<QString>("reason");
    const auto with = [](const QByteArray &widgetClass) {
        return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"w\"><widget class=\""
            + widgetClass
            + "\" name=\"quality\"><property name=\"controlID\" stdset=\"0\"><string "
              "notr=\"true\">KPDE 1202</string></property></widget></widget></ui>";
    };
    QTest::newRow("cut off") << QByteArray("<ui") << "ImageOptions.ui";
    QTest::newRow("without its controls")
        << kButtonAlone << "lacks controls that the window needs: KPDE 1202, KPDE 1103";
    QTest::newRow("a control of another class") << with("QLabel") << "needs: KPDE 1202, KPDE 1103";
    QTest::newRow("one that is there") << with("PopupButton") << "needs: KPDE 1103";
}

void TestWindows::aPanelThatCannotBeMadeSaysSo()
{
    QFETCH(QByteArray, description);
    QFETCH(QString, reason);
    const DamagedBundle damaged("ImageOptionsPanel/ImageOptions", description);
    QWidget pane;
    QVERIFY(!createPanelContent(damaged.bundle, "ImageOptionsPanel", "ImageOptions", &pane,
                                [](NeededControls &needed) {
                                    needed.find<PopupButton>({kPanelSignature, 1202});
                                    needed.find({kPanelSignature, 1103});
                                }));
    const auto *label = pane.findChild<QLabel *>();
    QVERIFY(label && label->isVisibleTo(&pane));
    for (const QString &words : {QStringLiteral("ImageOptionsPanel/ImageOptions"),
                                 QStringLiteral("Install the software again"), reason})
        QVERIFY2(label->text().contains(words), qPrintable(label->text()));
}

QTEST_MAIN(TestWindows)
#include "test_windows.moc"
