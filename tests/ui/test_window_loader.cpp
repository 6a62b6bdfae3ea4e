#include "control.h"
#include "event_log.h"
#include "files.h"
#include "input_limits.h"
#include "mnemonics.h"
#include "popup_button.h"
#include "radio_group.h"
#include "spin_field.h"
#include "tab_control.h"
#include "table.h"
#include "tool_tip.h"
#include "window_loader.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace kelvo;

class TestWindowLoader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aWindowIsBuiltWiredAndLocalized();
    void aRowOfButtonsIsOrderedByTheirCommands();
    void aLabelNamesItsControl_data();
    void aLabelNamesItsControl();
    void aFaultyDescriptionFails_data();
    void aFaultyDescriptionFails();
    void aMissingDescriptionFails();
    void noPluginOfTheDesignerIsLoaded();

private:
    void write(const QString &path, const QByteArray &bytes)
    {
        putFile(m_folder.filePath(path), bytes);
    }

    QTemporaryDir m_folder;
    CFBundleRef m_bundle = nullptr;
};

namespace {

QByteArray window(const QByteArray &inner)
{
    return R"(<ui version="4.0"><class>W</class><widget class="QWidget" name="W">
<property name="windowTitle"><string>PaperWindow</string></property>
<layout class="QVBoxLayout" name="column">)"
        + inner + "</layout></widget></ui>";
}

QByteArray widget(const QByteArray &kind, const QByteArray &name, const QByteArray &inner = {})
{
    return "<item><widget class=\"" + kind + "\" name=\"" + name + "\">" + inner
        + "</widget></item>";
}

QByteArray text(const QByteArray &name, const QByteArray &value)
{
    return "<property name=\"" + name + "\"><string>" + value + "</string></property>";
}

QByteArray dynamic(const QByteArray &name, const QByteArray &value)
{
    return "<property name=\"" + name + "\" stdset=\"0\"><string notr=\"true\">" + value
        + "</string></property>";
}

} // namespace

void TestWindowLoader::initTestCase()
{
    write("T.pde/Info.plist", R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>CFBundleIdentifier</key><string>test.ui</string></dict></plist>)");
    QVERIFY(QDir().mkpath(m_folder.filePath("T.pde/Resources/strings")));
    QVERIFY(QFile::copy(KELVO_TEST_TEXTS, m_folder.filePath("T.pde/Resources/strings/en.qm")));
    const auto bundle = Bundle::open(m_folder.filePath("T.pde"));
    QVERIFY2(bundle, bundle ? "" : qPrintable(bundle.error().text()));
    m_bundle = bundle.value();
}

