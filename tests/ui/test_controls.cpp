#include "accessibility.h"
#include "angle_dial.h"
#include "button_label.h"
#include "control.h"
#include "control_interface.h"
#include "event_log.h"
#include "inspector.h"
#include "menu_button.h"
#include "menu_style.h"
#include "paper_view.h"
#include "popup_button.h"
#include "radio_group.h"
#include "spin_field.h"
#include "tab_control.h"
#include "table.h"
#include "time_field.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <limits>

using namespace kelvo;

namespace {

// 1 disabled, 2 "Plain" 10, 3 divider, 4 disabled, 5 "Edit..." 20 'Edit', 6 divider
Menu stockMenu()
{
    return {{{.text = "Away", .reference = 5, .enabled = false},
             {.text = "Plain", .reference = 10},
             {.divider = true},
             {.text = "Gone", .reference = 15, .enabled = false},
             {.text = "Edit...", .command = fourCharCode("Edit"), .reference = 20},
             {.divider = true}},
            nullptr};
}

void turnWheel(QWidget *control, int steps)
{
    const QPointF middle = QRectF(control->rect()).center();
    QWheelEvent wheel(middle, control->mapToGlobal(middle), {}, QPoint(0, steps * 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(control, &wheel);
}

} // namespace

class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void aControlIDHasOneSpelling_data();
    void aControlIDHasOneSpelling();
    void theNearestControlIsFoundButNotThroughADialog();
    void aPropertyIsKeptUnderCreatorAndTag();
    void aLabelFollowsItsControl();
    void aHiddenControlIsEmbeddedHidden();

    void aNewMenuShowsItsFirstChoosableItem();
    void keysAndWheelSkipWhatCannotBeChosen();
    void theWheelNeedsTheFocus();
    void aHandlerMayFillTheMenuAnew();
    void escapeClosesTheListAlone();
    void aLongTextDoesNotWidenThePopup();

    void aMenuButtonOffersWhatItsUpdateLeaves();
    void aMenuButtonShowsWhatWasChosen();
    void aLongMenuStaysOnTheScreenAndIsTypedInto();

    void aRadioGroupCountsInLayoutOrder();
    void aTabControlTellsTheUsersChangesOnly();

    void aDialPointsWhereThePointerIsAndGoesRound();
    void onlyWhatCanBeMovedOnPaperIsMoved();

    void theWordsOfAButtonAreDisabledWithIt();
    void whatIsTypedElsewhereMayDisableIt();
    void aReaderIsOfferedAndWritesWhatCanBe();
};

void TestControls::aControlIDHasOneSpelling_data()
{
    const Table<QString, bool> row{"text", "isValid"};
    row("usual", "KPDE 102", true);
    row("a blank in the signature", "K PD 1", true);
    row("greatest number", "KPDE 2147483647", true);
    row("one more", "KPDE 2147483648", false);
    row("least number", "KPDE -2147483648", true);
    row("three characters", "KPD 102", false);
    row("five characters", "KPDEE 102", false);
    row("not ASCII", QString::fromUtf8("KPD\xC3\x89 102"), false);
    row("control character", "KP\tE 102", false);
    row("leading zero", "KPDE 0102", false);
    row("plus sign", "KPDE +102", false);
    row("two blanks", "KPDE  102", false);
    row("no number", "KPDE ", false);
    row("hexadecimal", "KPDE 0x10", false);
}

void TestControls::aControlIDHasOneSpelling()
{
    QFETCH(QString, text);
    const auto id = controlIDFromText(text);
    QTEST(id.has_value(), "isValid");
    if (id)
        QCOMPARE(textOf(*id), text);
}

void TestControls::theNearestControlIsFoundButNotThroughADialog()
{
    const ControlID id{kPanelSignature, 602};
    QWidget window;
    QWidget left(&window), right(&window);
    QPushButton leftButton(&left), rightButton(&right), rightLabel(&right);
    QWidget dialog(&window, Qt::Dialog);
    QPushButton inDialog(&dialog);
    setControlID(&leftButton, id);
    setControlID(&rightButton, id);
    setControlID(&inDialog, {kPanelSignature, 700});

    QCOMPARE(findControl(&left, id), &leftButton);
    QCOMPARE(findControl(&rightLabel, id), &rightButton);
    QCOMPARE(findControl<QPushButton>(&window, id), &leftButton);
    QVERIFY(!findControl<QLabel>(&window, id));
    QVERIFY(!findControl(&left, {kPanelSignature, 700}));
    QCOMPARE(findControl(&dialog, {kPanelSignature, 700}), &inDialog);
    QVERIFY(!findControl(&dialog, id));
}

void TestControls::aPropertyIsKeptUnderCreatorAndTag()
{
    QWidget control;
    const OSType creator = fourCharCode("KCMB");
    const OSType tag = fourCharCode("ctxt");
    QVERIFY(!controlProperty(&control, creator, tag));
    setControlProperty(&control, creator, tag, QVariant()); // a value too
    QVERIFY(controlProperty(&control, creator, tag).has_value());
    setControlProperty(&control, creator, tag, 7);
    setControlProperty(&control, tag, creator, 8);
    QCOMPARE(controlProperty(&control, creator, tag), std::optional<QVariant>(7));
    removeControlProperty(&control, creator, tag);
    QVERIFY(!controlProperty(&control, creator, tag));
    QCOMPARE(controlProperty(&control, tag, creator), std::optional<QVariant>(8));
}

void TestControls::aLabelFollowsItsControl()
{
    QWidget window;
    QWidget pane(&window);
    QLabel away(&window), stranger(&pane);
    QPushButton control(&pane);
    away.setBuddy(&control);
    QCOMPARE(labelOf(&control), &away);
    setEnabledWithLabel(&control, false);
    setVisibleWithLabel(&control, false);
    QVERIFY(!control.isEnabled() && !away.isEnabled() && stranger.isEnabled());
    QVERIFY(control.isHidden() && away.isHidden() && !stranger.isHidden());
}

void TestControls::aHiddenControlIsEmbeddedHidden()
{
    QWidget window;
    window.show();
    auto *control = new QPushButton;
    control->hide();
    QCOMPARE(embedControl(control, &window), noErr);
    QCoreApplication::processEvents();
    QVERIFY(control->isHidden());
    QCOMPARE(control->parentWidget(), &window);
    QCOMPARE(embedControl(nullptr, &window), paramErr);
    QCOMPARE(embedControl(control, nullptr), paramErr);
}

void TestControls::aNewMenuShowsItsFirstChoosableItem()
{
    PopupButton popup;
    EventLog log(&popup);
    QCOMPARE(popup.chosenReference(), std::numeric_limits<std::int32_t>::min());
    popup.setMenu(stockMenu());
    QFont font;
    font.setBold(true);
    popup.setFont(font);
    popup.grab(); // as it is first seen
    QVERIFY(popup.findChildren<QAbstractItemView *>().isEmpty());
    QCOMPARE(popup.value(), 2);
    QCOMPARE(popup.chosenReference(), 10);
    for (const int value : {0, 1, 3, 7}) // none of these can be picked
        QVERIFY(!popup.choose(value));
    QCOMPARE(popup.value(), 2);
    popup.setValue(7);
    QCOMPARE(popup.value(), 0);
    popup.setMenu({{{.divider = true}, {.text = "None", .enabled = false}}, nullptr});
    QCOMPARE(popup.value(), 0);
    QCOMPARE(popup.chosenReference(), std::numeric_limits<std::int32_t>::min());
    QCOMPARE(log.take(), QStringList());
}

void TestControls::keysAndWheelSkipWhatCannotBeChosen()
{
    PopupButton popup;
    popup.setMenu(stockMenu());
    popup.show();
    popup.activateWindow();
    popup.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&popup));
    EventLog log(&popup);

    QTest::keyClick(&popup, Qt::Key_Down);
    QCOMPARE(popup.value(), 5);
    QCOMPARE(log.take().size(), 3);
    QTest::keyClick(&popup, Qt::Key_Down); // only a divider is left
    QTest::keyClick(&popup, Qt::Key_End);
    QCOMPARE(popup.value(), 5);
    QTest::keyClick(&popup, Qt::Key_G); // "Gone" is disabled
    QCOMPARE(popup.value(), 5);
    QTest::keyClick(&popup, Qt::Key_Home);
    QCOMPARE(popup.value(), 2);
    log.take();
    turnWheel(&popup, -1);
    QCOMPARE(popup.value(), 5);
    turnWheel(&popup, -1);
    QCOMPARE(popup.value(), 5);
    QCOMPARE(log.take().size(), 3);

    QFont font;
    font.setBold(true);
    popup.setFont(font);
    popup.showPopup();
    QVERIFY(popup.view()->font().bold());
    QTest::mouseClick(popup.view()->viewport(), Qt::LeftButton, {},
                      popup.view()->visualRect(popup.model()->index(3, 0)).center());
    popup.hidePopup();
    QCOMPARE(popup.value(), 5);
    QCOMPARE(log.take(), QStringList());
}

