#include "plugin_factory.h"

#include "bundle.h"
#include "shell_panel.h"

#include <QUuid>

namespace kelvo {

namespace {

struct FactoryInstance : PlugInInstance
{
    IUnknownTable functions;
    QUuid factory;
    std::uint32_t referenceCount;
};

FactoryInstance *instanceOf(void *self)
{
    return static_cast<FactoryInstance *>(static_cast<PlugInInstance *>(self));
}

std::uint32_t IUnknownAddRef(void *self)
{
    return ++instanceOf(self)->referenceCount;
}

std::uint32_t IUnknownRelease(void *self)
{
    FactoryInstance *instance = instanceOf(self);
    const std::uint32_t left = --instance->referenceCount;
    if (left == 0) {
        CFPlugInRemoveInstanceForFactory(instance->factory);
        delete instance;
    }
    return left;
}

OSStatus Retain(PanelInterface *interface)
{
    ++interface->referenceCount;
    return noErr;
}

OSStatus Release(PanelInterface **interface)
{
    PanelInterface *object = *interface;
    *interface = nullptr;
    if (--object->referenceCount == 0) {
        delete object->table;
        delete object;
    }
    return noErr;
}

OSStatus GetAPIVersion(PanelInterface *, PMPlugInAPIVersion *version)
{
    *version = {.buildMajor = 1, .buildMinor = 0, .baseMajor = 1, .baseMinor = 0};
    return noErr;
}

PanelInterface *makeShellInterface()
{
    auto *table = new PanelOperations(shellOperations());
    table->Retain = Retain;
    table->Release = Release;
    table->GetAPIVersion = GetAPIVersion;
    return new PanelInterface{table, 1};
}

OSStatus QueryInterface(void *self, const QUuid &iid, void **out)
{
    if (!out)
        return paramErr;
    if (iid == QUuid::fromString(QLatin1String(kIUnknownUUID))) {
        IUnknownAddRef(self);
        *out = self;
        return noErr;
    }
    if (iid == QUuid::fromString(QLatin1String(kPDEInterfaceUUID))) {
        *out = makeShellInterface();
        return noErr;
    }
    *out = nullptr;
    return kNoSuchInterface;
}

} // namespace

PlugInInstance *KelvoPDEPluginFactory(void *, const QUuid &typeUUID)
{
    if (typeUUID != QUuid::fromString(QLatin1String(kPDEPlugInTypeUUID)))
        return nullptr;
    auto *instance = new FactoryInstance;
    instance->functions = {nullptr, QueryInterface, IUnknownAddRef, IUnknownRelease};
    instance->table = &instance->functions;
    instance->factory = QUuid::fromString(QLatin1String(kKelvoPDEFactoryUUID));
    instance->referenceCount = 1;
    CFPlugInAddInstanceForFactory(instance->factory);
    return instance;
}

} // namespace kelvo
