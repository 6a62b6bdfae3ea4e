#include "bundle.h"
#include "file_store.h"
#include "plugin_abi.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace kelvo;
using Code = Error::Code;

class TestBundle : public QObject
{
    Q_OBJECT

private slots:
    void opensOnceAndIsFoundByItsIdentifier();
    void callsTheModuleItNames();
    void namesTheFactoryOfItsType();
    void findsTextsByTableAndKey();
    void findsResourcesInsideOnly();
    void saysWhyItCannotBeOpened_data();
    void saysWhyItCannotBeOpened();
    void saysWhyItsModuleCannotBeLoaded_data();
    void saysWhyItsModuleCannotBeLoaded();
    void countsLivingInstances();
};

static Bundle *testBundle()
{
    const auto bundle = Bundle::open(QStringLiteral(TEST_BUNDLE));
    return bundle ? bundle.value() : nullptr;
}

void TestBundle::opensOnceAndIsFoundByItsIdentifier()
{
    Bundle *bundle = testBundle();
    QVERIFY(bundle);
    const auto again = Bundle::open(QStringLiteral(TEST_BUNDLE "/../Test.pde/"));
    QVERIFY(again);
    QCOMPARE(again.value(), bundle);
    QCOMPARE(CFBundleGetBundleWithIdentifier(QStringLiteral("com.kelvo.test")), bundle);
    QCOMPARE(CFBundleGetBundleWithIdentifier(QStringLiteral("com.kelvo.other")), nullptr);
}

void TestBundle::callsTheModuleItNames()
{
    Bundle *bundle = testBundle();
    QVERIFY(bundle);
    auto *count =
        reinterpret_cast<int (*)()>(CFBundleGetFunctionPointerForName(bundle, "countCalls"));
    QVERIFY2(count, qPrintable(bundle->loadError()));
    QCOMPARE(count(), 1);
    QCOMPARE(count(), 2);
    QCOMPARE(bundle->findFunction("noSuchFunction"), nullptr);
    QCOMPARE(bundle->loadError(), QString());
    QCOMPARE(CFBundleGetFunctionPointerForName(nullptr, "countCalls"), nullptr);
}

void TestBundle::namesTheFactoryOfItsType()
{
    Bundle *bundle = testBundle();
    QVERIFY(bundle);
    // The first factory of the list has no function.
    const auto factory = bundle->findFactory(QUuid::fromString(QLatin1String(kPDEPlugInTypeUUID)));
    QVERIFY(factory);
    QCOMPARE(factory->functionName, QStringLiteral("makeTestPlugIn"));
    QCOMPARE(factory->identifier,
             QUuid::fromString(QStringLiteral("6E9C7B40-5C5F-4F0C-9A1B-0123456789AB")));
    QVERIFY(!bundle->findFactory(QUuid::fromString(QLatin1String(kIUnknownUUID))));
}

void TestBundle::findsTextsByTableAndKey()
{
    Bundle *bundle = testBundle();
    const auto text = [bundle](const char *key, const char *table) {
        return CFBundleCopyLocalizedString(bundle, QString::fromUtf8(key),
                                           QStringLiteral("fallback"), QString::fromUtf8(table));
    };
    QCOMPARE(text("1 Staple", "Localizable"), QStringLiteral("One staple"));
    QCOMPARE(text("1 Staple", "LANFax"), QStringLiteral("Fax staple"));
    QCOMPARE(text("Quote \"this\": a\nsecond line", "Localizable"), QStringLiteral("“This”"));
    QCOMPARE(text("1 staple", "Localizable"), QStringLiteral("fallback"));
    QCOMPARE(text("1 Staple", "Nowhere"), QStringLiteral("fallback"));
    QCOMPARE(CFBundleCopyLocalizedString(nullptr, QStringLiteral("1 Staple"), QStringLiteral("?"),
                                         QStringLiteral("LANFax")),
             QStringLiteral("?"));
}

