#include "event_log.h"
#include "files.h"
#include "help_window.h"
#include "modal_dialog.h"
#include "notice.h"
#include "picture_view.h"
#include "pictures.h"
#include "spin_field.h"
#include "summary_view.h"
#include "table.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using namespace kelvo;

class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void okAsksTheRuleAndCancelDoesNot();
    void okTakesTheTypedValueFirst();
    void escapeAndReturnPressCancelAndOk();
    void nestedDialogsAreTheFrontWindowInTurn();
    void anAlertAnswersWithItsButton_data();
    void anAlertAnswersWithItsButton();
    void aNoticeHasOneButtonForEveryKey();
    void aNoticeShowsTextsAsTheyAre();
    void theHelpWindowShowsTheBooksFilesOnly();
    void thePictureFillsWhatFits();
};

namespace {

// A window with a spin field, an OK and a Cancel button.
struct Sample
{
    Sample()
        : content(new QWidget)
        , column(new QVBoxLayout(content))
        , spin(new SpinField)
        , ok(button("OK", "ok  "))
        , cancel(button("Cancel", "not!"))
        , dialog(content, nullptr)
    {
        column->addWidget(spin);
    }

    QPushButton *button(const char *text, const char *command)
    {
        auto *made = new QPushButton(text);
        column->addWidget(made);
        made->setProperty("command", command);
        sendControlEvents(made);
        return made;
    }

    // Runs the dialog and does these one after the other while it runs.
    DialogResult run(const std::vector<std::function<void()>> &actions)
    {
        int delay = 0;
        for (const auto &action : actions)
            QTimer::singleShot(delay += 20, &dialog, action);
        return dialog.runModal();
    }

    QWidget *content;
    QVBoxLayout *column;
    SpinField *spin;
    QPushButton *ok;
    QPushButton *cancel;
    ModalDialog dialog;
};

void press(Qt::Key key)
{
    QWidget *window = QApplication::activeModalWidget();
    QWidget *focus = window->focusWidget();
    QTest::keyClick(focus ? focus : window, key);
}

} // namespace

void TestDialogs::okAsksTheRuleAndCancelDoesNot()
{
    Sample sample;
    int asked = 0;
    sample.dialog.setAcceptRule([&asked] { return ++asked > 1; });
    QStringList states;
    const auto note = [&] { states.append(sample.dialog.isVisible() ? "open" : "closed"); };
    QCOMPARE(sample.run({[&] { sample.ok->click(), note(); }, [&] { sample.ok->click(), note(); }}),
             DialogResult::OK);
    QCOMPARE(states, (QStringList{"open", "closed"}));
    QCOMPARE(sample.run({[&] { sample.cancel->click(); }}), DialogResult::Cancel);
    QCOMPARE(sample.run({[&] { sample.dialog.close(); }}), DialogResult::Cancel);
    QCOMPARE(asked, 2);
}

void TestDialogs::okTakesTheTypedValueFirst()
{
    Sample sample;
    int seen = -1;
    sample.dialog.setAcceptRule([&] {
        seen = sample.spin->value();
        return true;
    });
    // And a value that makes OK impossible keeps the dialog open.
    const auto handler = installEventHandler(&sample.dialog, [&](const Event &event) {
        if (event.source == sample.spin && event.kind == EventKind::ControlHit)
            sample.ok->setEnabled(sample.spin->value() != 13);
        return eventNotHandledErr;
    });
    QCOMPARE(sample.run({[&] { sample.spin->typeText("13"); },
                         [&] { sendCommand(&sample.dialog, kCommandOK); },
                         [&] {
                             QVERIFY(sample.dialog.isVisible());
                             QCOMPARE(seen, -1);
                             sample.spin->typeText("42");
                             sample.ok->setEnabled(true);
                         },
                         [&] { sample.ok->click(); }}),
             DialogResult::OK);
    QCOMPARE(seen, 42);
}

void TestDialogs::escapeAndReturnPressCancelAndOk()
{
    Sample sample;
    QCOMPARE(sample.run({[] { press(Qt::Key_Return); }}), DialogResult::OK);
    QCOMPARE(sample.run({[] { press(Qt::Key_Escape); }}), DialogResult::Cancel);
    QCOMPARE(windowDefaultButton(sample.spin), sample.ok);
    QCOMPARE(windowCancelButton(sample.spin), sample.cancel);
}

