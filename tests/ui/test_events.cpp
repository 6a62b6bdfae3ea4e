#include "control_support.h"
#include "event.h"
#include "event_log.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QTest>

using namespace kelvo;

class TestEvents : public QObject
{
    Q_OBJECT

private slots:
    void anEventClimbsUntilItIsTaken();
    void theHandlerInstalledLastIsAskedFirst();
    void aHandlerMayRemoveHandlersWhileItRuns();
    void anEventEndsWhenItsWidgetsDie();
    void handlersGoWithTheirWidgetAndTheirRef();
    void eventsOfADialogStayInTheDialog();
    void onlyTheUsersChangesAreSent();
    void aTakenHitSendsNoCommand();
    void leavingAFieldIsToldButNotItsContextMenu();
};

namespace {

// A window with a pane with a button, each of which notes that it was asked.
struct Tree
{
    explicit Tree(OSStatus paneAnswer = eventNotHandledErr)
        : pane(new QWidget(&window))
        , button(new QPushButton(pane))
    {
        note(&window, "window", eventNotHandledErr);
        note(pane, "pane", paneAnswer);
        note(button, "button", eventNotHandledErr);
    }

    void note(QWidget *widget, const char *name, OSStatus answer)
    {
        refs.push_back(installEventHandler(widget, [this, name, answer](const Event &) {
            asked.append(QString::fromLatin1(name));
            return answer;
        }));
    }

    QStringList asked;
    QWidget window;
    QWidget *pane;
    QPushButton *button;
    std::vector<EventHandlerRef> refs;
};

} // namespace

void TestEvents::anEventClimbsUntilItIsTaken()
{
    const QStringList all{"button", "pane", "window"}, two{"button", "pane"};
    // An error takes it too.
    for (const auto &[paneAnswer, asked] :
         {std::pair(OSStatus(eventNotHandledErr), all), {noErr, two}, {paramErr, two}}) {
        Tree tree(paneAnswer);
        QCOMPARE(sendFrom(tree.button, EventKind::ControlHit), paneAnswer);
        QCOMPARE(tree.asked, asked);
    }
}

void TestEvents::theHandlerInstalledLastIsAskedFirst()
{
    Tree tree;
    tree.note(tree.button, "later", eventNotHandledErr);
    sendFrom(tree.button, EventKind::ControlHit);
    QCOMPARE(tree.asked, (QStringList{"later", "button", "pane", "window"}));
}

void TestEvents::aHandlerMayRemoveHandlersWhileItRuns()
{
    Tree tree;
    // Itself, and the next one in line; what it captured is still used after.
    EventHandlerRef self;
    const QString word = QStringLiteral("removed both");
    self = installEventHandler(tree.button, [&tree, &self, word](const Event &) {
        self.remove();
        tree.refs.back().remove();
        tree.asked.append(word);
        return eventNotHandledErr;
    });

    sendFrom(tree.button, EventKind::ControlHit);
    sendFrom(tree.button, EventKind::ControlHit);

    QCOMPARE(tree.asked, (QStringList{"removed both", "pane", "window", "pane", "window"}));
    QVERIFY(!self.isInstalled());
}

void TestEvents::anEventEndsWhenItsWidgetsDie()
{
    for (const bool wholePane : {false, true}) { // or the button alone
        Tree tree;
        const QPointer<QWidget> button = tree.button;
        const auto handler = installEventHandler(tree.pane, [&](const Event &) {
            delete (wholePane ? tree.pane : static_cast<QWidget *>(tree.button));
            return eventNotHandledErr;
        });
        QCOMPARE(sendFrom(tree.button, EventKind::ControlHit), noErr);
        QVERIFY(!button);
        QCOMPARE(tree.asked, QStringList{"button"});
    }
}

void TestEvents::handlersGoWithTheirWidgetAndTheirRef()
{
    auto ref = EventHandlerRef();
    int calls = 0;
    {
        QWidget widget;
        ref = installEventHandler(&widget, [&](const Event &) {
            ++calls;
            return noErr;
        });
        EventHandlerRef moved = std::move(ref);
        QVERIFY(moved.isInstalled());
        QCOMPARE(sendCommand(&widget, fourCharCode("test")), noErr);
        ref = std::move(moved);
        {
            const auto brief = installEventHandler(&widget, [](const Event &) { return paramErr; });
            QCOMPARE(sendCommand(&widget, fourCharCode("test")), paramErr);
        }
        QCOMPARE(sendCommand(&widget, fourCharCode("test")), noErr);
    }
    QVERIFY(!ref.isInstalled());
    ref.remove();
    QCOMPARE(calls, 2);
}

void TestEvents::eventsOfADialogStayInTheDialog()
{
    Tree tree;
    QWidget dialog(&tree.window, Qt::Dialog);
    QPushButton inDialog(&dialog);
    QCOMPARE(sendFrom(&inDialog, EventKind::ControlHit), eventNotHandledErr);
    QCOMPARE(tree.asked, QStringList());
}

void TestEvents::onlyTheUsersChangesAreSent()
{
    QWidget window;
    EventLog log(&window);
    auto *check = new QCheckBox(&window);
    auto *line = new QLineEdit(&window);
    auto *text = new QPlainTextEdit(&window);
    auto *slider = new QSlider(Qt::Horizontal, &window);
    for (QWidget *control : {static_cast<QWidget *>(check), static_cast<QWidget *>(line),
                             static_cast<QWidget *>(text), static_cast<QWidget *>(slider)})
        sendControlEvents(control);

    check->setChecked(true);
    line->setText("abc");
    text->setPlainText("abc");
    slider->setValue(20);
    slider->setRange(0, 10);
    QCOMPARE(log.take(), QStringList());

    QTest::keyClick(check, Qt::Key_Space);
    QCOMPARE(log.take(), QStringList{"ControlHit"});
    QTest::keyClicks(line, "d");
    QCOMPARE(log.take(), QStringList{"TextChanged"});
    QTest::keyClicks(text, "d");
    QCOMPARE(log.take(), QStringList{"TextChanged"});
    QTest::keyClick(text, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(log.take(), QStringList{"TextChanged"});
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(log.take(), QStringList{"ControlHit"});
    QTest::keyClick(slider, Qt::Key_Home); // there already
    slider->setValue(5);
    text->setPlainText("other");
    QCOMPARE(log.take(), QStringList());
}

void TestEvents::aTakenHitSendsNoCommand()
{
    QWidget window;
    auto *button = new QPushButton(&window);
    button->setProperty("command", "KAbt");
    sendControlEvents(button);
    EventLog log(&window);
    button->click();
    QCOMPARE(log.take(), (QStringList{"ControlHit", "Command 'KAbt'"}));

    const auto taker = installEventHandler(button, [](const Event &event) {
        return event.kind == EventKind::ControlHit ? noErr : eventNotHandledErr;
    });
    button->click();
    QCOMPARE(log.take(), QStringList());
}

void TestEvents::leavingAFieldIsToldButNotItsContextMenu()
{
    QLineEdit line;
    sendControlEvents(&line);
    EventLog log(&line);
    QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(&line, &menu);
    QCOMPARE(log.take(), QStringList());
    QFocusEvent tab(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&line, &tab);
    QCOMPARE(log.take(), QStringList{"FocusChanged"});
}

QTEST_MAIN(TestEvents)
#include "test_events.moc"
