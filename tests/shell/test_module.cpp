#include "driven_dialog.h"
#include "standard_error.h"

#include "bundle.h"
#include "control.h"
#include "modal_dialog.h"
#include "popup_button.h"
#include "ppd_file.h"
#include "property_list.h"
#include "sample_ppds.h"
#include "ticket.h"

#include <QLabel>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace kelvo;

namespace {

const QString kFullDevice = samplePpd("full");
const QString kBareDevice = samplePpd("bare");

constexpr std::int32_t kFeedEdge = 702;

QUuid uuid(const char *text)
{
    return QUuid::fromString(QLatin1String(text));
}

// Brings the Advanced panel to the front, as its user does.
bool showAdvanced(DrivenDialog &dialog)
{
    auto *selector = dialog.find<PopupButton>(kShellSignature, 16);
    return selector->choose(static_cast<int>(selector->menu().items.size()));
}

} // namespace

class TestModule : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void factoryCountsItsReferences();
    void interfaceCountsItsReferences();
    void getterLeavesTheFirstSlotsFree();
    void profileAgreesWithDeviceAndPanels();
    void twoDialogsInOneProcess();

private:
    Bundle *m_bundle = nullptr;
    PlugInFactoryFunction m_factory = nullptr;
};

void TestModule::initTestCase()
{
    Result<Bundle *> bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    QVERIFY2(bundle, "the bundle");
    m_bundle = bundle.value();
    const auto factory = m_bundle->findFactory(uuid(kPDEPlugInTypeUUID));
    QVERIFY(factory);
    QCOMPARE(factory->identifier, uuid("FD10ECA4-9139-48E2-B8BD-507DF7AA6E20"));
    m_factory = reinterpret_cast<PlugInFactoryFunction>(
        m_bundle->findFunction(factory->functionName.toLatin1().constData()));
    QVERIFY2(m_factory, qPrintable(m_bundle->loadError()));
}

void TestModule::factoryCountsItsReferences()
{
    const QUuid factory = uuid("FD10ECA4-9139-48E2-B8BD-507DF7AA6E20");
    QVERIFY(!m_factory(nullptr, uuid(kPDEInterfaceUUID)));
    QCOMPARE(plugInInstanceCount(factory), 0);

    PlugInInstance *plugIn = m_factory(nullptr, uuid(kPDEPlugInTypeUUID));
    QVERIFY(plugIn);
    QVERIFY(!plugIn->table->reserved);
    QCOMPARE(plugInInstanceCount(factory), 1);

    void *out = plugIn;
    QCOMPARE(plugIn->table->QueryInterface(plugIn, uuid(kPDEPlugInTypeUUID), &out),
             static_cast<OSStatus>(0x80000004U));
    QVERIFY(!out);
    QCOMPARE(plugIn->table->QueryInterface(plugIn, uuid(kIUnknownUUID), &out), noErr);
    QCOMPARE(out, static_cast<void *>(plugIn));
    QCOMPARE(plugIn->table->AddRef(plugIn), 3U);
    QCOMPARE(plugIn->table->Release(plugIn), 2U);
    QCOMPARE(plugIn->table->Release(plugIn), 1U);
    QCOMPARE(plugInInstanceCount(factory), 1);
    QCOMPARE(plugIn->table->Release(plugIn), 0U);
    QCOMPARE(plugInInstanceCount(factory), 0);
}

void TestModule::interfaceCountsItsReferences()
{
    PlugInInstance *plugIn = m_factory(nullptr, uuid(kPDEPlugInTypeUUID));
    void *out = nullptr;
    QCOMPARE(plugIn->table->QueryInterface(plugIn, uuid(kPDEInterfaceUUID), &out), noErr);
    plugIn->table->Release(plugIn); // the interface does not need it
    auto *interface = static_cast<PanelInterface *>(out);

    QCOMPARE(interface->referenceCount, 1U);
    QCOMPARE(interface->table->Retain(interface), noErr);
    QCOMPARE(interface->referenceCount, 2U);
    PMPlugInAPIVersion version{9, 9, 9, 9};
    QCOMPARE(interface->table->GetAPIVersion(interface, &version), noErr);
    QCOMPARE(version.buildMajor, 1U);
    QCOMPARE(version.buildMinor, 0U);
    QCOMPARE(version.baseMajor, 1U);
    QCOMPARE(version.baseMinor, 0U);

    PanelInterface *second = interface;
    QCOMPARE(second->table->Release(&second), noErr);
    QVERIFY(!second);
    QCOMPARE(interface->referenceCount, 1U);
    QCOMPARE(interface->table->Release(&interface), noErr);
    QVERIFY(!interface);
}