void TestControls::aDialPointsWhereThePointerIsAndGoesRound()
{
    AngleDial dial;
    sendControlEvents(&dial);
    EventLog log(&dial);
    dial.resize(100, 100);
    const auto press = [&](int x, int y, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(&dial, Qt::LeftButton, keys, {50 + x, 50 + y});
        return dial.value();
    };
    QCOMPARE(press(0, -40), 90);
    QCOMPARE(press(-40, 0), 180);
    QCOMPARE(press(30, 30), -45);
    QCOMPARE(press(40, -3, Qt::ShiftModifier), 0);
    QCOMPARE(log.take(), QStringList(4, "ControlHit"));
    dial.setValue(179);
    QTest::keyClick(&dial, Qt::Key_Up);
    QCOMPARE(dial.value(), 180);
    QTest::keyClick(&dial, Qt::Key_Right);
    QCOMPARE(dial.value(), -179);
    QTest::keyClick(&dial, Qt::Key_PageDown);
    QCOMPARE(dial.value(), 166);
    QCOMPARE(log.take(), QStringList(3, "ControlHit")); // not for setValue()
    for (const auto &[degrees, within] :
         {std::pair(180, 180), {-180, 180}, {540, 180}, {-181, 179}, {-90, -90}, {720, 0}})
        QCOMPARE(wrappedAngle(degrees), within);
}

