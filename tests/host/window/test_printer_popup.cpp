#include "printer_chooser.h"

#include "inspector.h"
#include "popup_button.h"
#include "table.h"

#include <QAccessible>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace kelvo;

// The pop-up of printers with its list, without a print server.
class TestPrinterPopup : public QObject
{
    Q_OBJECT

private slots:
    void keysChoose_data();
    void keysChoose();
    void nothingIsMadeBeforeItIsOpened();
    void whatIsLookedAtStays();
    void whatInputMethodsMakeIsSearched();
    void readersHearTheRows();
};

namespace {

// "P01" to "P20" and, as the first and default one, "Hall"; P07 stands in Zürich and P08 is a C95.
QList<Printer> samplePrinters(int count = 20)
{
    QList<Printer> printers;
    for (int i = 0; i <= count; ++i) {
        Printer &printer = printers.emplace_back();
        printer.name =
            i == 0 ? QStringLiteral("Hall") : QStringLiteral("P%1").arg(i, 2, 10, QChar('0'));
        printer.isDefault = i == 0;
        printer.location = i == 7 ? QStringLiteral("Zürich") : QStringLiteral("Floor");
        printer.makeAndModel = i == 8 ? QStringLiteral("Corvane C95") : QStringLiteral("Generic");
    }
    return printers;
}

struct Shown
{
    explicit Shown(QList<Printer> given, const QString &chosen = QStringLiteral("Hall"))
        : printers(std::move(given))
        , popup(new PopupButton(&window))
    {
        (new QVBoxLayout(&window))->addWidget(popup);
        popup->setChoosesInListOnly(true);
        Menu menu;
        int reference = 0, shown = 0;
        for (const Printer &printer : std::as_const(printers)) {
            if (printer.name == chosen)
                shown = reference;
            menu.items.push_back(
                {.text = printer.name, .key = printer.name, .reference = reference++});
        }
        popup->setMenu(menu);
        popup->setValueByReference(shown);
        popup->setOwnList([this, chosen](PopupButton *button) {
            list = new PrinterChooser(button);
            list->setPrinters(printers, chosen);
            return list;
        });
        window.show();
        QApplication::setActiveWindow(&window);
        popup->setFocus();
    }

    bool press(const QString &keys)
    {
        for (const QString &key : keys.split(u' ', Qt::SkipEmptyParts)) {
            if (inspector::pressKey(&window, key))
                return false;
        }
        return true;
    }
    template <typename T>
    T *part(const char *name)
    {
        return list->findChild<T *>(QString::fromLatin1(name));
    }
    QString current() { return part<QListView>("printerList")->currentIndex().data().toString(); }

    QList<Printer> printers;
    QWidget window;
    PopupButton *popup;
    PrinterChooser *list = nullptr;
};

} // namespace

void TestPrinterPopup::keysChoose_data()
{
    const Table<int, QString, QString, QString> row{"printers", "keys", "current", "chosen"};

    row("opens on the chosen one", 20, "Down", "P03", "");
    row("moves by rows", 20, "Down Down Down Up", "P04", "");
    row("to the ends", 20, "Down End", "P20", "");
    row("and back", 20, "Down End Home", "Hall", "");
    row("by pages", 20, "Down Home PgDown", "P09", "");
    row("chooses", 20, "Down Down Return", "", "P04");
    row("the same again", 20, "Down Return", "", "P03");
    row("changes nothing", 20, "Down Down Esc", "", "");
    row("letters on the closed control search", 20, "z u r", "P07", "");
    row("several words", 20, "c 9 5 Space p", "P08", "");
    row("the first whose name begins so", 20, "h a", "Hall", "");
    row("chooses what is found", 20, "p 1 Down Return", "", "P11");
    row("nothing is found", 20, "x y Return Down", "", "");
    row("back to where it began", 20, "z Backspace", "P03", "");
    row("letters in the list go on searching", 20, "Down Tab z u", "P07", "");
    row("few printers are seen at once", 7, "Down Down", "P04", "");
    row("letters go to their names", 7, "h Return", "", "Hall");
    row("a shortcut is not the window's", 7, "Down Alt+X", "P03", "");
}