void TestModule::getterLeavesTheFirstSlotsFree()
{
    const auto getter =
        reinterpret_cast<PanelInterfaceGetter>(m_bundle->findFunction("GetAdvancedPanelInterface"));
    QVERIFY(getter);
    PanelInterface *interface = nullptr;
    QCOMPARE(getter(&interface), noErr);
    QVERIFY(!interface->table->Retain && !interface->table->Release
            && !interface->table->GetAPIVersion);
    QVERIFY(interface->table->Prologue && interface->table->Terminate);
    delete interface->table;
    delete interface;
}

void TestModule::profileAgreesWithDeviceAndPanels()
{
    const auto ppd = PpdFile::open(kFullDevice);
    const auto profile = readPropertyList(m_bundle->findResource("Device Profile", "plist"));
    QVERIFY(ppd && profile);
    const auto isEquipment = [&ppd](const QVariant &option) {
        return std::ranges::any_of(ppd.value()->groups(), [&](const PpdGroup &group) {
            return isInstallable(group)
                && std::ranges::find(group.options, option.toString(), &PpdOption::keyword)
                != group.options.end();
        });
    };
    const auto hasNoOther = [&isEquipment](const QVariantMap &properties) {
        return !properties.contains("InstalledBy") || isEquipment(properties["InstalledBy"]);
    };
    const QVariantMap features = profile.value().toMap()["Features"].toMap();
    for (auto feature = features.cbegin(); feature != features.cend(); ++feature) {
        const QVariantMap properties = feature->toMap()["Properties"].toMap();
        const QVariantMap syntax = feature->toMap()["Syntax"].toMap();
        const QString getter = properties.value("Panel").toString();
        QVERIFY2(getter.isEmpty()
                     || m_bundle->findFunction(
                         qPrintable(QStringLiteral("Get%1PanelInterface").arg(getter))),
                 qPrintable(feature.key()));
        QVERIFY2(hasNoOther(properties), qPrintable(feature.key()));
        const PpdOption *option = ppd.value()->findOption(feature.key());
        QCOMPARE(option != nullptr, properties["PPD"].toBool());
        if (!option)
            continue;
        const QVariantMap keywords = syntax["Keyword"].toMap();
        QVERIFY2(!keywords.isEmpty(), qPrintable(feature.key()));
        for (auto keyword = keywords.cbegin(); keyword != keywords.cend(); ++keyword) {
            const QString name = feature.key() + u' ' + keyword.key();
            QVERIFY2(option->findChoice(keyword.key()), qPrintable(name));
            QVERIFY2(hasNoOther(keyword->toMap()["Properties"].toMap()), qPrintable(name));
            QCOMPARE(keyword->toMap().contains("Default"), keyword.key() == option->defaultChoice);
        }
    }
    QVERIFY(features.size() > 10);
}

void TestModule::twoDialogsInOneProcess()
{
    for (const QString &device : {kFullDevice, kBareDevice}) {
        const StandardError errors;
        DrivenDialog dialog(m_factory, device);
        QVERIFY(dialog.begin() && showAdvanced(dialog));
        QCOMPARE(dialog.find<PopupButton>(kPanelSignature, kFeedEdge)->isEnabled(),
                 device == kFullDevice);
        // The same window with another printer: nothing of the first is left.
        dialog.terminate();
        QVERIFY(!dialog.find<PopupButton>(kPanelSignature, kFeedEdge));
        dialog.session.setPrinter({QStringLiteral("Hall-4"), kFullDevice});
        QVERIFY(dialog.begin() && showAdvanced(dialog));
        QVERIFY(dialog.find<PopupButton>(kPanelSignature, kFeedEdge)->isEnabled());
    }
}

QTEST_MAIN(TestModule)
#include "test_module.moc"
