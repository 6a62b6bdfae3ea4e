#include "device_session.h"

#include "control.h"
#include "table.h"
#include "window_loader.h"

#include <QAbstractButton>
#include <QDirIterator>
#include <QTest>

using namespace kelvo;

// The windows of the panels, each by itself.
class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void windowsCanBeUsedWithoutAMouse_data();
    void windowsCanBeUsedWithoutAMouse();
};

// Every window of the bundle.
void TestWindows::windowsCanBeUsedWithoutAMouse_data()
{
    const Table<QString, QString> row{"description", "window"};

    QDirIterator files(KELVO_SOURCE_DIR "/resources/dialogs", {"*.ui"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        row(qPrintable(file.completeBaseName()), file.dir().dirName(), file.completeBaseName());
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

QTEST_MAIN(TestWindows)
#include "test_windows.moc"
