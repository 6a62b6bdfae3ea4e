#include "control_interface.h"
#include "event_log.h"
#include "history_field.h"
#include "input_limits.h"
#include "inspector.h"
#include "list_view.h"
#include "menu_button.h"
#include "picture_view.h"
#include "popup_button.h"
#include "property_list.h"
#include "radio_group.h"
#include "spin_field.h"
#include "summary_view.h"
#include "tab_control.h"
#include "texts.h"
#include "time_field.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QSlider>
#include <QTest>
#include <QTextEdit>

using namespace kelvo;
using inspector::Done;
using inspector::ItemName;

namespace {

using Make = std::unique_ptr<QWidget> (*)();
using Prepare = std::function<void(QWidget *)>;
// What is done, and what comes of it: "EVENT, ...: PROPERTY, ..." with the properties that
// are others then, or the sentence that refuses it.
using Steps = QList<std::pair<QString, QString>>;

using Command = Done (*)(QWidget *control, const QString &argument);
const std::map<QString, Command> commands{
    {"choose",
     [](QWidget *w, const QString &row) {
         return inspector::choose(w, {ItemName::By::Row, 0, {}, row.toInt()});
     }},
    {"item",
     [](QWidget *w, const QString &reference) {
         return inspector::chooseCommand(w, fourCharCode("Edit"),
                                         ItemName{.reference = reference.toInt()});
     }},
    {"click", [](QWidget *w, const QString &) { return inspector::click(w); }},
    {"check", [](QWidget *w, const QString &on) { return inspector::check(w, on == "on"); }},
    {"type", [](QWidget *w, const QString &text) { return inspector::type(w, text); }},
    {"set", [](QWidget *w, const QString &value) { return inspector::set(w, value.toInt()); }},
    {"time",
     [](QWidget *w, const QString &hour) {
         return inspector::setTime(w, {hour.toInt(), 0});
     }},
    {"select", [](QWidget *w, const QString &row) { return inspector::select(w, {row.toInt()}); }},
    {"double-click",
     [](QWidget *w, const QString &row) { return inspector::doubleClick(w, row.toInt()); }},
};

// What it holds, one line a property.
QStringList stateOf(QWidget *control)
{
    QStringList state;
    for (const QString &name : inspector::propertyNames()) {
        if (name == "enabled" || name == "visible" || name == "focus")
            continue;
        if (const auto value = inspector::property(control, name))
            state << name + u' ' + value.value();
    }
    return state;
}

Menu sampleMenu()
{
    return {{{.text = "Plain", .key = "P", .reference = 10},
             {.divider = true},
             {.text = "Gone", .reference = 15, .enabled = false},
             {.text = "Edit", .key = "E", .command = fourCharCode("Edit"), .reference = 20}},
            nullptr};
}

} // namespace

Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Prepare)

class TestControlInterface : public QObject
{
    Q_OBJECT

private slots:
    void everyClassAnswersForItself_data();
    void everyClassAnswersForItself();
    void aKeyComesWithItsText();
    void refusesInAnotherLanguage();

private:
    template <typename Widget>
    static void add(const char *takes, const char *holds, const Steps &steps,
                    void (*prepare)(Widget &))
    {
        QTest::newRow(Widget::staticMetaObject.className())
            << Make([]() -> std::unique_ptr<QWidget> { return std::make_unique<Widget>(); })
            << Prepare([prepare](QWidget *made) { prepare(*static_cast<Widget *>(made)); }) << takes
            << holds << steps;
    }
};

