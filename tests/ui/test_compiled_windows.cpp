#include "bundle.h"
#include "files.h"
#include "table.h"
#include "window_loader.h"

#include <QDirIterator>
#include <QGridLayout>
#include <QLabel>
#include <QMetaProperty>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <map>
#include <memory>

using namespace kelvo;

// Windows as the build has compiled them, and the program that compiles.
class TestCompiledWindows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aCompiledWindowIsThatOfItsFile_data();
    void aCompiledWindowIsThatOfItsFile();
    void theCompilerRefusesWhatItWouldLose_data();
    void theCompilerRefusesWhatItWouldLose();

private:
    QTemporaryDir m_folder;
    CFBundleRef m_withoutModule = nullptr;                  // with the same descriptions
    std::map<QString, std::unique_ptr<QWidget>> m_compiled; // "PDE_Shell/Window"
};

namespace {

QString shown(const QVariant &value)
{
    // Each window has its own.
    static const QRegularExpression key(QStringLiteral("cacheKey=\\w+"));
    if (value.metaType().flags() & QMetaType::PointerToQObject)
        return QLatin1String(value.typeName());
    QString text;
    QDebug(&text).nospace() << value;
    return text.remove(key);
}

QStringList descriptionOf(QLayoutItem *item)
{
    QStringList lines{QStringLiteral("item align %1").arg(item->alignment().toInt())};
    if (QSpacerItem *spacer = item->spacerItem())
        lines << shown(spacer->sizeHint()) << shown(QVariant::fromValue(spacer->sizePolicy()));
    else
        lines << (item->widget() ? item->widget()->objectName() : item->layout()->objectName());
    return lines;
}

QStringList descriptionOf(const QLayout *layout)
{
    QStringList lines;
    for (int i = 0; i < layout->count(); ++i) {
        lines << descriptionOf(layout->itemAt(i));
        if (const auto *box = qobject_cast<const QBoxLayout *>(layout))
            lines << QStringLiteral("stretch %1").arg(box->stretch(i));
        if (const auto *grid = qobject_cast<const QGridLayout *>(layout)) {
            int row = 0, column = 0, rows = 0, columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            lines << QStringLiteral("at %1 %2 %3 %4").arg(row).arg(column).arg(rows).arg(columns);
        }
    }
    if (const auto *grid = qobject_cast<const QGridLayout *>(layout)) {
        for (int row = 0; row < grid->rowCount(); ++row)
            lines << QStringLiteral("row %1: %2, %3")
                         .arg(row)
                         .arg(grid->rowStretch(row))
                         .arg(grid->rowMinimumHeight(row));
        for (int column = 0; column < grid->columnCount(); ++column)
            lines << QStringLiteral("column %1: %2, %3")
                         .arg(column)
                         .arg(grid->columnStretch(column))
                         .arg(grid->columnMinimumWidth(column));
    }
    return lines;
}

// All that can be asked of `object` and what is in it, a line each.
QStringList descriptionOf(const QObject *object)
{
    const QMetaObject &type = *object->metaObject();
    const QString begin = QLatin1String(type.className()) + u' ' + object->objectName() + u' ';
    QStringList lines{begin};
    for (int i = 0; i < type.propertyCount(); ++i)
        lines << begin + QLatin1String(type.property(i).name()) + u' '
                + shown(type.property(i).read(object));
    // Qt's loader leaves its own margins in layouts, too.
    const auto names = object->isWidgetType() ? object->dynamicPropertyNames() : QByteArrayList();
    for (const QByteArray &name : names)
        lines << begin + QLatin1String(name) + u' ' + shown(object->property(name.constData()));
    if (const auto *label = qobject_cast<const QLabel *>(object))
        lines << begin + (label->buddy() ? label->buddy()->objectName() : QString());
    if (const auto *layout = qobject_cast<const QLayout *>(object))
        lines << descriptionOf(layout);
    for (const QObject *child : object->children()) {
        if (!child->inherits("QFormInternal::TranslationWatcher")) // with nothing to translate
            lines << descriptionOf(child);
    }
    return lines;
}

QStringList focusOrder(QWidget *window)
{
    QStringList names;
    for (const QWidget *next = window->nextInFocusChain(); next != window;
         next = next->nextInFocusChain())
        names << next->objectName();
    return names;
}

} // namespace