void TestDialogs::nestedDialogsAreTheFrontWindowInTurn()
{
    QWidget print;
    QVERIFY(!frontWindow());
    setPrintWindow(&print);
    print.show();
    QCOMPARE(frontWindow(), &print);
    Sample outer;
    QVERIFY(outer.dialog.parentWidget() == &print);
    outer.run({[&] {
        QCOMPARE(frontWindow(), &outer.dialog);
        Sample inner;
        inner.run({[&] {
            QCOMPARE(frontWindow(), &inner.dialog);
            QCOMPARE(inner.dialog.parentWidget(), &outer.dialog);
            inner.ok->click();
        }});
        QCOMPARE(frontWindow(), &outer.dialog);
        outer.ok->click();
    }});
    QCOMPARE(frontWindow(), &print);
}

void TestDialogs::anAlertAnswersWithItsButton_data()
{
    // pressed 0: Escape, -1: Return
    const Table<QStringList, int, int> row{"buttons", "pressed", "answer"};
    const QStringList two{"Delete", "Cancel"};
    const QStringList three{"Save", "Cancel", "Do Not Save"};
    row("first of two", two, 1, 1);
    row("second of two", two, 2, 2);
    row("third", three, 3, 3);
    row("Escape is the second of two", two, 0, 2);
    row("Escape is the second of three", three, 0, 2);
    row("Return is the first", three, -1, 1);
}

void TestDialogs::anAlertAnswersWithItsButton()
{
    QFETCH(QStringList, buttons);
    QFETCH(int, pressed);
    QVERIFY(!answerNotice(1));
    ShownNotice shown;
    QTimer::singleShot(20, qApp, [&] {
        shown = frontNotice();
        QVERIFY(!answerNotice(0));
        QVERIFY(!answerNotice(static_cast<int>(buttons.size()) + 1));
        if (pressed > 0)
            QVERIFY(answerNotice(pressed));
        else
            press(pressed == 0 ? Qt::Key_Escape : Qt::Key_Return);
    });
    QTEST(CFUserNotificationDisplayAlert(NoticeLevel::Caution, "Header", "Message", buttons),
          "answer");
    QCOMPARE(shown.header, "Header");
    QCOMPARE(shown.message, "Message");
    QCOMPARE(shown.buttons, buttons);
    QVERIFY(!frontNotice().isShown());
}

void TestDialogs::aNoticeHasOneButtonForEveryKey()
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        QStringList buttons;
        QTimer::singleShot(20, qApp, [&] {
            buttons = frontNotice().buttons;
            press(key);
        });
        CFUserNotificationDisplayNotice(NoticeLevel::Note, "Header", "Message");
        QCOMPARE(buttons, QStringList{"OK"});
    }
}

void TestDialogs::aNoticeShowsTextsAsTheyAre()
{
    QString header;
    QTimer::singleShot(20, qApp, [&] {
        const auto labels = QApplication::activeModalWidget()->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->text().startsWith(u'<')) {
                header = label->text();
                QCOMPARE(label->textFormat(), Qt::PlainText);
            }
        }
        // However long the message is, the buttons can be reached.
        QVERIFY(QApplication::activeModalWidget()->height()
                < QGuiApplication::primaryScreen()->availableGeometry().height());
        answerNotice(1);
    });
    CFUserNotificationDisplayNotice(
        NoticeLevel::Stop, "<b>Hall-3</b>",
        QStringLiteral("Staple and transparency clash.\n").repeated(200));
    QCOMPARE(header, "<b>Hall-3</b>");
}