void TestControls::onlyWhatCanBeMovedOnPaperIsMoved()
{
    PaperView view;
    view.resize(300, 300); // a paper of 792 points is shown smaller
    QVERIFY(view.pixelsPerPoint() < 0.4);
    QList<QPointF> moves;
    connect(&view, &PaperView::dragged, [&](const QPointF &by) {
        moves.append(by);
        view.setMovable(true); // as who shows it anew says once more
    });
    connect(&view, &PaperView::nudged, [&](int right, int up) {
        moves.append({right * 1.0, up * 1.0});
    });
    view.show();
    const auto moveAll = [&] {
        (void)inspector::drag(&view, 72, 36);
        QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    };
    moveAll();
    QCOMPARE(moves, QList<QPointF>());
    view.setMovable(true);
    moveAll();
    QCOMPARE(moves.takeLast(), QPointF(0, -10));
    QCOMPARE(moves.last(), QPointF(72, -36)); // points of the paper, upwards
}

void TestControls::theWheelNeedsTheFocus()
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto *popup = new PopupButton;
    auto *button = new QPushButton;
    column->addWidget(button);
    column->addWidget(popup);
    popup->setMenu(stockMenu());
    window.show();
    button->setFocus();
    turnWheel(popup, -1);
    QCOMPARE(popup->value(), 2);
    QVERIFY(!popup->hasFocus());
}

void TestControls::aHandlerMayFillTheMenuAnew()
{
    auto *popup = new PopupButton;
    popup->setMenu(stockMenu());
    QStringList seen;
    const auto handler = installEventHandler(popup, [&](const Event &event) {
        seen.append(QString::number(event.reference));
        if (event.kind == EventKind::Menu)
            popup->setMenu({});
        if (event.kind == EventKind::Command)
            delete popup;
        return noErr;
    });
    QVERIFY(popup->choose(5));
    QCOMPARE(seen, (QStringList{"20", "20"}));
}

