#include "layout_check.h"
#include "window_walk.h"

#include "angle_dial.h"
#include "files.h"
#include "list_view.h"
#include "menu_button.h"
#include "outline_style.h"
#include "panel_switch.h"
#include "popup_button.h"
#include "summary_view.h"
#include "tab_control.h"
#include "table.h"
#include "texts.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDirIterator>
#include <QImage>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QXmlStreamReader>

using namespace kelvo;

// The program's windows, with what they show in use.
class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void everyWindowIsThereAndFits_data();
    void everyWindowIsThereAndFits();
    void controlsAreSeenOnDarkWindows_data();
    void controlsAreSeenOnDarkWindows();
    void theFocusIsSeen_data();
    void theFocusIsSeen();
};

namespace {

// The descriptions of the bundle's windows, each with its outermost widgets: of a panel the window
// itself goes away, and what is in it moves into the print dialog.
QMap<QString, QSet<QString>> describedWindows()
{
    QMap<QString, QSet<QString>> names;
    QDirIterator files(QStringLiteral(KELVO_SOURCE_DIR "/resources/dialogs"), {"*.ui"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        QXmlStreamReader reader(bytesOf(file.filePath()));
        QSet<QString> &outermost = names[file.dir().dirName() + u'/' + file.fileName()];
        while (outermost.size() < 2 && !reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"widget")
                outermost.insert(reader.attributes().value(QLatin1String("name")).toString());
        }
    }
    return names;
}

constexpr int leastRing = 80; // pixels; the one around a slider's handle has 100

bool looksOther(const QColor &one, const QColor &other)
{
    constexpr int seen = 0x40; // of 255
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())})
        >= seen;
}

} // namespace

void TestWindows::everyWindowIsThereAndFits_data()
{
    const Table<double, int> row{"font", "theme"};

    row("usual font", 1.0, 0);
    row("large font, high contrast", 1.5, 2);
}

void TestWindows::everyWindowIsThereAndFits()
{
    QFETCH(double, font);
    QFETCH(int, theme);
    const QFont usual = QApplication::font();
    const auto restore = qScopeGuard([&usual] {
        QApplication::setFont(usual);
        QApplication::setPalette(themes().front().palette);
    });
    QApplication::setPalette(themes()[std::size_t(theme)].palette);
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * font);
    QApplication::setFont(large);

    QStringList problems;
    QSet<QString> seen;
    WindowWalk walk;
    // Else all of this would be said of English windows.
    QCOMPARE(kelvo::textLanguage().left(2), qEnvironmentVariable("LANGUAGE", "en").left(2));
    for (const QString &script : WindowWalk::scripts()) {
        const QString name = QFileInfo(script).completeBaseName() + QStringLiteral(": ");
        const QString problem = walk.visit(script, [&](QWidget *window) {
            for (const QString &found : layoutProblems(window))
                problems << name + found;
            seen.insert(window->objectName());
            for (const QWidget *part : window->findChildren<QWidget *>()) {
                if (part->isVisible())
                    seen.insert(part->objectName());
            }
        });
        if (!problem.isEmpty())
            problems << problem;
    }
    const auto windows = describedWindows();
    for (auto window = windows.cbegin(); window != windows.cend(); ++window) {
        if (!seen.intersects(window.value()))
            problems << window.key() + QStringLiteral(": no script opens it");
    }
    for (const QString &problem : std::as_const(problems))
        qWarning("%s", qPrintable(problem));
    QCOMPARE(problems.size(), 0);
}

void TestWindows::controlsAreSeenOnDarkWindows_data()
{
    QTest::addColumn<QPalette>("palette");

    for (const Theme &theme : themes()) {
        if (theme.name != QLatin1String("light"))
            QTest::newRow(qPrintable(theme.name)) << theme.palette;
    }
}

// By their outline, wherever it stands.
void TestWindows::controlsAreSeenOnDarkWindows()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    const WindowWalk walk; // has the program's looks
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    for (QWidget *control : std::initializer_list<QWidget *>{
             new QLineEdit, new QCheckBox, new QRadioButton, new QPushButton, new QComboBox,
             new QSpinBox, new QPlainTextEdit}) {
        control->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(control);
    }
    window.show();
    const QImage picture = window.grab().toImage();
    const QColor background = palette.color(QPalette::Window);
    for (const QWidget *control : window.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        double best = 0;
        for (int x = 0; x < control->width(); ++x)
            best =
                std::max(best,
                         kelvo::contrastOf(background,
                                           picture.pixelColor(control->x() + x,
                                                              control->geometry().center().y())));
        QVERIFY2(best >= 3, control->metaObject()->className());
    }
    QApplication::setPalette(themes().front().palette);
}

void TestWindows::theFocusIsSeen_data()
{
    QTest::addColumn<QPalette>("palette");

    for (const Theme &theme : themes())
        QTest::newRow(qPrintable(theme.name)) << theme.palette;
}

// Also before any key was pressed: Return presses the button that a window opens with.
void TestWindows::theFocusIsSeen()
{
    QFETCH(QPalette, palette);
    const auto restore = qScopeGuard([] { QApplication::setPalette(themes().front().palette); });
    QApplication::setPalette(palette);
    const WindowWalk walk; // has the program's looks
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *button = new QPushButton(QStringLiteral("OK"));
    button->setDefault(true);
    auto *tool = new QToolButton;
    tool->setText(QStringLiteral("Edit"));
    auto *choice = new MenuButton;
    choice->setShownChoice(QStringLiteral("Hall-3"));
    auto *tabs = new TabControl;
    tabs->setTitles({QStringLiteral("Recipients"), QStringLiteral("Sending")});
    auto *panels = new PanelSwitch;
    panels->setTitles({QStringLiteral("Device"), QStringLiteral("Job Notes")});
    auto *list = new ListView;
    list->setColumns({{QStringLiteral("Pages")}}, [](int, int) { return QStringLiteral("1-3"); });
    list->reload(2);
    list->selectRows({1});
    auto *summary = new SummaryView;
    summary->setSummary(QStringLiteral("- White"));
    for (QWidget *control : std::initializer_list<QWidget *>{
             button, tool, choice, tabs, panels, list, new ListView, summary,
             new QPushButton(QStringLiteral("Cancel")), new QCheckBox(QStringLiteral("Collate")),
             new QRadioButton(QStringLiteral("Inches")), new PopupButton,
             new QSlider(Qt::Horizontal), new AngleDial})
        layout->addWidget(control);
    auto *elsewhere = new QPushButton(QStringLiteral("Help"));
    layout->addWidget(elsewhere);
    window.show();
    QApplication::setActiveWindow(&window);
    for (QWidget *control : window.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (control == elsewhere)
            continue;
        elsewhere->setFocus();
        const QImage before = control->grab().toImage();
        control->setFocus();
        QVERIFY(control->hasFocus());
        const QImage after = control->grab().toImage();
        int changed = 0;
        for (int y = 0; y < after.height(); ++y) {
            for (int x = 0; x < after.width(); ++x)
                changed += looksOther(before.pixelColor(x, y), after.pixelColor(x, y));
        }
        QVERIFY2(changed >= leastRing, control->metaObject()->className());
    }
}

QTEST_MAIN(TestWindows)
#include "test_windows.moc"