void TestWindowLoader::aWindowIsBuiltWiredAndLocalized()
{
    const QByteArray buddy = "<property name=\"buddy\"><cstring>paperMenu</cstring></property>";
    write("T.pde/Resources/dialogs/Set/Window.ui",
          window(widget("QLabel", "paperLabel", text("text", "PaperLabel") + buddy)
                 + widget("PopupButton", "paperMenu",
                          dynamic("controlID", "KPDE 102") + text("toolTip", "PaperHelp"))
                 + widget("QLineEdit", "name",
                          text("text", "PaperHelp") + text("placeholderText", "PaperHelp"))
                 + widget("QPlainTextEdit", "notes", text("placeholderText", "PaperHelp"))
                 + widget("QGroupBox", "box", text("title", "First"))
                 + widget("SpinField", "copies",
                          text("suffix", "First")
                              + "<property name=\"maximum\"><number>500</number></property>"
                                "<property name=\"value\"><number>300</number></property>")
                 + widget("TabControl", "tabs",
                          "<property name=\"titles\"><stringlist><string>First</string>"
                          "<string>Second</string></stringlist></property>")
                 + widget("RadioGroup", "group",
                          "<layout class=\"QHBoxLayout\" name=\"row\">"
                              + widget("QRadioButton", "r1", text("text", "First"))
                              + widget("QRadioButton", "r2", text("text", "unknown key"))
                              + "</layout>")
                 + widget("QPushButton", "ok", dynamic("command", "ok  "))));

    const auto loaded = createWindowFromDescription(m_bundle, "Set", "Window");
    QVERIFY2(loaded, loaded ? "" : qPrintable(loaded.error().text()));
    const std::unique_ptr<QWidget> shown(loaded.value());
    EventLog log(shown.get());

    QCOMPARE(shown->windowTitle(), "Paper");
    auto *label = shown->findChild<QLabel *>("paperLabel");
    QCOMPARE(label->text(), "&Paper <b>type</b>:");
    QCOMPARE(label->textFormat(), Qt::PlainText);
    auto *popup = findControl<PopupButton>(label, {kPanelSignature, 102});
    QVERIFY(popup);
    QCOMPARE(popup->toolTip(), plainToolTip("What the tray holds"));
    QCOMPARE(popup->accessibleDescription(), "What the tray holds");
    setPlainToolTip(popup, "No tray");
    QCOMPARE(popup->accessibleDescription(), "No tray");
    setPlainToolTip(popup, {}); // nothing else to be said
    QCOMPARE(popup->toolTip(), plainToolTip("What the tray holds"));
    QCOMPARE(popup->accessibleName(), "Paper <b>type</b>");
    QCOMPARE(labelOf(popup), label);
    // What stands in a field is not a key.
    QCOMPARE(shown->findChild<QLineEdit *>("name")->text(), "PaperHelp");
    for (const char *field : {"name", "notes"}) {
        auto *widget = shown->findChild<QWidget *>(field);
        QCOMPARE(widget->property("placeholderText").toString(), "What the tray holds");
        QVERIFY(inputLimits(widget)); // what no file of ours could hold is refused from the start
    }
    QCOMPARE(shown->findChild<QGroupBox *>("box")->title(), "One");
    QCOMPARE(shown->findChild<SpinField *>("copies")->suffix(), "One");
    QCOMPARE(shown->findChild<SpinField *>("copies")->value(), 300);
    QCOMPARE(shown->findChild<TabControl *>("tabs")->titles(), (QStringList{"One", "Second"}));

    auto *group = shown->findChild<RadioGroup *>("group");
    QCOMPARE(group->count(), 2);
    QCOMPARE(group->button(1)->text(), "One");
    QCOMPARE(group->button(2)->text(), "unknown key");
    QCOMPARE(log.take(), QStringList());
    group->button(2)->click();
    QCOMPARE(log.take(), QStringList{"ControlHit"}); // the group's, once
    shown->findChild<QPushButton *>("ok")->click();
    QCOMPARE(log.take(), (QStringList{"ControlHit", "Command 'ok  '"}));
}

// However a description lists them.
void TestWindowLoader::aRowOfButtonsIsOrderedByTheirCommands()
{
    QByteArray buttons;
    for (const QByteArray command : {"ok  ", "own1", "not!", "rvrt", "own2", "Khlp"})
        buttons += "<widget class=\"QPushButton\" name=\"" + command + "\">"
            + dynamic("command", command) + text("text", command) + "</widget>";
    write("T.pde/Resources/dialogs/Set/Row.ui",
          window("<item><widget class=\"ButtonRow\" name=\"row\">" + buttons + "</widget></item>"));
    const auto loaded = createWindowFromDescription(m_bundle, "Set", "Row");
    QVERIFY2(loaded, loaded ? "" : qPrintable(loaded.error().text()));
    const std::unique_ptr<QWidget> shown(loaded.value());
    shown->show();

    auto seen = shown->findChildren<QPushButton *>();
    std::ranges::sort(seen, {}, [](const QPushButton *button) { return button->x(); });
    const QWidget *next = seen.front();
    QStringList names;
    for (const QPushButton *button : std::as_const(seen)) {
        names << button->objectName();
        QCOMPARE(next, button); // with Tab
        do
            next = next->nextInFocusChain();
        while (next->focusPolicy() == Qt::NoFocus);
    }
    QCOMPARE(names, (QStringList{"Khlp", "rvrt", "own1", "own2", "not!", "ok  "}));
}