void TestControls::escapeClosesTheListAlone()
{
    QDialog window;
    auto *popup = new PopupButton;
    (new QVBoxLayout(&window))->addWidget(popup);
    popup->setMenu(stockMenu());
    window.show();
    popup->setFocus();
    popup->showPopup();
    QVERIFY(popup->view()->isVisible());
    // The window has the keyboard, as with some Wayland compositors.
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    QVERIFY(!popup->view()->isVisible());
    QVERIFY(window.isVisible());
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

void TestControls::aLongTextDoesNotWidenThePopup()
{
    PopupButton popup;
    popup.setMenu({{{.text = "Short"}}, nullptr});
    const int least = popup.minimumSizeHint().width();
    for (const int points : {5, 9, 30}) {
        QFont font;
        font.setPointSize(points);
        popup.setPlaceholderText(QString(points, u'j'));
        QComboBox qts;
        qts.setPlaceholderText(popup.placeholderText());
        qts.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        qts.setMinimumContentsLength(popup.minimumContentsLength());
        qts.setFont(font);
        popup.setFont(font);
        QCOMPARE(popup.minimumSizeHint(), qts.minimumSizeHint());
    }
    popup.setPlaceholderText({});
    popup.setFont({});
    const QString longText = QStringLiteral("<b>A very</b> long\nchoice ").repeated(20);
    popup.setMenu({{{.text = longText}}, nullptr});
    QCOMPARE(popup.minimumSizeHint().width(), least);
    QVERIFY(popup.sizeHint().width() < popup.fontMetrics().horizontalAdvance(longText) / 5);
    QVERIFY(!popup.currentText().contains(u'\n'));

    popup.show();
    QHelpEvent help(QEvent::ToolTip, {5, 5}, popup.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&popup, &help);
    QCOMPARE(QToolTip::text(),
             QStringLiteral("<qt>%1</qt>").arg(popup.currentText().toHtmlEscaped()));
}

void TestControls::aMenuButtonShowsWhatWasChosen()
{
    MenuButton button;
    button.setShownChoice(QStringLiteral("R&D"));
    const QSize hint = button.sizeHint();
    QCOMPARE(button.text(), QStringLiteral("R&&D")); // no mnemonic
    button.setShownChoice(QStringLiteral("Terms & <b>conditions</b>") + QString(40, u'm'));
    QCOMPARE(interfaceOf(&button)->text(), button.shownChoice());
    QCOMPARE(button.sizeHint(), hint); // a name moves nothing
    button.resize(hint);
    button.show();
    QHelpEvent asks(QEvent::ToolTip, {5, 5}, button.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&button, &asks);
    QVERIFY(QToolTip::text().contains(QStringLiteral("&lt;b&gt;conditions")));
    QToolTip::hideText();
}

void TestControls::aMenuButtonOffersWhatItsUpdateLeaves()
{
    MenuButton button;
    button.setMenu(
        {{{.text = "Options & more", .command = fourCharCode("KWmO")},
          {.divider = true},
          {.text = "Print on",
           .submenu = {{.text = "All", .command = fourCharCode("KWmA")},
                       {.text = "First", .command = fourCharCode("KWm1"), .reference = 5}}}},
         nullptr});
    QCOMPARE(button.maximum(), 3);
    button.setMenuUpdate([](Menu &menu) {
        findItem(menu, fourCharCode("KWmA"))->checked = true;
        findItem(menu, fourCharCode("KWmO"))->enabled = false;
    });
    EventLog log(&button);

    QMenu *shown = button.QPushButton::menu();
    emit shown->aboutToShow();
    emit shown->aboutToShow(); // again: nothing is left from before
    const QList<QAction *> actions = shown->actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions[0]->text(), "Options && more");
    QVERIFY(!actions[0]->isEnabled());
    QVERIFY(actions[1]->isSeparator());
    const QList<QAction *> inner = actions[2]->menu()->actions();
    QVERIFY(inner[0]->isChecked() && !inner[1]->isChecked());
    QCOMPARE(log.take(), QStringList());
    inner[1]->trigger();
    QCOMPARE(log.take(), QStringList()); // whoever triggered it goes on first
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), (QStringList{"Menu 'KWm1' 5", "Command 'KWm1' 5"}));

    // Filled anew before its turn: chosen is what was picked, and nothing else in its place.
    button.setMenuUpdate({});
    const Menu menu = button.menu();
    const MenuItem picked = menu.items[2].submenu[1];
    MenuItem another = picked;
    another.text = "Last";
    for (const auto &[left, events] : {std::pair{picked, 2}, {another, 0}}) {
        button.setMenu(menu);
        emit shown->aboutToShow();
        shown->actions()[2]->menu()->actions()[1]->trigger();
        button.setMenu({{left}, nullptr});
        QCoreApplication::processEvents();
        QCOMPARE(log.take().size(), events);
    }
}

