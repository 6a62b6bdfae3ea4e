#include "kelvo_print.h"

#include <QDir>
#include <QTest>

// Drives the dialogs of the sample devices as their users do: each script in this
// folder is a row. Its first line names the device, the user's locale and, where the
// dialog begins with one, a ticket: "# full en_US: what it shows",
// "# mid en_US foreign.plist: what it shows".
class TestDialogScripts : public QObject
{
    Q_OBJECT

private slots:
    void goesAsWritten_data();
    void goesAsWritten();
    void aLibraryThatCannotBeKeptNamesItsFile();
};

void TestDialogScripts::goesAsWritten_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(QStringLiteral(KELVO_SOURCE_DIR "/tests/dialogs"));
    for (const QFileInfo &script : folder.entryInfoList({"*.kps"}))
        QTest::newRow(qPrintable(script.completeBaseName())) << script.filePath();
}

void TestDialogScripts::goesAsWritten()
{
    QFETCH(QString, path);
    const QString first = QString::fromUtf8(contents(path).split('\n').first());
    const QStringList words = first.section(u':', 0, 0).split(u' ');
    QVERIFY2(words.size() >= 3 && words.first() == "#", qPrintable(first));
    QStringList arguments{
        "--no-window",
        "--script",
        path,
        "--to",
        "out",
        documentPath,
        "--ppd",
        QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-%1.ppd").arg(words[1])};
    if (words.size() > 3)
        arguments << "--ticket-in" << QFileInfo(path).dir().filePath(words[3]);
    Desk desk;
    desk.set(QStringLiteral("LC_ALL"), words[2] + QStringLiteral(".UTF-8"));
    const Run run = desk.run(arguments);
    QENDED(run, 0);
    QVERIFY2(!run.out.contains("STRING NOT FOUND"), qPrintable(run.out));
}

void TestDialogScripts::aLibraryThatCannotBeKeptNamesItsFile()
{
    Desk desk;
    desk.set(QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("/dev/null"));
    write(desk.path("s.kps"),
          "tab 1\nitem @stockButton 'Sadv'\nclick @saveInLibrary\ntype @libraryStockName \"Card\"\n"
          "click @okButton\n"
          "expect-notice \"/dev/null/kelvo/com.kelvo.print.stocks.plist\"\nanswer 1\n"
          "cancel\ncancel\n");
    QENDED(desk.run({"--demo", "--no-window", "--script", "s.kps"}), 0);
}

QTEST_GUILESS_MAIN(TestDialogScripts)
#include "test_dialog_scripts.moc"