// Beside a label of the tables of any language.
void TestWindowLoader::aLabelNamesItsControl_data()
{
    const Table<QString, QString> row{"label", "name"};
    row("English", "Paper &source:", "Paper source");
    row("Japanese", "用紙(&P):", "用紙");
    row("a blank before the letter", "用紙 (&P)：", "用紙");
    row("a range before the letter", "ボックス(1～9)(&M):", "ボックス(1～9)");
    row("words in brackets", "Passcode (&new):", "Passcode (new)");
    row("its own ampersand", "R&&&D:", "R&D");
}

void TestWindowLoader::aLabelNamesItsControl()
{
    QFETCH(QString, label);
    QTEST(nameInLabel(label), "name");
}

void TestWindowLoader::aFaultyDescriptionFails_data()
{
    const Table<QByteArray, QStringList> row{"bytes", "named"};

    row("unknown class", window(widget("FancyDial", "dial")), {"dial", "FancyDial", "PopupButton"});
    row("a class of Qt's that is not offered", window(widget("QComboBox", "menu")),
        {"menu", "QComboBox"});
    row("unknown class outermost", QByteArray(window("")).replace("\"QWidget\"", "\"Fancy\""),
        {"Fancy"});
    row("an ID twice",
        window(widget("QLineEdit", "one", dynamic("controlID", "KPDE 7"))
               + widget("QLineEdit", "two", dynamic("controlID", "KPDE 7"))),
        {"one", "two", "KPDE 7"});
    row("malformed ID", window(widget("QLineEdit", "one", dynamic("controlID", "KPDE x7"))),
        {"one", "KPDE x7"});
    row("an ID that is a number",
        window(widget("QLineEdit", "one",
                      "<property name=\"controlID\" stdset=\"0\"><number>7</number></property>")),
        {"one"});
    row("malformed command", window(widget("QPushButton", "one", dynamic("command", "ok"))),
        {"one", "“ok”"});
    row("two faults, both named",
        window(widget("QPushButton", "one", dynamic("command", "ok"))
               + widget("FancyDial", "dial")),
        {"one", "dial"});
    row("not well formed", "<ui version=\"4.0\"><widget", {});
    row("empty", {}, {});
}

void TestWindowLoader::aFaultyDescriptionFails()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, named);
    write("T.pde/Resources/dialogs/Set/Faulty.ui", bytes);
    const auto loaded = createWindowFromDescription(m_bundle, "Set", "Faulty");
    QVERIFY(!loaded);
    QCOMPARE(loaded.error().code, Error::Code::Damaged);
    QVERIFY(loaded.error().where.endsWith("Set/Faulty.ui"));
    QVERIFY(!loaded.error().detail.isEmpty());
    for (const QString &name : named)
        QVERIFY2(loaded.error().detail.contains(name), qPrintable(loaded.error().detail));
}

void TestWindowLoader::aMissingDescriptionFails()
{
    const auto loaded = createWindowFromDescription(m_bundle, "Set", "None");
    QVERIFY(!loaded);
    QCOMPARE(loaded.error().code, Error::Code::NotFound);
    QVERIFY(!createWindowFromDescription(nullptr, "Set", "None"));
}

// One brings all of Qt Quick into the process, for good.
void TestWindowLoader::noPluginOfTheDesignerIsLoaded()
{
    write("T.pde/Resources/dialogs/Set/Small.ui", window(widget("QLabel", "label")));
    const QStringList paths = QCoreApplication::libraryPaths();
    QVERIFY(!paths.isEmpty());

    const auto loaded = createWindowFromDescription(m_bundle, "Set", "Small");
    QVERIFY(loaded);
    const std::unique_ptr<QWidget> shown(loaded.value());

    const QByteArray files = bytesOf("/proc/self/maps");
    QVERIFY(files.contains("libQt6UiTools"));
    QVERIFY(!files.contains("/designer/"));
    // The platform's other plug-ins are found as before.
    QCOMPARE(QCoreApplication::libraryPaths(), paths);
}

QTEST_MAIN(TestWindowLoader)
#include "test_window_loader.moc"