void TestControlInterface::everyClassAnswersForItself_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<QString>("takes");
    QTest::addColumn<QString>("holds");
    QTest::addColumn<Steps>("steps");

    // Emptying a field, and each character.
    const auto typed = [](int edits) { return QStringList(edits, "TextChanged").join(", "); };
    const char *const edited = "Menu 'Edit' 20, Command 'Edit' 20, ControlHit: ";
    add<PopupButton>("choose, item", "value 10, index 1, text Plain, items 4, maximum 9",
                     {{"choose 2", "has a divider there, which cannot be chosen"},
                      {"choose 3", "offers “Gone” only disabled"},
                      {"choose 5", "has 4 rows, not 5"},
                      {"choose 4", edited + QString("value 20, index 4, text Edit")},
                      {"item 20", edited}, // twice edits twice
                      {"choose 1", "Menu 10, ControlHit: value 10, index 1, text Plain"}},
                     [](PopupButton &popup) {
                         popup.setMenu(sampleMenu());
                         popup.setMaximum(9);
                     });
    add<MenuButton>("item, choose", "text More, items 6, maximum 6",
                    {{"choose 1", "offers “Plain” only disabled"},
                     {"choose 5", "opens a submenu with “Open”; choose an item in it"},
                     {"choose 6", "Menu 7: "},
                     {"choose 8", "does not take “Inside”"},
                     {"item 20", "Menu 'Edit' 20, Command 'Edit' 20: "}},
                    [](MenuButton &button) {
                        const MenuItem inside{.text = "Inside", .reference = 7};
                        Menu menu = sampleMenu();
                        menu.items.push_back({.text = "Open", .submenu = {inside}});
                        menu.items.push_back(
                            {.text = "Closed", .enabled = false, .submenu = {inside}});
                        button.setText("&More");
                        button.setMenu(menu);
                        button.setMenuUpdate([](Menu &shown) { shown.items[0].enabled = false; });
                    });
    add<RadioGroup>("set", "value 1, index 1, text One, items 3",
                    {{"set 0", "has buttons 1 to 3, not 0"},
                     {"set 3", "offers button 3 only disabled"},
                     {"set 2", "ControlHit: value 2, index 2, text Two"}},
                    [](RadioGroup &group) {
                        group.addButton("&One");
                        group.addButton("&Two");
                        group.addButton("Three")->setEnabled(false);
                        group.setValue(1);
                    });
    add<TabControl>("set", "value 1, index 1, text , items 3",
                    {{"set 4", "has tabs 1 to 3, not 4"},
                     {"set 3", "offers tab 3 only disabled"},
                     {"set 2", "ControlHit: value 2, index 2"}},
                    [](TabControl &tabs) {
                        tabs.setTitles({"One", "Two", "Three"});
                        tabs.setTabEnabled(2, false);
                    });
    const char *const range = "does not take what was typed; it takes numbers from 0.1 to 200.0";
    add<SpinField>("set, type", "value 50, text 5.0, maximum 2000",
                   {{"set 2001", "goes from 1 to 2000, not to 2001"},
                    {"set 70", "ControlHit: value 70, text 7.0"},
                    {"type 200.1", range},
                    {"type 0", range},
                    {"type -", range},
                    {"type ", range}, // nothing refused stays in it
                    {"type 12", typed(3) + ": text 12"}},
                   [](SpinField &field) {
                       field.setMinimum(1);
                       field.setMaximum(2000);
                       field.setDecimals(1);
                       field.setValue(50);
                   });
    add<SpinField>("set, type", "value 0, text 0, maximum 99",
                   {{"set 1", "is read-only"}, {"type 1", "is read-only"}},
                   [](SpinField &field) { field.setReadOnly(true); });
    add<TimeField>("time", "text 08:00", {{"time 9", "ControlHit: text 09:00"}},
                   [](TimeField &field) {
                       field.setLocale(QLocale("de_DE"));
                       field.setValue(QTime(8, 0));
                   });
    add<HistoryField>(
        "choose, type", "index 0, text x, items 2",
        {{"choose 2", "ControlHit: index 2, text Second"},
         {"type l2", typed(3) + ": text 12"},
         {"type 3x4", "does not take the whole text; it takes 1 to 4 digits"},
         {"type 1234", typed(3) + ": text 1234"},
         {"type 12345", "does not take the whole text; it takes 1 to 4 digits"}},
        [](HistoryField &field) {
            field.appendItem("First");
            field.appendItem("Second");
            field.setText("x");
            setInputLimits(&field, {1, 4, InputLimits::decimalDigits(), {{U'l', U'1'}}});
        });
    add<ListView>("select, double-click", "text , items 3, selection 2",
                  {{"select 3", "ListSelection row 2: selection 3"},
                   {"select 4", "has 3 rows, not 4"},
                   {"select 0", "ListSelection row -1: selection "},
                   {"double-click 2", "ListSelection row 1, ListActivated row 1: selection 2"},
                   {"double-click 0", "ListActivated row -1: "},
                   {"double-click 4", "has 3 rows, not 4"}},
                  [](ListView &list) {
                      list.setColumns({{"Page"}}, [](int, int) { return QString(); });
                      list.reload(3);
                      list.selectRows({1});
                  });
    add<PictureView>("", "text Paper_Blue,Staple", {}, [](PictureView &view) {
        view.setPictures({"/x/Paper_Blue.svg", "/x/Staple.svg"}, "Blue paper");
    });
    add<SummaryView>("type", "text - Letter", {{"type x", "is read-only"}},
                     [](SummaryView &view) { view.setSummary("- Letter"); });

    add<QPushButton>("click", "text OK", {{"click", "ControlHit: "}},
                     [](QPushButton &button) { button.setText("&OK"); });
    add<QCheckBox>("check, click", "value 0, text Collate, checked false",
                   {{"check off", ": "},
                    {"check on", "ControlHit: value 1, checked true"},
                    {"click", "ControlHit: value 0, checked false"}},
                   [](QCheckBox &box) { box.setText("&Collate"); });
    add<QSlider>("set", "value 0, text , maximum 5",
                 {{"set -6", "goes from -5 to 5, not to -6"},
                  {"set 3", "ControlHit: value 3"},
                  {"set 3", ": "}},
                 [](QSlider &slider) { slider.setRange(-5, 5); });
    add<QLineEdit>("type", "text ••••",
                   {{"type 12", typed(3) + ": "},
                    {"type 123456", "does not take the whole text; it takes at most 5 characters"},
                    {"type ", "TextChanged: text "}},
                   [](QLineEdit &line) {
                       line.setEchoMode(QLineEdit::Password);
                       line.setText("4711");
                       line.setMaxLength(5);
                   });
    add<QPlainTextEdit>("type", "text lines",
                        {{"type 12", typed(3) + ": text 12"},
                         {"type 1x2", "does not take the whole text; it takes at most 2 digits"}},
                        [](QPlainTextEdit &edit) {
                            edit.setPlainText("lines");
                            setInputLimits(&edit, {0, 2, InputLimits::decimalDigits()});
                        });
    add<QComboBox>("choose", "index 1, text First, items 2",
                   {{"choose 2", "ControlHit: index 2, text Second"}}, [](QComboBox &box) {
                       box.addItems({"First", "Second"});
                   });
    add<QLabel>("", "text Black & white", {},
                [](QLabel &label) { label.setText("Black & white"); });
    add<QTextEdit>("", "text bold", {}, [](QTextEdit &edit) { edit.setHtml("<b>bold</b>"); });
}

