#include "bundle.h"
#include "file_store.h"
#include "plugin_abi.h"
#include "property_list.h"
#include "table.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;
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
};

static Bundle *testBundle()
{
    const auto bundle = Bundle::open(QStringLiteral(TEST_BUNDLE));
    return bundle ? bundle.value() : nullptr;
}

static Result<void> writeInfo(const QString &folder, const Dictionary &info)
{
    return replaceFile(folder + u"/Info.plist"_s, CFPropertyListCreateXMLData(info).value());
}

void TestBundle::opensOnceAndIsFoundByItsIdentifier()
{
    Bundle *bundle = testBundle();
    QVERIFY(bundle);
    const auto again = Bundle::open(QStringLiteral(TEST_BUNDLE "/../Test.pde/"));
    QVERIFY(again);
    QCOMPARE(again.value(), bundle);
    QCOMPARE(CFBundleGetBundleWithIdentifier(u"com.kelvo.test"_s), bundle);
    QCOMPARE(CFBundleGetBundleWithIdentifier(u"com.kelvo.other"_s), nullptr);
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
    QCOMPARE(factory->functionName, u"makeTestPlugIn"_s);
    QCOMPARE(factory->identifier, QUuid::fromString(u"6E9C7B40-5C5F-4F0C-9A1B-0123456789AB"_s));
    QVERIFY(!bundle->findFactory(QUuid::fromString(QLatin1String(kIUnknownUUID))));
}

void TestBundle::findsTextsByTableAndKey()
{
    Bundle *bundle = testBundle();
    const auto text = [bundle](const char *key, const char *table) {
        return CFBundleCopyLocalizedString(bundle, QString::fromUtf8(key), u"fallback"_s,
                                           QString::fromUtf8(table));
    };
    QCOMPARE(text("1 Staple", "Localizable"), u"One staple"_s);
    QCOMPARE(text("1 Staple", "LANFax"), u"Fax staple"_s);
    QCOMPARE(text("Quote \"this\": a\nsecond line", "Localizable"), u"“This”"_s);
    QCOMPARE(text("1 staple", "Localizable"), u"fallback"_s);
    QCOMPARE(text("1 Staple", "Nowhere"), u"fallback"_s);
    QCOMPARE(CFBundleCopyLocalizedString(nullptr, u"1 Staple"_s, u"?"_s, u"LANFax"_s), u"?"_s);
}

void TestBundle::findsResourcesInsideOnly()
{
    Bundle *bundle = testBundle();
    const auto find = [bundle](const char *name, const char *type, const char *folder) {
        return bundle->findResource(QString::fromUtf8(name), QString::fromUtf8(type),
                                    QString::fromUtf8(folder));
    };
    QCOMPARE(find("en", "qm", "strings"), bundle->resourcesPath() + u"/strings/en.qm"_s);
    QCOMPARE(find("en", "qm", ""), QString());
    QCOMPARE(find("strings", "", ""), QString()); // a folder
    QCOMPARE(find("Info", "plist", ".."), QString());
    QCOMPARE(find("../Info", "plist", ""), QString());
}

void TestBundle::saysWhyItCannotBeOpened_data()
{
    // identifier: of its Info.plist; invalid: no such file
    const Table<QVariant, Code> row{"identifier", "code"};
    row("no Info.plist", {}, Code::NotFound);
    row("empty identifier", QVariant(QString()), Code::Damaged);
    row("number as identifier", QVariant(7), Code::Damaged);
    row("taken identifier", QVariant(u"com.kelvo.test"_s), Code::Refused);
}

void TestBundle::saysWhyItCannotBeOpened()
{
    QFETCH(QVariant, identifier);
    QFETCH(Code, code);
    QVERIFY(testBundle());
    QTemporaryDir folder;
    if (identifier.isValid())
        QVERIFY(writeInfo(folder.path(), {{u"CFBundleIdentifier"_s, identifier}}));

    const auto bundle = Bundle::open(folder.path());

    QVERIFY(!bundle);
    QCOMPARE(bundle.error().code, code);
    QVERIFY2(bundle.error().where.startsWith(folder.path()), qPrintable(bundle.error().where));
}

void TestBundle::saysWhyItsModuleCannotBeLoaded_data()
{
    const Table<QVariant> row{"executable"};
    row("no such file", QVariant(u"Missing.so"_s));
    row("no module", QVariant(u"Info.plist"_s));
    row("elsewhere", QVariant(u"../Test.pde/Test.so"_s));
    row("not a name", QVariant(1));
}

void TestBundle::saysWhyItsModuleCannotBeLoaded()
{
    QFETCH(QVariant, executable);
    QTemporaryDir folder;
    QVERIFY(writeInfo(
        folder.path(),
        {{u"CFBundleIdentifier"_s, u"com.kelvo."_s + QLatin1String(QTest::currentDataTag())},
         {u"CFBundleExecutable"_s, executable}}));
    const auto bundle = Bundle::open(folder.path());
    QVERIFY(bundle);
    QCOMPARE(bundle.value()->findFunction("countCalls"), nullptr);
    QVERIFY(bundle.value()->loadError().contains(QFileInfo(folder.path()).canonicalFilePath()));
}

QTEST_GUILESS_MAIN(TestBundle)
#include "test_bundle.moc"