void TestControls::aLongMenuStaysOnTheScreenAndIsTypedInto()
{
    keepMenusOnScreen();
    MenuButton button;
    Menu papers;
    for (int i = 0; i < 200; ++i)
        papers.items.push_back({.text = QStringLiteral("Paper %1").arg(i), .checked = i == 150});
    papers.items.push_back({.text = "Tab Stock"});
    papers.items.push_back({.text = "Tabloid", .enabled = false});
    papers.items.push_back({.text = "Transparency"});
    button.setMenu(papers);
    auto *menu = button.findChild<QMenu *>();
    menu->popup({0, 0});
    const QSize screen = button.screen()->size();
    QCOMPARE(menu->size().boundedTo(screen), menu->size());
    const auto active = [menu] { return menu->activeAction() ? menu->activeAction()->text() : ""; };
    QTRY_COMPARE(active(), QStringLiteral("Paper 150"));
    const auto isSeen = [menu] {
        return menu->rect().contains(menu->actionGeometry(menu->activeAction()));
    };
    QVERIFY(isSeen());
    for (const auto &[typed, line] : {std::pair{"paper 17", "Paper 170"},
                                      {"t", "Tab Stock"},
                                      {"t", "Transparency"},
                                      {"t", "Tab Stock"}}) {
        QTest::keyClicks(menu, typed);
        QCOMPARE(active(), QLatin1String(line));
        QVERIFY(isSeen());
        if (*typed == 'p')
            QTest::qWait(QApplication::keyboardInputInterval() + 50);
    }
    menu->close();
}

void TestControls::aRadioGroupCountsInLayoutOrder()
{
    RadioGroup group;
    auto *column = new QVBoxLayout(&group);
    auto *row = new QHBoxLayout;
    auto *last = new QRadioButton(&group);
    auto *first = new QRadioButton(&group);
    column->addLayout(row);
    row->addWidget(first);
    column->addWidget(last);
    QRadioButton *third = group.addButton("Third");
    EventLog log(&group);

    QCOMPARE(group.count(), 3);
    QCOMPARE(group.value(), 0);
    group.setValue(2);
    QVERIFY(last->isChecked());
    group.setValue(3);
    QVERIFY(third->isChecked() && !last->isChecked());
    group.setValue(0);
    QCOMPARE(group.value(), 0);
    QCOMPARE(log.take(), QStringList());

    first->click();
    QCOMPARE(log.take(), QStringList{"ControlHit"});
    QCOMPARE(group.value(), 1);
}

void TestControls::aTabControlTellsTheUsersChangesOnly()
{
    TabControl tabs;
    EventLog log(&tabs);
    tabs.setTitles({"One", "Two", "Three"});
    tabs.setValue(3);
    tabs.setTitles({"Eins", "Zwei", "Drei"});
    QCOMPARE(tabs.value(), 3);
    tabs.setValue(1);
    QCOMPARE(log.take(), QStringList());

    tabs.resize(tabs.sizeHint());
    tabs.show();
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    QCOMPARE(tabs.value(), 2);
    QCOMPARE(log.take(), QStringList{"ControlHit"});
    QTest::keyClick(&tabs, Qt::Key_Right);
    QCOMPARE(tabs.value(), 3);
    QCOMPARE(log.take(), QStringList{"ControlHit"});
    turnWheel(&tabs, 1);
    QCOMPARE(tabs.value(), 3);
    QCOMPARE(log.take(), QStringList());
}