void TestControlInterface::everyClassAnswersForItself()
{
    QFETCH(Make, make);
    QFETCH(Prepare, prepare);
    QFETCH(QString, takes);
    QFETCH(Steps, steps);

    for (const auto &[name, perform] : commands) {
        const auto control = make();
        prepare(control.get());
        control->show();
        const Done problem = perform(control.get(), "1");
        const bool isTaken = !problem || problem->failure != inspector::Failure::WrongKind;
        QVERIFY2(isTaken == takes.split(", ").contains(name), qPrintable(name));
        if (!isTaken && !takes.isEmpty())
            QVERIFY2(problem->text.endsWith("; use " + takes), qPrintable(problem->text));
    }

    const auto control = make();
    control->setObjectName("it");
    sendControlEvents(control.get());
    sendControlEvents(control.get()); // changes nothing
    EventLog log(control.get());
    prepare(control.get());
    control->show();
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringList()); // what code does is silent
    QTEST(stateOf(control.get()).join(", "), "holds");
    for (const auto &[line, outcome] : steps) {
        const QStringList before = stateOf(control.get());
        const QString name = line.section(' ', 0, 0);
        const Done problem = commands.at(name)(control.get(), line.mid(name.size() + 1));
        QStringList changed = stateOf(control.get());
        changed.removeIf([&before](const QString &each) { return before.contains(each); });
        const QString sent = log.take().join(", ");
        QCOMPARE(problem ? problem->text : sent + ": " + changed.join(", "),
                 problem ? "@it " + outcome : outcome);
    }
    control->setEnabled(false);
    QCOMPARE(inspector::set(control.get(), 1)->text, "@it is disabled");
}

// As from a real keyboard, where Alt takes nothing from the letter.
void TestControlInterface::aKeyComesWithItsText()
{
    struct KeyLog : QWidget
    {
        void keyPressEvent(QKeyEvent *event) override { texts << event->text(); }
        QStringList texts;
    } window;
    window.show();
    const QStringList keys{"Z", "Shift+Z", "Alt+Z", "Ctrl+Z", "Ctrl+1", "F6", "\u00e9"};
    for (const QString &key : keys)
        QVERIFY2(!inspector::pressKey(&window, key), qPrintable(key));
    const QStringList texts{"z", "Z", "z", "\x1a", "", "", "\u00e9"};
    QCOMPARE(window.texts, texts);
}

void TestControlInterface::refusesInAnotherLanguage()
{
    loadTexts(QStringLiteral(TEXTS), {"xx-AT"}); // a kind of it
    const auto backToEnglish = qScopeGuard([] { loadTexts({}, {}); });
    ListView list;
    list.setObjectName("it");
    list.show();
    list.reload(2);
    QCOMPARE(inspector::type(&list, "1")->text, "ListView @it nu texto. si select, double-click");
    QCOMPARE(inspector::select(&list, {7})->text, "@it: 2 rangi, nu 7");

    // What users wrote is no place holder.
    const auto file =
        CFPropertyListCreateFromXMLData("<plist><dict>\n<key>%2</key></dict></plist>", "%2.plist");
    QCOMPARE(file.reason(), "nu %2 («2@%2.plist»)");
}

QTEST_MAIN(TestControlInterface)
#include "test_control_interface.moc"
