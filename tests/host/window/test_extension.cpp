#include "test_panels.h"

#include "control.h"
#include "extension.h"
#include "files.h"
#include "property_list.h"
#include "table.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

using namespace kelvo;

class TestExtension : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { *m_log = {}; }

    void callsComeInOrder();
    void onePanelWritesAndAllOthersRead();
    void aPanelThatOpensOnceIsShownAgain();
    void aRefusedPrinterLeavesNothingBehind();
    void unusableBundlesAreRefused_data();
    void unusableBundlesAreRefused();

private:
    Bundle *m_bundle = nullptr;
    TestPanels *m_log = nullptr;
};

namespace {

// A window with the buttons and the pane that panels expect.
struct Window : QWidget
{
    Window()
    {
        auto *print = new QPushButton(this);
        setWindowButtons(this, print, nullptr);
        pane->setLayout(new QVBoxLayout);
    }
    QWidget *pane = new QWidget(this);
};

QStringList taken(QStringList &calls)
{
    return std::exchange(calls, {});
}

} // namespace

void TestExtension::initTestCase()
{
    const auto bundle = Bundle::open(QStringLiteral(TEST_BUNDLE));
    QVERIFY(bundle);
    m_bundle = bundle.value();
    const auto get = reinterpret_cast<TestPanelsFunction>(m_bundle->findFunction("testPanels"));
    QVERIFY(get);
    m_log = get();
}

void TestExtension::callsComeInOrder()
{
    PrintSession session;
    {
        Window window;
        Extension extension(m_bundle, window.pane);
        QVERIFY(extension.load());
        QCOMPARE(m_log->calls, QStringList());
        QVERIFY(extension.begin(session));
        // The missing panel and the failing one are passed over.
        QCOMPARE(taken(m_log->calls),
                 (QStringList{"PDEShell prologue", "PDEShell initialize", "Second prologue",
                              "Second initialize", "Failing prologue", "Failing initialize",
                              "Failing terminate", "Third prologue", "Third initialize",
                              "PDEShell open"}));
        QCOMPARE(extension.panels().size(), 3U);
        QCOMPARE(extension.panels()[1].name, "Second");
        QCOMPARE(extension.panels()[1].title, "The Second");

        QVERIFY(extension.panels()[0].pane->isVisibleTo(window.pane));
        extension.show(0);
        QCOMPARE(taken(m_log->calls), QStringList());
        extension.show(2);
        taken(m_log->calls);

        // The shown panel has the last word.
        extension.sync(kSyncWrite);
        QCOMPARE(taken(m_log->calls),
                 (QStringList{"PDEShell write", "Second write", "Third write"}));
        extension.show(1);
        taken(m_log->calls);
        extension.sync(kSyncRead);
        QCOMPARE(taken(m_log->calls), (QStringList{"PDEShell read", "Third read", "Second read"}));

        extension.end(noErr);
        QCOMPARE(taken(m_log->calls),
                 (QStringList{"Third terminate", "Second close", "Second terminate",
                              "PDEShell terminate"}));
        QVERIFY(!extension.isBegun());
        QVERIFY(window.pane->findChildren<QWidget *>().isEmpty());

        // Another printer, the same bundle.
        QVERIFY(extension.begin(session));
        QVERIFY(extension.isBegun());
    }
    QCOMPARE(m_log->livingContexts, 0);
    QCOMPARE(m_log->livingInterfaces, 0);
}

void TestExtension::onePanelWritesAndAllOthersRead()
{
    PrintSession session;
    Window window;
    Extension extension(m_bundle, window.pane);
    QVERIFY(extension.load());
    QVERIFY(extension.begin(session));
    extension.show(1);
    auto *second = window.findChild<QLineEdit *>(QStringLiteral("SecondField"));
    second->setText(QStringLiteral("typed here"));
    taken(m_log->calls);

    extension.show(0);

    QCOMPARE(taken(m_log->calls),
             (QStringList{"Second write", "PDEShell read", "Third read", "Second close",
                          "PDEShell open"}));
    QCOMPARE(window.findChild<QLineEdit *>(QStringLiteral("PDEShellField"))->text(), "typed here");
    QVERIFY(!second->isVisibleTo(&window));
}

void TestExtension::aPanelThatOpensOnceIsShownAgain()
{
    PrintSession session;
    Window window;
    Extension extension(m_bundle, window.pane);
    QVERIFY(extension.load());
    QVERIFY(extension.begin(session));
    extension.show(2);
    extension.show(0);
    extension.show(2);
    QVERIFY(extension.panels()[2].pane->isVisibleTo(window.pane));
    taken(m_log->calls);
    extension.show(0);

    QCOMPARE(m_log->calls.filter("Third"), (QStringList{"Third write", "Third close"}));
}

void TestExtension::aRefusedPrinterLeavesNothingBehind()
{
    PrintSession session;
    Window window;
    Extension extension(m_bundle, window.pane);
    QVERIFY(extension.load());
    m_log->refusesPrinter = true;

    const auto begun = extension.begin(session);

    QVERIFY(!begun);
    QCOMPARE(begun.error().code, Error::Code::Refused);
    QVERIFY(!extension.isBegun());
    QVERIFY(extension.panels().empty());
    QCOMPARE(m_log->livingContexts, 0);
    QVERIFY(window.pane->findChildren<QWidget *>().isEmpty());
    // Of no use to anybody, and harmless.
    extension.sync(kSyncWrite);
    extension.end(noErr);
    QCOMPARE(m_log->calls,
             (QStringList{"PDEShell prologue", "PDEShell initialize", "PDEShell terminate"}));
    m_log->refusesPrinter = false;
    QVERIFY(extension.begin(session));
}

void TestExtension::unusableBundlesAreRefused_data()
{
    const Table<QString, QVariant, QString> row{"key", "value", "says"};

    const QString uuid = QStringLiteral("7F3C6A52-3A3B-4D0B-9A39-5A2B0C6B7E01");
    row("no factory for panels", "CFPlugInTypes", QVariant(Dictionary{}), "names no factory");
    row("factory of another name", "CFPlugInFactories",
        QVariant(Dictionary{{uuid, "NoSuchFactory"}}), "no function NoSuchFactory");
    row("factory that makes nothing", "CFPlugInFactories",
        QVariant(Dictionary{{uuid, "RefusingFactory"}}), "makes no panels");
    row("no module", "CFBundleExecutable", QVariant("Gone.so"), "Gone.so");
}

void TestExtension::unusableBundlesAreRefused()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, says);
    const QTemporaryDir folder;
    auto info = readPropertyList(QStringLiteral(TEST_BUNDLE "/Info.plist")).value().toMap();
    info[QStringLiteral("CFBundleIdentifier")] = folder.path();
    info[key] = value;
    putFile(folder.filePath("Info.plist"), CFPropertyListCreateXMLData(info).value());
    QVERIFY(QFile::link(QStringLiteral(TEST_BUNDLE "/TestPanels.so"),
                        folder.filePath(QStringLiteral("TestPanels.so"))));
    const auto bundle = Bundle::open(folder.path());
    QVERIFY(bundle);

    Extension extension(bundle.value(), nullptr);
    const auto loaded = extension.load();

    QVERIFY(!loaded);
    QVERIFY2(loaded.error().text().contains(says), qPrintable(loaded.error().text()));
}

QTEST_MAIN(TestExtension)
#include "test_extension.moc"