void TestCompiledWindows::initTestCase()
{
    const QString built = QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde");
    putFile(m_folder.filePath("T.pde/Info.plist"), R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>CFBundleIdentifier</key><string>test.ui</string></dict></plist>)");
    QVERIFY(QFile::link(built + "/Resources", m_folder.filePath("T.pde/Resources")));
    m_withoutModule = Bundle::open(m_folder.filePath("T.pde")).value();

    const auto bundle = Bundle::open(built);
    QVERIFY(bundle);
    const QString folder = built + "/Resources/dialogs/";
    QDirIterator files(folder, {"*.ui"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next().sliced(folder.size()).chopped(3);
        const auto window = createWindowFromDescription(bundle.value(), name.section(u'/', 0, 0),
                                                        name.section(u'/', 1));
        QVERIFY2(window, window ? "" : qPrintable(window.error().text()));
        m_compiled.emplace(name, window.value());
    }
    // No file was read as such.
    const QByteArray loaded = bytesOf("/proc/self/maps");
    for (const char *library : {"libQt6UiTools", "libQt6OpenGL"})
        QVERIFY2(!loaded.contains(library), library);
}

void TestCompiledWindows::aCompiledWindowIsThatOfItsFile_data()
{
    const Table<QString> row{"name"};
    for (const auto &[name, window] : m_compiled)
        row(qPrintable(name), name);
}

void TestCompiledWindows::aCompiledWindowIsThatOfItsFile()
{
    QFETCH(QString, name);
    const auto read = createWindowFromDescription(m_withoutModule, name.section(u'/', 0, 0),
                                                  name.section(u'/', 1));
    QVERIFY2(read, read ? "" : qPrintable(read.error().text()));
    const std::unique_ptr<QWidget> expected(read.value());
    QWidget *window = m_compiled.at(name).get();
    QCOMPARE(window->size(), expected->size());
    for (QWidget *each : {window, expected.get()}) {
        each->adjustSize();
        each->show(); // so that all of it has its place
    }
    QCOMPARE(focusOrder(window), focusOrder(expected.get()));
    const QStringList described = descriptionOf(expected.get());
    QVERIFY(described.size() > 100);
    const QStringList compiled = descriptionOf(window);
    for (qsizetype i = 0; i < std::min(compiled.size(), described.size()); ++i)
        QCOMPARE(compiled[i], described[i]);
    QCOMPARE(compiled.size(), described.size());
}

void TestCompiledWindows::theCompilerRefusesWhatItWouldLose_data()
{
    const Table<QByteArray, QByteArray> row{"contents", "message"};

    row("an unknown element", "\n<actions/>", "W.ui:2: <actions> is not known");
    row("an unknown kind of value", "<property name=\"a\"><cursor/></property>", "<cursor>");
    row("an unknown key", "<property name=\"a\"><enum>Qt::Upwards</enum></property>",
        "Qt::Upwards");
    row("an unknown attribute", "<layout class=\"QHBoxLayout\" rowgap=\"1\"/>", "rowgap");
    row("an unknown layout", "<layout class=\"QFormLayout\"/>", "QFormLayout");
    row("a box with rows", "<layout class=\"QHBoxLayout\" rowstretch=\"1\"/>", "rowstretch");
    row("another property of a layout",
        "<layout class=\"QHBoxLayout\"><property name=\"verticalSpacing\"><number>1</number>"
        "</property></layout>",
        "verticalSpacing");
    row("one margin",
        "<layout class=\"QHBoxLayout\"><property name=\"topMargin\"><number>1</number></property>"
        "</layout>",
        "all four margins");
    row("a page of a stack",
        "<widget class=\"QStackedWidget\" name=\"S\"><widget class=\"QWidget\" "
        "name=\"P\"/></widget>",
        "QStackedWidget");
    row("a name twice", "<widget class=\"QLabel\" name=\"W\"/>", "“W”");
    row("a buddy that is not there", "<property name=\"buddy\"><cstring>who</cstring></property>",
        "“who”");
    row("a stop of Tab that is not there", "</widget><tabstops><tabstop>who</tabstop></tabstops>",
        "“who”");
    row("no number", "<property name=\"a\"><number>1.5</number></property>", "“1.5”");
    row("not well formed", "<layout", "W.ui:");
}

void TestCompiledWindows::theCompilerRefusesWhatItWouldLose()
{
    QFETCH(QByteArray, contents);
    QFETCH(QByteArray, message);
    QByteArray file = "<ui><widget class=\"QLabel\" name=\"W\">" + contents;
    if (!contents.contains("</widget>"))
        file += "</widget>";
    putFile(m_folder.filePath("W.ui"), file + "</ui>");
    QProcess compiler;
    compiler.start(KELVO_WINDOW_COMPILER, {m_folder.filePath("made.cpp"), m_folder.path(), "W.ui"});
    QVERIFY(compiler.waitForFinished());
    const QByteArray said = compiler.readAllStandardError();
    QCOMPARE(compiler.exitCode(), 1);
    QVERIFY2(said.contains(message), said.constData());
    QVERIFY(!QFile::exists(m_folder.filePath("made.cpp")));
}

QTEST_MAIN(TestCompiledWindows)
#include "test_compiled_windows.moc"
