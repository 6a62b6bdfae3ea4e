#include "damaged_bundle.h"
#include "device_session.h"

#include "control.h"
#include "panel_content.h"
#include "popup_button.h"
#include "window_loader.h"

#include <QAbstractButton>
#include <QDirIterator>
#include <QLabel>
#include <QTest>

using namespace kelvo;

namespace {

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