void TestControls::theWordsOfAButtonAreDisabledWithIt()
{
    QWidget window;
    QPushButton button(&window);
    button.setEnabled(false);
    QLabel words("Add", &window);
    words.setBuddy(&button);
    makePartOfButton(&words);
    window.show();
    QVERIFY(!words.isEnabled());

    button.setEnabled(true);
    QVERIFY(words.isEnabled());
    QTest::mousePress(&words, Qt::LeftButton);
    QVERIFY(button.isDown());
    button.setEnabled(false); // the press is over
    button.setEnabled(true);
    QTest::mouseMove(&words, words.rect().center());
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseRelease(&words, Qt::LeftButton);
    QVERIFY(!button.isDown());
    QCOMPARE(clicked.size(), 0);
}

// What is typed elsewhere counts first, and may disable what the reader or the script is at.
void TestControls::whatIsTypedElsewhereMayDisableIt()
{
    installAccessibility();
    QWidget window;
    QLineEdit field(&window);
    QComboBox box(&window);
    box.addItems({"First", "Second"});
    MenuButton button(&window);
    button.setMenu(stockMenu());
    connect(&field, &QLineEdit::editingFinished, &window, [&] {
        box.setEnabled(false);
        button.setEnabled(false);
    });
    window.show();
    QApplication::setActiveWindow(&window);
    const auto type = [&] {
        box.setEnabled(true);
        button.setEnabled(true);
        field.setFocus();
        QTest::keyClicks(&field, "1");
    };
    bool isOpened = false;
    QMenu *menu = button.QPushButton::menu();
    connect(menu, &QMenu::aboutToShow, &window, [&isOpened, menu] {
        isOpened = true;
        QMetaObject::invokeMethod(menu, &QWidget::close, Qt::QueuedConnection);
    });
    type();
    QAccessible::queryAccessibleInterface(&button)->actionInterface()->doAction(
        QAccessibleActionInterface::showMenuAction());
    QCoreApplication::processEvents();
    QVERIFY(!button.isEnabled());
    QVERIFY(!isOpened);
    type();
    QVERIFY(inspector::choose(&box, {inspector::ItemName::By::Row, 0, {}, 2}));
    QCOMPARE(box.currentIndex(), 0);
}

void TestControls::aReaderIsOfferedAndWritesWhatCanBe()
{
    installAccessibility();
    SpinField field;
    field.setMaximum(9);
    field.setValue(3);
    TimeField time;
    time.setValue(QTime(8, 0));
    QSlider slider;
    slider.setRange(0, 5);
    slider.setValue(3);
    for (QWidget *control : std::initializer_list<QWidget *>{&field, &time, &slider}) {
        QAccessibleValueInterface *value =
            QAccessible::queryAccessibleInterface(control)->valueInterface();
        const QVariant before = value->currentValue();
        for (const double number :
             {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
            value->setCurrentValue(number);
            QCoreApplication::processEvents();
            QCOMPARE(value->currentValue(), before);
        }
        value->setCurrentValue(2.0);
        QCoreApplication::processEvents();
        QCOMPARE(value->currentValue().toDouble(), 2.0);
    }

    TabControl tabs;
    tabs.setTitles({"One", "Two", "Three"});
    tabs.setTabEnabled(2, false);
    const auto tab = [&tabs](int index) {
        return QAccessible::queryAccessibleInterface(&tabs)->child(index);
    };
    QAccessibleInterface *last = tab(2);
    const QString press = QAccessibleActionInterface::pressAction();
    const QString focus = QAccessibleActionInterface::setFocusAction();
    QCOMPARE(tab(0)->actionInterface()->actionNames(), QStringList({press, focus}));
    QCOMPARE(tab(1)->actionInterface()->actionNames(), QStringList(press)); // first it is shown
    QCOMPARE(last->actionInterface()->actionNames(), QStringList());
    tabs.setTitles({"One"});
    QVERIFY(!last->isValid());
    QCOMPARE(last->rect(), QRect());
}

QTEST_MAIN(TestControls)
#include "test_controls.moc"