void TestDialogs::theHelpWindowShowsTheBooksFilesOnly()
{
    QTemporaryDir folder;
    QString said; // by a button whose page is missing
    const auto read = [&said] {
        said = frontNotice().message;
        answerNotice(1);
    };
    QTimer::singleShot(0, read);
    QCOMPARE(showHelp({}, nullptr), fnfErr);
    QVERIFY2(said.startsWith("The folder with the help pages is missing."), qPrintable(said));
    QCOMPARE(AHRegisterHelpBook(nullptr), paramErr);
    putFile(folder.filePath("help/en/index.html"), "<title>Contents</title>start");
    putFile(folder.filePath("help/en/shell/advanced.html"), "<title>Advanced</title>advanced");
    putFile(folder.filePath("outside.html"), "outside");
    QVERIFY(QFile::link(folder.filePath("outside.html"), folder.filePath("help/en/link.html")));
    putFile(folder.filePath("pictures/Wide.svg"),
            R"(<svg xmlns="http://www.w3.org/2000/svg" width="160" height="80"/>)");
    addHelpFolder(folder.filePath("help"));

    QCOMPARE(DisplayHelp("none.html"), fnfErr);
    QCOMPARE(DisplayHelp("../../outside.html"), fnfErr);
    QCOMPARE(DisplayHelp("link.html"), fnfErr);
    QCOMPARE(DisplayHelp("shell"), fnfErr);
    QTimer::singleShot(0, read);
    QCOMPARE(showHelp("none.html", nullptr), fnfErr);
    QVERIFY2(said.contains("“none.html” is missing in " + folder.filePath("help") + '.'),
             qPrintable(said));
    QCOMPARE(DisplayHelp("shell/advanced.html#end"), noErr);
    QPointer<QWidget> window;
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (top->objectName() == "helpWindow")
            window = top;
    }
    QVERIFY(window && window->isVisible() && !window->isModal());
    QCOMPARE(window->windowTitle(), "Advanced");
    auto *browser = window->findChild<QTextBrowser *>();
    QCOMPARE(browser->toPlainText(), "advanced");

    browser->setSource(QUrl("../../../outside.html"));
    browser->setSource(QUrl("https://example.org/"));
    QCOMPARE(browser->toPlainText(), "advanced");
    browser->setSource(QUrl("../index.html"));
    QCOMPARE(browser->toPlainText(), "start");
    browser->backward();
    QCOMPARE(browser->toPlainText(), "advanced");

    // The search: as it is typed, with keys, until it is cleared.
    auto *field = window->findChild<QLineEdit *>("helpSearch");
    auto *results = window->findChild<QListWidget *>();
    field->setFocus();
    QTest::keyClicks(field, "a");
    QCOMPARE(results->count(), 2);
    QTest::keyClick(field, Qt::Key_Down);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(browser->toPlainText(), "start");
    QTest::keyClicks(field, "dv");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(browser->toPlainText(), "advanced");
    QTest::keyClicks(field, "q");
    QVERIFY(!results->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    QCOMPARE(field->text(), "");
    QVERIFY(window->isVisible());

    // The bundle's pictures, as high as three lines of text at most.
    const QVariant picture =
        browser->loadResource(QTextDocument::ImageResource, QUrl("picture:Wide.svg+None.svg"));
    QCOMPARE(picture.value<QPixmap>().deviceIndependentSize().toSize(),
             QSize(2, 1) * browser->fontMetrics().lineSpacing() * 3);
    QVERIFY(browser->loadResource(QTextDocument::ImageResource, QUrl("picture:../Wide.svg"))
                .value<QPixmap>()
                .isNull());

    // From a modal dialog it can be used, and it outlives the dialog.
    {
        Sample sample;
        sample.run({[&] {
            sendCommand(&sample.dialog, kCommandHelp);
            QCOMPARE(browser->toPlainText(), "start");
            QCOMPARE(window->parentWidget(), &sample.dialog);
            sample.ok->click();
        }});
    }
    QVERIFY(window && window->isVisible());
    QCOMPARE(window->parentWidget(), nullptr);
}

void TestDialogs::thePictureFillsWhatFits()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("pictures/Paper_Plain-Blue.svg");
    putFile(file, R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="10">
<rect width="20" height="10" fill="#0000ff"/></svg>)");
    putFile(folder.filePath("pictures/broken.svg"), "<svg");
    QCOMPARE(pictureFile(folder.path(), "Paper_Plain-Blue.gif"), file);
    QCOMPARE(pictureFile(folder.path(), "None.gif"), "");
    QCOMPARE(pictureFile(folder.path(), "../pictures/Paper_Plain-Blue.gif"), ""); // never a path
    QCOMPARE(pictureFile(folder.path(), ""), "");
    QVERIFY(!pictureIcon(folder.path(), "Paper_Plain-Blue.gif").isNull());
    QVERIFY(pictureIcon(folder.path(), "broken.png").isNull());

    PictureView view;
    view.setPictures({folder.filePath("missing.svg"), file}, "Blue paper");
    QCOMPARE(view.sizeHint(), QSize(20, 10));
    QCOMPARE(view.accessibleName(), "Blue paper");
    view.resize(100, 100); // 100 by 50, in the middle
    const auto colourAt = [&view](int y) { return view.grab().toImage().pixelColor(50, y); };
    QCOMPARE(colourAt(50), QColor(0, 0, 255));
    QCOMPARE(colourAt(27), QColor(0, 0, 255));
    QVERIFY(colourAt(22) != QColor(0, 0, 255));
    view.setEnabled(false);
    QVERIFY(colourAt(50).red() > 50);
}

QTEST_MAIN(TestDialogs)
#include "test_dialogs.moc"