void TestPrinterPopup::keysChoose()
{
    QFETCH(int, printers);
    QFETCH(QString, keys);
    QFETCH(QString, current);
    QFETCH(QString, chosen);
    Shown shown(samplePrinters(printers), QStringLiteral("P03"));
    auto *behind = new QLineEdit(&shown.window);
    QLabel label(QStringLiteral("&X"), &shown.window);
    label.setBuddy(behind);
    const QSignalSpy activated(shown.popup, &QComboBox::activated);
    shown.press(keys);
    QVERIFY(!behind->hasFocus());
    if (shown.list->isVisible())
        QCOMPARE(shown.current(), current);
    else
        QVERIFY(current.isEmpty());
    QCOMPARE(activated.size(), chosen.isEmpty() ? 0 : 1);
    QCOMPARE(shown.popup->currentText(), chosen.isEmpty() ? QStringLiteral("P03") : chosen);
    QCOMPARE(shown.part<QWidget>("printerSearch")->isHidden(), printers < 8);
}

void TestPrinterPopup::nothingIsMadeBeforeItIsOpened()
{
    Shown shown(samplePrinters());
    QVERIFY(!shown.list && !shown.popup->isListOpen());
    // And Qt's own list never.
    QVERIFY(shown.press(QStringLiteral("Down")));
    QVERIFY(shown.popup->isListOpen());
    QCOMPARE(shown.popup->findChildren<QAbstractItemView *>().size(), 1);
    shown.popup->hidePopup();
    QVERIFY(!shown.popup->isListOpen());
    QTest::mouseClick(shown.popup, Qt::LeftButton);
    QVERIFY(shown.popup->isListOpen());
}

void TestPrinterPopup::whatIsLookedAtStays()
{
    Shown shown(samplePrinters(60));
    QVERIFY(shown.press(QStringLiteral("Down End Up Up")));
    QCOMPARE(shown.current(), "P58");
    const auto *bar = shown.part<QListView>("printerList")->verticalScrollBar();
    const int top = bar->value();
    QVERIFY(top > 0);

    shown.printers[3].state = Printer::State::Stopped;
    shown.list->setPrinters(shown.printers, "Hall");
    QCOMPARE(shown.current(), "P58");
    QCOMPARE(bar->value(), top);
    shown.printers.removeAt(3); // another one goes
    shown.list->setPrinters(shown.printers, "Hall");
    QCOMPARE(shown.current(), "P58");
    shown.printers.removeLast();
    shown.printers.removeLast();
    shown.printers.removeLast(); // this one
    shown.list->setPrinters(shown.printers, "Hall");
    QVERIFY(!shown.current().isEmpty());

    shown.part<QLineEdit>("printerSearch")->setText("zür");
    QCOMPARE(shown.part<QLabel>("printerCount")->text(), "1 of 57 printer(s)");
    shown.printers[5].location = "Zürich";
    shown.list->setPrinters(shown.printers, "Hall");
    QCOMPARE(shown.current(), "P07");
    QCOMPARE(shown.part<QLabel>("printerCount")->text(), "2 of 57 printer(s)");
}

// A pop-up window is not the one that has the keyboard for the system.
void TestPrinterPopup::whatInputMethodsMakeIsSearched()
{
    Shown shown(samplePrinters());
    QVERIFY(!shown.popup->testAttribute(Qt::WA_InputMethodEnabled));
    QVERIFY(shown.press(QStringLiteral("Down")));
    QVERIFY(shown.popup->inputMethodQuery(Qt::ImEnabled).toBool());
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("ürich"));
    QCoreApplication::sendEvent(shown.popup, &event);
    QCOMPARE(shown.current(), "P07");
    QVERIFY(shown.press(QStringLiteral("Esc")));
    QVERIFY(!shown.popup->testAttribute(Qt::WA_InputMethodEnabled));
}

void TestPrinterPopup::readersHearTheRows()
{
    QList<Printer> printers = samplePrinters();
    printers[0].state = Printer::State::Stopped;
    printers[0].stateMessage = QStringLiteral("paper is jammed");
    Shown shown(printers);
    QVERIFY(shown.press(QStringLiteral("Down")));
    const QAccessibleInterface *list =
        QAccessible::queryAccessibleInterface(shown.part<QListView>("printerList"));
    QCOMPARE(list->child(0)->text(QAccessible::Name),
             "Hall, chosen, default, stopped: paper is jammed, Floor, Generic");
    QCOMPARE(list->childCount(), 21);
}

QTEST_MAIN(TestPrinterPopup)
#include "test_printer_popup.moc"