void TestBundle::findsResourcesInsideOnly()
{
    Bundle *bundle = testBundle();
    const auto find = [bundle](const char *name, const char *type, const char *folder) {
        return bundle->findResource(QString::fromUtf8(name), QString::fromUtf8(type),
                                    QString::fromUtf8(folder));
    };
    QCOMPARE(find("en", "qm", "strings"),
             bundle->resourcesPath() + QStringLiteral("/strings/en.qm"));
    QCOMPARE(find("en", "qm", ""), QString());
    QCOMPARE(find("strings", "", ""), QString()); // a folder
    QCOMPARE(find("Info", "plist", ".."), QString());
    QCOMPARE(find("../Info", "plist", ""), QString());
}

void TestBundle::saysWhyItCannotBeOpened_data()
{
    QTest::addColumn<QVariant>("identifier"); // of its Info.plist; invalid: no such file
    QTest::addColumn<Code>("code");
    QTest::newRow("no Info.plist") << QVariant() << Code::NotFound;
    QTest::newRow("empty identifier") << QVariant(QString()) << Code::Damaged;
    QTest::newRow("number as identifier") << QVariant(7) << Code::Damaged;
    QTest::newRow("taken identifier")
        << QVariant(QStringLiteral("com.kelvo.test")) << Code::Refused;
}

void TestBundle::saysWhyItCannotBeOpened()
{
    QFETCH(QVariant, identifier);
    QFETCH(Code, code);
    QVERIFY(testBundle());
    QTemporaryDir folder;
    const QString info = folder.filePath(QStringLiteral("Info.plist"));
    if (identifier.isValid())
        QVERIFY(writeDictionaryFile(info, {{QStringLiteral("CFBundleIdentifier"), identifier}}));

    const auto bundle = Bundle::open(folder.path());

    QVERIFY(!bundle);
    QCOMPARE(bundle.error().code, code);
    QVERIFY2(bundle.error().where.startsWith(info), qPrintable(bundle.error().where));
}

void TestBundle::saysWhyItsModuleCannotBeLoaded_data()
{
    QTest::addColumn<QVariant>("executable");
    QTest::newRow("no such file") << QVariant(QStringLiteral("Missing.so"));
    QTest::newRow("no module") << QVariant(QStringLiteral("Info.plist"));
    QTest::newRow("elsewhere") << QVariant(QStringLiteral("../Test.pde/Test.so"));
    QTest::newRow("not a name") << QVariant(1);
}

void TestBundle::saysWhyItsModuleCannotBeLoaded()
{
    QFETCH(QVariant, executable);
    QTemporaryDir folder;
    QVERIFY(writeDictionaryFile(
        folder.filePath(QStringLiteral("Info.plist")),
        {{QStringLiteral("CFBundleIdentifier"),
          QStringLiteral("com.kelvo.") + QLatin1String(QTest::currentDataTag())},
         {QStringLiteral("CFBundleExecutable"), executable}}));
    const auto bundle = Bundle::open(folder.path());
    QVERIFY(bundle);
    QCOMPARE(bundle.value()->findFunction("countCalls"), nullptr);
    QVERIFY(bundle.value()->loadError().contains(QFileInfo(folder.path()).canonicalFilePath()));
}

void TestBundle::countsLivingInstances()
{
    const QUuid one = QUuid::createUuid();
    CFPlugInAddInstanceForFactory(one);
    CFPlugInAddInstanceForFactory(one);
    CFPlugInRemoveInstanceForFactory(one);
    QCOMPARE(plugInInstanceCount(one), 1);
    CFPlugInRemoveInstanceForFactory(one);
    CFPlugInRemoveInstanceForFactory(one); // one too many
    QCOMPARE(plugInInstanceCount(one), 0);
}

QTEST_GUILESS_MAIN(TestBundle)
#include "test_bundle.moc"
